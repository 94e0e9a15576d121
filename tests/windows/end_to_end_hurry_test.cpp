// A person in a hurry at the real program: keys held down or pressed once too often, boxes answered
// by keyboard, another window in between, a second copy of the program, and files that change or
// vanish meanwhile. Whatever happens, no word may be lost and none come in by itself.

#include "tests/windows/end_to_end_fixture.h"

namespace wordhawk::test {
namespace {

constexpr const wchar_t* kProgram = L"Wordhawk";

/// A window of another program.
class OtherWindow {
  public:
    OtherWindow() {
        window_ = CreateWindowExW(0, L"EDIT", L"another program", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                  0, 0, 300, 200, nullptr, nullptr, nullptr, nullptr);
    }
    ~OtherWindow() { DestroyWindow(window_); }
    /// Takes the keyboard and whatever keys have come.
    bool TakeKeyboard() const {
        SetForegroundWindow(window_);
        SetFocus(window_);
        Pump();
        return GetForegroundWindow() == window_;
    }
    static void Pump() {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    }

  private:
    HWND window_ = nullptr;
};

class Hurry : public EndToEnd {
  protected:
    Hurry() {
        Setting(L"SaveBack", L"1");
        Setting(L"RemainOpen", L"1");
    }
    Path Document(std::string_view text, std::wstring_view name = L"letter.txt") {
        const Path file = folder_ / name;
        WriteBytes(file, text);
        return file;
    }
    Path CustomFile() const { return Data() / "Dictionarys" / "Custom" / "CUSTOM.DIC"; }
    /// Esc until the program has ended: a box first, if one is up.
    void CloseByKeyboard() {
        ASSERT_NO_FATAL_FAILURE(WaitForKeyboard(Window()));
        Key(VK_ESCAPE);
        ExpectEnd();
    }
};

TEST_F(Hurry, EnterHeldDownChangesEveryWordAndNothingElse) {
    std::string wrong = "the ";
    std::string right = "the ";
    for (const std::string& word : Words()) {
        wrong += word + word.back() + " and ";
        right += word + " and ";
    }
    const Path file = Document(wrong);
    StartOn(file);
    ASSERT_TRUE(WaitForCount(30));
    ASSERT_TRUE(WaitUntil([&] { return ChangeTo() == L"house"; }));
    Key(VK_RETURN);
    ASSERT_TRUE(WaitForCount(29));
    EXPECT_EQ(ChangeTo(), L"horse");
    // The press that the repeats belong to came first, as its release does last.
    ASSERT_TRUE(WaitUntil([&] {
        Repeat(VK_RETURN, 1);
        return ListCount() == 0;
    }));
    HWND box = nullptr;
    ASSERT_NO_FATAL_FAILURE(WaitForBox(kComplete, box));
    Repeat(VK_RETURN, 20);
    EXPECT_TRUE(IsWindow(box)) << "answered by a key that was down before it came";
    ASSERT_NO_FATAL_FAILURE(DismissCompletion());
    ASSERT_NO_FATAL_FAILURE(WaitForKeyboard(Window()));
    Repeat(VK_RETURN, 20);
    EXPECT_EQ(ReadBytes(file), right) << "saved at the end of the check";
    ASSERT_NO_FATAL_FAILURE(CloseByKeyboard());
    EXPECT_EQ(ReadBytes(file), right);
}

TEST_F(Hurry, KeysAfterTheLastWordDoNotReachTheText) {
    const std::string text = "the house and keepp\n";
    const Path file = Document(text);
    StartOn(file);
    ASSERT_TRUE(WaitForCount(1));
    Key('I', VK_MENU);
    // One for the box, and more than that, faster than any box comes up.
    for (int i = 0; i < 3; ++i) Key(VK_RETURN);
    Type("xyz");
    Key(VK_DELETE);
    Key(VK_BACK);
    ASSERT_TRUE(WaitForCount(0));
    ASSERT_TRUE(WaitUntil(
        [&] { return IsWindowEnabled(Window()) && FindWindowW(L"#32770", kComplete) == nullptr; }));
    ASSERT_NO_FATAL_FAILURE(CloseByKeyboard());
    EXPECT_EQ(ReadBytes(file), text);
}

TEST_F(Hurry, EscapeThatDismissesTheBoxDoesNotCloseTheWindowAsWell) {
    const Path file = Document("the housee");
    StartOn(file);
    ASSERT_TRUE(WaitForCount(1));
    Key(VK_RETURN);
    ASSERT_NO_FATAL_FAILURE(DismissBox(kComplete, VK_ESCAPE));
    ASSERT_NO_FATAL_FAILURE(WaitForKeyboard(Window()));
    Repeat(VK_ESCAPE, 20);
    EXPECT_TRUE(WaitUntil([&] { return TextOf(main_id::lblNIL) == L"0 - Not Found"; }));
    ASSERT_NO_FATAL_FAILURE(CloseByKeyboard());
    EXPECT_EQ(ReadBytes(file), "the house");
}

TEST_F(Hurry, KeyHeldWhileTheKeyboardComesBackDoesNothing) {
    const Path file = Document("the housee and waterr");
    StartOn(file);
    ASSERT_TRUE(WaitForCount(2));
    const OtherWindow other;
    ASSERT_TRUE(WaitUntil([&] { return other.TakeKeyboard(); }));
    OtherWindow::Pump();
    ASSERT_NO_FATAL_FAILURE(WaitForKeyboard(Window()));
    Repeat(VK_RETURN, 10);
    EXPECT_EQ(ListCount(), 2);
    EXPECT_EQ(ChangeTo(), L"house");
    for (const int left : {1, 0}) {
        Key(VK_RETURN);
        ASSERT_TRUE(WaitForCount(left));
    }
    ASSERT_NO_FATAL_FAILURE(DismissCompletion());
    ASSERT_NO_FATAL_FAILURE(CloseByKeyboard());
    EXPECT_EQ(ReadBytes(file), "the house and water");
}

TEST_F(Hurry, TwoCopiesAddToOneDictionaryAndKeepTheirOwnTexts) {
    const Path files[] = {Document("the qzone and housee", L"one.txt"),
                          Document("the qztwo and waterr", L"two.txt")};
    for (std::size_t i = 0; i < 2; ++i) {
        UseProgram(i);
        ASSERT_NO_FATAL_FAILURE(StartOn(files[i]));
        ASSERT_TRUE(WaitForCount(2));
    }
    for (std::size_t i = 0; i < 2; ++i) {
        UseProgram(i);
        ASSERT_NO_FATAL_FAILURE(WaitForKeyboard(Window()));
        Key('U', VK_MENU);
        ASSERT_TRUE(WaitForCount(1));
    }
    const std::string custom = ReadBytes(CustomFile());
    EXPECT_NE(custom.find("qzone,"), std::string::npos);
    EXPECT_NE(custom.find("qztwo,"), std::string::npos);
    for (std::size_t i = 0; i < 2; ++i) {
        UseProgram(i);
        ASSERT_NO_FATAL_FAILURE(WaitForKeyboard(Window()));
        Key(VK_RETURN);
        ASSERT_NO_FATAL_FAILURE(DismissCompletion());
        ASSERT_NO_FATAL_FAILURE(CloseByKeyboard());
    }
    EXPECT_EQ(ReadBytes(files[0]), "the qzone and house");
    EXPECT_EQ(ReadBytes(files[1]), "the qztwo and water");
}

TEST_F(Hurry, WordThatCannotBeAddedStaysBehindItsBox) {
    WriteBytes(CustomFile(), "abc,65120\r\n");
    SetFileAttributesW(CustomFile().c_str(), FILE_ATTRIBUTE_READONLY);
    const Path file = Document("the qzone and housee");
    StartOn(file);
    ASSERT_TRUE(WaitForCount(2));
    Key('U', VK_MENU);
    ASSERT_NO_FATAL_FAILURE(DismissBox(kProgram));
    ASSERT_NO_FATAL_FAILURE(WaitForKeyboard(Window()));
    EXPECT_EQ(ListCount(), 2);
    EXPECT_EQ(TextOf(main_id::lblNID), L"qzone");
    SetFileAttributesW(CustomFile().c_str(), FILE_ATTRIBUTE_NORMAL);
    // The way is free again, or the whole file gone: both are no reason to lose the word.
    EXPECT_TRUE(DeleteOneFile(CustomFile()));
    Key('U', VK_MENU);
    ASSERT_TRUE(WaitForCount(1));
    EXPECT_NE(ReadBytes(CustomFile()).find("qzone,"), std::string::npos);
    Key(VK_RETURN);
    ASSERT_NO_FATAL_FAILURE(DismissCompletion());
    ASSERT_NO_FATAL_FAILURE(CloseByKeyboard());
    EXPECT_EQ(ReadBytes(file), "the qzone and house");
}

TEST_F(Hurry, QuestionBeforeTheMainDictionaryIsNotAnsweredByAHeldKey) {
    const Path file = Document("the qzone");
    StartOn(file);
    ASSERT_TRUE(WaitForCount(1));
    Key('A', VK_MENU);
    HWND box = nullptr;
    const wchar_t* title = L"Add word(s) to your main dictionary?";
    ASSERT_NO_FATAL_FAILURE(WaitForBox(title, box));
    Repeat(VK_RETURN, 10);
    EXPECT_TRUE(IsWindow(box)) << "answered by a key that was down before it came";
    ASSERT_NO_FATAL_FAILURE(DismissBox(title));
    ASSERT_NO_FATAL_FAILURE(WaitForKeyboard(Window()));
    EXPECT_EQ(ListCount(), 1) << "Enter is No";
    EXPECT_FALSE(IsFile(Data() / "Dictionarys" / "1033" / "qz_.dic"));
    ASSERT_NO_FATAL_FAILURE(CloseByKeyboard());
    EXPECT_EQ(ReadBytes(file), "the qzone");
}

TEST_F(Hurry, WordOfManyLettersKeepsNobodyWaiting) {
    // The time that Wine's rich text box needs by itself grows with the square of the length: two
    // minutes for 100,000 letters, and as much again for every change.
    const std::string word(4'000, 'q');
    const Path file = Document("the " + word + " and housee");
    StartOn(file);
    ASSERT_TRUE(WaitForCount(2));
    Key('G', VK_MENU);
    ASSERT_TRUE(WaitForCount(1));
    ASSERT_TRUE(WaitUntil([&] { return ChangeTo() == L"house"; }));
    Key(VK_RETURN);
    ASSERT_NO_FATAL_FAILURE(DismissCompletion());
    ASSERT_NO_FATAL_FAILURE(CloseByKeyboard());
    EXPECT_EQ(ReadBytes(file), "the " + word + " and house");
}

TEST_F(Hurry, FileThatAnotherProgramWroteMeanwhileIsAskedAboutAndBothTextsStay) {
    const Path file = Document("the housee");
    StartOn(file);
    ASSERT_TRUE(WaitForCount(1));
    WriteBytes(file, "what another program wrote");
    Key(VK_RETURN);
    ASSERT_NO_FATAL_FAILURE(DismissBox(kProgram));
    ASSERT_NO_FATAL_FAILURE(DismissCompletion());
    ASSERT_NO_FATAL_FAILURE(WaitForKeyboard(Window()));
    EXPECT_EQ(ReadBytes(file), "what another program wrote") << "Enter is No";
    ASSERT_NO_FATAL_FAILURE(CloseByKeyboard());
    EXPECT_EQ(ReadBytes(file), "what another program wrote");
    EXPECT_EQ(ReadBytes(Data() / "Saves" / "Unsaved text.txt"), "the house");
}

TEST_F(Hurry, FileThatVanishedMeanwhileIsWrittenAgain) {
    const Path file = Document("the housee");
    StartOn(file);
    ASSERT_TRUE(WaitForCount(1));
    ASSERT_TRUE(DeleteOneFile(file));
    Key(VK_RETURN);
    ASSERT_NO_FATAL_FAILURE(DismissCompletion());
    ASSERT_NO_FATAL_FAILURE(CloseByKeyboard());
    EXPECT_EQ(ReadBytes(file), "the house");
}

TEST_F(Hurry, NamedFileWithoutMistakesIsNeitherKeptOpenNorWrittenAnew) {
    Setting(L"RemainOpen", L"0");
    const Path file = Document("the house\n");
    Launch(L"\"" + TextFromPath(file) + L"\"");
    ASSERT_NO_FATAL_FAILURE(DismissCompletion());
    ExpectEnd();
    EXPECT_EQ(ReadBytes(file), "the house\n");
}

}  // namespace
}  // namespace wordhawk::test
