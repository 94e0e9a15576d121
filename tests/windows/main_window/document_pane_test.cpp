#include "engine/session/word_positions.h"
#include "tests/windows/main_window/main_window_fixture.h"

#include <commdlg.h>
#include <richedit.h>

#include <random>

namespace wordhawk::test {
namespace {

class DocumentPaneTest : public MainWindowTest {
  protected:
    std::mt19937 random_{20240817};
    std::size_t Below(std::size_t limit) { return limit == 0 ? 0 : random_() % limit; }
};

// The kept text must be the control's after whatever was done to it, in any order.
TEST_F(DocumentPaneTest, KeptTextEqualsTheControlsThroughRandomEditsAndUndos) {
    Open();
    DocumentPane& pane = Controls().document;
    pane.LoadPlainText({L"the quick catt and the catt\rsat on the catt\r"});
    const std::wstring pieces[] = {L"a", L"catt", L" ", L"\r", L"x y", L"", L"\u00E9\U0001F600"};
    for (int step = 0; step < 300; ++step) {
        const std::wstring before = pane.Text();
        const std::size_t start = Below(before.size() + 1);
        switch (Below(5)) {
            case 0:  // a command
                pane.Select({start, Below(std::min<std::size_t>(before.size() - start, 6) + 1)});
                pane.ReplaceSelection(pieces[Below(std::size(pieces))]);
                break;
            case 1:  // the person at the keyboard
                pane.Select({start, Below(std::min<std::size_t>(before.size() - start, 6) + 1)});
                pane.rtbW.ReplaceSelection(pieces[Below(std::size(pieces))]);
                break;
            case 2: {
                std::vector<std::size_t> starts;
                for (std::size_t at = 0; (at = before.find(L"cat", at)) != std::wstring::npos;
                     at += 3) {
                    starts.push_back(at);
                }
                pane.ReplaceAll(starts, 3, Below(2) == 0 ? L"dogs" : L"catca");
                break;
            }
            case 3: pane.Undo(); break;
            default: pane.rtbW.Undo(); break;
        }
        ASSERT_EQ(pane.Text(), pane.rtbW.PlainText()) << "step " << step;
    }
}

// Commands search the kept text; what they find must be what the control's own search finds. Not
// every system's control knows the case of letters beyond ASCII, so those come in one case.
TEST_F(DocumentPaneTest, WordsAreFoundWhereTheControlFindsThem) {
    Open();
    const std::wstring pieces[] = {L"cat",   L"Cat", L"CAT",  L"cats",        L"concat",
                                   L"don't", L"12",  L"12th", L"\u00E9clair", L" ",
                                   L" ",     L", ",  L"-",    L"\r"};
    const std::wstring words[] = {L"cat", L"CATS", L"don't", L"12", L"\u00E9clair", L"cat-cat"};
    int found = 0;
    for (int round = 0; round < 40; ++round) {
        std::wstring text;
        while (text.size() < 120) text += pieces[Below(std::size(pieces))];
        Controls().document.LoadPlainText({text});
        ASSERT_EQ(Controls().rtbW.PlainText(), text);
        for (const std::wstring& word : words) {
            const std::size_t from = Below(text.size());
            FINDTEXTEXW search{{static_cast<LONG>(from), -1}, word.c_str(), {-1, -1}};
            const LRESULT place =
                SendMessageW(Controls().rtbW.Handle(), EM_FINDTEXTEXW, FR_DOWN | FR_WHOLEWORD,
                             reinterpret_cast<LPARAM>(&search));
            ASSERT_EQ(FindWordFrom(text, word, from), static_cast<TextOffset>(place))
                << ToUtf8(word) << " from " << from << " in\n"
                << ToUtf8(text);
            found += place >= 0 ? 1 : 0;
        }
    }
    EXPECT_GT(found, 50);
}

TEST_F(DocumentPaneTest, SelectedWordIsShownWithTheTextAroundIt) {
    Open();
    std::wstring text;
    for (int line = 0; line < 300; ++line) text += L"the quick brown fox\r";
    Controls().document.LoadPlainText({text});
    RECT client{};
    GetClientRect(Controls().rtbW.Handle(), &client);
    for (const std::size_t line : {3u, 100u, 107u, 250u, 40u}) {
        const std::size_t start = line * 20 + 4;
        Controls().document.Select({start, 5});
        POINTL place{};
        SendMessageW(Controls().rtbW.Handle(), EM_POSFROMCHAR, reinterpret_cast<WPARAM>(&place),
                     static_cast<LPARAM>(start));
        EXPECT_GE(place.y, 0) << line;
        EXPECT_LE(place.y, client.bottom * 2 / 3) << line;
    }
}

TEST_F(DocumentPaneTest, EachChangeHasItsOwnRevision) {
    Open();
    DocumentPane& pane = Controls().document;
    pane.LoadPlainText({L"one two"});
    const std::uint64_t loaded = pane.Revision();
    pane.Select({0, 3});
    EXPECT_EQ(pane.Revision(), loaded);
    pane.rtbW.ReplaceSelection(L"1");
    const std::uint64_t typed = pane.Revision();
    EXPECT_NE(typed, loaded);
    pane.Undo();
    EXPECT_NE(pane.Revision(), typed);
}

// A person who undoes a Change All expects one step even when more was changed and taken back
// since.
TEST_F(DocumentPaneTest, ThreeChangeAllsAreUndoneOneByOne) {
    Open();
    DocumentPane& pane = Controls().document;
    pane.LoadPlainText({L"aa bb cc aa bb cc"});
    const auto all = [&](std::wstring_view word, std::wstring_view by) {
        std::vector<std::size_t> starts;
        for (std::size_t at = 0; (at = pane.Text().find(word, at)) != std::wstring::npos;
             at += word.size()) {
            starts.push_back(at);
        }
        pane.ReplaceAll(starts, word.size(), by);
    };
    all(L"aa", L"1");
    all(L"bb", L"2222");
    all(L"cc", L"3");
    EXPECT_EQ(DocumentText(), L"1 2222 3 1 2222 3");
    pane.Undo();
    EXPECT_EQ(DocumentText(), L"1 2222 cc 1 2222 cc");
    pane.Undo();
    EXPECT_EQ(DocumentText(), L"1 bb cc 1 bb cc");
    pane.Undo();
    EXPECT_EQ(DocumentText(), L"aa bb cc aa bb cc");
}

TEST_F(DocumentPaneTest, UndoKeyTakesAWholeChangeAllBack) {
    OpenWith(L"catt catt");
    Controls().txtChgTo.SetText(L"cat");
    Click(Controls().cmdChangeAll);
    Controls().rtbW.SetFocus();
    Press('Z', With::Control);
    EXPECT_EQ(DocumentText(), L"catt catt");
}

}  // namespace
}  // namespace wordhawk::test
