#pragma once

#include "engine/split_rules.h"
#include "engine/web_addresses.h"
#include "platform/text.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace wordhawk {

/// A word that is to be looked up, where it stands in the text.
struct ScannedWord {
    std::wstring_view word;  ///< lower-cased and cleaned; valid during the callback only
    std::size_t offset;      ///< of its first unit, counted from the start of the first block
    std::size_t length;      ///< in units; as many stand in the text
};

}  // namespace wordhawk
