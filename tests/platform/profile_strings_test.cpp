#include "platform/locale_ids.h"
#include "platform/modSect.h"
#include "platform/text.h"
#include "tests/support/temp_dir.h"

#include <gmock/gmock.h>

namespace wordhawk {
namespace {

using modSect::ReadSection;
using modSect::ReadSetting;
using modSect::WriteSetting;
using test::ReadBytes;
using test::WriteBytes;
using testing::ElementsAre;

using Entries = std::vector<std::wstring>;

// The same rows must hold for the system's own calls and for our reader.
struct ReadCase {
    const char* reason;
    std::string bytes;
    std::wstring value;  // of key "k" in section "S", by default "none"
    Entries section;
};

const ReadCase kReadCases[] = {
    {"plain", "[S]\r\nk=v\r\n", L"v", {L"k=v"}},
    {"no line end at the end", "[S]\r\nk=v", L"v", {L"k=v"}},
    {"names without regard to case", "[s]\r\nK=v\r\n", L"v", {L"K=v"}},
    {"line feeds only", "[S]\nk=v\nm=w\n", L"v", {L"k=v", L"m=w"}},
    {"carriage returns only", "[S]\rk=v\r", L"v", {L"k=v"}},
    {"blanks around everything", "  [ S ]\r\n  k\t=\tv w \t\r\n", L"v w", {L"k=v w"}},
    {"double quotes are lost from the value only", "[S]\r\nk=\"q q\"\r\n", L"q q", {L"k=\"q q\""}},
    {"single quotes too", "[S]\r\nk= 'x' \r\n", L"x", {L"k='x'"}},
    {"quotes keep blanks", "[S]\r\nk=\" q \"\r\n", L" q ", {L"k=\" q \""}},
    {"one pair only", "[S]\r\nk=\"\"a\"\"\r\n", L"\"a\"", {L"k=\"\"a\"\""}},
    {"unlike quotes stay", "[S]\r\nk=\"q'\r\n", L"\"q'", {L"k=\"q'"}},
    {"a lone quote stays", "[S]\r\nk=\"\r\n", L"\"", {L"k=\""}},
    {"quotes in front only", "[S]\r\nk=\"a\" b\r\n", L"\"a\" b", {L"k=\"a\" b"}},
    {"empty quotes", "[S]\r\nk=\"\"\r\n", L"", {L"k=\"\""}},
    {"empty value is no default", "[S]\r\nk=\r\n", L"", {L"k="}},
    {"key without equals sign", "[S]\r\nk\r\n", L"none", {L"k"}},
    {"later equals signs are value", "[S]\r\nk=a=b\r\n", L"a=b", {L"k=a=b"}},
    {"comments", "[S]\r\n;k=1\r\nk=2\r\n", L"2", {L"k=2"}},
    {"a semicolon inside is value", "[S]\r\nk=v ;c\r\n", L"v ;c", {L"k=v ;c"}},
    {"a number sign is no comment", "[S]\r\n#k=1\r\nk=2\r\n", L"2", {L"#k=1", L"k=2"}},
    {"the first of equal keys", "[S]\r\nk=1\r\nk=2\r\n", L"1", {L"k=1", L"k=2"}},
    {"the first of equal sections",
     "[S]\r\na=1\r\n[T]\r\nk=0\r\n[S]\r\nk=2\r\n",
     L"none",
     {L"a=1"}},
    {"lines before any section", "k=0\r\n[S]\r\nk=2\r\n", L"2", {L"k=2"}},
    {"unclosed header", "[S\r\nk=2\r\n", L"none", {L""}},
    {"text behind the header", "[S]junk\r\nk=2\r\n", L"2", {L"k=2"}},
    {"the last bracket closes", "[S]]\r\nk=2\r\n", L"none", {L""}},
    {"empty key", "[S]\r\n=2\r\n", L"none", {L"=2"}},
    {"empty section", "[S]\r\n[T]\r\nk=1\r\n", L"none", {L""}},
    {"empty file", "", L"none", {L""}},
    {"UTF-8 mark", "\xEF\xBB\xBF[S]\r\nk=v\r\n", L"v", {L"k=v"}},
    {"UTF-16",
     std::string("\xFF\xFE[\0S\0]\0\r\0\n\0k\0=\0v\0\x01\x4e\r\0\n\0", 24),
     L"v\x4e01",
     {L"k=v\x4e01"}},
    {"a NUL ends a value", std::string("[S]\r\nk=v\0w\r\nm=3\r\n", 17), L"v", {L"k=v", L"m=3"}},
};

TEST(ProfileStrings, ReadValues) {
    const test::TempDir folder;
    const Path file = folder / L"t.ini";
    for (const ReadCase& row : kReadCases) {
        WriteBytes(file, row.bytes);
        EXPECT_EQ(ReadSetting(L"S", L"k", L"none", file), row.value) << row.reason;
    }
}

TEST(ProfileStrings, ReadManyValuesAtOnce) {
    const test::TempDir folder;
    const Path file = folder / L"t.ini";
    const std::vector<modSect::KeyAndValue> keys = {{L"m", L"a"}, {L"k", L"none"}, {L"", L"b "}};
    for (const ReadCase& row : kReadCases) {
        WriteBytes(file, row.bytes);
        std::vector<std::wstring> expected;
        for (const auto& [key, value] : keys)
            expected.push_back(ReadSetting(L"S", key, value, file));
        EXPECT_EQ(modSect::ReadSettings(L"S", keys, file), expected) << row.reason;
    }
}

TEST(ProfileStrings, ReadSections) {
    const test::TempDir folder;
    const Path file = folder / L"t.ini";
    for (const ReadCase& row : kReadCases) {
        WriteBytes(file, row.bytes);
        EXPECT_EQ(ReadSection(file, L"S"), row.section) << row.reason;
    }
}

TEST(ProfileStrings, DefaultStandsForWhateverIsMissing) {
    const test::TempDir folder;
    const Path file = folder / L"t.ini";
    EXPECT_EQ(ReadSetting(L"S", L"k", L"d", file), L"d") << "no file";
    EXPECT_THAT(ReadSection(file, L"S"), ElementsAre(L""));
    WriteBytes(file, "[T]\r\nj=1\r\n");
    EXPECT_EQ(ReadSetting(L"S", L"k", L"d", file), L"d") << "no section";
    EXPECT_EQ(ReadSetting(L"T", L"k", L" d  ", file), L" d") << "no key; a default loses its end";
    EXPECT_EQ(ReadSetting(L"T", L"k", std::wstring(300, L'd'), file).size(), 254u);
}

TEST(ProfileStrings, ValueIsCutToItsBufferButSectionIsNot) {
    const test::TempDir folder;
    const Path file = folder / L"t.ini";
    const std::wstring longest(254, L'a');
    const std::wstring huge(5000, L'b');
    ASSERT_TRUE(WriteSetting(L"S", L"fits", longest, file));
    ASSERT_TRUE(WriteSetting(L"S", L"cut", longest + L"z", file));
    ASSERT_TRUE(WriteSetting(L"S", L"huge", huge, file));
    EXPECT_EQ(ReadSetting(L"S", L"fits", L"", file), longest);
    EXPECT_EQ(ReadSetting(L"S", L"cut", L"", file), longest);
    EXPECT_THAT(ReadSection(file, L"S"),
                ElementsAre(L"fits=" + longest, L"cut=" + longest + L"z", L"huge=" + huge));
}

TEST(ProfileStrings, SectionAroundTheSizeOfTheFirstBufferIsWhole) {
    const test::TempDir folder;
    const Path file = folder / L"t.ini";
    for (std::size_t length = 1015; length <= 1030; ++length) {
        WriteBytes(file, "[S]\r\nk=" + std::string(length, 'x') + "\r\n");
        EXPECT_THAT(ReadSection(file, L"S"), ElementsAre(L"k=" + std::wstring(length, L'x')));
    }
}

struct WriteCase {
    const char* reason;
    std::string before;
    std::wstring key;
    std::wstring value;
    std::string after;
};

const WriteCase kWriteCases[] = {
    {"new file", "", L"k", L"v", "[S]\r\nk=v\r\n"},
    {"new section", "[A]\r\na=1\r\n", L"k", L"v", "[A]\r\na=1\r\n[S]\r\nk=v\r\n"},
    {"new section behind an open line", "[A]\r\na=1", L"k", L"v", "[A]\r\na=1\r\n[S]\r\nk=v\r\n"},
    {"new key goes to the end of its section", "[S]\r\na=1\r\n[T]\r\nt=1\r\n", L"k", L"v",
     "[S]\r\na=1\r\nk=v\r\n[T]\r\nt=1\r\n"},
    {"changed in place", "[S]\r\na=1\r\nk=2\r\nz=3\r\n", L"k", L"v",
     "[S]\r\na=1\r\nk=v\r\nz=3\r\n"},
    {"the key's spelling stays", "[s]\r\nK=1\r\n", L"k", L"v", "[s]\r\nK=v\r\n"},
    {"comments and strange lines stay", "; top\r\n[S]\r\n;k=1\r\njunk\r\n#x\r\nk=2\r\n; end\r\n",
     L"k", L"v", "; top\r\n[S]\r\n;k=1\r\njunk\r\n#x\r\nk=v\r\n; end\r\n"},
    {"only the first of equal keys", "[S]\r\nk=1\r\nk=2\r\n", L"k", L"v", "[S]\r\nk=v\r\nk=2\r\n"},
    {"only the first of equal sections", "[S]\r\n[S]\r\nk=2\r\n", L"k", L"v",
     "[S]\r\nk=v\r\n[S]\r\nk=2\r\n"},
    {"empty value", "[S]\r\nk=1\r\n", L"k", L"", "[S]\r\nk=\r\n"},
    {"a key gains its value", "[S]\r\nk\r\n", L"k", L"v", "[S]\r\nk=v\r\n"},
    {"a value is one line", "[S]\r\n", L"k", L"v\r\nz=1", "[S]\r\nk=v\r\n"},
    {"UTF-16 stays UTF-16", std::string("\xFF\xFE[\0S\0]\0\r\0\n\0", 12), L"k", L"\x4e01",
     std::string("\xFF\xFE[\0S\0]\0\r\0\n\0k\0=\0\x01\x4e\r\0\n\0", 22)},
};

TEST(ProfileStrings, WritesChangeOneLine) {
    const test::TempDir folder;
    const Path file = folder / L"t.ini";
    for (const WriteCase& row : kWriteCases) {
        WriteBytes(file, row.before);
        EXPECT_TRUE(WriteSetting(L"S", row.key, row.value, file)) << row.reason;
        EXPECT_EQ(ReadBytes(file), row.after) << row.reason;
    }
}

TEST(ProfileStrings, ManyValuesAreWrittenInOrder) {
    const test::TempDir folder;
    const Path file = folder / L"t.ini";
    WriteBytes(file, "[S]\r\nb=0\r\n");
    const std::vector<modSect::KeyAndValue> values = {{L"a", L"1"}, {L"b", L"2"}, {L"c", L"3"}};
    ASSERT_TRUE(modSect::WriteSettings(L"S", values, file));
    EXPECT_EQ(ReadBytes(file), "[S]\r\nb=2\r\na=1\r\nc=3\r\n");
}

TEST(ProfileStrings, TextIsKeptInTheSystemsAnsiPage) {
    const test::TempDir folder;
    const Path file = folder / L"t.ini";
    const AnsiCodePage& page = AnsiCodePage::Get(SystemAnsiPage(SystemDefaultLocale()));
    WriteBytes(file, "[S]\r\nk=\xE9\x80\r\n");
    EXPECT_EQ(ReadSetting(L"S", L"k", L"", file), page.Decode("\xE9\x80"));
    ASSERT_TRUE(WriteSetting(L"S", L"k", page.Decode("\xF6") + L"\x4e01", file));
    EXPECT_EQ(ReadBytes(file), "[S]\r\nk=\xF6?\r\n");
}

TEST(ProfileStrings, ReadsSeeWhatAnotherProgramJustWrote) {
    const test::TempDir folder;
    const Path file = folder / L"t.ini";
    for (int i = 0; i < 20; ++i) {
        const std::string value = std::to_string(i % 10);
        WriteBytes(file, "[S]\r\nk=" + value + "\r\n");
        EXPECT_EQ(ReadSetting(L"S", L"k", L"none", file), FromUtf8(value));
    }
}

TEST(ProfileStrings, WriteFailsWithoutItsFolder) {
    const test::TempDir folder;
    EXPECT_FALSE(WriteSetting(L"S", L"k", L"v", folder / L"none" / "t.ini"));
    EXPECT_FALSE(IsFolder(folder / L"none"));
}

TEST(ProfileStrings, ReadOnlyFileIsLeftAlone) {
    const test::TempDir folder;
    const Path file = folder / L"t.ini";
    WriteBytes(file, "[S]\r\nk=1\r\n");
    std::filesystem::permissions(file, std::filesystem::perms::owner_read);
    EXPECT_FALSE(WriteSetting(L"S", L"k", L"2", file));
    EXPECT_EQ(ReadBytes(file), "[S]\r\nk=1\r\n");
    std::filesystem::permissions(file, std::filesystem::perms::owner_all);
}

TEST(ProfileStrings, StripNullCutsAtTheFirst) {
    EXPECT_EQ(modSect::StripNull(std::wstring_view(L"a\0b\0c", 5)), L"a");
    EXPECT_EQ(modSect::StripNull(L"abc"), L"abc");
    EXPECT_EQ(modSect::StripNull(std::wstring_view(L"\0a", 2)), L"");
}

}  // namespace
}  // namespace wordhawk
