#pragma once

#include "engine/session/spell_document.h"

#include <string>
#include <vector>

namespace wordhawk::test {

/// A document that is a string, with an undo record as an edit control keeps one.
class FakeDocument : public SpellDocument {
  public:
    explicit FakeDocument(std::wstring text = {}) : text_(std::move(text)) {}

    const std::wstring& Text() override { return text_; }
    std::uint64_t Revision() const override { return revision_; }
    TextRange Selection() override { return selection_; }
    void Select(TextRange range) override { selection_ = range; }
    void ReplaceSelection(std::wstring_view text) override {
        Remember();
        text_.replace(selection_.start, selection_.length, text);
        selection_ = {selection_.start + text.size(), 0};
    }
    void ReplaceAll(std::span<const std::size_t> starts, std::size_t length,
                    std::wstring_view text) override {
        Remember();
        for (auto start = starts.rbegin(); start != starts.rend(); ++start) {
            text_.replace(*start, length, text);
        }
    }

    std::wstring SelectedText() const { return text_.substr(selection_.start, selection_.length); }
    /// The person at the keyboard changes something.
    void Type(TextRange range, std::wstring_view text) {
        Remember();
        text_.replace(range.start, range.length, text);
    }
    void Undo() {
        text_ = undo_.back();
        undo_.pop_back();
        ++revision_;
    }

  private:
    void Remember() {
        undo_.push_back(text_);
        ++revision_;
    }

    std::wstring text_;
    std::vector<std::wstring> undo_;
    TextRange selection_;
    std::uint64_t revision_ = 1;
};

}  // namespace wordhawk::test
