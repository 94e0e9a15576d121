#include "dict/custom_list.h"

#include "tests/support/dictionaries.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using test::Dictionaries;
using test::ReadBytes;

class CustomList : public Dictionaries {
  public:
    CustomList() { state.SettingsFile = folder / L"Wordhawk.ini"; }
};

TEST(CustomList, NamesAreCheckedBeforeAFileIsMade) {
    CustomList list;
    list.WriteCustom(L"Notes.dic", "");
    struct Case {
        const wchar_t* name;
        NameProblem problem;
        const char* reason;
    };
    const Case cases[] = {
        {L"work", NameProblem::None, ""},
        {L"work.dic", NameProblem::None, "with its extension"},
        {L"caf\u00E9", NameProblem::None, "in the page"},
        {L"NOTES", NameProblem::Taken, "in other case"},
        {L"notes.DIC", NameProblem::Taken, "with its extension"},
        {L"..\\x", NameProblem::NotAName, "a path"},
        {L"../x", NameProblem::NotAName, "a path"},
        {L"nul", NameProblem::NotAName, "a device"},
        {L"a\tb", NameProblem::NotAName, "a control character"},
        {L"x.", NameProblem::NotAName, "a full stop at the end"},
        {L"", NameProblem::NotAName, "nothing"},
        {L"\u65E5\u672C", NameProblem::NotStorable, "not in the page"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(CheckNewDictionaryName(list.state, c.name), c.problem) << c.reason;
    }
}

TEST(CustomList, NewDictionaryIsTheOneThatAdditionsGoTo) {
    CustomList list;
    EXPECT_EQ(CreateCustomDictionary(list.state, list.settings, L"notes"), L"notes.DIC");
    EXPECT_EQ(CustomDictionaryFiles(list.state), std::vector<std::wstring>{L"NOTES.DIC"});
    EXPECT_EQ(list.settings.CustomDic, L"notes.DIC");
    const std::vector<std::wstring> active = {L"NOTES.DIC"};
    EXPECT_TRUE(StoreActiveDictionaries(list.state, list.settings, active));
    EXPECT_EQ(modRegs::LoadSettings(list.state).CustomDic, L"notes.DIC");
    list.WriteCustom(L"there.DIC", "word,87630\r\n");
    EXPECT_EQ(CreateCustomDictionary(list.state, list.settings, L"there"), L"there.DIC");
    EXPECT_EQ(ReadBytes(list.state.CustomFolder() / "there.DIC"), "word,87630\r\n")
        << "made by another copy meanwhile";
    EXPECT_FALSE(CreateCustomDictionary(list.state, list.settings, L"../x"));
    EXPECT_FALSE(DeleteCustomDictionary(list.state, L"../Wordhawk.ini"));
}

TEST(CustomList, ActiveOnesAreStoredAndNoneStandsForTheDefault) {
    CustomList list;
    const std::vector<std::wstring> two = {L"A.DIC", L"B.DIC"};
    list.settings.CustomDic = L"B.DIC";
    EXPECT_TRUE(StoreActiveDictionaries(list.state, list.settings, two));
    EXPECT_EQ(list.settings.CustomDictionaries, two);
    EXPECT_EQ(list.settings.CustomDic, L"B.DIC");
    EXPECT_TRUE(StoreActiveDictionaries(list.state, list.settings, {}));
    EXPECT_EQ(list.settings.CustomDictionaries, std::vector<std::wstring>{L"CUSTOM.DIC"});
    const Settings later = modRegs::LoadSettings(list.state);
    EXPECT_EQ(later.CustomDic, L"CUSTOM.DIC");
    EXPECT_EQ(later.CustomDictionaries, (std::vector<std::wstring>{L"CUSTOM.DIC", L"B.DIC"}))
        << "what a longer list left in the file is read again at the next start";
}

}  // namespace
}  // namespace wordhawk
