#include "cli/pipe_session.h"

#include "cli/letter_case.h"
#include "cli/word_input.h"
#include "dict/custom_words.h"

#include <algorithm>

namespace wordhawk {
PipeSession::PipeSession(Program& program, Output& out)
    : program_(program), out_(out), suggester_(program.dictionaries, program.settings) {}

void PipeSession::HandleLine(std::string_view line) {
    if (!IsUtf8(line)) {
        ansi_client_ = true;
    } else if (std::any_of(line.begin(), line.end(),
                           [](char c) { return static_cast<signed char>(c) < 0; })) {
        ansi_client_ = false;
    }
    const std::wstring text = TextOfBytes(line, program_.dictionaries.Page());
    if (HandleCommand(text)) return;
    CheckLine(text);
    out_ << '\n';
}

bool PipeSession::HandleCommand(std::wstring_view line) {
    if (line.empty()) return false;
    const std::wstring_view word = Trim(line.substr(1));
    switch (line.front()) {
        case L'*':
        case L'&':
            if (!word.empty()) accepted_.insert(Lower(word));
            // One word that cannot be saved must not keep the others from it.
            if (ObjectionTo(word, program_.dictionaries.Page()).empty()) {
                personal_.push_back(Lower(word));
            }
            return true;
        case L'@':
            if (!word.empty()) accepted_.insert(Lower(word));
            return true;
        case L'#': SavePersonalWords(); return true;
        case L'!': detail_ = Detail::Terse; return true;
        case L'%': detail_ = Detail::Full; return true;
        case L'`': detail_ = Detail::WithCorrectWords; return true;
        case L'+':
        case L'-':
        case L'~': return true;  // text filters and character sets: there is only one of each
        default: return false;
    }
}

void PipeSession::SavePersonalWords() {
    if (personal_.empty()) return;
    DictionaryStore& store = program_.dictionaries;
    Path path;
    Progress no_progress;
    const auto added =
        AddWordsToDictionary(store, personal_, AddTarget::ActiveCustom, path, no_progress);
    save_failed_ = !added;
    if (!added) {
        ShowMessageLine(MessageLine(added.error()));  // and keep them: the next "#" tries again
        return;
    }
    personal_.clear();
    checker_.reset();
}

TextChecker& PipeSession::Checker() {
    // Its verdicts are for the life of one set of dictionaries.
    if (!checker_) {
        checker_ = std::make_unique<TextChecker>(
            program_.dictionaries, SplitRules::From(program_.state, program_.settings),
            Remember::Lately);
        fed_ = 0;
    }
    return *checker_;
}

void PipeSession::CheckLine(std::wstring_view line) {
    TextChecker& checker = Checker();
    const std::size_t skipped = line.starts_with(L'^') ? 1 : 0;
    const std::wstring_view text = line.substr(skipped);
    std::size_t walked = 0;            // units of `text`
    std::size_t characters = skipped;  // in `walked` and before
    const std::uint64_t base = fed_;
    fed_ += text.size();
    checker.FeedAll(text, [&](const ScannedWord& word, bool known) {
        const auto at = static_cast<std::size_t>(word.offset - base);
        characters += CountCharacters(text.substr(walked, at - walked));
        walked = at;
        if (!known && !accepted_.contains(Lower(word.text))) {
            ReportUnknown(word.text, characters);
        } else if (detail_ == Detail::WithCorrectWords) {
            out_ << "* ";
            Write(word.text);
            out_ << '\n';
        } else if (detail_ == Detail::Full) {
            out_ << "*\n";
        }
    });
}

void PipeSession::ReportUnknown(std::wstring_view word, std::size_t offset) {
    const Suggestions found = suggester_.Find(Lower(word));
    out_ << (found.list.empty() ? "# " : "& ");
    Write(word);
    if (found.list.empty()) {
        out_ << ' ' << offset << '\n';
        return;
    }
    out_ << ' ' << found.list.size() << ' ' << offset << ": ";
    const LetterCase letter_case = CaseOf(word);
    for (const Suggestion& suggestion : found.list) {
        if (&suggestion != &found.list.front()) out_ << ", ";
        Write(InCase(suggestion.word, letter_case));
    }
    out_ << '\n';
}

void PipeSession::Write(std::wstring_view text) {
    if (ansi_client_) {
        out_ << std::string_view(program_.dictionaries.Page().Encode(text));
    } else {
        out_ << text;
    }
}

}  // namespace wordhawk
