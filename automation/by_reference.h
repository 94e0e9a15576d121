#pragma once

#include "platform/win32/win.h"

#include <oaidl.h>

#include <string>

namespace wordhawk {

// Arguments as clients pass them: by value; by reference, as a text or Boolean or in a variant of
// whatever kind (scripts); or, for languages that know no references, as an object whose property
// "value" stands for the variable. An argument that is left out, or empty, reads as an empty text
// or False.

/// Reads an argument; DISP_E_TYPEMISMATCH when it is nothing of the kind.
HRESULT ReadText(const VARIANT& argument, std::wstring& text);
HRESULT ReadBoolean(const VARIANT& argument, bool& value);

/// Puts the text where a reference leads; an argument by value stays what it is.
HRESULT WriteText(const VARIANT& argument, const std::wstring& text);

/// Replaces the text that `*at` owns.
HRESULT ReplaceText(BSTR* at, const std::wstring& text);

}  // namespace wordhawk
