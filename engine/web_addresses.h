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

/// Blanks Internet addresses in a text that comes in blocks, in one pass, with the result of
/// removing prefix after prefix from the whole text. It remembers the addresses met so far.
class AddressBlanker {
  public:
    /// Overwrites every address in `block` with spaces, so that offsets stay. A block must not end
    /// within an address: cut blocks behind a space or a line end.
    void Blank(std::wstring& block);

    /// Whether the block holds any address prefix; a quick look, so that most blocks need no copy.
    static bool MayHoldAddress(std::wstring_view block);

  private:
    struct Book;
    // see web_addresses.cpp
    struct Known {
        std::vector<std::wstring> addresses;
        std::unordered_map<std::uint64_t, std::uint32_t> trie;
        std::vector<std::int32_t> address_at_node = {-1};
    };
    void BlankRun(wchar_t* run, std::size_t length);

    std::vector<Known> known_by_prefix_;
};

}  // namespace wordhawk
