#include "platform/locale_ids.h"
#include "platform/locale_table.h"
#include "platform/replace_file.h"
#include "platform/single_writer.h"
#include "platform/win32/win.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using test::WriteBytes;

TEST(WindowsFiles, PathsBeyondTheClassicLimit) {
    const test::TempDir folder;
    Path deep = folder.Folder();
    while (deep.native().size() < 400) deep /= std::wstring(40, L'f');
    ASSERT_TRUE(MakeFolder(deep));
    const Path file = deep / L"a.dic";
    ASSERT_TRUE(ReplaceFileContents(file, "x"));
    EXPECT_TRUE(IsFile(file));
    EXPECT_EQ(*ReadWholeFile(file), "x");
    EXPECT_EQ(ListFiles(deep, L".dic"), std::vector<std::wstring>{L"a.dic"});
    EXPECT_TRUE(SingleWriter::Acquire(deep));
    EXPECT_TRUE(DeleteOneFile(file));
    EXPECT_TRUE(DeleteOneFile(deep / L".wordhawk.lock"));
    for (; deep != folder.Folder(); deep = deep.parent_path()) {
        EXPECT_TRUE(RemoveDirectoryW((L"\\\\?\\" + deep.native()).c_str())) << deep;
    }
}

TEST(WindowsFiles, HiddenFilesStayHidden) {
    const test::TempDir folder;
    const Path file = folder / L"a.dic";
    WriteBytes(file, "old");
    ASSERT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_HIDDEN));
    ASSERT_TRUE(ReplaceFileContents(file, "new"));
    EXPECT_NE(GetFileAttributesW(file.c_str()) & FILE_ATTRIBUTE_HIDDEN, 0u);
}

TEST(WindowsFiles, FileInUseIsNamedAndKept) {
    const test::TempDir folder;
    const Path file = folder / L"a.dic";
    WriteBytes(file, "old");
    const HANDLE user =
        CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(user, INVALID_HANDLE_VALUE);
    const Result<void> result = ReplaceFileContents(file, "new");
    CloseHandle(user);
    ASSERT_FALSE(result);
    EXPECT_EQ(test::ReadBytes(file), "old");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Folder()), {}), 1);
}

TEST(WindowsFiles, LocaleTableAgreesWithTheSystem) {
    for (const LocaleRow& row : kLocales) {
        DWORD page = 0;
        if (!GetLocaleInfoW(row.number, LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                            reinterpret_cast<wchar_t*>(&page), 2)) {
            continue;  // not every system knows every locale
        }
        const bool single_byte = page == 874 || (page >= 1250 && page <= 1258);
        EXPECT_EQ(AnsiPageOfLocale(row.number), single_byte ? static_cast<int>(page) : 1252)
            << row.name;
    }
}

}  // namespace
}  // namespace wordhawk
