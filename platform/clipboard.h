#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace wordhawk {

/// The system's clipboard, as far as texts go.
class Clipboard {
  public:
    virtual ~Clipboard() = default;

    virtual bool HasPlainText() const = 0;
    virtual bool HasRichText() const = 0;
    /// None when there is no such format, or another program keeps the clipboard for itself.
    virtual std::optional<std::wstring> PlainText() const = 0;
    virtual std::optional<std::string> RichText() const = 0;
    /// Replace everything on the clipboard. False when another program keeps it for itself.
    virtual bool SetPlainText(std::wstring_view text) = 0;
    /// Rich text for those who take it, plain text for the others.
    virtual bool SetRichText(std::string_view rtf, std::wstring_view plain) = 0;
};

}  // namespace wordhawk
