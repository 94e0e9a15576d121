#include "cli/pipe_session.h"
#include "cli/session.h"
#include "tests/fuzz/rounds.h"
#include "tests/support/random_text.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <utility>

namespace wordhawk {
namespace {

using test::Random;

class PipeFuzz : public testing::Test {
  protected:
    PipeFuzz() {
        test::WriteBytes(folder_ / L"Dictionarys/1033/he_.dic", "hello,72400\r\nhelp,72410\r\n");
        test::WriteBytes(folder_ / L"Dictionarys/1033/th_.dic", "the,84000\r\nthen,84500\r\n");
    }

    std::unique_ptr<Session> Start() const {
        GlobalOptions options;
        options.data_folder = PathForMessage(folder_.Folder());
        options.locale = 1033;
        options.install = false;
        return std::make_unique<Session>(options);
    }

    test::TempDir folder_;
};

std::wstring RandomLine(Random& random) {
    static const std::vector<std::wstring> kPieces = {L" ",
                                                      L" ",
                                                      L" ",
                                                      L"hello",
                                                      L"helo",
                                                      L"the",
                                                      L"Teh",
                                                      L"zz\xE9",
                                                      L"don't",
                                                      L"'",
                                                      L"\xD83D\xDE00",
                                                      L"\xD83D",
                                                      L"\x142",
                                                      L"^",
                                                      L"*",
                                                      L"@",
                                                      L"#",
                                                      L"!",
                                                      L"%",
                                                      L"`",
                                                      L"~",
                                                      L"+",
                                                      L"-",
                                                      L"&",
                                                      L"www.helo.org",
                                                      L"HELO",
                                                      L"x9",
                                                      L"\t",
                                                      std::wstring(1, L'\0'),
                                                      L"\r",
                                                      L",",
                                                      L"\xA0",
                                                      L"\xFEFF"};
    return random.Mix(kPieces, random.Below(14));
}

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = text.find('\n', at);
        lines.push_back(text.substr(at, end - at));
        at = end == std::string::npos ? text.size() : end + 1;
    }
    return lines;
}

/// The word that an answer speaks of must stand in the line at the offset that it gives.
void ExpectPlaced(const std::string& answer, const std::wstring& line) {
    if (answer == "*" || answer.starts_with("* ")) return;
    ASSERT_TRUE(answer.starts_with("# ") || answer.starts_with("& ")) << answer;
    const std::size_t word_end = answer.find(' ', 2);
    const std::wstring word = FromUtf8(answer.substr(2, word_end - 2));
    std::string number = answer.substr(word_end + 1);
    if (answer[0] == '&') number.erase(0, number.find(' ') + 1);
    const auto offset = static_cast<std::size_t>(std::stoul(number));
    // As the client sees it: what it sent, in characters.
    const std::wstring sent = FromUtf8(ToUtf8(line));
    std::size_t unit = 0;
    while (CountCharacters(std::wstring_view(sent).substr(0, unit)) < offset) ++unit;
    // Half a pair counts as a character, too; the word may stand behind the whole one.
    if (unit > 0 && unit < sent.size() && (sent[unit] & 0xFC00) == 0xDC00 &&
        (sent[unit - 1] & 0xFC00) == 0xD800) {
        ++unit;
    }
    ASSERT_EQ(sent.substr(unit, word.size()), word) << answer << "\n" << ToUtf8(line);
}

TEST_F(PipeFuzz, AnswersEveryLineInForm) {
    Random random(test::Seed() + 3);
    const auto session = Start();
    std::string given;
    Output out([&given](std::string_view piece) { given += piece; });
    PipeSession pipe(session->program, out);
    for (std::uint32_t round = 0; round < test::Rounds(); ++round) {
        const std::wstring line = RandomLine(random);
        if (line.starts_with(L'#') && !random.OneIn(50)) continue;  // each writes a file
        pipe.HandleLine(ToUtf8(line));
        out.Flush();
        const std::string answer = std::exchange(given, {});
        if (!line.empty() &&
            std::wstring_view(L"*&@#!%`+-~").find(line[0]) != std::wstring_view::npos) {
            ASSERT_EQ(answer, "") << ToUtf8(line);
            continue;
        }
        std::vector<std::string> lines = Lines(answer);
        ASSERT_FALSE(lines.empty());
        ASSERT_EQ(lines.back(), "");
        lines.pop_back();
        for (const std::string& each : lines) ExpectPlaced(each, line);
    }
}

TEST_F(PipeFuzz, BearsBytes) {
    Random random(test::Seed() + 4);
    const auto session = Start();
    std::string given;
    Output out([&given](std::string_view piece) { given += piece; });
    PipeSession pipe(session->program, out);
    for (std::uint32_t round = 0; round < test::Rounds(); ++round) {
        std::string line(random.Below(60), '\0');
        for (char& c : line) c = random.OneIn(3) ? ' ' : static_cast<char>(random.Below(256));
        if (line.starts_with('#')) line[0] = '^';
        std::erase(line, '\n');
        pipe.HandleLine(line);
        out.Flush();
        const std::string answer = std::exchange(given, {});
        ASSERT_TRUE(answer.empty() || answer.back() == '\n');
    }
}

}  // namespace
}  // namespace wordhawk
