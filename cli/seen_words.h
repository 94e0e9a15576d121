#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace wordhawk {

/// A set of words that can only grow: the bytes of each behind one another, and a table of places.
/// Takes little more room than the words themselves.
class SeenWords {
  public:
    /// Whether the word is a new one; it is then added.
    bool Add(std::string_view word);

  private:
    struct Slot {
        std::uint64_t place;  // 1 + offset in bytes_; 0 marks a free slot
        std::uint32_t hash;
        std::uint32_t length;
    };

    void Grow();

    std::vector<char> bytes_;
    /// A power of two of slots, at most two thirds of them taken.
    std::vector<Slot> slots_ = std::vector<Slot>(64);
    std::size_t count_ = 0;
};

}  // namespace wordhawk
