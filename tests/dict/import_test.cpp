#include "dict/import.h"

#include "dict/custom_words.h"
#include "tests/support/dictionaries.h"
#include "tests/support/fake_services.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using test::Dictionaries;
using test::FakeProgress;
using test::FakeUi;
using test::ReadBytes;
using test::WriteBytes;

/// One import of `source` into a fresh data folder.
class Import : public Dictionaries {
  public:
    Result<int> Run(std::string_view bytes, std::wstring_view name = L"new.dic") {
        WriteBytes(folder / L"source.dic", bytes);
        return ImportDictionary(store, flags, folder / L"source.dic", name, progress, ui);
    }
    Path Target() const { return state.CustomFolder() / "new.dic"; }

    DelimiterFlagStore flags;
    FakeProgress progress;
    FakeUi ui;
};

TEST(ImportDictionary, TakesTheWordsThatAreNewAsTheSwitchesSay) {
    struct Case {
        int skip_main;
        int skip_custom;
        int count;
        std::string_view result;
        const char* reason;
    };
    const Case cases[] = {
        {1, 1, 1, "gizmo,71250\r\n", "known to neither"},
        {1, 0, 2, "gizmo,71250\r\nwidget,87323\r\n", "not in the main dictionary"},
        {0, 1, 2, "gizmo,71250\r\nhello,72400\r\n", "not in a custom one"},
        {0, 0, 3, "gizmo,71250\r\nhello,72400\r\nwidget,87323\r\n", "every word"},
    };
    for (const Case& c : cases) {
        Import import;
        import.WriteMain({L"hello"});
        import.WriteCustom(L"CUSTOM.DIC", "widget,87300\r\n");
        import.flags.Set(249, c.skip_main);
        import.flags.Set(250, c.skip_custom);
        EXPECT_EQ(import.Run("Hello,1\r\n  WIDGET \r\nx\r\n,5\r\nGizmo,71250\r\n"), c.count)
            << c.reason;
        EXPECT_EQ(ReadBytes(import.Target()), c.result) << c.reason;
    }
}

TEST(ImportDictionary, MakesNoFileWhenEveryWordIsKnown) {
    Import import;
    import.WriteMain({L"hello"});
    EXPECT_EQ(import.Run("hello,72400\r\na\r\n\r\n"), 0);
    EXPECT_FALSE(std::filesystem::exists(import.Target()));
    EXPECT_TRUE(import.ui.shown.empty());
}

TEST(ImportDictionary, TakesListsOfOtherPrograms) {
    const struct {
        std::string source;
        int count;
        std::string result;
        const char* reason;
    } cases[] = {
        {"Na\xC3\xAFve\nzebra\n", 2, "na\xEFve,78100\r\nzebra,90160\r\n", "UTF-8"},
        {"\xEF\xBB\xBFgizmo\n", 1, "gizmo,71250\r\n", "a mark is no part of the first word"},
        {"2\ngizmo/SM\nzebra/S\n", 2, "gizmo,71250\r\nzebra,90160\r\n", "hunspell"},
        {"gizmo\n\xD0\xB6\xD0\xB6\n", 1, "gizmo,71250\r\n", "what the page lacks stays out"},
    };
    for (const auto& c : cases) {
        Import import;
        EXPECT_EQ(import.Run(c.source), c.count) << c.reason;
        EXPECT_EQ(ReadBytes(import.Target()), c.result) << c.reason;
    }
}

TEST(ImportDictionary, ReportsAnEmptyOrUnreadableSource) {
    Import import;
    EXPECT_EQ(import.Run(""), 0);
    EXPECT_EQ(ImportDictionary(import.store, import.flags, import.folder / L"missing.dic",
                               L"new.dic", import.progress, import.ui),
              0);
    ASSERT_EQ(import.ui.shown.size(), 2u);
    for (const FakeUi::Shown& shown : import.ui.shown) {
        EXPECT_EQ(shown.text, L"This dictionary contains no words, it is empty.");
        EXPECT_EQ(shown.title, L"Dictionary Is Empty");
        EXPECT_EQ(shown.icon, MessageIcon::Exclamation);
    }
    EXPECT_EQ(import.ui.busy_depth, 0);
    EXPECT_TRUE(import.progress.titles.empty());
}

TEST(ImportDictionary, ShowsHowFarItIs) {
    Import import;
    EXPECT_EQ(import.Run("one\ntwo\r\nthree"), 3);
    ASSERT_FALSE(import.progress.captions.empty());
    EXPECT_EQ(import.progress.captions[0], L"Checking (3) words...");
    EXPECT_EQ(import.progress.range, 3u);
    EXPECT_EQ(import.progress.position, 3u);
    EXPECT_EQ(import.progress.yields, 3) << "after every line";
    EXPECT_EQ(import.progress.hidden, 1);
}

TEST(ImportDictionary, StopsWhenAskedAndKeepsWhatWasAdded) {
    Import import;
    import.progress = FakeProgress(2);
    import.state.StopFlag = true;
    EXPECT_EQ(import.Run("one\r\ntwo\r\nthree\r\n"), 2);
    EXPECT_EQ(ReadBytes(import.Target()), "one,79500\r\ntwo,84000\r\n");
    EXPECT_TRUE(import.state.StopFlag);
}

TEST(ImportDictionary, NameIsNeverAPath) {
    Import import;
    EXPECT_FALSE(import.Run("one\r\n", L"../new.dic"));
    EXPECT_FALSE(import.Run("one\r\n", L"C:new.dic"));
    EXPECT_EQ(import.Run("one\r\n", L"new"), 1);
    EXPECT_TRUE(std::filesystem::exists(import.state.CustomFolder() / "new.DIC"));
}

TEST(ImportDictionary, WritesNothingWhenTheTargetCannotBeRead) {
    Import import;
    std::filesystem::create_directories(import.Target() / "inside");
    EXPECT_FALSE(import.Run("one\r\n"));
    EXPECT_TRUE(std::filesystem::is_directory(import.Target() / "inside"));
}

/// The import as it is defined: each new word added on its own, dictionaries reloaded after each.
int ImportWordByWord(Import& import, const std::vector<std::wstring>& lines) {
    const bool skip_main = import.flags.Get(249) == 1;
    const bool skip_custom = import.flags.Get(250) == 1;
    Path target = import.Target();
    int added = 0;
    for (const std::wstring& line : lines) {
        const std::wstring word = Lower(Trim(std::wstring_view(line).substr(0, line.find(L','))));
        if (word.size() < 2) continue;
        bool known = false;
        if (skip_main) {
            known = import.store.IsWordInDictionaries(
                word, skip_custom ? Scope::MainAndCustom : Scope::MainOnly);
        } else if (skip_custom) {
            known = import.store.IsWordInCustomDictionaries(word);
        }
        if (known) continue;
        EXPECT_TRUE(AddWordToDictionary(import.store, word, AddTarget::ExplicitFile, target));
        ++added;
    }
    return added;
}

TEST(ImportDictionary, GivesWhatWordByWordGives) {
    test::Random random(31);
    for (int round = 0; round < 25; ++round) {
        Import at_once;
        Import word_by_word;
        std::vector<std::wstring> lines;
        std::string source;
        for (std::size_t i = 1 + random.Below(15); i > 0; --i) {
            lines.push_back(random.Word(L"abA ", 1, 3) + (random.OneIn(3) ? L",1,2" : L""));
            source += std::string(lines.back().begin(), lines.back().end()) +
                      (random.OneIn(4) ? "\n" : "\r\n");
        }
        const std::size_t switches = random.Below(4);
        const bool is_active = random.OneIn(2);
        const std::string already = random.OneIn(3) ? "bb,66000\r\nab,65100\nzz" : "";
        for (Import* import : {&at_once, &word_by_word}) {
            import->WriteMain({L"aa", L"ba"});
            import->WriteCustom(L"CUSTOM.DIC", "aab,65100\r\nbab\r\n");
            if (is_active) import->settings.CustomDictionaries = {L"CUSTOM.DIC", L"new.dic"};
            if (!already.empty()) WriteBytes(import->Target(), already);
            import->flags.Set(249, switches & 1);
            import->flags.Set(250, switches >> 1);
        }
        ASSERT_EQ(at_once.Run(source), ImportWordByWord(word_by_word, lines)) << source;
        ASSERT_EQ(ReadBytes(at_once.Target()), ReadBytes(word_by_word.Target())) << source;
    }
}

}  // namespace
}  // namespace wordhawk
