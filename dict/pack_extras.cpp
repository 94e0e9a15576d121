#include "dict/pack_extras.h"

namespace wordhawk {
namespace {

constexpr int kMostMiddles = 2;
/// Longer words are no compounds that anybody writes, and would take long to take apart.
constexpr std::size_t kLongestCompound = 80;

bool Has(const SortedWords& parts, std::string_view part, unsigned roles) {
    return (parts.ValueOf(part).value_or(0) & roles) != 0;
}

}  // namespace

const SortedWords& PackExtras::Read(List& list, std::string_view name) {
    if (!list.is_read) {
        list.is_read = true;
        const Path path = folder_ / name;
        std::erase_if(unreadable_, [&](const Error& known) { return known.where == path; });
        if (Result<std::string> bytes = ReadWholeFile(path)) {
            list.words = SortedWords(std::move(*bytes));
        } else if (!IsMissing(path)) {
            unreadable_.push_back(bytes.error());
        }
    }
    return list.words;
}

bool PackExtras::IsPiece(std::string_view lower_bytes) {
    return Read(pieces_, kPiecesFile).ValueOf(lower_bytes).has_value();
}

bool PackExtras::IsCompound(std::string_view lower_bytes, bool has_capital) {
    const unsigned first = has_capital ? kCompoundBegin | kCompoundCapital : kCompoundBegin;
    const SortedWords& parts = Read(compounds_, kCompoundsFile);
    if (parts.IsEmpty() || lower_bytes.size() > kLongestCompound) return false;
    for (std::size_t cut = kShortestPart; cut + kShortestPart <= lower_bytes.size(); ++cut) {
        if (Has(parts, lower_bytes.substr(0, cut), first) &&
            IsRest(parts, lower_bytes.substr(cut), kMostMiddles))
            return true;
    }
    return false;
}

bool PackExtras::IsRest(const SortedWords& parts, std::string_view rest, int middles) {
    if (Has(parts, rest, kCompoundEnd)) return true;
    if (middles == 0) return false;
    for (std::size_t cut = kShortestPart; cut + kShortestPart <= rest.size(); ++cut) {
        if (Has(parts, rest.substr(0, cut), kCompoundMiddle) &&
            IsRest(parts, rest.substr(cut), middles - 1))
            return true;
    }
    return false;
}

}  // namespace wordhawk
