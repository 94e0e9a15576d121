#include "cli/given_arguments.h"

#include <algorithm>

namespace wordhawk {
namespace {

/// Whether the argument may be options of one letter, which can be written together.
bool MayHaveLetter(std::string_view argument, char letter) {
    return argument.starts_with('-') && !argument.starts_with("--") &&
           argument.find(letter) != argument.npos;
}

}  // namespace

GivenArguments::GivenArguments(const std::vector<std::string>& arguments) : arguments_(&arguments) {
    if (MayHaveOption("--help", 'h')) arguments_ = nullptr;
}

bool GivenArguments::MayHaveCommand(std::string_view name) const {
    return arguments_ == nullptr ||
           std::find(arguments_->begin(), arguments_->end(), name) != arguments_->end();
}

bool GivenArguments::MayHaveOption(std::string_view name, char letter) const {
    return arguments_ == nullptr ||
           std::any_of(arguments_->begin(), arguments_->end(), [&](std::string_view argument) {
               return argument.starts_with(name) ||
                      (letter != '\0' && MayHaveLetter(argument, letter));
           });
}

}  // namespace wordhawk
