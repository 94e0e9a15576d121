#include "platform/win32/handle.h"
#include "platform/win32/system_clipboard.h"

#include <cstring>

namespace wordhawk {
namespace {

UINT RichTextFormat() {
    static const UINT format = RegisterClipboardFormatW(L"Rich Text Format");
    return format;
}

/// The clipboard kept open for the life of a scope.
class OpenedClipboard {
  public:
    /// To write, the clipboard needs a window as owner.
    enum class For { Reading, Writing };
    explicit OpenedClipboard(For use) {
        if (use == For::Writing) {
            owner_ = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                     nullptr, nullptr);
        }
        // Another program may have it open for a moment.
        for (int tries = 0; tries < 50 && !open_; ++tries) {
            if (tries > 0) Sleep(10);
            open_ = OpenClipboard(owner_) != FALSE;
        }
    }
    ~OpenedClipboard() {
        if (open_) CloseClipboard();
        if (owner_ != nullptr) DestroyWindow(owner_);
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    explicit operator bool() const { return open_; }

  private:
    HWND owner_ = nullptr;
    bool open_ = false;
};

std::optional<std::string> BytesOf(UINT format) {
    const OpenedClipboard clipboard(OpenedClipboard::For::Reading);
    if (!clipboard) return std::nullopt;
    const HGLOBAL memory = GetClipboardData(format);
    if (memory == nullptr) return std::nullopt;
    const void* data = GlobalLock(memory);
    if (data == nullptr) return std::nullopt;
    std::string bytes(static_cast<const char*>(data), GlobalSize(memory));
    GlobalUnlock(memory);
    return bytes;
}

/// Puts a copy on the opened clipboard, which then owns it.
bool Put(UINT format, const void* data, std::size_t size) {
    GlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE, size));
    if (!memory) return false;
    void* to = GlobalLock(memory.Get());
    if (to == nullptr) return false;
    std::memcpy(to, data, size);
    GlobalUnlock(memory.Get());
    if (SetClipboardData(format, memory.Get()) == nullptr) return false;
    memory.Release();
    return true;
}

std::wstring WithCrLf(std::wstring_view text) {
    std::wstring result;
    result.reserve(text.size() + text.size() / 16);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const wchar_t c = text[i];
        if (c == L'\n' || c == L'\r') {
            result += L"\r\n";
            if (c == L'\r' && i + 1 < text.size() && text[i + 1] == L'\n') ++i;
        } else {
            result += c;
        }
    }
    return result;
}

bool PutPlainText(std::wstring_view text) {
    const std::wstring value = WithCrLf(text);
    return Put(CF_UNICODETEXT, value.c_str(), (value.size() + 1) * sizeof(wchar_t));
}

}  // namespace

bool SystemClipboard::HasPlainText() const {
    return IsClipboardFormatAvailable(CF_UNICODETEXT) || IsClipboardFormatAvailable(CF_TEXT);
}

bool SystemClipboard::HasRichText() const {
    return IsClipboardFormatAvailable(RichTextFormat()) != FALSE;
}

std::optional<std::wstring> SystemClipboard::PlainText() const {
    // The system makes this format from the others.
    const std::optional<std::string> bytes = BytesOf(CF_UNICODETEXT);
    if (!bytes) return std::nullopt;
    std::wstring text(bytes->size() / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), bytes->data(), text.size() * sizeof(wchar_t));
    text.resize(std::min(text.find(L'\0'), text.size()));
    return text;
}

std::optional<std::string> SystemClipboard::RichText() const {
    std::optional<std::string> bytes = BytesOf(RichTextFormat());
    if (bytes) bytes->resize(std::min(bytes->find('\0'), bytes->size()));
    return bytes;
}

bool SystemClipboard::SetPlainText(std::wstring_view text) {
    const OpenedClipboard clipboard(OpenedClipboard::For::Writing);
    return clipboard && EmptyClipboard() && PutPlainText(text);
}

bool SystemClipboard::SetRichText(std::string_view rtf, std::wstring_view plain) {
    const OpenedClipboard clipboard(OpenedClipboard::For::Writing);
    const std::string terminated(rtf);
    return clipboard && EmptyClipboard() && PutPlainText(plain) &&
           Put(RichTextFormat(), terminated.c_str(), terminated.size() + 1);
}

}  // namespace wordhawk
