// What happens when no unknown word is left, or none was there.

#include "tests/windows/main_window/main_window_fixture.h"

#include <gmock/gmock.h>

namespace wordhawk::test {
namespace {

using testing::IsEmpty;

class EndOfCheck : public MainWindowTest {
  protected:
    Path File(std::string_view bytes) {
        const Path path = folder_ / L"note.txt";
        WriteBytes(path, bytes);
        return path;
    }
};

TEST_F(EndOfCheck, TextIsSavedBackAtOnceThoughTheWindowStays) {
    Setting(L"SaveBack", L"1");
    const Path file = File("recieve dog");
    Open(file);
    Click(Controls().cmdChange);
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(ReadBytes(file), "receive dog");
    Form().Unload();
    EXPECT_EQ(ReadBytes(file), "receive dog");
}

TEST_F(EndOfCheck, TextThatCouldNotBeSavedKeepsTheWindowOpen) {
    Setting(L"SaveBack", L"1");
    Setting(L"RemainOpen", L"0");
    const Path file = File("recieve dog");
    Open(file);
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    Click(Controls().cmdChange);
    EXPECT_FALSE(Form().CloseIsPending());
    ASSERT_FALSE(fakes_.ui.shown.empty());
    EXPECT_NE(fakes_.ui.shown[0].text.find(L"note.txt"), std::wstring::npos);
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(EndOfCheck, NamedFileWithoutUnknownWordsClosesTheWindowAfterTheNotice) {
    struct Case {
        const char* reason;
        const char* text;
        const wchar_t* remain_open;
        bool closes;
    };
    const Case cases[] = {
        {"nothing unknown", "the dog", L"0", true},
        {"nothing at all", "", L"0", true},
        {"wanted open", "the dog", L"1", false},
        {"an unknown word", "teh dog", L"0", false},
    };
    for (const Case& row : cases) {
        SCOPED_TRACE(row.reason);
        Setting(L"RemainOpen", row.remain_open);
        fakes_.ui.shown.clear();
        Open(File(row.text));
        EXPECT_EQ(fakes_.ui.shown.size(), Listed().empty() ? 1u : 0u);
        EXPECT_EQ(Form().CloseIsPending(), row.closes);
        if (row.closes) {
            EXPECT_TRUE(ClosesItself());
        }
    }
}

TEST_F(EndOfCheck, TypedTextWithoutUnknownWordsLeavesTheWindowOpen) {
    Setting(L"RemainOpen", L"0");
    OpenWith(L"the dog");
    EXPECT_THAT(Listed(), IsEmpty());
    EXPECT_FALSE(Form().CloseIsPending());
}

TEST_F(EndOfCheck, TitleFollowsSaveAs) {
    Setting(L"OpenSave", L"1");
    Open(File("the dog"));
    fakes_.files.choice = FileChoice{folder_ / L"other name.txt", DocumentKind::Plain};
    Click(Controls().cmdSaveAs);
    EXPECT_EQ(Form().Caption(), L"other name.txt - Wordhawk");
}

}  // namespace
}  // namespace wordhawk::test
