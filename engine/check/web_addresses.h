#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace wordhawk {

/// Space, CR, LF, tab, and the punctuation that ends an Internet address.
bool IsAddressEnd(wchar_t c);

/// The text with every Internet address replaced by one space. An address found anywhere goes
/// wherever its characters stand.
std::wstring RemoveWebAddresses(std::wstring_view text);

/// Finds Internet addresses in a text that comes in blocks, in one pass, with the result of
/// removing prefix after prefix, found address by found address, from the whole text.
///
/// One pass is enough because an address begins with its prefix: when the first occurrence of a
/// prefix is met, nothing before it holds that prefix, so nothing before it can hold the address.
/// And an address holds no end character, so stretches between end characters are independent but
/// for the addresses already known.
class AddressBlanker {
  public:
    struct Range {
        std::size_t offset;
        std::size_t length;
    };

    /// Overwrites every address in `block` with spaces, so that offsets stay, and appends where
    /// each one stood to `ranges` when given. Cut blocks behind a space or a line end.
    void Blank(std::wstring& block, std::vector<Range>* ranges = nullptr);

    /// Whether the block holds any address prefix: a quick look, so that most blocks need no copy.
    static bool MayHoldAddress(std::wstring_view block);

  private:
    /// The addresses met with one prefix, in the order they were met.
    struct Known {
        std::vector<std::wstring> addresses;
        /// (node, unit) to node; node 0 is the root.
        std::unordered_map<std::uint64_t, std::uint32_t> steps;
        std::vector<std::int32_t> address_at_node = {-1};

        void Add(std::wstring_view address);
        /// Index of the earliest known address that `text` begins with, -1 for none.
        std::int32_t EarliestAtStartOf(std::wstring_view text) const;
    };

    void BlankRun(std::wstring& block, std::size_t begin, std::size_t end,
                  std::vector<Range>* ranges);

    std::vector<Known> known_;
};

}  // namespace wordhawk
