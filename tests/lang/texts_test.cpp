#include "lang/built_in_texts.h"
#include "lang/modLoadRes.h"
#include "lang/modRegionLocales.h"
#include "lang/whole_number.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using modLoadRes::LoadResText;
using modRegionLocales::LanguageName;
using modRegionLocales::Want;

TEST(Texts, BuiltInTable) {
    EXPECT_EQ(BuiltInText(101), L"A Web Browser should be Installed or reinstalled");
    EXPECT_EQ(BuiltInText(102), L"a.    Words added to your custom dictionary can be deleted.");
    EXPECT_EQ(BuiltInText(115), L"Cancel");
    EXPECT_EQ(BuiltInText(234), L"words to dictionary");
    for (const int missing : {-1, 0, 99, 100, 190, 228, 229, 235, 500}) {
        EXPECT_EQ(BuiltInText(missing), L"") << missing;
    }
    int count = 0;
    for (int id = 100; id <= 500; ++id) {
        const std::wstring_view text = BuiltInText(id);
        count += text.empty() ? 0 : 1;
        EXPECT_LE(text.size(), 254u) << "could not be read back from a language file: " << id;
    }
    EXPECT_EQ(count, 131);
}

TEST(Texts, LanguageFileReplacesBuiltInTexts) {
    const test::TempDir folder;
    ProgramState state;
    EXPECT_EQ(LoadResText(state, 115, L"<", L">"), L"<Cancel>") << "no language chosen yet";
    state.LanguageFile = folder / L"lang1031.ini";
    EXPECT_EQ(LoadResText(state, 115), L"Cancel") << "file missing";
    test::WriteBytes(state.LanguageFile,
                     "[Other]\r\n115=wrong\r\n[WORDHAWK]\r\n115=Abbrechen\r\n0116=x\r\n"
                     "177=\r\n188= &Optionen \r\n300=neu\r\n121=" +
                         std::string(300, 'a') + "\r\n");
    EXPECT_EQ(LoadResText(state, 115, L"<", L">"), L"<Abbrechen>");
    EXPECT_EQ(LoadResText(state, 114), L"C&ust.") << "key missing";
    EXPECT_EQ(LoadResText(state, 116), BuiltInText(116)) << "keys have no leading zeros";
    EXPECT_EQ(LoadResText(state, 177), L"") << "an empty text is a text";
    EXPECT_EQ(LoadResText(state, 188, L" "), L" &Optionen");
    EXPECT_EQ(LoadResText(state, 300), L"neu") << "an id without a built-in text";
    EXPECT_EQ(LoadResText(state, 121).size(), 254u);
    EXPECT_EQ(LoadResText(state, 499, L"(", L")"), L"()");
}

TEST(Texts, LanguageNames) {
    const struct {
        int locale;
        const wchar_t* name;
    } cases[] = {
        {1031, L"German"},   {5127, L"German"},  {2064, L"Italian"},    {1062, L"Latin"},
        {1050, L"English"},  {1053, L"English"}, {2057, L"English"},    {20490, L"Spanish"},
        {21514, L"English"}, {1025, L"Arabic"},  {2049, L"English"},    {16385, L"Arabic"},
        {6156, L"English"},  {5132, L"French"},  {2070, L"Portuguese"}, {1058, L"Ukrainian"},
        {0, L"English"},     {-1, L"English"},   {1057, L"Indonesian"}, {2068, L"Norwegian"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(LanguageName(row.locale, Want::EnglishName), row.name) << row.locale;
        EXPECT_EQ(LanguageName(row.locale, Want::FilePrefix), L"lang");
    }
}

TEST(Texts, WholeNumbersAndOtherTexts) {
    for (const wchar_t* text : {L"", L" ", L"abc", L"&188", L"188a", L"a188", L"1 8", L"1.5", L"-",
                                L"+", L"0x1F", L"4294967296", L"99999999999999999999"}) {
        EXPECT_FALSE(WholeNumber(text)) << Path(text);
    }
    EXPECT_EQ(WholeNumber(L"188"), 188);
    EXPECT_EQ(WholeNumber(L" 188 "), 188);
    EXPECT_EQ(WholeNumber(L"000"), 0);
    EXPECT_EQ(WholeNumber(L"-7"), -7);
    EXPECT_EQ(WholeNumber(L"0188"), 188);
}

}  // namespace
}  // namespace wordhawk
