#pragma once

#include <string_view>

namespace wordhawk {

/// What the program was started for.
enum class StartMode {
    Program,     ///< by the user, perhaps with a document
    Automation,  ///< by the system, to serve another program
    Register,    ///< to make itself known to other programs
    Unregister,
};

/// Whom a registration is for.
enum class RegisterFor { User, Machine };

struct StartRequest {
    StartMode mode = StartMode::Program;
    RegisterFor whom = RegisterFor::User;
    /// No box tells of a failure; the exit code does.
    bool quiet = false;
};

/// Reads the switches of a command line, which stand first and begin with "/" or "-", in any case:
/// Automation, Embedding, RegServer, UnregServer, and with these AllUsers and Quiet. Anything else
/// is a document.
StartRequest StartRequestFrom(std::wstring_view command_line);

}  // namespace wordhawk
