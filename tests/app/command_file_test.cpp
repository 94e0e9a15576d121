#include "app/command_file.h"

#include "platform/text.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace wordhawk {
namespace {

struct Case {
    const wchar_t* line;
    const wchar_t* file;
    const char* reason;
};

TEST(CommandFile, IsWhatTheLineNames) {
    const Case cases[] = {
        {L"", L"", "no argument"},
        {L"note.txt", L"note.txt", "plain"},
        {LR"("C:\My Files\a.txt" /x)", LR"(C:\My Files\a.txt)", "quoted path, then a switch"},
        {LR"("C:\My Files\a.txt")", LR"(C:\My Files\a.txt)", "quoted path alone"},
        {LR"("a.txt"/x)", L"a.txt/x", "without a blank nothing is cut off"},
        {LR"(C:\My Files\a.txt /x)", LR"(C:\My Files\a.txt /x)", "unquoted: the whole line"},
        {L"'note.txt'", L"note.txt", "apostrophes"},
        {L"it's mine.txt", L"its mine.txt", "apostrophes go wherever they stand"},
        {L"  a.txt  ", L"a.txt", "blanks at the ends"},
        {LR"(  "b c.txt" "d e.txt")", L"b c.txt", "blanks before the quoted path"},
        {LR"(a "b c" d)", L"a", "a quote further on ends the path"},
        {LR"("b c.txt" "d e.txt")", L"b c.txt", "only the first of two"},
        {LR"("b c.txt)", L"b c.txt", "an unclosed quote leaves the line"},
        {LR"("")", L"", "empty quotes"},
        {LR"(" " x)", L"", "quoted blank"},
        {L"\x4e01 \x00E9.rtf", L"\x4e01 \x00E9.rtf", "any script"},
    };
    for (const Case& row : cases) EXPECT_EQ(CommandFileFrom(row.line), row.file) << row.reason;
}

TEST(CommandFile, FileWithAnApostropheInItsNameIsTheOneThatIsMeant) {
    const test::TempDir folder;
    const std::wstring written = TextFromPath(folder / L"don't do.txt");
    const std::wstring other = TextFromPath(folder / L"dont do.txt");
    test::WriteBytes(PathFromText(other), "other");
    EXPECT_EQ(CommandFileFrom(L'"' + written + L'"'), other) << "no such file yet";
    test::WriteBytes(PathFromText(written), "meant");
    for (const std::wstring& line :
         {L'"' + written + L'"', written, L" \"" + written + L"\" /x", written + L" "}) {
        EXPECT_EQ(CommandFileFrom(line), written) << ToUtf8(line);
    }
    EXPECT_EQ(CommandFileFrom(L"'" + written + L"'"), other);
}

TEST(CommandFile, NameIsMadeAbsoluteByTheFolderOfThatMoment) {
    const test::TempDir folder;
    const Path before = std::filesystem::current_path();
    std::filesystem::current_path(folder.Folder());
    const std::wstring name = AbsoluteName(L"note.txt");
    std::filesystem::current_path(before);
    test::WriteBytes(folder / L"note.txt", "text");
    EXPECT_TRUE(PathFromText(name).is_absolute());
    EXPECT_EQ(test::ReadBytes(PathFromText(name)), "text");
    EXPECT_EQ(AbsoluteName(TextFromPath(folder / L"a.txt")), TextFromPath(folder / L"a.txt"));
    EXPECT_EQ(AbsoluteName(L""), L"");
}

}  // namespace
}  // namespace wordhawk
