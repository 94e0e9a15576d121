#pragma once

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <string>
#include <vector>

namespace wordhawk {

/// Limits of a value, without the library's note of them in the help text.
inline CLI::Validator Between(int lowest, int highest) {
    return CLI::Range(lowest, highest).description("");
}

/// An option that takes one value each time it is given; a word behind the value is a command.
template <class T>
CLI::Option* OneValueEachTime(CLI::App& app, const std::string& name, std::vector<T>& values,
                              const std::string& help) {
    return app.add_option(name, values, help)
        ->allow_extra_args(false)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

}  // namespace wordhawk
