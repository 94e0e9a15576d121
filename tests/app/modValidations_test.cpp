#include "app/modValidations.h"

#include "platform/text.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using namespace modValidations;

struct FileCase {
    const wchar_t* name;
    int type;
    const char* reason;
};

TEST(ModValidations, FileTypes) {
    const test::TempDir folder;
    for (const wchar_t* name : {L"a.TXT", L"b.rtf", L"a.doc", L"a.b.Rtf", L"a.txt.bak", L"end."}) {
        test::WriteBytes(folder / name, "x");
    }
    ASSERT_TRUE(MakeFolder(folder / L"folder.txt"));
    const FileCase cases[] = {
        {L"a.TXT", 1, "without regard to case"},
        {L"b.rtf", 2, "rich text"},
        {L"a.b.Rtf", 2, "the last dot counts"},
        {L"a.doc", 9, "other extension"},
        {L"a.txt.bak", 9, "other extension behind a known one"},
        {L"missing.txt", 7, "missing"},
        {L"missing.doc", 7, "missing wins over the extension"},
        {L"folder.txt", 7, "a folder is no file"},
    };
    for (const FileCase& row : cases) {
        EXPECT_EQ(GetFileType(TextFromPath(folder / row.name)), row.type) << row.reason;
    }
    EXPECT_EQ(GetFileType(L"readme"), 8) << "no dot, and no look at the disk";
    EXPECT_EQ(GetFileType(L""), 8);
}

TEST(ModValidations, FileExists) {
    const test::TempDir folder;
    test::WriteBytes(folder / L"\x4e01", "");
    EXPECT_TRUE(FileExists(TextFromPath(folder / L"\x4e01")));
    EXPECT_FALSE(FileExists(TextFromPath(folder.Folder())));
    EXPECT_FALSE(FileExists(TextFromPath(folder / L"none")));
    EXPECT_FALSE(FileExists(L""));
}

struct TextCase {
    const wchar_t* text;
    int upper;
    int digit;
};

TEST(ModValidations, CapitalsAndDigits) {
    const TextCase cases[] = {
        {L"", 0, 0},
        {L"NASA", 1, 0},
        {L"NaSA", 0, 0},
        {L"nasa", 0, 0},
        {L"B2", 1, 1},
        {L"x9", 0, 1},
        {L"123", 1, 1},
        {L"-", 1, 0},
        {L"\x00C9T\x00C9", 1, 0},
        {L"\x00E9T\x00C9", 0, 0},
        {L"\x0142", 0, 0},
        {L"\x0660", 1, 0},            // an Arabic digit is none of 0 to 9
        {L"STRA\x00DF\x0045", 1, 0},  // sharp s has no single upper form
    };
    for (const TextCase& row : cases) {
        EXPECT_EQ(IsAllUpperCase(row.text), row.upper) << ToUtf8(row.text);
        EXPECT_EQ(HasDigit(row.text), row.digit) << ToUtf8(row.text);
    }
}

}  // namespace
}  // namespace wordhawk
