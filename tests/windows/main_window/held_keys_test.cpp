// Keys of someone in a hurry: held down, pressed once too often, or meant for a box that was there
// a moment ago.

#include "ui/framework/held_keys.h"

#include "tests/windows/main_window/main_window_fixture.h"

#include <gmock/gmock.h>

namespace wordhawk::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class HurriedKeys : public MainWindowTest {
  protected:
    /// Presses a key and keeps it down for a number of repeats.
    void Hold(UINT key, int repeats) {
        Post(key, 1);
        for (int i = 0; i < repeats; ++i) Post(key, kIsDown | 1);
        Release(key);
    }
    void Repeat(UINT key) { Post(key, kIsDown | 1); }
    void Release(UINT key) {
        PostMessageW(GetFocus(), WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
        Pump();
    }
    void AccessKey(wchar_t letter, LPARAM state = 0) {
        PostMessageW(GetFocus(), WM_SYSCHAR, static_cast<WPARAM>(letter), kAltHeld | state | 1);
        Pump();
    }

    static constexpr LPARAM kIsDown = LPARAM{1} << 30;
    static constexpr LPARAM kAltHeld = LPARAM{1} << 29;

  private:
    void Post(UINT key, LPARAM state) {
        PostMessageW(GetFocus(), WM_KEYDOWN, key, state);
        Pump();
    }
};

TEST_F(HurriedKeys, EnterAfterTheLastWordLeavesTheTextAlone) {
    struct Case {
        const char* reason;
        std::function<void()> last_command;
    };
    const Case cases[] = {
        {"ignored by its key", [this] { AccessKey(L'i'); }},
        {"ignored by the mouse", [this] { Click(Controls().cmdIgnoreAll); }},
        {"ignored while the keyboard is in the document",
         [this] {
             Controls().rtbW.SetFocus();
             Controls().document.Select({5, 4});
             AccessKey(L'g');
         }},
        {"added", [this] { Click(Controls().cmdAddAll[1]); }},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.reason);
        DeleteOneFile(folder_ / L"data" / "Dictionarys" / "Custom" / "CUSTOM.DIC");
        OpenWith(L"line keep");
        // The word that a dictionary lacks stands at the end of the text.
        Check(L"line kepq");
        row.last_command();
        ASSERT_THAT(Listed(), IsEmpty());
        EXPECT_EQ(Controls().document.Selection().length, 0u);
        Press(VK_RETURN);
        Hold(VK_RETURN, 3);
        Press('X');
        Press(VK_DELETE);
        EXPECT_EQ(DocumentText(), L"line kepq");
        EXPECT_FALSE(Controls().rtbW.HasFocus());
    }
}

TEST_F(HurriedKeys, EnterHeldThroughATextOfChangesOnlyChanges) {
    OpenWith(L"teh recieve teh recieve and teh");
    Hold(VK_RETURN, 20);
    EXPECT_EQ(DocumentText(), L"tea receive tea receive and tea");
    EXPECT_EQ(fakes_.ui.shown.size(), 1u);
    EXPECT_EQ(fakes_.ui.beeps, 0) << "a key that is down still is no new one";
    Press(VK_RETURN);
    EXPECT_EQ(DocumentText(), L"tea receive tea receive and tea");
}

TEST_F(HurriedKeys, KeyThatWentDownElsewhereCountsForNothing) {
    OpenWith(L"recieve dgo");
    Repeat(VK_RETURN);
    Repeat(VK_ESCAPE);
    EXPECT_TRUE(IsOpen());
    EXPECT_THAT(Listed(), ElementsAre(L"recieve", L"dgo"));
    Controls().rtbW.SetFocus();
    Repeat(VK_RETURN);
    EXPECT_EQ(DocumentText(), L"recieve dgo");
    Release(VK_RETURN);
    Hold(VK_RETURN, 2);
    const std::wstring text = DocumentText();
    EXPECT_EQ(std::count(text.begin(), text.end(), L'\r'), 3)
        << "in the document, held down there, it breaks lines";
}

TEST_F(HurriedKeys, KeyHeldDownAddsOneWordAlone) {
    OpenWith(L"aaax bbbx cccx");
    AccessKey(L'u');
    AccessKey(L'u', kIsDown);
    AccessKey(L'u', kIsDown);
    EXPECT_THAT(Listed(), ElementsAre(L"bbbx", L"cccx"));
    Controls().cmdAdd[1].SetFocus();
    Hold(VK_RETURN, 3);
    EXPECT_THAT(Listed(), ElementsAre(L"cccx"));
}

TEST_F(HurriedKeys, CommandInTheMiddleOfTheDocumentDoesNotLeaveTheNextWordUnderTheKeyboard) {
    OpenWith(L"aaax recieve");
    Controls().rtbW.SetFocus();
    AccessKey(L'g');
    ASSERT_EQ(Selected(), L"recieve");
    Press(VK_RETURN);
    EXPECT_EQ(DocumentText(), L"aaax receive");
}

TEST_F(HurriedKeys, CheckWithoutUnknownWordsGivesTheKeyboardBackWithNothingSelected) {
    Open();
    Controls().rtbW.SetFocus();
    Controls().document.LoadPlainText({L"the dog"});
    Controls().document.Select({0, 7});
    Press(VK_F7);
    EXPECT_TRUE(Controls().rtbW.HasFocus());
    EXPECT_EQ(Controls().document.Selection().length, 0u);
}

TEST_F(HurriedKeys, DocumentFromAFileDoesNotGetTheKeyboard) {
    const Path file = folder_ / L"note.txt";
    WriteBytes(file, "the dog");
    Open(file);
    EXPECT_FALSE(Controls().rtbW.HasFocus());
    Press(VK_RETURN);
    EXPECT_EQ(DocumentText(), L"the dog");
}

TEST(IgnoreHeldKeys, BoxIsAnsweredByNewKeysAlone) {
    const HWND box = CreateWindowExW(0, L"#32770", L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                     nullptr, nullptr);
    const auto passes = [box](UINT key, LPARAM state) {
        MSG message{box, WM_KEYDOWN, key, state, 0, {}};
        return CallMsgFilterW(&message, MSGF_DIALOGBOX) == FALSE;
    };
    constexpr LPARAM kIsDown = LPARAM{1} << 30;
    {
        const IgnoreHeldKeys guard;
        for (const UINT key : {VK_RETURN, VK_ESCAPE}) {
            EXPECT_TRUE(passes(key, 1)) << key;
            EXPECT_FALSE(passes(key, kIsDown | 1)) << key;
        }
        EXPECT_TRUE(passes(VK_TAB, kIsDown | 1)) << "walking on is no answer";
    }
    EXPECT_TRUE(passes(VK_RETURN, kIsDown | 1));
    DestroyWindow(box);
}

}  // namespace
}  // namespace wordhawk::test
