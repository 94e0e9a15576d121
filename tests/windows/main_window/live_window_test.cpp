// What happens to the window while, or because, something else happens.

#include "platform/modSect.h"
#include "tests/windows/main_window/main_window_fixture.h"

#include <gmock/gmock.h>

#include <richedit.h>

namespace wordhawk::test {
namespace {

using testing::IsEmpty;

class LiveWindow : public MainWindowTest {
  protected:
    /// Enough for a check to let messages through several times.
    static std::wstring LongText() {
        std::wstring text;
        for (int line = 0; text.size() < 6'000'000; ++line) {
            text += L"the quick brown fox word" + std::to_wstring(line) + L" and the lazy dog\r";
        }
        return text;
    }
};

TEST_F(LiveWindow, ClosingDuringACheckEndsTheCheckFirst) {
    Setting(L"IgnoreNumbers", L"0");
    Open();
    Controls().document.LoadPlainText({LongText()});
    PostMessageW(Form().Handle(), WM_CLOSE, 0, 0);
    Form().cmdSpellcheck_Click();
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(program_->state.CancelFlag);
    EXPECT_THAT(fakes_.ui.shown, IsEmpty()) << "a check cut short is not announced";
}

TEST_F(LiveWindow, SecondCheckDuringACheckIsRefused) {
    Open();
    Controls().document.LoadPlainText({LongText()});
    PostMessageW(Controls().pic1.Handle(), WM_COMMAND,
                 MAKEWPARAM(Controls().cmdSpellcheck.Id(), BN_CLICKED),
                 reinterpret_cast<LPARAM>(Controls().cmdSpellcheck.Handle()));
    Form().cmdSpellcheck_Click();
    EXPECT_TRUE(IsOpen());
    EXPECT_TRUE(IsWindowEnabled(Form().Handle()));
}

TEST_F(LiveWindow, ClosingDuringAnAddAllEndsItFirst) {
    std::wstring text;
    for (int i = 0; i < 26 * 26; ++i) {
        text += {static_cast<wchar_t>(L'a' + i % 26), static_cast<wchar_t>(L'a' + i / 26), L'q',
                 L'z', L' '};
    }
    Flag(254, 0);
    OpenWith(text);
    ASSERT_EQ(Listed().size(), 676u);
    PostMessageW(Form().Handle(), WM_CLOSE, 0, 0);
    // To the main dictionary, where each of these words has a file of its own.
    Form().cmdAddAll_Click(0);
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(program_->state.StopFlag);
}

TEST_F(LiveWindow, OtherLanguageKeepsTheNumbers) {
    OpenWith(L"recieve dgo");
    const Path file = program_->state.LanguageFile;
    modSect::WriteSetting(L"Wordhawk", L"212", L"&Vorschlag", file);
    Form().ApplyCaptions();
    EXPECT_EQ(Controls().lblNIL.Text(), L"2 - Not Found");
    EXPECT_EQ(Controls().lblCnt.Text(), L"1 - &Vorschlag:");
    EXPECT_EQ(Controls().lblScore.Text(), L"80% - 100% Match");
}

TEST_F(LiveWindow, EndOfTheSessionSavesAndCloses) {
    Setting(L"SaveBack", L"1");
    const Path file = folder_ / L"note.txt";
    WriteBytes(file, "teh dog");
    Open(file);
    Controls().document.Select({0, 3});
    Controls().rtbW.ReplaceSelection(L"the");
    EXPECT_NE(SendMessageW(Form().Handle(), WM_QUERYENDSESSION, 0, ENDSESSION_CLOSEAPP), 0);
    EXPECT_TRUE(IsOpen());
    SendMessageW(Form().Handle(), WM_ENDSESSION, TRUE, ENDSESSION_CLOSEAPP);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(ReadBytes(file), "the dog");
}

/// Focus events that a screen reader would get.
class FocusEvents {
  public:
    FocusEvents() {
        heard_.clear();
        hook_ = SetWinEventHook(
            EVENT_OBJECT_FOCUS, EVENT_OBJECT_FOCUS, nullptr,
            [](HWINEVENTHOOK, DWORD, HWND window, LONG, LONG child, DWORD, DWORD) {
                heard_.emplace_back(window, child);
            },
            GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
    }
    ~FocusEvents() { UnhookWinEvent(hook_); }
    static const std::vector<std::pair<HWND, LONG>>& Heard() { return heard_; }

  private:
    HWINEVENTHOOK hook_;
    static inline std::vector<std::pair<HWND, LONG>> heard_;
};

TEST_F(LiveWindow, ScreenReadersAreToldOfTheNextWord) {
    OpenWith(L"aaax bbbx cccx");
    ChooseIn(Controls().lstNID, 1);
    const FocusEvents events;
    Click(Controls().cmdIgnoreAll);
    Pump(100);
    ASSERT_EQ(Controls().lstNID.Selected(), 0);
    EXPECT_THAT(FocusEvents::Heard(),
                testing::Contains(std::pair{Controls().lstNID.Handle(), LONG{1}}));
}

class DarkWindow : public LiveWindow {
  protected:
    DarkWindow() { Set(0); }
    ~DarkWindow() override { Set(1); }
    static void Set(DWORD light) {
        RegSetKeyValueW(HKEY_CURRENT_USER,
                        L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                        L"AppsUseLightTheme", REG_DWORD, &light, sizeof light);
    }
    /// The document's background, which asking for changes.
    COLORREF Background() {
        return static_cast<COLORREF>(
            SendMessageW(Controls().rtbW.Handle(), EM_SETBKGNDCOLOR, 0, 0));
    }
};

TEST_F(DarkWindow, DocumentIsDarkUnlessItHasColoursOfItsOwn) {
    Open();
    EXPECT_EQ(Background(), Theme().Use().field);
    EXPECT_LT(GetRValue(Theme().Use().field), 64);
    Controls().document.LoadRichText("{\\rtf1 text}");
    EXPECT_EQ(Background(), RGB(255, 255, 255));
}

TEST_F(DarkWindow, ColoursOfTheScreenDoNotGetIntoASavedFile) {
    OpenWith(L"the dog");
    const COLORREF text = Theme().Use().field_text;
    const std::string entry =
        "\\red" + std::to_string(GetRValue(text)) + "\\green" + std::to_string(GetGValue(text));
    EXPECT_NE(Controls().rtbW.Rtf().find(entry), std::string::npos);
    EXPECT_EQ(Controls().document.RichText().find(entry), std::string::npos);
}

TEST_F(DarkWindow, WindowFollowsWhenTheSystemChanges) {
    OpenWith(L"the dog");
    Set(1);
    SendMessageW(Form().Handle(), WM_SETTINGCHANGE, 0,
                 reinterpret_cast<LPARAM>(L"ImmersiveColorSet"));
    EXPECT_EQ(Background(), GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(DocumentText(), L"the dog");
}

}  // namespace
}  // namespace wordhawk::test
