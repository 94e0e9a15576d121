#include "engine/check/check_pass.h"

#include "app/delimiter_flags.h"
#include "dict/pack_extras.h"
#include "engine/check/text_checker.h"
#include "tests/support/dictionaries.h"
#include "tests/support/fake_services.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

#include <set>

namespace wordhawk {
namespace {

using test::Dictionaries;
using Words = std::vector<std::wstring>;

class CheckPass : public testing::Test {
  protected:
    CheckPass() {
        rules_.delimiters = BuildDelimiters(DelimiterFlagStore(), *data_.state.CodePage);
        data_.WriteMain({L"the", L"cat", L"sat", L"don't", L"h\xE9ros", L"aa"});
        data_.WriteCustom(L"CUSTOM.DIC", "first\r\nmine,77500\r\nbare\r\n");
    }
    Words Check(std::wstring_view text) {
        Progress none;
        return CheckText(text, data_.store, rules_, none).words;
    }
    Dictionaries data_;
    SplitRules rules_;
};

TEST_F(CheckPass, ListsEachUnknownWordOnceInOrder) {
    const struct {
        std::wstring text;
        Words words;
        const char* why;
    } cases[] = {
        {L"", {}, "empty"},
        {L"The cat SAT.", {}, "all known, whatever the case"},
        {L"zat The Zat ZAT qat zat", {L"zat", L"qat"}, "once, in order"},
        {L"one\rtwo\nthree\r\nfour", {L"one", L"two", L"three", L"four"}, "every line end splits"},
        {L"mine bare first", {L"first"}, "a bare word on the first line is not found"},
        {L"don't 'don't' dont", {L"dont"}, "apostrophes"},
        {L"h\xE9ros heros", {L"heros"}, "accents count"},
        {L"abc123 NASSA a", {L"nassa"}, "digits go, capitals stay in lower case"},
        {L"\x43F\x440\x438\x432\x435\x442 \x43F\x440\x438\x432\x435\x434",
         {L"\x43F\x440\x438\x432\x435\x442", L"\x43F\x440\x438\x432\x435\x434"},
         "letters outside the page keep their spelling"},
        {L"see http://cat.zzz/qqq zat", {L"see", L"zat"}, "addresses"},
        {std::wstring(L"a\0b\xFEFF", 4),
         {std::wstring(L"a\0b\xFEFF", 4)},
         "NUL and mark are word characters"},
        {L"\xD83D\xD83D", {}, "surrogates have no case: dropped like capitals"},
    };
    for (const auto& c : cases) EXPECT_EQ(Check(c.text), c.words) << c.why;
}

TEST_F(CheckPass, MainOnlyListsWordsOfCustomDictionaries) {
    data_.settings.SuggFromMain = 1;
    EXPECT_EQ(Check(L"mine cat"), Words{L"mine"});
}

TEST_F(CheckPass, TypographicApostrophesReadAsStraightOnes) {
    const std::wstring text =
        L"don\x2019t \x2018"
        "don\x2019t\x2019 cat\x2019 dzn\x2019t mine\x2019x";
    EXPECT_EQ(Check(text), (Words{L"don", L"dzn"})) << "which delimit when switched off";
    data_.settings.StraightApostrophe = 1;
    data_.state.Delimiters = rules_.delimiters;
    rules_ = SplitRules::From(data_.state, data_.settings);
    EXPECT_EQ(Check(text), (Words{L"dzn\x2019t", L"mine\x2019x"})) << "listed as they stand";
    data_.WriteCustom(L"CUSTOM.DIC", "first\r\nmine\x92x,77500\r\n");
    data_.store.ReloadCustomDictionaries();
    EXPECT_EQ(Check(text), (Words{L"dzn\x2019t"})) << "known as it was added";
}

TEST_F(CheckPass, ForbiddenWordsAreUnknownWhateverTheDictionariesHold) {
    test::WriteBytes(data_.store.ForbiddenPath(), "cat -> dog\r\nmine\r\nd\xE9j\xE0\r\n");
    data_.store.ReloadCustomDictionaries();
    EXPECT_EQ(Check(L"the Cat sat mine d\xE9j\xE0 cats"),
              (Words{L"cat", L"mine", L"d\xE9j\xE0", L"cats"}));
}

TEST_F(CheckPass, CancelKeepsTheWordsFoundSoFar) {
    std::wstring text;
    for (int i = 0; i < 20'000; ++i) text += L"zat cat\r\n";
    text += L"last";
    data_.state.CancelFlag = true;
    test::FakeProgress progress(3);
    const CheckResult result = CheckText(text, data_.store, rules_, progress);
    EXPECT_TRUE(result.cancelled);
    EXPECT_TRUE(data_.state.CancelFlag);
    EXPECT_EQ(result.words, Words{L"zat"});
    EXPECT_EQ(progress.captions,
              (Words{L"Splitting words...", L"Checking line (1 of 20001)",
                     L"Checking line (2 of 20001)", L"Checking line (3 of 20001)"}));

    test::FakeProgress patient;
    EXPECT_EQ(CheckText(text, data_.store, rules_, patient).words, (Words{L"zat", L"last"}));
    EXPECT_FALSE(data_.state.CancelFlag) << "cleared at the start of a pass";
}

TEST_F(CheckPass, TellsOfEveryLineThatTheDisplayAsksFor) {
    test::FakeProgress progress;
    CheckText(L"one\r\ntwo\rthree", data_.store, rules_, progress);
    EXPECT_EQ(progress.captions, (Words{L"Splitting words...", L"Checking line (1 of 3)",
                                        L"Checking line (2 of 3)", L"Checking line (3 of 3)"}));
    EXPECT_EQ(progress.position, 3u);
}

TEST_F(CheckPass, OneVeryLongLineIsChecked) {
    std::wstring text;
    while (text.size() < 1'000'000) text += L"cat zat ";
    EXPECT_EQ(Check(text), Words{L"zat"});
    EXPECT_EQ(Check(std::wstring(1'000'000, L'z')), Words{std::wstring(1'000'000, L'z')});
}

/// Word by word through the public look-up.
TEST_F(CheckPass, OccurrencesAgreeWithLookingUpEveryWord) {
    test::Random random(17);
    const std::vector<std::wstring> ascii = {
        L"the", L"cat", L"zat", L"Mine", L"bare", L"a",       L"'",       L"12",
        L" ",   L" ",   L".",   L"\n",   L"aa",   L"Catsat ", L"catsat ", L"THESAT "};
    std::vector<std::wstring> pieces = ascii;
    pieces.insert(pieces.end(), {L"\xE9", L"\x410\x411"});
    test::WriteBytes(
        data_.state.LanguageDictFolder / kCompoundsFile,
        SortedWords::Make(
            {{"cat", kCompoundCapital}, {"sat", kCompoundEnd}, {"the", kCompoundBegin}}));
    for (int round = 0; round < 500; ++round) {
        const bool is_ascii = round % 2 == 0;
        data_.settings.Compounds = round / 2 % 2;
        const std::wstring text =
            random.Mix(is_ascii ? ascii : pieces, round % 50 == 0 ? 6000 : 60);
        Words expected;
        WordScanner scanner(rules_, *data_.state.CodePage);
        scanner.Scan(text, [&](const ScannedWord& word) {
            if (!data_.store.IsWordInDictionaries(word.text, Scope::MainAndCustom))
                expected.push_back(Lower(word.text));
        });
        Words got;
        TextChecker checker(data_.store, rules_);
        checker.Feed(text, [&](const UnknownWord& unknown) {
            got.emplace_back(unknown.listed);
            EXPECT_EQ(checker.Words()[unknown.index], unknown.listed);
            EXPECT_EQ(text.substr(unknown.offset, unknown.text.size()), unknown.text);
        });
        ASSERT_EQ(got, expected) << "round " << round;
        if (!is_ascii) continue;
        got.clear();
        TextChecker of_bytes(data_.store, rules_);
        of_bytes.FeedAscii(ToUtf8(text), [&](const UnknownWord& unknown) {
            got.emplace_back(unknown.listed);
            EXPECT_EQ(text.substr(unknown.offset, unknown.text.size()), unknown.text);
        });
        ASSERT_EQ(got, expected) << "round " << round;
    }
}

TEST_F(CheckPass, CompoundsOfNounsWantTheirCapital) {
    test::WriteBytes(data_.state.LanguageDictFolder / kCompoundsFile, "export,32\r\ntisch,8\r\n");
    data_.settings.Compounds = 1;
    EXPECT_EQ(
        Check(L"Exporttisch exporttisch Exporttisch EXPORTTISCH Tischler exporttisch tischler"),
        (Words{L"exporttisch", L"tischler"}))
        << "what is unknown either way is listed once";
}

TEST_F(CheckPass, RememberingWordsOnlyLatelyChangesNoVerdict) {
    std::wstring text;
    for (int i = 0; i < 70'000; ++i) {
        text += L"zz";
        for (int rest = i; rest > 0; rest /= 26) text += static_cast<wchar_t>(L'a' + rest % 26);
        text += i % 3 == 0 ? L" the cat " : L" zzz ";
    }
    TextChecker all(data_.store, rules_);
    std::vector<std::uint64_t> expected;
    all.Feed(text, [&](const UnknownWord& word) { expected.push_back(word.offset); });
    TextChecker lately(data_.store, rules_, Remember::Lately);
    std::vector<std::uint64_t> got;
    std::set<std::wstring> listed;
    lately.Feed(text, [&](const UnknownWord& word) {
        got.push_back(word.offset);
        EXPECT_TRUE(listed.insert(std::wstring(word.listed)).second <= word.is_new);
    });
    EXPECT_EQ(got, expected);
    EXPECT_EQ(listed, std::set<std::wstring>(all.Words().begin(), all.Words().end()));
    EXPECT_TRUE(lately.Words().empty());
}

}  // namespace
}  // namespace wordhawk
