#include "dict/affix_expansion.h"

#include "tests/support/temp_dir.h"

#include <gmock/gmock.h>

#include <map>

namespace wordhawk {
namespace {

using test::TempDir;
using test::WriteBytes;
using testing::ElementsAre;
using testing::UnorderedElementsAreArray;

using Forms = std::map<std::string, unsigned>;

/// The forms with their roles, without the mark of stems.
Forms Expand(const TempDir& temp, std::string_view affixes, std::string_view stems,
             ExpansionReport* report = nullptr) {
    WriteBytes(temp / L"xx.aff", affixes);
    WriteBytes(temp / L"xx.dic", stems);
    Forms forms;
    const auto done = ExpandHunspellDictionary(
        temp / L"xx.dic",
        [&](std::wstring_view form, unsigned roles) { forms[ToUtf8(form)] |= roles & ~kWordStem; });
    EXPECT_TRUE(done);
    if (done && report != nullptr) *report = *done;
    return forms;
}

std::vector<std::string> WordsAlone(const Forms& forms) {
    std::vector<std::string> words;
    for (const auto& [word, roles] : forms) {
        if ((roles & kWordAlone) != 0) words.push_back(word);
    }
    return words;
}

TEST(AffixExpansion, SpellsOutWhatTheRulesSay) {
    const struct {
        const char* why;
        const char* affixes;
        const char* stems;
        std::vector<std::string> words;
    } cases[] = {
        {"conditions at the end, stripped letters",
         "SET UTF-8\nSFX S Y 3\nSFX S y ies [^aeiou]y\nSFX S 0 s [aeiou]y\nSFX S 0 s [^y]\n",
         "3\nparty/S\nday/S\ncat/S\n",
         {"cat", "cats", "day", "days", "parties", "party"}},
        {"prefix and suffix meet where both cross",
         "SET UTF-8\nPFX R Y 1\nPFX R 0 re .\nSFX D Y 1\nSFX D 0 ed .\nSFX N N 1\nSFX N 0 er .\n",
         "1\nplay/RDN\n",
         {"play", "played", "player", "replay", "replayed"}},
        {"a suffix brings a second one",
         "SET UTF-8\nSFX A Y 1\nSFX A 0 er/B .\nSFX B Y 1\nSFX B 0 s .\n",
         "1\nwork/A\n",
         {"work", "worker", "workers"}},
        {"flags of two letters and of numbers, aliases",
         "SET UTF-8\nFLAG long\nAF 2\nAF AaBb\nAF Bb\nSFX Aa Y 1\nSFX Aa 0 x .\nSFX Bb Y 1\n"
         "SFX Bb 0 y .\n",
         "2\none/1\ntwo/2\n",
         {"one", "onex", "oney", "two", "twoy"}},
        {"numbers as flags",
         "SET UTF-8\nFLAG num\nSFX 12 Y 1\nSFX 12 0 s .\n",
         "1\nend/12,7\n",
         {"end", "ends"}},
        {"stems that need an affix, forbidden words, fields and comments",
         "SET UTF-8\nNEEDAFFIX N\nFORBIDDENWORD F\nSFX S Y 1\nSFX S 0 s .\n",
         "4\n\tcomment\nstem/NS\nbads/F\nbad/S\tpo:noun\nnew york po:name\n",
         {"bad", "new york", "stems"}},
        {"both halves of a circumfix or none",
         "SET UTF-8\nCIRCUMFIX C\nPFX P Y 1\nPFX P 0 ge/C .\nSFX Q Y 2\nSFX Q 0 t/C .\n"
         "SFX Q 0 st .\n",
         "1\nmach/PQ\n",
         {"gemacht", "mach", "machst"}},
        {"a byte order mark, carriage returns, an escaped slash",
         "\xEF\xBB\xBFSET UTF-8\r\nSFX S Y 1\r\nSFX S 0 s .\r\n",
         "2\r\nkm\\/h/S\r\n\xC3\xA9t\xC3\xA9/S\r\n",
         {"km/h", "km/hs", "\xC3\xA9t\xC3\xA9", "\xC3\xA9t\xC3\xA9s"}},
        {"a page of single bytes",
         "SET ISO8859-2\nTRY a\n",
         "1\n\xBF\x61\x62\x61\n",
         {"\xC5\xBC"
          "aba"}},
        {"rules that would leave nothing are left alone",
         "SET UTF-8\nSFX S Y 1\nSFX S ab c ab\n",
         "1\nab/S\n",
         {"ab"}},
    };
    for (const auto& c : cases) {
        const TempDir temp;
        EXPECT_THAT(WordsAlone(Expand(temp, c.affixes, c.stems)),
                    UnorderedElementsAreArray(c.words))
            << c.why;
    }
}

TEST(AffixExpansion, TellsWhatMayBePartOfACompound) {
    const TempDir temp;
    const Forms forms = Expand(temp,
                               "SET UTF-8\nCOMPOUNDBEGIN B\nCOMPOUNDMIDDLE M\nCOMPOUNDEND E\n"
                               "ONLYINCOMPOUND O\nCOMPOUNDPERMITFLAG P\n"
                               "SFX L Y 1\nSFX L 0 s/BMOP .\nSFX X Y 1\nSFX X 0 en .\n",
                               "3\narbeit/LXE\nzimmer/BE\nburg/OE\n");
    EXPECT_EQ(forms.at("arbeit"), kWordAlone | kCompoundEnd);
    EXPECT_EQ(forms.at("arbeiten"), kWordAlone | kCompoundEnd);
    EXPECT_EQ(forms.at("arbeits"), kCompoundBegin | kCompoundMiddle | kCompoundEnd);
    EXPECT_EQ(forms.at("zimmer"), kWordAlone | kCompoundBegin | kCompoundEnd);
    EXPECT_EQ(forms.at("burg"), static_cast<unsigned>(kCompoundEnd));
}

TEST(AffixExpansion, SpellsFormsAsTextsDo) {
    const TempDir temp;
    const Forms forms = Expand(temp,
                               "SET UTF-8\nOCONV 2\nOCONV \xC4\xB3 ij\nOCONV ' \xE2\x80\x99\nSFX L "
                               "Y 1\nSFX L 0 \xC4\xB3tje .\n",
                               "2\nl\xC4\xB3st/L\nl'an\n");
    EXPECT_EQ(forms.size(), 3u);
    EXPECT_TRUE(forms.contains("l'an"));
    EXPECT_TRUE(forms.contains("lijst"));
    EXPECT_TRUE(forms.contains("lijstijtje"));
}

TEST(AffixExpansion, NamesWhatItCannotExpress) {
    const TempDir temp;
    ExpansionReport report;
    Expand(temp, "SET UTF-8\nCOMPOUNDRULE 1\nCOMPOUNDRULE AB\n", "1\none/A\n", &report);
    EXPECT_THAT(report.not_expressed, ElementsAre("COMPOUNDRULE"));
    EXPECT_EQ(report.stems, 1u);
}

TEST(AffixExpansion, RefusesWhatIsNoDictionary) {
    const TempDir temp;
    const auto ignore = [](std::wstring_view, unsigned) {};
    WriteBytes(temp / L"alone.dic", "1\nword\n");
    EXPECT_FALSE(ExpandHunspellDictionary(temp / L"alone.dic", ignore)) << "no rules beside it";
    WriteBytes(temp / L"odd.dic", "1\nword\n");
    WriteBytes(temp / L"odd.aff", "SET EBCDIC\n");
    const auto odd = ExpandHunspellDictionary(temp / L"odd.dic", ignore);
    ASSERT_FALSE(odd);
    EXPECT_NE(odd.error().what.find(L"EBCDIC"), std::wstring::npos);
    WriteBytes(temp / L"odd.aff",
               "\x7F"
               "ELF\n\n");
    EXPECT_FALSE(ExpandHunspellDictionary(temp / L"odd.dic", ignore)) << "no rules at all";
}

}  // namespace
}  // namespace wordhawk
