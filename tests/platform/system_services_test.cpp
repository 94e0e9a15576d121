#include "platform/cIsInIDE.h"
#include "platform/folders.h"
#include "platform/modCDlg.h"
#include "platform/modICCX.h"
#include "platform/text.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

TEST(SystemServices, OnlyADebugBuildIsInTheDevelopmentEnvironment) {
    cIsInIDE environment;
#ifdef NDEBUG
    EXPECT_FALSE(environment.IsInIDE());
#else
    EXPECT_TRUE(environment.IsInIDE());
#endif
}

TEST(SystemServices, ProgramKnowsItsPlace) {
    EXPECT_TRUE(IsFile(ProgramFile()));
    EXPECT_EQ(ProgramFile().parent_path(), ProgramFolder());
    EXPECT_TRUE(Lower(TextFromPath(ProgramFile().stem())).starts_with(L"platform_tests"));
    EXPECT_TRUE(IsFolder(TemporaryFolder()));
    EXPECT_TRUE(SpecialFolder(kApplicationDataFolder).is_absolute());
}

TEST(SystemServices, CommonControlsMayBeInitialisedTwice) {
    modICCX::InitCommonControlsVB(modICCX::kAllClasses);
    modICCX::InitCommonControlsVB(modICCX::kAllClasses);
}

// A name longer than the dialog's buffer is refused at once on every system, as if cancelled.
TEST(SystemServices, FailingDialogLeavesItsOutputs) {
    const std::wstring too_long(400, L'x');
    modCDlg::Request request;
    request.filter = std::wstring_view(L"Text\0*.txt", 10);
    request.file_name = too_long;
    std::wstring name = L"old name";
    std::wstring title = L"old title";
    int filter = 7;
    EXPECT_FALSE(modCDlg::ShowOpen(request, name, title));
    EXPECT_FALSE(modCDlg::ShowSave(request, L"txt", filter, name, title));
    EXPECT_EQ(name, L"old name");
    EXPECT_EQ(title, L"old title");
    EXPECT_EQ(filter, 7);
}

}  // namespace
}  // namespace wordhawk
