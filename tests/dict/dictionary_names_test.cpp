#include "dict/dictionary_names.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

TEST(CustomDictionaryName, GetsItsExtension) {
    EXPECT_EQ(CustomDictionaryName(L"words").value(), L"words.DIC");
    EXPECT_EQ(CustomDictionaryName(L"words.dic").value(), L"words.dic");
    EXPECT_EQ(CustomDictionaryName(L"words.txt").value(), L"words.txt.DIC");
    EXPECT_EQ(CustomDictionaryName(L"mes mots \u00E9t\u00E9").value(),
              L"mes mots \u00E9t\u00E9.DIC");
    EXPECT_EQ(CustomDictionaryName(L"console").value(), L"console.DIC");
    EXPECT_EQ(CustomDictionaryName(L"com10").value(), L"com10.DIC");
    EXPECT_EQ(CustomDictionaryName(std::wstring(251, L'a')).value().size(), 255u);
}

TEST(CustomDictionaryName, IsNeverAPath) {
    const std::wstring_view refused[] = {
        L"",        L".",          L"..",        L"../up.dic",  L"..\\up.dic", L"/etc/words",
        L"C:words", L"C:\\w.dic",  L"sub/w.dic", L"sub\\w.dic", L"w*.dic",     L"w?.dic",
        L"w\"",     L"<w>",        L"a|b",       L"w.",         L"w ",         L"w.dic ",
        L"a\nb",    L"a\x7F",      L"a\x85",     L"con",        L"NUL.dic",    L"Aux .txt",
        L"com1",    L"LPT9.x.dic", L"com\u00B2", L"conin$",     L".dic",       L"w.dic:ads"};
    for (const std::wstring_view name : refused) {
        EXPECT_FALSE(CustomDictionaryName(name)) << testing::PrintToString(name);
    }
    EXPECT_FALSE(CustomDictionaryName(std::wstring_view(L"a\0b", 3)));
    EXPECT_FALSE(CustomDictionaryName(std::wstring(256, L'a') + L".dic"));
    EXPECT_FALSE(CustomDictionaryName(std::wstring(252, L'a'))) << "too long with its extension";
}

}  // namespace
}  // namespace wordhawk
