#include "platform/folders.h"
#include "platform/locale_ids.h"
#include "platform/modCDlg.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <string>

namespace wordhawk {
namespace {

/// Sets variables for a scope; null removes one.
class Environment {
  public:
    void Set(const char* name, const char* value) {
        const char* old = std::getenv(name);
        saved_.try_emplace(name, old ? old : "", old != nullptr);
        value ? setenv(name, value, 1) : unsetenv(name);
    }
    ~Environment() {
        for (const auto& [name, old] : saved_) {
            old.second ? setenv(name.c_str(), old.first.c_str(), 1) : unsetenv(name.c_str());
        }
    }

  private:
    std::map<std::string, std::pair<std::string, bool>> saved_;
};

struct LocaleCase {
    const char* lc_all;
    const char* lc_messages;
    const char* lang;
    int locale;
    const char* reason;
};

TEST(PosixEnvironment, DefaultLocale) {
    const LocaleCase cases[] = {
        {nullptr, nullptr, nullptr, 1033, "nothing is set"},
        {"C", nullptr, "de_DE.UTF-8", 1033, "LC_ALL wins, C is English"},
        {"C.UTF-8", nullptr, nullptr, 1033, "C with a charset"},
        {"POSIX", nullptr, nullptr, 1033, "POSIX"},
        {"", "", "de_DE.UTF-8", 1031, "empty counts as missing"},
        {nullptr, "fr_FR@euro", "de_DE", 1036, "LC_MESSAGES before LANG"},
        {nullptr, nullptr, "pl_PL.ISO-8859-2", 1045, "charset is cut off"},
        {nullptr, nullptr, "en_GB.UTF-8", 2057, "country counts"},
        {nullptr, nullptr, "de_XX", 1031, "unknown country: the language's first"},
        {nullptr, nullptr, "es", 3082, "language alone; Spanish is the modern one"},
        {nullptr, nullptr, "es_MX", 2058, "Mexico"},
        {nullptr, nullptr, "sr_RS.UTF-8@latin", 9242, "script behind the charset"},
        {nullptr, nullptr, "sr_RS", 10266, "usual script"},
        {nullptr, nullptr, "no_NO", 1044, "older language code"},
        {nullptr, nullptr, "xx_YY", 1033, "unknown language"},
        {nullptr, nullptr, ".UTF-8", 1033, "no name at all"},
    };
    for (const LocaleCase& row : cases) {
        Environment environment;
        environment.Set("LC_ALL", row.lc_all);
        environment.Set("LC_MESSAGES", row.lc_messages);
        environment.Set("LANG", row.lang);
        EXPECT_EQ(SystemDefaultLocale(), row.locale) << row.reason;
    }
}

TEST(PosixEnvironment, ApplicationData) {
    Environment environment;
    environment.Set("XDG_DATA_HOME", "/data/x");
    environment.Set("HOME", "/home/someone");
    EXPECT_EQ(SpecialFolder(26), "/data/x");
    environment.Set("XDG_DATA_HOME", "relative/is/ignored");
    EXPECT_EQ(SpecialFolder(26), "/home/someone/.local/share");
    environment.Set("XDG_DATA_HOME", nullptr);
    EXPECT_EQ(SpecialFolder(26), "/home/someone/.local/share");
    environment.Set("HOME", nullptr);
    EXPECT_TRUE(SpecialFolder(26).is_absolute()) << "the account knows its home";
    EXPECT_EQ(SpecialFolder(5), Path()) << "only application data is known";
}

TEST(PosixEnvironment, TemporaryFolder) {
    Environment environment;
    environment.Set("TMPDIR", "/nowhere/at/all");
    EXPECT_TRUE(IsFolder(TemporaryFolder()));
}

TEST(PosixEnvironment, DialogsAreAsIfCancelled) {
    std::wstring name = L"old name";
    std::wstring title = L"old title";
    int filter = 7;
    EXPECT_FALSE(modCDlg::ShowOpen({}, name, title));
    EXPECT_FALSE(modCDlg::ShowSave({}, L"txt", filter, name, title));
    EXPECT_EQ(name + L", " + title, L"old name, old title");
    EXPECT_EQ(filter, 7);
}

}  // namespace
}  // namespace wordhawk
