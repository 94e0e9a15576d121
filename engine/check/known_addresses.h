#pragma once

#include "engine/check/stretch_hashes.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace wordhawk {

/// Internet addresses numbered in the order they were met, and which of them a text has at a place.
/// No address added begins with one that is known already: that one would have been found there.
/// So of several known ones at a place the longest is the earliest.
///
/// A tree of the addresses' beginnings whose nodes are found by hashes of beginnings of well chosen
/// lengths (a "z-fast trie"): a question takes time in the logarithm of the length, however long
/// and however much alike the addresses are.
class KnownAddresses {
  public:
    struct Match {
        std::uint32_t number;
        std::size_t length;
    };

    bool Empty() const { return addresses_.empty(); }

    /// The earliest known address at `at` that is at most `most` units long, judged by hashes
    /// alone: compare before relying on it.
    std::optional<Match> EarliestAt(const StretchHashes& text, std::size_t at,
                                    std::size_t most) const;

    std::wstring_view Address(std::uint32_t number) const;

    /// Adds an address with the next number.
    void Add(std::wstring_view address);

  private:
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;

    /// A beginning that is an address, or where addresses part.
    struct Node {
        std::size_t at;  // in text_
        std::size_t length;
        std::uint64_t hash;
        std::uint32_t parent;
        /// Number of the longest address that the beginning begins with.
        std::uint32_t address = kNone;
        std::uint32_t first_child = kNone;
        std::uint32_t next = kNone;  // child of the same parent
        std::uint32_t previous = kNone;
    };

    /// Deepest node whose whole string `text` has at `at`, within `most` units.
    std::uint32_t DeepestAt(const StretchHashes& text, std::size_t at, std::size_t most) const;
    std::uint32_t MakeNode(std::size_t at, std::size_t length, std::uint32_t parent);
    /// Puts a node between `lower` and its parent; its string is the first `length` units of
    /// lower's.
    std::uint32_t MakeNodeAbove(std::uint32_t lower, std::size_t length);
    void Link(std::uint32_t node);
    void Unlink(std::uint32_t node);
    void SetHandle(std::uint32_t node);
    void MarkDown(std::uint32_t node, std::uint32_t number);
    std::uint64_t StepKey(std::uint32_t parent, wchar_t unit) const {
        return std::uint64_t{parent} << 16 | static_cast<std::uint16_t>(unit);
    }

    struct Place {
        std::size_t at;
        std::size_t length;
    };

    std::wstring text_;  // of all addresses
    StretchHashes hashes_;
    std::vector<Place> addresses_;
    std::size_t longest_ = 0;
    std::vector<Node> nodes_ = {{0, 0, 0, kNone}};
    /// (node, unit) to the child that goes on with the unit.
    std::unordered_map<std::uint64_t, std::uint32_t> steps_;
    /// Hash of a node's beginning of its handle's length, to the node.
    std::unordered_map<std::uint64_t, std::uint32_t> handles_;
};

}  // namespace wordhawk
