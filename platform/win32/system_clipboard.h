#pragma once

#include "platform/clipboard.h"

namespace wordhawk {

/// The clipboard of the user's desktop. Lines on it end in CR LF.
class SystemClipboard : public Clipboard {
  public:
    bool HasPlainText() const override;
    bool HasRichText() const override;
    std::optional<std::wstring> PlainText() const override;
    std::optional<std::string> RichText() const override;
    bool SetPlainText(std::wstring_view text) override;
    bool SetRichText(std::string_view rtf, std::wstring_view plain) override;
};

}  // namespace wordhawk
