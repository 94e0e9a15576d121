#include "dict/word_table.h"

#include "platform/text.h"

namespace wordhawk {

bool FitsTable(std::string_view word, const AnsiCodePage& page) {
    return !word.empty() && word.size() <= kLongestTableWord &&
           std::all_of(word.begin(), word.end(), [&page](char c) {
               const auto byte = static_cast<unsigned char>(c);
               return page.LowerByte(byte) == byte && c != ',' && c != '\r' && c != '\n';
           });
}

std::vector<WordTable::Number> WordTable::SlotsOf(std::span<const Number> offsets,
                                                  std::string_view text) {
    const WordTable words({}, offsets, text);
    std::vector<Number> slots(std::size_t{1} << SlotBits(words.WordCount()));
    const std::size_t mask = slots.size() - 1;
    for (std::uint32_t i = 0; i < words.WordCount(); ++i) {
        const std::uint32_t hash = DictionaryFile::HashBytes(words.Word(i));
        std::size_t at = hash & mask;
        while (slots[at] != 0) at = (at + 1) & mask;
        slots[at] = (hash & ~words.NumberMask()) | (i + 1);
    }
    return slots;
}

}  // namespace wordhawk
