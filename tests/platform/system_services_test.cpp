#include "platform/cIsInIDE.h"
#include "platform/folders.h"
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

}  // namespace
}  // namespace wordhawk
