#include "dict/dictionary_file.h"
#include "dict/lines.h"
#include "dict/phonetic_key.h"

#include <limits>

namespace wordhawk {
namespace {

constexpr std::size_t kLongestCandidate = std::numeric_limits<std::uint16_t>::max();

/// NumberOrZero for a field of the file.
std::int32_t NumberInField(std::string_view field) {
    if (field.size() == 5) {  // the form that keys are written in
        std::int32_t key = 0;
        bool digits = true;
        for (const char c : field) {
            digits &= c >= '0' && c <= '9';
            key = key * 10 + (c - '0');
        }
        if (digits) return key;
    }
    return NumberOrZero(std::wstring(field.begin(), field.end()));
}

/// Takes the lines of a file one by one.
class CandidateReader {
  public:
    CandidateReader(std::string_view bytes, const AnsiCodePage& page)
        : bytes_(bytes), page_(page) {}

    void TakeLine(std::string_view line) {
        const std::size_t comma = line.find(',');
        const std::string_view word = line.substr(0, comma);
        if (word.empty()) return;
        std::int32_t key = 0;
        if (comma != std::string_view::npos) {
            const std::string_view field = line.substr(comma + 1);
            const bool third_field = field.find(',') != std::string_view::npos;
            if (third_field && !key_is_set_) {
                TakeLeading(word);
                return;
            }
            key = third_field ? list_.last_key : NumberInField(field);
        }
        if (key == 0) key = GetPhoneticKeyOfBytes(word, page_);
        key_is_set_ = true;
        list_.last_key = key;
        Append(word, key);
    }

    CandidateList Finish() { return std::move(list_); }

  private:
    void TakeLeading(std::string_view word) {
        if (list_.leading_key == 0) list_.leading_key = GetPhoneticKeyOfBytes(word, page_);
        list_.last_key = list_.leading_key;
        Append(word, list_.leading_key);
        list_.leading_inherits = list_.size();
    }

    void Append(std::string_view word, std::int32_t key) {
        const auto offset = static_cast<std::size_t>(word.data() - bytes_.data());
        if (word.size() > kLongestCandidate || offset > std::numeric_limits<std::uint32_t>::max())
            return;
        list_.offsets.push_back(static_cast<std::uint32_t>(offset));
        list_.lengths.push_back(static_cast<std::uint16_t>(word.size()));
        list_.keys.push_back(key);
        list_.masks.push_back(MaskOf(word));
    }

    std::uint64_t MaskOf(std::string_view word) const {
        for (const char c : word) {
            const auto byte = static_cast<unsigned char>(c);
            if (page_.LowerByte(byte) != byte) return kUnknownLetters;
        }
        return LetterMask(word);
    }

    std::string_view bytes_;
    const AnsiCodePage& page_;
    CandidateList list_;
    bool key_is_set_ = false;
};

}  // namespace

std::uint64_t LetterMask(std::string_view bytes) {
    std::uint64_t mask = 0;
    for (const char c : bytes) mask |= std::uint64_t{1} << (static_cast<unsigned char>(c) & 63);
    return mask;
}

const CandidateList& DictionaryFile::Candidates(const AnsiCodePage& page) const {
    if (candidates_page_ != &page) {
        CandidateReader reader(bytes_, page);
        ForEachLine(bytes_, [&](std::string_view line) { reader.TakeLine(line); });
        candidates_ = reader.Finish();
        candidates_page_ = &page;
    }
    return candidates_;
}

}  // namespace wordhawk
