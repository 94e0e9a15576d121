#include "engine/cSpellit.h"

#include "engine/document/rtf_text.h"
#include "platform/folders.h"
#include "tests/support/fake_services.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace wordhawk {
namespace {

using test::FakeProgress;
using test::FakeUi;
using test::ReadBytes;
using test::TempDir;
using test::WriteBytes;

/// A window whose user replaces the whole text when words are listed, and closes it.
class FakeWindow : public CheckWindow {
  public:
    explicit FakeWindow(std::vector<std::string>& log) : log_(log) {}

    /// What the user makes of the text; none leaves it alone.
    std::optional<std::wstring> correction;
    bool user_leaves_words = false;
    bool caller_ends = false;
    bool file_is_readable = true;
    bool disk_is_full = false;
    int cancel_at = 0;
    std::vector<std::wstring> words;
    std::function<void()> hand_over_later;

    bool TakeFile(const Path& file, TextForm form) override {
        if (!file_is_readable) return false;
        Take(form, FromUtf8(ReadBytes(file)));
        return true;
    }
    void TakePlainText(const std::wstring& text) override {
        std::wstring document;
        for (const wchar_t c : text) {
            if (c == L'\n' && document.ends_with(L'\r')) continue;
            document += c == L'\n' ? L'\r' : c;
        }
        Take(TextForm::Plain, document);
    }
    void TakeRichText(const std::string& rtf) override { Take(TextForm::Rich, RtfToText(rtf)); }
    const std::wstring& Text() override { return text_; }
    void ShowProgress(const std::function<void(Progress&)>& pass) override {
        FakeProgress progress(cancel_at);
        pass(progress);
    }
    void SetCompletionNotice(bool wanted) override { notice_ = wanted; }
    bool ShowWords(CheckResult result) override {
        words = std::move(result.words);
        if (caller_ends) is_gone_ = true;
        return !words.empty();
    }
    void ShowOptions() override { log_.push_back("options"); }
    bool CorrectAndWait(const std::function<void()>& hand_over) override {
        log_.push_back("waited");
        Correct(hand_over);
        return user_leaves_words;
    }
    void CorrectAlone(std::function<void()> hand_over) override {
        hand_over_later = std::move(hand_over);
    }
    void Correct(const std::function<void()>& hand_over) {
        if (correction) {
            text_ = *correction;
            changed_ = true;
        }
        worked_off_ = !user_leaves_words;
        if (notice_ && worked_off_) log_.push_back("notice");
        hand_over();
    }
    bool CallerIsGone() const override { return is_gone_; }
    TextForm Form() const override { return form_; }
    bool TextChanged() override { return changed_; }
    std::string RichText() override { return "{\\rtf1 " + ToUtf8(text_) + "}"; }
    bool SaveFile(const Path& file) override {
        if (disk_is_full) return false;
        WriteBytes(file, form_ == TextForm::Rich ? RichText() : ToUtf8(text_));
        return true;
    }
    bool SetClipboard() override {
        log_.push_back("clipboard: " + ToUtf8(text_));
        return true;
    }
    void HandedOver() override { log_.push_back("handed over"); }
    void Announce() override {
        if (!worked_off_) log_.push_back("notice");
    }

  private:
    void Take(TextForm form, std::wstring text) {
        form_ = form;
        text_ = std::move(text);
    }

    std::vector<std::string>& log_;
    std::wstring text_;
    TextForm form_ = TextForm::Plain;
    bool changed_ = false;
    bool notice_ = false;
    bool worked_off_ = false;
    bool is_gone_ = false;
};

class SpellCheckTest : public testing::Test {
  protected:
    SpellCheckTest() : program_(Options(), ui_) {
        WriteBytes(program_.state.LanguageDictFolder / "th_.dic", "the,1\r\n");
        WriteBytes(program_.state.LanguageDictFolder / "ho_.dic", "house,1\r\n");
    }
    ProgramOptions Options() {
        ProgramOptions options;
        options.data_folder = folder_ / L"data";
        options.locale = 1033;
        options.program_mode = false;
        options.shipped_dictionaries = folder_ / L"none";
        return options;
    }
    Path File(const wchar_t* name, const std::string& bytes) {
        WriteBytes(folder_ / name, bytes);
        return folder_ / name;
    }
    long Check() { return cSpellit(program_, window_).SpellCheck(arguments_); }

    TempDir folder_;
    FakeUi ui_;
    Program program_;
    std::vector<std::string> log_;
    FakeWindow window_{log_};
    SpellCheckArguments arguments_;
    using Log = std::vector<std::string>;
};

TEST_F(SpellCheckTest, CorrectedTextGoesBackInPlaceOfTheText) {
    arguments_.strToCheck = L"the housee\nthe Housee\r\nhuose";
    window_.correction = L"the house\rthe house\rhouse";
    EXPECT_EQ(Check(), 888);
    EXPECT_EQ(window_.words, (std::vector<std::wstring>{L"housee", L"huose"}));
    EXPECT_EQ(arguments_.strToCheck, L"the house\nthe house\r\nhouse") << "each line end its own";
    EXPECT_EQ(log_, (Log{"waited", "handed over"}));
}

TEST_F(SpellCheckTest, TextThatNobodyChangedGoesBackAsItCame) {
    for (const wchar_t* text : {L"the housee\n\r\n\rthe ", L"the house\n", L""}) {
        arguments_.strToCheck = text;
        EXPECT_EQ(Check(), 888);
        EXPECT_EQ(arguments_.strToCheck, text);
    }
    EXPECT_EQ(log_, (Log{"waited", "handed over", "handed over", "handed over"}))
        << "without an unknown word nobody is asked anything";
}

TEST_F(SpellCheckTest, RichTextGoesBackRichAndWhatOnlyClaimsToBeGoesBackPlain) {
    arguments_.blnIsStrRTF = true;
    arguments_.strToCheck = L"{\\rtf1 the housee}";
    window_.correction = L"the house";
    EXPECT_EQ(Check(), 888);
    EXPECT_EQ(arguments_.strToCheck, L"{\\rtf1 the house}");
    arguments_.strToCheck = L"the huose {\\rtf1";
    window_.correction = L"the house {\\rtf1";
    EXPECT_EQ(Check(), 888);
    EXPECT_EQ(arguments_.strToCheck, L"the house {\\rtf1");
}

TEST_F(SpellCheckTest, FileThatCannotBeTakenGivesItsType) {
    const Path text = File(L"a.TXT", "housee");
    const Path other = File(L"a.doc", "housee");
    const struct {
        std::wstring path;
        bool readable;
        long result;
    } cases[] = {
        {TextFromPath(folder_ / L"missing.txt"), true, 7},
        {L"readme", true, 8},
        {TextFromPath(other), true, 9},
        {TextFromPath(text), false, 1},
    };
    for (const auto& c : cases) {
        arguments_.strToCheck = L"kept";
        arguments_.strPathInFile = c.path;
        arguments_.blnComfirmComplete = true;
        window_.file_is_readable = c.readable;
        EXPECT_EQ(Check(), c.result);
        EXPECT_EQ(arguments_.strToCheck, L"kept");
    }
    EXPECT_EQ(log_, Log{});
}

TEST_F(SpellCheckTest, FileIsSavedWhereItIsWantedInTheFormThatItCameIn) {
    const struct {
        const wchar_t* in;
        const char* bytes;
        bool save;
        const wchar_t* out;
        const char* in_after;
        const char* out_after;
    } cases[] = {
        {L"a.txt", "the housee", false, L"b.txt", "the housee", ""},
        {L"c.txt", "the housee", true, L"d.txt", "the housee", "the house"},
        {L"e.txt", "the housee", true, L"", "the house", ""},
        {L"f.rtf", "the housee", true, L"g.rtf", "the housee", "{\\rtf1 the house}"},
        {L"", "the housee", true, L"h.txt", "", "the house"},
    };
    for (const auto& c : cases) {
        const std::wstring in = c.in;
        const std::wstring out = c.out;
        arguments_ = {};
        if (in.empty()) {
            arguments_.strToCheck = FromUtf8(c.bytes);
        } else {
            arguments_.strPathInFile = TextFromPath(File(c.in, c.bytes));
        }
        if (!out.empty()) arguments_.strPathOutFile = TextFromPath(folder_ / out);
        arguments_.blnSaveToFile = c.save;
        window_.correction = L"the house";
        EXPECT_EQ(Check(), 888);
        EXPECT_EQ(arguments_.strToCheck, L"the house") << "a file's text goes back as well";
        if (!in.empty()) {
            EXPECT_EQ(ReadBytes(folder_ / in), c.in_after) << c.bytes;
        }
        if (!out.empty()) {
            EXPECT_EQ(IsFile(folder_ / out), *c.out_after != '\0');
        }
        if (*c.out_after != '\0') {
            EXPECT_EQ(ReadBytes(folder_ / out), c.out_after);
        }
    }
}

TEST_F(SpellCheckTest, EmptyTextIsNotSaved) {
    const Path out = File(L"out.txt", "before");
    arguments_.blnSaveToFile = true;
    arguments_.strPathOutFile = TextFromPath(out);
    EXPECT_EQ(Check(), 888);
    arguments_.strToCheck = L"housee";
    window_.correction = L"";
    EXPECT_EQ(Check(), 888);
    EXPECT_EQ(arguments_.strToCheck, L"") << "the user deleted it all";
    EXPECT_EQ(ReadBytes(out), "before");
}

TEST_F(SpellCheckTest, TextThatCouldNotBeSavedStaysWithTheUserButReachesTheCaller) {
    arguments_.strToCheck = L"housee";
    arguments_.blnSaveToFile = true;
    arguments_.strPathOutFile = TextFromPath(folder_ / L"out.txt");
    window_.correction = L"house";
    window_.disk_is_full = true;
    EXPECT_EQ(Check(), 888);
    EXPECT_EQ(arguments_.strToCheck, L"house");
    EXPECT_EQ(log_, Log{"waited"});
}

TEST_F(SpellCheckTest, OptionsClipboardAndNoticeComeOnceAndWhenAskedFor) {
    arguments_.strToCheck = L"housee";
    window_.correction = L"house";
    arguments_.blnShowOptions = true;
    arguments_.blnSetClipBoard = true;
    arguments_.blnComfirmComplete = true;
    EXPECT_EQ(Check(), 888);
    EXPECT_EQ(log_, (Log{"options", "waited", "notice", "clipboard: house", "handed over"}));
}

TEST_F(SpellCheckTest, NoticeComesAlsoWithoutWordsAndWhenTheUserLeavesEarly) {
    arguments_.strToCheck = L"the house";
    arguments_.blnComfirmComplete = true;
    EXPECT_EQ(Check(), 888);
    arguments_.strToCheck = L"housee";
    window_.user_leaves_words = true;
    EXPECT_EQ(Check(), 889) << "words were left";
    EXPECT_EQ(log_, (Log{"handed over", "notice", "waited", "handed over", "notice"}));
}

TEST_F(SpellCheckTest, AloneReturnsAtOnceAndSavesWhenTheWindowCloses) {
    const Path out = folder_ / L"out.txt";
    {
        SpellCheckArguments arguments;
        arguments.strToCheck = L"housee";
        arguments.blnSaveToFile = true;
        arguments.strPathOutFile = TextFromPath(out);
        arguments.blnShowAutomationAlone = true;
        EXPECT_EQ(cSpellit(program_, window_).SpellCheck(arguments), 888);
        EXPECT_EQ(arguments.strToCheck, L"housee");
    }
    EXPECT_FALSE(IsFile(out));
    window_.correction = L"house";
    window_.Correct(window_.hand_over_later);
    EXPECT_EQ(ReadBytes(out), "house");
    EXPECT_EQ(log_, Log{"handed over"});
}

TEST_F(SpellCheckTest, AloneWithNowhereToGoLeavesTheTextWithTheUser) {
    arguments_.strToCheck = L"housee";
    arguments_.blnShowAutomationAlone = true;
    EXPECT_EQ(Check(), 888);
    window_.correction = L"house";
    window_.Correct(window_.hand_over_later);
    EXPECT_EQ(log_, Log{});
}

TEST_F(SpellCheckTest, CancelledPassKeepsTheWordsFoundSoFar) {
    std::wstring text = L"housee ";
    for (int i = 0; i < 20'000; ++i) text += L"the\r\n";
    arguments_.strToCheck = text + L"huose";
    window_.cancel_at = 2;
    EXPECT_EQ(Check(), 888);
    EXPECT_EQ(window_.words, std::vector<std::wstring>{L"housee"});
    EXPECT_TRUE(program_.state.CancelFlag);
    window_.cancel_at = 0;
    Check();
    EXPECT_EQ(window_.words.size(), 2u) << "the flag was cleared";
}

TEST_F(SpellCheckTest, NothingIsDoneForACallerThatIsGone) {
    const Path out = folder_ / L"out.txt";
    arguments_.strToCheck = L"housee";
    arguments_.blnSaveToFile = arguments_.blnSetClipBoard = arguments_.blnComfirmComplete = true;
    arguments_.strPathOutFile = TextFromPath(out);
    window_.correction = L"hou";
    window_.caller_ends = true;
    window_.user_leaves_words = true;
    Check();
    EXPECT_EQ(log_, Log{"waited"}) << "above all it is not handed over: the window keeps a copy";
    EXPECT_FALSE(IsFile(out));
}

TEST_F(SpellCheckTest, PropertiesNameTheProgram) {
    EXPECT_EQ(cSpellit::PlugNameVersion(), L"Wordhawk\t1.0.0");
    const std::wstring path = cSpellit::PlugFullPathToEXE();
    EXPECT_TRUE(path.ends_with(L"Wordhawk.exe")) << ToUtf8(path);
    EXPECT_TRUE(path.starts_with(TextFromPath(ProgramFolder())));
    EXPECT_EQ(path.find(L"\\\\Wordhawk"), std::wstring::npos);
}

}  // namespace
}  // namespace wordhawk
