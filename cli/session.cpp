#include "cli/session.h"

#include "cli/console.h"
#include "cli/output.h"
#include "lang/whole_number.h"

#include <algorithm>

namespace wordhawk {
namespace {

ProgramOptions ToProgramOptions(const GlobalOptions& options) {
    ProgramOptions program;
    if (!options.data_folder.empty()) program.data_folder = PathFromArgument(options.data_folder);
    program.locale = options.locale;
    program.install_shipped = options.install;
    program.install_every_language = false;
    for (const wchar_t* const key :
         {L"WideSearch", L"StraightApostrophe", L"Compounds", L"LettersStay"}) {
        if (options.behaviour == Behaviour::Modern) {
            program.setting_defaults.emplace_back(key, L"1");
        } else {
            program.setting_overrides.emplace_back(key, L"0");
        }
    }
    if (options.search != SearchChoice::BySetting) {
        program.setting_overrides.emplace_back(L"WideSearch",
                                               options.search == SearchChoice::Wide ? L"1" : L"0");
    }
    for (const auto& [key, value] : options.settings) {
        program.setting_overrides.emplace_back(FromUtf8(key), FromUtf8(value));
    }
    program.flag_overrides = options.flags;
    return program;
}

/// Whether the setting is a number: a text is kept as it is.
bool IsNumber(const modRegs::SettingRow& row) {
    Settings settings;
    row.assign(settings, L"x");
    return row.text(settings) != L"x";
}

/// The message about a value that the setting cannot have, or nothing.
std::optional<std::string> WrongValue(const modRegs::SettingRow& row, const std::string& value) {
    const bool language = row.key == L"Language";
    if (!language && !IsNumber(row)) return std::nullopt;
    const std::string beginning = "--set: " + ToUtf8(row.key);
    const auto number = WholeNumber(FromUtf8(value));
    if (!number) return beginning + " takes a number, not " + value;
    Settings settings;
    row.assign(settings, FromUtf8(value));
    const bool fits =
        language ? *number >= 1 && *number <= 65535 : NumberOrZero(row.text(settings)) == *number;
    if (!fits) return beginning + " cannot be " + value;
    return std::nullopt;
}

}  // namespace

Answer StderrUi::ShowMessage(std::wstring_view text, std::wstring_view, MessageIcon,
                             MessageButtons buttons) {
    std::string line = ToUtf8(text);
    std::replace(line.begin(), line.end(), '\n', ' ');
    std::erase(line, '\r');
    ShowMessageLine(MessageLine(line));
    switch (buttons) {
        case MessageButtons::Ok: return Answer::Ok;
        case MessageButtons::YesNo: return Answer::Yes;
        case MessageButtons::YesNoDefaultNo: return Answer::No;
    }
    return Answer::Ok;
}

Session::Session(const GlobalOptions& options) : program(ToProgramOptions(options), ui) {
    if (program.install_failure) ShowMessageLine(MessageLine(*program.install_failure));
}

std::optional<std::string> WrongOverride(const GlobalOptions& options) {
    for (const auto& [key, value] : options.settings) {
        if (const modRegs::SettingRow* const row = modRegs::FindRow(FromUtf8(key))) {
            if (auto wrong = WrongValue(*row, value)) return wrong;
            continue;
        }
        std::string known;
        for (const auto& row : modRegs::Rows())
            known += (known.empty() ? "" : ", ") + ToUtf8(row.key);
        return "--set: no setting is called " + key + " (there are " + known + ")";
    }
    for (const auto& [number, value] : options.flags) {
        if (number >= 1 && number <= DelimiterFlagStore::kCount) continue;
        return "--flag: there is no flag " + std::to_string(number) + " (1 to 255)";
    }
    return std::nullopt;
}

bool HasDictionaries(Program& program) {
    // Nearly every language has words that begin so, which saves reading the folder at each start.
    // One that is there and cannot be read is told of when it is needed.
    if (!IsMissing(program.state.LanguageDictFolder / "in_.dic")) return true;
    std::error_code error;
    std::filesystem::directory_iterator entry(program.state.LanguageDictFolder, error);
    for (const std::filesystem::directory_iterator end; !error && entry != end;
         entry.increment(error)) {
        if (EqualIgnoringCase(TextFromPath(entry->path().extension()), L".dic")) return true;
    }
    return std::any_of(
        program.settings.CustomDictionaries.begin(), program.settings.CustomDictionaries.end(),
        [&](const std::wstring& name) { return IsFile(program.dictionaries.CustomPath(name)); });
}

std::string UnreadableLines(const DictionaryStore& store) {
    constexpr std::size_t kMostLines = 3;
    const std::vector<Error>& unreadable = store.Unreadable();
    std::string lines;
    for (std::size_t i = 0; i < unreadable.size() && i < kMostLines; ++i)
        lines += MessageLine(unreadable[i]);
    if (unreadable.size() > kMostLines) {
        lines += MessageLine(std::to_string(unreadable.size() - kMostLines) +
                             " more dictionary files cannot be read");
    }
    return lines;
}

int FinishedWith(int exit_code, const DictionaryStore& store) {
    const std::string lines = UnreadableLines(store);
    if (lines.empty()) return exit_code;
    ShowMessageLine(lines);
    return kExitFailed;
}

std::string NoDictionariesLine(const Program& program) {
    const ProgramState& state = program.state;
    if (!IsFolder(state.DataFolder))
        return MessageLine(PathForMessage(state.DataFolder), "the data folder cannot be made");
    return MessageLine(PathForMessage(state.LanguageDictFolder),
                       "no dictionary is installed for language " + ToUtf8(state.LanguageId) +
                           "; choose another with --set Language=N, or make one with "
                           "build-dictionary");
}

void TellWhenNotSearched(const Program& program, const GlobalOptions& options,
                         std::wstring_view dictionary) {
    const std::vector<std::wstring>& searched = program.settings.CustomDictionaries;
    const auto is_it = [&](const std::wstring& name) {
        return EqualIgnoringCase(name, dictionary);
    };
    if (std::any_of(searched.begin(), searched.end(), is_it)) return;
    const std::string name = ToUtf8(dictionary);
    const auto quoted = [](const std::string& text) {
        return text.find(' ') == std::string::npos ? text : '"' + text + '"';
    };
    std::string command = "wordhawk-cli ";
    if (!options.data_folder.empty()) command += "--data " + quoted(options.data_folder) + ' ';
    ShowMessageLine(MessageLine(name, "is not searched yet; for that: " + command +
                                          "dictionaries --activate " + quoted(name)));
}

}  // namespace wordhawk
