#include "cli/check_report.h"

#include "cli/json.h"

namespace wordhawk {

void CheckReport::BeginFile(std::string_view name) {
    file_ = options_.format == CheckFormat::Json ? JsonString(name) : std::string(name);
    tail_by_index_.clear();
}

void CheckReport::Add(Output& out, const UnknownWord& word, std::uint64_t line,
                      std::uint64_t column) {
    switch (options_.format) {
        case CheckFormat::List: break;
        case CheckFormat::Words: out << word.text << '\n'; break;
        case CheckFormat::Json:
            out << "{\"file\": " << file_ << ", \"line\": " << line << ", \"column\": " << column
                << ", \"word\": " << JsonString(word.text) << ", \"suggestions\": " << TailOf(word)
                << "}\n";
            break;
        case CheckFormat::Lines:
            if (colour_ == Colour::On) {
                out << "\x1b[35m" << file_ << "\x1b[0m:" << line << ':' << column << ": \x1b[1;31m"
                    << word.text << "\x1b[0m";
            } else {
                out << file_ << ':' << line << ':' << column << ": " << word.text;
            }
            out << TailOf(word) << '\n';
            break;
    }
}

const std::string& CheckReport::TailOf(const UnknownWord& word) {
    if (word.index >= tail_by_index_.size()) tail_by_index_.resize(word.index + 1, nullptr);
    const std::string*& tail = tail_by_index_[word.index];
    if (tail == nullptr) {
        const auto [entry, is_new] = tails_.try_emplace(std::wstring(word.listed));
        if (is_new) entry->second = MakeTail(word.listed);
        tail = &entry->second;
    }
    return *tail;
}

std::string CheckReport::MakeTail(std::wstring_view listed) {
    Suggestions found;
    if (options_.suggestions) found = FindSuggestions(store_, listed, rules_);
    const auto most = static_cast<std::size_t>(options_.max_suggestions);
    if (most != 0 && found.list.size() > most) found.list.resize(most);

    const bool json = options_.format == CheckFormat::Json;
    std::string tail = json ? "[" : "";
    for (const Suggestion& suggestion : found.list) {
        const bool first = &suggestion == &found.list.front();
        const std::string score = std::to_string(suggestion.score);
        if (json) {
            tail += first ? "" : ", ";
            tail += "{\"word\": " + JsonString(suggestion.word) + ", \"score\": " + score + "}";
        } else {
            tail += first ? " -> " : ", ";
            tail += ToUtf8(suggestion.word) + " (" + score + "%)";
        }
    }
    return json ? tail + "]" : tail;
}

}  // namespace wordhawk
