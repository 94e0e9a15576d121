#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace wordhawk {

/// A stretch of a document, in UTF-16 units.
struct TextRange {
    std::size_t start = 0;
    std::size_t length = 0;
    bool operator==(const TextRange&) const = default;
};

/// The document as the walk through its unknown words sees it. Offsets are the control's own: a
/// paragraph break is one unit (CR).
class SpellDocument {
  public:
    virtual ~SpellDocument() = default;

    /// The whole text. Asked several times in every command, so it is to be kept and fetched again
    /// only after a change; valid until the next change.
    virtual const std::wstring& Text() = 0;
    /// A number that differs after every change of the text, whoever made it. Cheap.
    virtual std::uint64_t Revision() const = 0;

    /// The selection, within Text() (an end behind the last unit is cut off).
    virtual TextRange Selection() = 0;
    /// Selects and scrolls the stretch into view; length 0 places the caret.
    virtual void Select(TextRange range) = 0;
    /// Leaves the caret where the selection ends.
    void CollapseSelection() {
        const TextRange range = Selection();
        if (range.length > 0) Select({range.start + range.length, 0});
    }
    /// Replaces the selection as one step of undo; the caret ends up behind the new text.
    virtual void ReplaceSelection(std::wstring_view text) = 0;
    /// Replaces the stretches of `length` units at `starts` (offsets in the text as it is now,
    /// ascending, without overlap), all of it as one step of undo.
    virtual void ReplaceAll(std::span<const std::size_t> starts, std::size_t length,
                            std::wstring_view text) = 0;
};

}  // namespace wordhawk
