#include "cli/options.h"

#include "app/version.h"
#include "cli/command_grammar.h"
#include "cli/given_arguments.h"
#include "cli/option_kinds.h"
#include "cli/output.h"

#include <algorithm>
#include <charconv>

namespace wordhawk {
namespace {

/// Texts of --set and --flag before they are cut at "=".
struct RawOverrides {
    std::vector<std::string> settings;
    std::vector<std::string> flags;
};

void AddGlobalOptions(CLI::App& app, const GivenArguments& given, GlobalOptions& global,
                      RawOverrides& raw) {
    app.add_option("--data", global.data_folder, "Data folder (default: the user's own)")
        ->type_name("DIR");
    app.add_option("--locale", global.locale,
                   "Stands for the system's locale number, such as 1033 or 1031; a language that "
                   "the data folder has stored goes before it")
        ->type_name("N")
        ->check(Between(1, 65535));
    if (given.MayHaveOption("--set")) {
        OneValueEachTime(app, "--set", raw.settings, "Use VALUE for setting KEY in this run")
            ->type_name("KEY=VALUE");
    }
    if (given.MayHaveOption("--flag")) {
        OneValueEachTime(app, "--flag", raw.flags,
                         "Use 0 or 1 for delimiter flag N (1 to 255) in this run")
            ->type_name("N=0|1");
    }
    if (given.MayHaveOption("--search")) {
        app.add_option_function<std::string>(
               "--search",
               [&global](const std::string& search) {
                   global.search = search == "wide" ? SearchChoice::Wide : SearchChoice::File;
               },
               "Where suggestions come from: wide, the whole dictionary (default), or file, the "
               "one "
               "file of the word's beginning")
            ->type_name("wide|file")
            ->check(CLI::IsMember({"wide", "file"}).description(""));
    }
    if (given.MayHaveOption("--classic")) {
        app.add_flag_callback(
            "--classic", [&global] { global.behaviour = Behaviour::Classic; },
            "Use 0 for the settings that go beyond the classic behaviour: WideSearch, "
            "StraightApostrophe, Compounds and LettersStay, which are 1 here unless set");
    }
    if (given.MayHaveOption("--no-install")) {
        app.add_flag_callback(
            "--no-install", [&global] { global.install = false; },
            "Do not copy shipped dictionaries and language files into the data folder");
    }
    if (given.MayHaveOption("--version")) {
        app.set_version_flag("--version", "wordhawk-cli " WORDHAWK_VERSION,
                             "Print the version and exit");
    }
}

std::optional<int> WholeNumber(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

/// Cuts the texts of --set and --flag; the message about the first wrong one, or nothing.
std::string CutOverrides(const RawOverrides& raw, GlobalOptions& global) {
    for (const std::string& text : raw.settings) {
        const std::size_t equals = text.find('=');
        if (equals == std::string::npos || equals == 0)
            return "--set: " + text + " is not KEY=VALUE";
        global.settings.emplace_back(text.substr(0, equals), text.substr(equals + 1));
    }
    for (const std::string& text : raw.flags) {
        const std::size_t equals = std::min(text.find('='), text.size());
        const auto number = WholeNumber(std::string_view(text).substr(0, equals));
        const std::string_view value =
            std::string_view(text).substr(std::min(equals + 1, text.size()));
        if (!number || (value != "0" && value != "1"))
            return "--flag: " + text + " is not N=0 or N=1";
        global.flags.emplace_back(*number, value == "1");
    }
    return {};
}

Command CommandNamed(std::string_view name) {
    const auto has_name = [&](const CommandRow& row) { return row.name == name; };
    return std::find_if(CommandRows().begin(), CommandRows().end(), has_name)->command;
}

ParsedCommandLine Wrong(const std::string& message) {
    return {std::nullopt, MessageLine(message) + MessageLine("--help tells more"), kExitFailed};
}

}  // namespace

/// The library's description of the command line, and the values that it fills.
class CommandLineParser::Grammar {
  public:
    explicit Grammar(const GivenArguments& given) {
        app_.allow_windows_style_options(false);  // "/x" is a path on every system
        app_.require_subcommand(1);
        app_.fallthrough();
        app_.get_formatter()->column_width(28);
        app_.get_formatter()->label("SUBCOMMAND", "COMMAND");
        AddGlobalOptions(app_, given, options_.global, raw_);
        for (const CommandRow& row : CommandRows()) {
            if (given.MayHaveCommand(row.name)) row.add(app_, given, options_);
        }
        app_.footer(
            "Each command has its own --help. Exit code: 0 fine, 1 unknown words found, 2 "
            "error.\n\nExamples:\n"
            "  wordhawk-cli check letter.txt\n  wordhawk-cli suggest recieve\n"
            "  wordhawk-cli add Wordhawk\n  wordhawk-cli --set Language=1031 check brief.rtf");
    }

    ParsedCommandLine Parse(const std::vector<std::string>& arguments) {
        // The values stay where they are, as the library holds references to them.
        options_ = {};
        raw_ = {};
        try {
            app_.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
        } catch (const CLI::ParseError& error) {
            if (error.get_exit_code() != 0) {
                const std::vector<std::string> left = app_.remaining();
                if (!app_.get_subcommands().empty()) return Wrong(error.what());
                return Wrong(left.empty() ? error.what()
                                          : "there is no command or option " + left.front());
            }
            std::ostringstream text;
            app_.exit(error, text, text);
            return {std::nullopt, text.str(), kExitFine};
        }
        if (std::string wrong = CutOverrides(raw_, options_.global); !wrong.empty())
            return Wrong(wrong);
        options_.command = CommandNamed(app_.get_subcommands().front()->get_name());
        const bool needs_words =
            options_.command == Command::Suggest || options_.command == Command::Key;
        if (needs_words && options_.words.words.empty() && !options_.words.from_input)
            return Wrong("no WORD is given, and not --stdin");
        return {options_, {}, 0};
    }

  private:
    Options options_;
    RawOverrides raw_;
    CLI::App app_{
        "Wordhawk finds words that its dictionaries do not know, and suggests better ones.",
        "wordhawk-cli"};
};

CommandLineParser::CommandLineParser() : grammar_(std::make_unique<Grammar>(GivenArguments())) {}

CommandLineParser::~CommandLineParser() = default;

ParsedCommandLine CommandLineParser::Parse(const std::vector<std::string>& arguments) {
    return grammar_->Parse(arguments);
}

ParsedCommandLine ParseCommandLine(const std::vector<std::string>& arguments) {
    return CommandLineParser::Grammar(GivenArguments(arguments)).Parse(arguments);
}

}  // namespace wordhawk
