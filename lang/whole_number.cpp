#include "lang/whole_number.h"

#include "platform/text.h"

namespace wordhawk {

std::optional<std::int32_t> WholeNumber(std::wstring_view text) {
    const std::int32_t number = NumberOrZero(text);
    // Zero is also the answer to everything that is no number.
    if (number == 0) {
        std::wstring_view digits = Trim(text);
        if (digits.starts_with(L'-') || digits.starts_with(L'+')) digits.remove_prefix(1);
        if (digits.empty() || digits.find_first_not_of(L'0') != digits.npos) return std::nullopt;
    }
    return number;
}

}  // namespace wordhawk
