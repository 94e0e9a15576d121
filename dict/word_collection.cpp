#include "dict/word_collection.h"

#include "dict/dictionary_file.h"
#include "dict/entry_line.h"
#include "dict/pack_extras.h"
#include "dict/phonetic_key.h"
#include "dict/sorted_words.h"

#include <algorithm>

namespace wordhawk {
namespace {

constexpr std::size_t kShortestPiece = 2;
/// Names and parts up to this length look like any slip.
constexpr std::size_t kLongestDoubtful = 5;

template <class Use>
void ForEachPiece(std::wstring_view word, std::wstring_view delimiters, Use&& use) {
    for (std::size_t start = 0; start < word.size();) {
        const std::size_t stop = std::min(word.find_first_of(delimiters, start), word.size());
        if (stop - start >= kShortestPiece) use(word.substr(start, stop - start));
        start = stop + 1;
    }
}

/// Of the parts that apostrophes join the longest; of several as long the last, which an elided
/// article stands before.
std::wstring_view LongestPart(std::wstring_view word) {
    std::wstring_view longest;
    for (std::size_t start = 0; start <= word.size();) {
        const std::size_t stop = std::min(word.find(L'\'', start), word.size());
        const std::wstring_view part = word.substr(start, stop - start);
        if (part.size() >= longest.size()) longest = part;
        start = stop + 1;
    }
    return longest;
}

bool Holds(std::wstring_view word, std::wstring_view characters) {
    return word.find_first_of(characters) != std::wstring_view::npos;
}

}  // namespace

WordCollection::WordCollection(const CollectionRules& rules)
    : rules_(rules), file_of_beginning_(65536) {}

void WordCollection::Exclude(const std::wstring& word) {
    if (PageHolds(word, *rules_.page)) excluded_.insert(EntryLine(word, *rules_.page));
}

void WordCollection::Add(std::wstring_view word, WordSource source) {
    const std::wstring lower = Lower(word);
    const bool is_name = lower != word;
    const bool is_cut = Holds(lower, rules_.cuts);
    if (!is_cut || source == WordSource::List) AddWord(lower, Form::AsWritten, is_name);
    if (is_cut) {
        ForEachPiece(lower, rules_.cuts, [&](std::wstring_view part) {
            AddWord(std::wstring(part), Form::Part, is_name);
        });
    }
    if (!Holds(lower, rules_.letter_cuts)) return;
    ForEachPiece(lower, rules_.cuts + rules_.letter_cuts,
                 [this](std::wstring_view piece) { AddPiece(piece); });
}

void WordCollection::AddPiece(std::wstring_view word) {
    if (PageHolds(word, *rules_.page)) pieces_.push_back(rules_.page->Encode(Lower(word)));
}

void WordCollection::AddCompoundPart(std::wstring_view part, unsigned roles) {
    if (part.size() < kShortestPart || !PageHolds(part, *rules_.page) || Holds(part, L",\r\n") ||
        Holds(part, rules_.cuts))
        return;
    const std::wstring lower = Lower(part);
    if (part.size() == kShortestPart && !rules_.parts_in_use.IsEmpty() &&
        !rules_.parts_in_use.IsCommon(lower))
        return;
    if ((roles & kCompoundBegin) != 0 && lower.front() != part.front())
        roles = (roles & ~unsigned{kCompoundBegin}) | kCompoundCapital;
    parts_[rules_.page->Encode(lower)] |= roles;
}

void WordCollection::AddWord(const std::wstring& lower, Form form, bool is_name) {
    if (IsLeftOut(lower, form, is_name)) return;
    const Result<std::string> line = CheckedEntryLine(lower, *rules_.page);
    if (!line) {
        ++skipped_;
    } else if (excluded_.empty() || !excluded_.contains(*line)) {
        FileOf(*line, lower) += *line;
    }
}

bool WordCollection::IsLeftOut(const std::wstring& lower, Form form, bool is_name) const {
    if (is_name && rules_.names_in_use.IsNearCommon(lower)) return true;
    const UsageList& in_use = rules_.in_use;
    if (in_use.IsEmpty() || in_use.Knows(lower)) return false;
    const bool is_doubtful = lower.size() <= kLongestDoubtful &&
                             (form == Form::Part || (is_name && !rules_.any_short_names));
    // The list counts what an apostrophe joins apart: "joe" for "joe's".
    if (is_doubtful && !in_use.Knows(LongestPart(lower))) return true;
    return in_use.HidesSlips(lower) && lower.find(L'\'') == std::wstring::npos;
}

std::string& WordCollection::FileOf(std::string_view line, std::wstring_view word) {
    const auto byte = [line](std::size_t i) { return static_cast<unsigned char>(line[i]); };
    std::string*& file = file_of_beginning_[byte(0) * 256u + byte(1)];
    if (file == nullptr) file = &files_[GetDictionaryFileName(word, *rules_.page)];
    return *file;
}

std::string WordCollection::Pieces() {
    std::sort(pieces_.begin(), pieces_.end());
    pieces_.erase(std::unique(pieces_.begin(), pieces_.end()), pieces_.end());
    std::vector<std::pair<std::string, unsigned>> words;
    for (const std::string& piece : pieces_) words.emplace_back(piece, 0);
    return SortedWords::Make(std::move(words));
}

std::string WordCollection::CompoundParts() const {
    return SortedWords::Make({parts_.begin(), parts_.end()});
}

}  // namespace wordhawk
