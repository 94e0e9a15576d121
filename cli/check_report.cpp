#include "cli/check_report.h"

#include "cli/json.h"
#include "cli/visible_text.h"

#include <utility>

namespace wordhawk {
namespace {

// Suggestions are remembered until those of other words take more bytes than this.
constexpr std::size_t kMostTailBytes = std::size_t{8} << 20;

}  // namespace

void CheckReport::BeginFile(std::string_view name) {
    file_ = options_.format == CheckFormat::Json ? JsonString(name) : VisibleText(name);
}

void CheckReport::Add(Output& out, const UnknownWord& word, std::uint64_t line,
                      std::uint64_t column) {
    switch (options_.format) {
        case CheckFormat::List:
            if (word.is_new) out << std::string_view(ToUtf8(word.listed) + '\n');
            break;
        case CheckFormat::Count: ++counts_[std::wstring(word.listed)]; break;
        case CheckFormat::Words: out << word.text << '\n'; break;
        case CheckFormat::Json:
            out << "{\"file\": " << file_ << ", \"line\": " << line << ", \"column\": " << column
                << ", \"word\": " << JsonString(word.text) << ", \"suggestions\": " << TailOf(word)
                << "}\n";
            break;
        case CheckFormat::Lines: {
            const std::string text = VisibleText(ToUtf8(word.text));
            if (colour_ == Colour::On) {
                out << "\x1b[35m" << file_ << "\x1b[0m:" << line << ':' << column << ": \x1b[1;31m"
                    << text << "\x1b[0m";
            } else {
                out << file_ << ':' << line << ':' << column << ": " << text;
            }
            out << TailOf(word) << '\n';
            break;
        }
    }
}

void CheckReport::EndPart(Output& out) {
    for (const auto& [word, count] : counts_)
        out << std::string_view(ToUtf8(word) + '\t' + std::to_string(count) + '\n');
    counts_.clear();
}

const std::string& CheckReport::TailOf(const UnknownWord& word) {
    const LetterCase letter_case = CaseOf(word.text);
    tail_key_.assign(word.listed).push_back(static_cast<wchar_t>(letter_case));
    const auto known = tails_.find(tail_key_);
    if (known != tails_.end()) return known->second;
    std::string tail = MakeTail(word.listed, letter_case);
    tails_size_ += tail.size() + tail_key_.size() * sizeof(wchar_t) + sizeof(*tails_.begin());
    if (tails_size_ > kMostTailBytes) {
        tails_.clear();
        tails_size_ = 0;
    }
    return tails_.emplace(tail_key_, std::move(tail)).first->second;
}

std::string CheckReport::MakeTail(std::wstring_view listed, LetterCase letter_case) {
    Suggestions found;
    if (options_.suggestions) found = suggester_.Find(listed);
    const auto most = static_cast<std::size_t>(options_.max_suggestions);
    if (most != 0 && found.list.size() > most) found.list.resize(most);

    const bool json = options_.format == CheckFormat::Json;
    std::string tail = json ? "[" : "";
    for (const Suggestion& suggestion : found.list) {
        const bool first = &suggestion == &found.list.front();
        const std::string score = std::to_string(suggestion.score);
        const std::wstring word = InCase(suggestion.word, letter_case);
        if (json) {
            tail += first ? "" : ", ";
            tail += "{\"word\": " + JsonString(word) + ", \"score\": " + score + "}";
        } else {
            tail += first ? " -> " : ", ";
            tail += VisibleText(ToUtf8(word)) + " (" + score + "%)";
        }
    }
    return json ? tail + "]" : tail;
}

}  // namespace wordhawk
