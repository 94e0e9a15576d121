#include "ui/framework/Dialog.h"

#include "platform/text.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <string>

namespace wordhawk {
namespace {

/// A dialog template without controls, built in memory: header, menu, class, title.
class Template {
  public:
    Template(DWORD style, DWORD extended_style, const wchar_t* class_name) {
        DLGTEMPLATE header{};
        header.style = style;
        header.dwExtendedStyle = extended_style;
        std::memcpy(bytes_.data(), &header, sizeof header);
        std::size_t at = sizeof header + sizeof(WORD);  // no menu
        if (class_name != nullptr) {
            const std::wstring name = class_name;
            std::memcpy(bytes_.data() + at, name.c_str(), (name.size() + 1) * sizeof(wchar_t));
        }
    }
    const DLGTEMPLATE* Get() const { return reinterpret_cast<const DLGTEMPLATE*>(bytes_.data()); }

  private:
    alignas(DWORD) std::array<std::byte, 256> bytes_{};
};

/// Keeps the system from laying the controls out when the monitor changes. Looked up by name: the
/// import library has it not.
void LayOutOurselves(HWND dialog) {
    using Function = BOOL(WINAPI*)(HWND, DIALOG_DPI_CHANGE_BEHAVIORS, DIALOG_DPI_CHANGE_BEHAVIORS);
    const FARPROC found =
        GetProcAddress(GetModuleHandleW(L"user32.dll"), "SetDialogDpiChangeBehavior");
    if (found == nullptr) return;
    reinterpret_cast<Function>(reinterpret_cast<void*>(found))(dialog, DDC_DISABLE_ALL,
                                                               DDC_DISABLE_ALL);
}

FontHandle MakeFont(int dpi, LONG extra_weight) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    if (!SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0,
                                    static_cast<UINT>(dpi))) {
        return {};
    }
    metrics.lfMessageFont.lfWeight += extra_weight;
    return FontHandle(CreateFontIndirectW(&metrics.lfMessageFont));
}

}  // namespace

Dialog::~Dialog() {
    if (handle_ == nullptr) return;
    // The derived parts are gone already, so the window's last messages must not reach them.
    SetWindowLongPtrW(handle_, DWLP_USER, 0);
    DestroyWindow(handle_);
}

// A loop of our own instead of the system's: every message passes PreTranslate, so that tool tips
// and keys work in it as in the main window.
INT_PTR Dialog::ShowModal(HWND owner) {
    if (!Create(owner)) return 0;
    const bool owner_was_enabled = owner != nullptr && IsWindowEnabled(owner) != FALSE;
    if (owner_was_enabled) EnableWindow(owner, FALSE);
    modal_ = true;
    result_ = 0;
    ShowWindow(handle_, SW_SHOW);
    OnShown();
    MSG message;
    while (modal_ && handle_ != nullptr) {
        const BOOL got = GetMessageW(&message, nullptr, 0, 0);
        if (got <= 0) {
            // For the loop that started all this.
            if (got == 0) PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        if (PreTranslate(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    modal_ = false;
    // The owner first: else the system would hand the focus to another program.
    if (owner_was_enabled) EnableWindow(owner, TRUE);
    if (handle_ != nullptr) DestroyWindow(handle_);
    return result_;
}

bool Dialog::Create(HWND owner) {
    const Look look = WantedLook();
    RegisterOwnClass(look);
    const Template layout(look.style & ~static_cast<DWORD>(WS_VISIBLE), look.extended_style,
                          look.class_name);
    CreateDialogIndirectParamW(GetModuleHandleW(nullptr), layout.Get(), owner, Procedure,
                               reinterpret_cast<LPARAM>(this));
    return handle_ != nullptr;
}

void Dialog::Close(INT_PTR result) {
    if (handle_ == nullptr) return;
    if (!modal_) {
        DestroyWindow(handle_);
        return;
    }
    result_ = result;
    modal_ = false;
    // Wakes the loop, which may wait for a message that never comes.
    PostMessageW(handle_, WM_NULL, 0, 0);
}

void Dialog::RegisterOwnClass(const Look& look) const {
    const HINSTANCE module = GetModuleHandleW(nullptr);
    WNDCLASSEXW made{};
    made.cbSize = sizeof made;
    if (look.class_name == nullptr || GetClassInfoExW(module, look.class_name, &made)) return;
    made.lpfnWndProc = DefDlgProcW;
    made.cbWndExtra = DLGWINDOWEXTRA;
    made.hInstance = module;
    made.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    made.lpszClassName = look.class_name;
    made.hIcon = static_cast<HICON>(LoadImageW(module, MAKEINTRESOURCEW(look.icon_id), IMAGE_ICON,
                                               GetSystemMetrics(SM_CXICON),
                                               GetSystemMetrics(SM_CYICON), LR_SHARED));
    made.hIconSm = static_cast<HICON>(LoadImageW(module, MAKEINTRESOURCEW(look.icon_id), IMAGE_ICON,
                                                 GetSystemMetrics(SM_CXSMICON),
                                                 GetSystemMetrics(SM_CYSMICON), LR_SHARED));
    RegisterClassExW(&made);
}

void Dialog::Begin(HWND window) {
    handle_ = window;
    SetWindowLongPtrW(window, DWLP_USER, reinterpret_cast<LONG_PTR>(this));
    LayOutOurselves(window);
    MakeFonts();
    OnInit();
    ApplyFonts();
}

void Dialog::MakeFonts() {
    FontHandle font = MakeFont(Dpi(), 0);
    FontHandle bold = MakeFont(Dpi(), FW_BOLD - FW_NORMAL);
    if (font) font_ = std::move(font);
    if (bold) bold_font_ = std::move(bold);
}

void Dialog::ApplyFonts() {
    EnumChildWindows(
        handle_,
        [](HWND child, LPARAM font) {
            wchar_t name[32]{};
            GetClassNameW(child, name, static_cast<int>(std::size(name)));
            // To a rich text box a font is a format: it would change the document.
            if (!EqualIgnoringCase(name, L"RICHEDIT50W")) {
                SendMessageW(child, WM_SETFONT, static_cast<WPARAM>(font), TRUE);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(font_.Get()));
    OnFontsChanged();
}

void Dialog::OnDpiChanged(int) {
    MakeFonts();
    ApplyFonts();
}

Dialog::Reply Dialog::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
    return MessageHandler::OnMessage(message, wparam, lparam);
}

bool Dialog::PreTranslate(MSG& message) {
    if (handle_ == nullptr) return false;
    if (message.hwnd != handle_ && !IsChild(handle_, message.hwnd)) return false;
    const bool is_key = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
    OnQueued(message);
    try {
        if (is_key && OnKey(message)) return true;
    } catch (...) {
        return true;
    }
    // OnKey may have closed the window, and so may whatever the dialog manager calls.
    if (handle_ == nullptr) return true;
    const HWND focus_before = GetFocus();
    if (!IsDialogMessageW(handle_, &message)) return false;
    if (is_key && handle_ != nullptr) OnKeyHandled(message.message, focus_before);
    return true;
}

INT_PTR CALLBACK Dialog::Procedure(HWND window, UINT message, WPARAM wparam,
                                   LPARAM lparam) noexcept {
    if (message == WM_INITDIALOG) {
        try {
            reinterpret_cast<Dialog*>(lparam)->Begin(window);
        } catch (...) {
            SetWindowLongPtrW(window, DWLP_USER, 0);
        }
        return FALSE;  // the form set the focus itself
    }
    auto* self = reinterpret_cast<Dialog*>(GetWindowLongPtrW(window, DWLP_USER));
    if (self == nullptr) return FALSE;
    const Reply reply = self->Dispatch(message, wparam, lparam);
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(window, DWLP_USER, 0);
        self->handle_ = nullptr;
    }
    if (!reply) return FALSE;
    switch (message) {
        // These few are answered directly.
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORDLG:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORSTATIC:
        case WM_COMPAREITEM:
        case WM_VKEYTOITEM:
        case WM_CHARTOITEM:
        case WM_QUERYDRAGICON: return *reply;
        default: SetWindowLongPtrW(window, DWLP_MSGRESULT, *reply); return TRUE;
    }
}

}  // namespace wordhawk
