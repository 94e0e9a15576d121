#pragma once

#include "engine/check/known_addresses.h"
#include "engine/check/stretch_hashes.h"

#include <cstddef>
#include <string>
#include <string_view>
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
    void Blank(std::wstring& block, std::vector<Range>* ranges = nullptr) {
        BlankRuns(block, FindRuns(block), ranges);
    }

    /// The two halves of Blank: where addresses can stand in a block, which does not depend on the
    /// blocks before it, and the rest, which does.
    static std::vector<Range> FindRuns(std::wstring_view block);
    static std::vector<Range> FindRuns(std::string_view ascii);
    void BlankRuns(std::wstring& block, const std::vector<Range>& runs,
                   std::vector<Range>* ranges = nullptr);
    void BlankRuns(std::string& ascii, const std::vector<Range>& runs);

  private:
    /// By prefix; made when the first address is met.
    std::vector<KnownAddresses> known_;
    StretchHashes run_hashes_;
};

}  // namespace wordhawk
