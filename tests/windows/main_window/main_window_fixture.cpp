#include "tests/windows/main_window/main_window_fixture.h"

#include "dict/build.h"
#include "platform/modSect.h"

#include <commctrl.h>

namespace wordhawk::test {
namespace {

/// Enough English for the sentences of these tests.
constexpr std::string_view kWords =
    "the\nthere\nthese\nthem\ntea\nten\ntech\na\nan\nand\ncat\ncats\ncan\ncar\ndog\ndogs\nquick\n"
    "brown\nfox\njumps\njumped\nover\nlazy\nreceive\nreceived\nseparate\nword\nwords\nhouse\nhorse"
    "\n"
    "is\nin\nit\nof\non\none\ntwo\nthree\nhello\nhelp\nhelm\nworld\nanother\nline\nstory\nend\n"
    "definitely\nthis\nthat\nwith\ntext\n";

const std::wstring kPlacementKey = L"Software\\Wordhawk\\WindowTests";

/// Holds a key of the thread's keyboard state down.
class HeldKey {
  public:
    explicit HeldKey(int key) : key_(key) { Set(0x80); }
    ~HeldKey() { Set(0); }

  private:
    void Set(BYTE state) const {
        BYTE keys[256]{};
        GetKeyboardState(keys);
        keys[key_] = state;
        SetKeyboardState(keys);
    }
    int key_;
};

}  // namespace

MainWindowTest::MainWindowTest() {
    const Path list = folder_ / L"words.txt";
    WriteBytes(list, kWords);
    const Path data = folder_ / L"data" / "Dictionarys" / "1033";
    MakeFolder(data);
    const Path lists[] = {list};
    EXPECT_TRUE(BuildDictionary(lists, data, {}));
    // Else a test that goes on after the last word would race with the closing timer.
    Setting(L"RemainOpen", L"1");
    RegDeleteTreeW(HKEY_CURRENT_USER, kPlacementKey.c_str());
}

MainWindowTest::~MainWindowTest() {
    form_.reset();
    RegDeleteTreeW(HKEY_CURRENT_USER, kPlacementKey.c_str());
}

void MainWindowTest::Setting(std::wstring_view key, std::wstring_view value) {
    modSect::WriteSetting(L"Settings", key, value, folder_ / L"data" / "Wordhawk.ini");
}

frmNewSpell& MainWindowTest::Open(const Path& command_file, Mode mode) {
    ProgramOptions options;
    options.data_folder = folder_ / L"data";
    options.locale = 1033;
    options.program_mode = mode == Mode::Application;
    options.install_shipped = install_shipped_;
    options.flag_overrides = flags_;
    program_ = std::make_unique<Program>(options, fakes_.ui);
    program_->state.CommandFile = TextFromPath(command_file);
    form_ = std::make_unique<frmNewSpell>(frmNewSpell::Surroundings{
        *program_, fakes_.desktop, shared_, PlacementStore(kPlacementKey)});
    EXPECT_TRUE(form_->Show());
    Pump();
    return *form_;
}

void MainWindowTest::Reopen() {
    form_.reset();
    Open();
}

frmNewSpell& MainWindowTest::OpenWith(std::wstring_view text) {
    Open();
    Check(text);
    return *form_;
}

void MainWindowTest::Check(std::wstring_view text) {
    form_->document.LoadPlainText({std::wstring(text)});
    Click(form_->cmdSpellcheck);
}

void MainWindowTest::Pump(unsigned milliseconds) {
    const ULONGLONG end = GetTickCount64() + milliseconds;
    do {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (form_ && form_->PreTranslate(message)) continue;
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
        if (milliseconds > 0) Sleep(5);
    } while (GetTickCount64() < end);
}

bool MainWindowTest::ClosesItself() {
    const ULONGLONG end = GetTickCount64() + 10'000;
    while (IsOpen() && GetTickCount64() < end) Pump(10);
    return !IsOpen();
}

void MainWindowTest::Click(Button& button) {
    EXPECT_TRUE(button.Enabled() && button.Visible()) << "button " << button.Id();
    button.Click();
    Pump();
}

void MainWindowTest::Press(UINT key, With with) {
    std::optional<HeldKey> alt_key;
    std::optional<HeldKey> control_key;
    if (with == With::Alt || with == With::AltGr) alt_key.emplace(VK_MENU);
    if (with == With::Control || with == With::AltGr) control_key.emplace(VK_CONTROL);
    const bool alt = with == With::Alt;
    const LPARAM context = alt ? LPARAM{1} << 29 : 0;
    HWND focus = GetFocus();
    PostMessageW(focus, alt ? WM_SYSKEYDOWN : WM_KEYDOWN, key, context | 1);
    PostMessageW(focus, alt ? WM_SYSKEYUP : WM_KEYUP, key, context | 0xC0000001);
    Pump();
}

void MainWindowTest::ChooseIn(ListBox& list, int index) {
    list.Select(index);
    SendMessageW(GetParent(list.Handle()), WM_COMMAND, MAKEWPARAM(list.Id(), LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list.Handle()));
    Pump();
}

void MainWindowTest::RightClick(const Control& control) {
    RECT bounds{};
    GetClientRect(control.Handle(), &bounds);
    const LPARAM at = MAKELPARAM(bounds.right / 2, bounds.bottom / 2);
    SendMessageW(control.Handle(), WM_RBUTTONDOWN, MK_RBUTTON, at);
    SendMessageW(control.Handle(), WM_RBUTTONUP, 0, at);
    Pump();
}

std::wstring MainWindowTest::DocumentText() {
    std::wstring text = form_->rtbW.PlainText();
    EXPECT_EQ(form_->document.Text(), text) << "the kept text differs from the control's";
    return text;
}

std::vector<std::wstring> MainWindowTest::Listed() const {
    std::vector<std::wstring> words;
    for (int i = 0; i < form_->lstNID.Count(); ++i) words.push_back(form_->lstNID.Item(i));
    return words;
}

std::vector<std::wstring> MainWindowTest::Suggested() const {
    std::vector<std::wstring> words;
    for (int i = 0; i < form_->lstSug.Count(); ++i) words.push_back(form_->lstSug.Item(i));
    return words;
}

Path MainWindowTest::Custom(std::wstring_view name) const {
    return program_->state.CustomFolder() / PathFromText(name);
}

std::wstring MainWindowTest::StoredSetting(std::wstring_view section, std::wstring_view key) const {
    return modSect::ReadSetting(section, key, L"(none)", program_->state.SettingsFile);
}

}  // namespace wordhawk::test
