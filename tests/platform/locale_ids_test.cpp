#include "platform/locale_ids.h"

#include "platform/locale_table.h"

#include <gtest/gtest.h>

#include <set>

namespace wordhawk {
namespace {

struct Case {
    int locale;
    int page;
    const char* reason;
};

TEST(LocaleIds, AnsiPages) {
    const Case cases[] = {
        {1033, 1252, "English"},
        {1045, 1250, "Polish"},
        {1049, 1251, "Russian"},
        {1032, 1253, "Greek"},
        {1055, 1254, "Turkish"},
        {1037, 1255, "Hebrew"},
        {1025, 1256, "Arabic"},
        {1062, 1257, "Latvian"},
        {1066, 1258, "Vietnamese"},
        {1054, 874, "Thai"},
        {2057, 1252, "British"},
        {2074, 1252, "unlisted"},
        {1041, 1252, "Japanese is multi-byte"},
        {1081, 1252, "Hindi has no page"},
        {0, 1252, "no locale"},
        {-5, 1252, "nonsense"},
        {9242, 1250, "Serbian, Latin"},
    };
    for (const Case& row : cases) EXPECT_EQ(AnsiPageOfLocale(row.locale), row.page) << row.reason;
}

TEST(LocaleIds, TableHasEachNumberAndNameOnce) {
    std::set<int> numbers;
    std::set<std::string_view> names;
    for (const LocaleRow& row : kLocales) {
        EXPECT_TRUE(numbers.insert(row.number).second) << row.number;
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
    }
}

TEST(LocaleIds, SystemPageIsSingleByte) {
    EXPECT_GT(SystemDefaultLocale(), 0);
    const int page = SystemAnsiPage(SystemDefaultLocale());
    EXPECT_TRUE(page == 874 || (page >= 1250 && page <= 1258)) << page;
}

}  // namespace
}  // namespace wordhawk
