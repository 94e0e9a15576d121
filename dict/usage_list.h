#pragma once

#include "platform/files.h"

#include <string>
#include <string_view>
#include <unordered_map>

namespace wordhawk {

/// Words of a language that people use, by how often: what decides whether a short, rare word is
/// worth its place in a dictionary, where it would hide slips in the words that everybody writes.
class UsageList {
  public:
    UsageList() = default;

    /// Reads words, one a line, the most frequent first; UTF-8. Errors: the file cannot be read.
    static Result<UsageList> Read(const Path& path);

    bool IsEmpty() const { return ranks_.empty(); }
    bool Knows(std::wstring_view lower_word) const {
        return ranks_.contains(std::wstring(lower_word));
    }

    /// Whether the word is among the 20,000 most frequent ones.
    bool IsCommon(std::wstring_view lower_word) const;

    /// Whether the word, unknown to the list and of four letters or fewer, is one dropped, added,
    /// mistaken or swapped letter away from one of the 200 most frequent ones.
    bool HidesSlips(std::wstring_view lower_word) const;

    /// Whether a word of any length, unknown to the list, is as close to one of the 2,000 most
    /// frequent ones.
    bool IsNearCommon(std::wstring_view lower_word) const;

  private:
    bool IsAmongFirst(std::size_t count, const std::wstring& word) const;
    bool IsOneSlipFromFirst(std::size_t count, std::wstring_view lower_word) const;

    std::unordered_map<std::wstring, std::size_t> ranks_;
    /// The letters of the words that slips are held against.
    std::wstring letters_;
};

}  // namespace wordhawk
