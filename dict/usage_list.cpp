#include "dict/usage_list.h"

#include "dict/lines.h"
#include "platform/text.h"

#include <utility>

namespace wordhawk {
namespace {

constexpr std::size_t kFrequent = 200;
constexpr std::size_t kNear = 2000;
constexpr std::size_t kCommon = 20000;
constexpr std::size_t kLongestHiding = 4;

}  // namespace

Result<UsageList> UsageList::Read(const Path& path) {
    const Result<std::string> bytes = ReadWholeFile(path);
    if (!bytes) return tl::unexpected(bytes.error());
    UsageList list;
    ForEachLine(*bytes, [&](std::string_view line) {
        const std::wstring word = Lower(Trim(FromUtf8(line)));
        if (word.empty() || !list.ranks_.emplace(word, list.ranks_.size()).second) return;
        if (list.ranks_.size() > kNear) return;
        for (const wchar_t c : word) {
            if (list.letters_.find(c) == std::wstring::npos) list.letters_ += c;
        }
    });
    return list;
}

bool UsageList::IsAmongFirst(std::size_t count, const std::wstring& word) const {
    const auto found = ranks_.find(word);
    return found != ranks_.end() && found->second < count;
}

bool UsageList::IsCommon(std::wstring_view lower_word) const {
    return IsAmongFirst(kCommon, std::wstring(lower_word));
}

bool UsageList::HidesSlips(std::wstring_view lower_word) const {
    return lower_word.size() <= kLongestHiding && IsOneSlipFromFirst(kFrequent, lower_word);
}

bool UsageList::IsNearCommon(std::wstring_view lower_word) const {
    return IsOneSlipFromFirst(kNear, lower_word);
}

bool UsageList::IsOneSlipFromFirst(std::size_t count, std::wstring_view lower_word) const {
    if (ranks_.empty() || Knows(lower_word)) return false;
    const std::wstring word(lower_word);
    for (std::size_t i = 0; i <= word.size(); ++i) {
        for (const wchar_t letter : letters_) {
            std::wstring longer = word;
            if (IsAmongFirst(count, longer.insert(i, 1, letter))) return true;
        }
        if (i == word.size()) break;
        std::wstring changed = word;
        for (const wchar_t letter : letters_) {
            changed[i] = letter;
            if (IsAmongFirst(count, changed)) return true;
        }
        if (IsAmongFirst(count, std::wstring(word).erase(i, 1))) return true;
        if (i + 1 < word.size()) {
            changed = word;
            std::swap(changed[i], changed[i + 1]);
            if (IsAmongFirst(count, changed)) return true;
        }
    }
    return false;
}

}  // namespace wordhawk
