#include "app/version.h"
#include "cli/options.h"
#include "cli/output.h"

#include <algorithm>

namespace wordhawk {
namespace {

/// ispell's options that take a value, joined to the letter or as the next argument.
constexpr std::string_view kWithValue = "dpwWTLfi";

/// Our own options that may stand before the mode.
bool TakesNextArgument(std::string_view argument) {
    return argument == "--data" || argument == "--locale" || argument == "--set" ||
           argument == "--flag";
}

bool IsMode(std::string_view argument) {
    return argument == "-a" || argument == "-l" || argument == "-v" || argument == "-vv" ||
           argument == "-A";
}

bool IsNumber(std::string_view text) {
    return !text.empty() && text.size() <= 5 &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

const std::string kIspellBanner =
    "@(#) International Ispell Version 3.1.20 (but really Wordhawk " WORDHAWK_VERSION ")";

bool IsIspellCommandLine(const std::vector<std::string>& arguments) {
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (IsMode(argument)) return true;
        if (TakesNextArgument(argument)) {
            ++i;
        } else if (argument.size() == 2 && argument[0] == '-' &&
                   kWithValue.find(argument[1]) != std::string_view::npos) {
            ++i;
        } else if (argument == "pipe") {
            return true;  // the same by its own name
        } else if (argument.empty() || argument[0] != '-' || argument == "-" || argument == "--" ||
                   argument == "--help" || argument == "-h") {
            return false;  // a command, or nothing of ispell's
        }
    }
    return false;
}

ParsedCommandLine ParseIspellCommandLine(const std::vector<std::string>& arguments) {
    std::vector<std::string> own;  // what our own parser is to read
    std::vector<std::string> files;
    std::string mode;
    bool help = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (TakesNextArgument(argument)) {
            own.push_back(argument);
            if (i + 1 < arguments.size()) own.push_back(arguments[++i]);
        } else if (IsMode(argument)) {
            if (mode.empty()) mode = argument;
        } else if (argument == "pipe" && mode.empty()) {
            mode = argument;
        } else if (argument == "--help" || argument == "-h") {
            help = true;
        } else if (argument.starts_with("--")) {
            const bool is_own = argument == "--no-install" || argument == "--classic" ||
                                argument.starts_with("--search=") ||
                                argument.starts_with("--data=") ||
                                argument.starts_with("--locale=") ||
                                argument.starts_with("--set=") || argument.starts_with("--flag=");
            if (is_own) own.push_back(argument);
        } else if (argument.size() >= 2 && argument[0] == '-') {
            if (kWithValue.find(argument[1]) == std::string_view::npos) continue;
            std::string value = argument.substr(2);
            if (value.empty() && i + 1 < arguments.size()) value = arguments[++i];
            // Dictionaries have locale numbers here; any other name means the default.
            if (argument[1] == 'd' && IsNumber(value)) own.push_back("--locale=" + value);
        } else {
            files.push_back(argument);
        }
    }
    if (mode == "-v" || mode == "-vv") return {std::nullopt, kIspellBanner + "\n", kExitFine};
    if (mode == "-l") {
        own.insert(own.end(), {"check", "--words", "--no-suggestions", "--"});
        own.insert(own.end(), files.begin(), files.end());
    } else {
        own.emplace_back("pipe");
        if (help) own.emplace_back("--help");
    }
    return ParseCommandLine(own);
}

}  // namespace wordhawk
