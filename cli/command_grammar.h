#pragma once

#include "cli/given_arguments.h"
#include "cli/options.h"

#include <span>
#include <string_view>

namespace CLI {
class App;
}

namespace wordhawk {

/// A command by the name that it is given on the command line.
struct CommandRow {
    std::string_view name;
    Command command;
    /// Describes it to the library as far as it may be given, and where the values go.
    void (*add)(CLI::App& app, const GivenArguments& given, Options& options);
};

/// All of them, in the order of the help.
std::span<const CommandRow> CommandRows();

}  // namespace wordhawk
