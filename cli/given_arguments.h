#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wordhawk {

/// What a command line may mean, judged by its words alone. Only that need be described to the
/// library that reads it: to describe everything takes as long as checking a short text.
class GivenArguments {
  public:
    /// Any command and option there is.
    GivenArguments() = default;
    /// Those that the arguments name, or all where they may ask for the help, which names the
    /// others. The arguments must outlive the object.
    explicit GivenArguments(const std::vector<std::string>& arguments);

    bool MayHaveCommand(std::string_view name) const;
    /// By its long name, such as "--jobs", and its letter if it has one.
    bool MayHaveOption(std::string_view name, char letter = '\0') const;

  private:
    const std::vector<std::string>* arguments_ = nullptr;
};

}  // namespace wordhawk
