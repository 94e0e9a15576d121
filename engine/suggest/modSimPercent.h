#pragma once

#include "platform/text.h"

#include <cstdint>
#include <string_view>

/// Score of a candidate against a word, 0 to 100 percent: the larger of a common-blocks ratio and a
/// wildcard ratio, with an optional filter on the leading digits of the phonetic keys.
namespace wordhawk::modSimPercent {

/// The score. `search_mode` 0: no key filter, 1: the first three digits of the keys must agree,
/// 2: the first four.
std::int32_t SimilarityPercent(std::wstring_view word, std::wstring_view candidate,
                               std::int32_t candidate_key, std::int32_t word_key,
                               std::uint8_t search_mode, const AnsiCodePage& page);

/// Whether the key filter of `search_mode` lets a pair of keys through.
bool KeysAgree(std::int32_t candidate_key, std::int32_t word_key, std::uint8_t search_mode);

/// 1 when the candidate matches the word with one character replaced by "*" and has its length, a
/// little less for other lengths, 0 or less without a match. The word's other characters are a
/// pattern too (see LikePattern). The lengths are those of the two texts; `word_length` is not 0.
double WildcardRatio(std::wstring_view word, std::wstring_view candidate, std::int32_t word_length,
                     std::int32_t candidate_length);

/// Matching bytes of word[first1..last1] and candidate[first2..last2] (counted from 1): the longest
/// common run, of several the first in the word and then in the candidate, and the same in what is
/// left on its right and on its left.
std::int32_t CommonCharCount(std::string_view word, std::string_view candidate, std::int32_t first1,
                             std::int32_t last1, std::int32_t first2, std::int32_t last2);

/// The score of a common-blocks count and a wildcard ratio for words that are not equal.
std::int32_t PercentOf(std::int32_t common, std::int32_t word_length, std::int32_t candidate_length,
                       double wildcard_ratio);

/// Whether `text` matches `pattern`: "*" any run, "?" one character, "#" one digit, "[list]" one
/// character of the list (ranges as in a-z, "!" first negates, an empty list stands for nothing),
/// compared exactly. A pattern with an unclosed "[" matches nothing.
bool LikePattern(std::wstring_view text, std::wstring_view pattern);

/// Whether a word used as a pattern could match anything but itself.
bool HoldsPatternCharacter(std::wstring_view word);

}  // namespace wordhawk::modSimPercent
