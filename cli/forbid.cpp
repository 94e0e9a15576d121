#include "cli/commands.h"
#include "cli/output.h"
#include "cli/session.h"
#include "cli/word_input.h"
#include "dict/forbidden_words.h"
#include "engine/check/word_scanner.h"

#include <algorithm>

namespace wordhawk {
namespace {

bool HoldsControls(std::wstring_view text) {
    return std::any_of(text.begin(), text.end(),
                       [](wchar_t c) { return static_cast<std::uint32_t>(c) < 0x20; });
}

/// Why a check could never meet the word, empty when it can.
std::string ObjectionToForbidding(std::wstring_view word, const Program& program) {
    WordScanner scanner(SplitRules::From(program.state, program.settings), *program.state.CodePage);
    bool whole = false;
    scanner.Scan(word, [&](const ScannedWord& found) { whole = found.text.size() == word.size(); });
    if (whole && !HoldsControls(word) && word.find(L"->") == word.npos && word.front() != L'#')
        return {};
    return "a check does not take this for one word, so it cannot be forbidden";
}

int ListForbidden(DictionaryStore& store) {
    Output out(stdout);
    for (const ForbiddenWords::Entry& entry : store.Forbidden().Entries()) {
        out << entry.word << '\t';
        for (const std::wstring& preferred : entry.preferred)
            out << (&preferred == &entry.preferred.front() ? std::wstring_view() : L", ")
                << preferred;
        out << '\n';
    }
    out.Flush();
    return FinishedWith(out.Failed() ? kExitFailed : kExitFine, store);
}

int Allow(const ForbidOptions& options, const Path& file, const AnsiCodePage& page) {
    int exit_code = kExitFine;
    for (const std::string& argument : options.words) {
        const std::wstring text = TextOfBytes(argument, page);
        const auto allowed = AllowWord(file, Trim(text), page);
        if (!allowed) {
            ShowMessageLine(MessageLine(allowed.error()));
            return kExitFailed;
        }
        if (*allowed) continue;
        ShowMessageLine(MessageLine(argument, "is not forbidden"));
        exit_code = kExitFound;
    }
    return exit_code;
}

}  // namespace

int RunForbid(const GlobalOptions& global, const ForbidOptions& options) {
    Session session(global);
    DictionaryStore& store = session.program.dictionaries;
    const AnsiCodePage& page = store.Page();
    const Path file = store.ForbiddenPath();
    if (options.words.empty()) return ListForbidden(store);
    if (options.remove) return Allow(options, file, page);

    ForbiddenWords::Entry entry;
    for (const std::string& argument : options.words) {
        const std::wstring text = TextOfBytes(argument, page);
        const std::wstring_view word = Trim(text);
        std::string objection;
        if (word.empty()) {
            objection = "an empty word cannot be forbidden or preferred";
        } else if (entry.word.empty()) {
            objection = ObjectionToForbidding(word, session.program);
            entry.word = word;
        } else if (HoldsControls(word) || word.find(L',') != word.npos) {
            objection = "a word with a comma or a control character cannot be preferred";
        } else {
            entry.preferred.emplace_back(word);
        }
        if (objection.empty()) continue;
        ShowMessageLine(MessageLine(argument, objection));
        return kExitFailed;
    }
    const auto forbidden = ForbidWord(file, entry, page);
    if (forbidden) return kExitFine;
    ShowMessageLine(MessageLine(forbidden.error()));
    return kExitFailed;
}

}  // namespace wordhawk
