#include "platform/modSect.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <cstdlib>
#include <thread>

namespace wordhawk {
namespace {

using modSect::ReadSetting;
using modSect::WriteSetting;
using test::ReadBytes;
using test::WriteBytes;

TEST(PosixProfile, LayoutOfOtherLinesIsKept) {
    const test::TempDir folder;
    const Path file = folder / L"t.ini";
    WriteBytes(file, "; top\n\n[S]\n  a = 1\n\n\n[T]\n\nb=2");
    ASSERT_TRUE(WriteSetting(L"S", L"k", L"v", file));
    ASSERT_TRUE(WriteSetting(L"T", L"b", L"3", file));
    EXPECT_EQ(ReadBytes(file), "; top\n\n[S]\n  a = 1\nk=v\r\n\n\n[T]\n\nb=3\r\n");
}

TEST(PosixProfile, WritingTheSameAgainLeavesTheFileAlone) {
    const test::TempDir folder;
    const Path file = folder / L"t.ini";
    ASSERT_TRUE(WriteSetting(L"S", L"k", L"v", file));
    struct stat before {};
    struct stat after {};
    ASSERT_EQ(stat(file.c_str(), &before), 0);
    ASSERT_TRUE(WriteSetting(L"S", L"k", L"v", file));
    ASSERT_EQ(stat(file.c_str(), &after), 0);
    EXPECT_EQ(before.st_ino, after.st_ino);
}

TEST(PosixProfile, UnreadableFileIsNotTakenForAnEmptyOne) {
    const test::TempDir folder;
    const Path file = folder / L"t.ini";
    ASSERT_TRUE(MakeFolder(file));
    EXPECT_FALSE(WriteSetting(L"S", L"k", L"v", file));
    EXPECT_TRUE(IsFolder(file));
}

TEST(PosixProfile, PageFollowsTheLocale) {
    const char* old = std::getenv("LC_ALL");
    const std::string saved = old ? old : "";
    setenv("LC_ALL", "pl_PL.UTF-8", 1);
    const test::TempDir folder;
    const Path file = folder / L"t.ini";
    ASSERT_TRUE(WriteSetting(L"S", L"k", L"\x0141\x00F3\x0064\x017A", file));
    EXPECT_EQ(ReadBytes(file), "[S]\r\nk=\xA3\xF3\x64\x9F\r\n");
    EXPECT_EQ(ReadSetting(L"S", L"k", L"", file), L"\x0141\x00F3\x0064\x017A");
    old ? setenv("LC_ALL", saved.c_str(), 1) : unsetenv("LC_ALL");
}

TEST(PosixProfile, PageThatIsGivenCountsMoreThanTheLocale) {
    const test::TempDir folder;
    const modSect::ProfileFile file(folder / L"t.ini", &AnsiCodePage::Get(1250));
    ASSERT_TRUE(WriteSetting(L"S", L"k", L"\x017C", file));
    EXPECT_EQ(ReadBytes(file.path), "[S]\r\nk=\xBF\r\n");
    EXPECT_EQ(ReadSetting(L"S", L"k", L"", file), L"\x017C");
}

TEST(PosixProfile, WritersOfDifferentKeysDoNotUndoEachOther) {
    const test::TempDir folder;
    const Path file = folder / L"t.ini";
    constexpr int kKeys = 50;
    const auto write_keys = [&](std::wstring_view name) {
        for (int i = 0; i < kKeys; ++i) {
            WriteSetting(L"S", std::wstring(name) + std::to_wstring(i), L"v", file);
        }
    };
    std::thread first(write_keys, L"a");
    std::thread second(write_keys, L"b");
    first.join();
    second.join();
    EXPECT_EQ(modSect::ReadSection(file, L"S").size(), 2u * kKeys);
}

}  // namespace
}  // namespace wordhawk
