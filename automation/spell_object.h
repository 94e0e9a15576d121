#pragma once

#include "automation/check_queue.h"
#include "automation/clients.h"
#include "automation/type_library.h"

namespace wordhawk {

/// What the objects of one server share; outlives them all.
struct ServerParts {
    const TypeLibrary& library;
    CheckQueue& queue;
    Clients& clients;
};

/// Makes an object of the class cSpellit for the client whose call is being answered, and hands out
/// the interface asked for. Its methods may be called on any thread of the multithreaded apartment.
HRESULT MakeSpellObject(const ServerParts& parts, REFIID interface_id, void** out);

/// Makes the factory that hands out such objects.
HRESULT MakeSpellFactory(const ServerParts& parts, IUnknown** out);

}  // namespace wordhawk
