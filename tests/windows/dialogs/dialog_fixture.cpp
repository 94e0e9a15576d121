#include "tests/windows/dialogs/dialog_fixture.h"

#include "dict/build.h"
#include "platform/modICCX.h"
#include "platform/modSect.h"
#include "ui/framework/layout.h"

namespace wordhawk::test {
namespace {

constexpr ULONGLONG kPatience = 30'000;  // milliseconds

std::wstring ClassOf(HWND window) {
    wchar_t name[64]{};
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return name;
}

std::wstring TextOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

/// A visible, enabled dialog of this thread.
HWND FindDialog(const std::wstring& class_name) {
    struct Search {
        const std::wstring& class_name;
        HWND found;
    } search{class_name, nullptr};
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM wanted) {
            auto& search = *reinterpret_cast<Search*>(wanted);
            if (!IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
            if (ClassOf(window) != search.class_name) return TRUE;
            search.found = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

}  // namespace

DialogTest::DialogTest() {
    modICCX::InitCommonControlsVB(modICCX::kAllClasses);
    const Path list = folder_ / L"words.txt";
    WriteBytes(list, "hello\nhelp\nworld\nthe\nred\nreddish\n");
    MakeFolder(Data(L"Dictionarys") / "1033");
    const Path lists[] = {list};
    EXPECT_TRUE(BuildDictionary(lists, Data(L"Dictionarys") / "1033", {}));
    Restart();
    ticking_ = this;
    timer_ = SetTimer(nullptr, 0, 10, OnTick);
    idle_since_ = GetTickCount64();
}

DialogTest::~DialogTest() {
    KillTimer(nullptr, timer_);
    ticking_ = nullptr;
}

void DialogTest::Restart() {
    ProgramOptions options;
    options.data_folder = folder_ / L"data";
    options.locale = 1033;
    // Nothing is shipped, so that missing language files are generated.
    options.shipped_dictionaries = options.shipped_languages = folder_ / L"nothing";
    program_ = std::make_unique<Program>(options, fakes_.ui);
}

void DialogTest::Setting(std::wstring_view key, std::wstring_view value) {
    modSect::WriteSetting(L"Settings", key, value, Data(L"Wordhawk.ini"));
}

std::wstring DialogTest::Stored(std::wstring_view key) const {
    return modSect::ReadSetting(L"Settings", key, L"(none)", Data(L"Wordhawk.ini"));
}

Path DialogTest::Custom(std::wstring_view name) const {
    return program_->state.CustomFolder() / PathFromText(name);
}

void DialogTest::MakeLanguage(int locale, const std::vector<std::pair<int, std::wstring>>& texts) {
    const std::wstring number = std::to_wstring(locale);
    const Path file =
        Data(L"Resources") / PathFromText(number) / PathFromText(L"lang" + number + L".ini");
    MakeFolder(file.parent_path());
    for (const auto& [id, text] : texts) {
        modSect::WriteSetting(L"Wordhawk", std::to_wstring(id), text, file);
    }
}

void DialogTest::Show(FormDialog& form) {
    form_ = &form;
    ASSERT_TRUE(form.Create(nullptr));
    ShowWindow(form.Handle(), SW_SHOW);
    Pump();
}

void DialogTest::Pump(unsigned milliseconds) {
    const ULONGLONG end = GetTickCount64() + milliseconds;
    do {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (form_ != nullptr && form_->PreTranslate(message)) continue;
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        if (milliseconds > 0) Sleep(5);
    } while (GetTickCount64() < end);
}

void DialogTest::Click(const Control& control) {
    EXPECT_TRUE(IsWindowEnabled(control.Handle()) && IsWindowVisible(control.Handle()))
        << "control " << control.Id();
    SendMessageW(control.Handle(), BM_CLICK, 0, 0);
    Pump();
}

void DialogTest::Click(HWND dialog, int id) {
    SendMessageW(GetDlgItem(dialog, id), BM_CLICK, 0, 0);
}

void DialogTest::Choose(ListBox& list, int row) {
    list.Select(row);
    SendMessageW(GetParent(list.Handle()), WM_COMMAND, MAKEWPARAM(list.Id(), LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list.Handle()));
    Pump();
}

void DialogTest::Choose(ComboBox& combo, int row) {
    combo.Select(row);
    SendMessageW(GetParent(combo.Handle()), WM_COMMAND, MAKEWPARAM(combo.Id(), CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(combo.Handle()));
    Pump();
}

void DialogTest::Press(UINT key) {
    PostMessageW(GetFocus(), WM_KEYDOWN, key, 1);
    PostMessageW(GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    Pump();
}

void DialogTest::When(const wchar_t* class_name, Act act) {
    steps_.push_back({class_name, std::move(act)});
    idle_since_ = GetTickCount64();
}

void CALLBACK DialogTest::OnTick(HWND, UINT, UINT_PTR, DWORD) {
    if (ticking_ != nullptr) ticking_->Tick();
}

void DialogTest::Tick() {
    if (!steps_.empty()) {
        if (const HWND dialog = FindDialog(steps_.front().class_name)) {
            const Act act = std::move(steps_.front().act);
            steps_.pop_front();
            idle_since_ = GetTickCount64();
            act(dialog);
            return;
        }
    }
    if (GetTickCount64() - idle_since_ < kPatience) return;
    // A dialog that nobody answers would keep the tests for ever.
    idle_since_ = GetTickCount64();
    const HWND active = GetActiveWindow();
    if (active == nullptr) return;
    ADD_FAILURE() << "closed a dialog that nobody answered: " << ToUtf8(TextOf(active));
    PostMessageW(active, WM_CLOSE, 0, 0);
}

std::vector<std::string> DialogTest::Clipped(HWND dialog) {
    std::vector<std::string> clipped;
    EnumChildWindows(
        dialog,
        [](HWND child, LPARAM list) {
            const std::wstring kind = ClassOf(child);
            const bool is_static = EqualIgnoringCase(kind, L"Static");
            const LONG_PTR style = GetWindowLongPtrW(child, GWL_STYLE);
            // Values may end in dots, and captions of pages behind have their turn.
            const bool value = is_static && (style & (SS_NOPREFIX | SS_OWNERDRAW)) != 0;
            if ((!is_static && !EqualIgnoringCase(kind, L"Button")) || value) return TRUE;
            if (!IsWindowVisible(child)) return TRUE;
            const LONG_PTR type = style & BS_TYPEMASK;
            const bool is_push = type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON;
            // A frame or a box takes some of a button's room.
            const int taken = is_static ? 2 : is_push || (style & BS_PUSHLIKE) != 0 ? 6 : 22;
            const layout::Measure measure{
                96, reinterpret_cast<HFONT>(SendMessageW(child, WM_GETFONT, 0, 0))};
            const SIZE size = measure.TextSize(TextOf(child));
            RECT room{};
            GetClientRect(child, &room);
            if (size.cx + taken > room.right || size.cy > room.bottom) {
                reinterpret_cast<std::vector<std::string>*>(list)->push_back(
                    std::to_string(GetDlgCtrlID(child)) + " " + ToUtf8(TextOf(child)));
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&clipped));
    return clipped;
}

}  // namespace wordhawk::test
