#include "cli/side_by_side.h"

#include "cli/seen_words.h"
#include "cli/visible_text.h"
#include "platform/text.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

#include <new>
#include <set>

namespace wordhawk {
namespace {

/// Runs jobs of very different lengths and returns what came out, a failure as "!what".
std::string RunJobs(std::size_t jobs, std::size_t threads) {
    std::string out;
    SideBySide plan;
    plan.threads = threads;
    plan.next = [jobs, next = std::size_t{0}]() mutable -> SideBySide::Task {
        if (next == jobs) return {};
        return [i = next++](std::size_t, Output& text) -> SideBySide::Result {
            if (i % 5 == 3) throw std::bad_alloc();
            // The first is far larger than what is held back of one, and so is every seventh.
            const std::size_t lines = i % 7 == 0 ? 200'000 : 100;
            for (std::size_t line = 0; line < lines; ++line)
                text << std::string_view(std::to_string(i) + ':' + std::to_string(line) + '\n');
            return {i == 4, {}, {}};
        };
    };
    plan.write = [&out](std::string_view piece) {
        EXPECT_TRUE(piece.ends_with('\n'));
        out += piece;
    };
    plan.finished = [&out](const SideBySide::Result& result) {
        out += '!' + result.error_line + (result.found ? "found" : "") + '\n';
    };
    plan.waiting = [] {};
    plan.Run();
    return out;
}

TEST(SideBySide, GivesTheSameOnAnyNumberOfThreads) {
    const std::string expected = RunJobs(23, 1);
    EXPECT_NE(expected.find("!wordhawk-cli: out of memory\n\n4:0\n"), std::string::npos);
    EXPECT_NE(expected.find("4:99\n!found\n"), std::string::npos);
    EXPECT_GT(expected.size(), 6'000'000u);
    for (const std::size_t threads : {2u, 5u, 23u}) EXPECT_TRUE(RunJobs(23, threads) == expected);
    EXPECT_EQ(RunJobs(0, 4), "");
}

TEST(SideBySide, EndsWhenWhatItGivesCannotBeTaken) {
    SideBySide plan;
    plan.threads = 3;
    plan.next = [next = 0]() mutable -> SideBySide::Task {
        if (++next > 50) return {};
        return [](std::size_t, Output& text) -> SideBySide::Result {
            for (int line = 0; line < 100'000; ++line)
                text << std::string_view("as much as is held back of one, and more\n");
            return {};
        };
    };
    plan.write = [](std::string_view) { throw std::bad_alloc(); };
    plan.finished = [](const SideBySide::Result&) {};
    plan.waiting = [] {};
    EXPECT_THROW(plan.Run(), std::bad_alloc);
}

TEST(SeenWords, TellsEachWordOnce) {
    test::Random random(2);
    SeenWords seen;
    std::set<std::string> expected;
    for (int i = 0; i < 30'000; ++i) {
        const std::string word = ToUtf8(random.Word(L"ab\xE9", 0, 9));
        ASSERT_EQ(seen.Add(word), expected.insert(word).second) << word;
    }
}

TEST(VisibleText, ShowsWhatATerminalWouldObey) {
    const struct {
        std::string_view text, visible;
    } cases[] = {
        {"plain text, na\xC3\xAFve \xF0\x9F\x98\x80", "plain text, na\xC3\xAFve \xF0\x9F\x98\x80"},
        {"a\x1b[2Jb\x07\x08\x7F\n", "a\\x1b[2Jb\\x07\\x08\\x7f\\x0a"},
        {"\xC2\x9B"
         "31m",
         "\\u009b31m"},
        {"\xE2\x80\xAE"
         "cod.exe",
         "\\u202ecod.exe"},
        {"\xE2\x81\xA6 \xEF\xBB\xBF", "\\u2066 \\ufeff"},
        {"\x9B"
         "31m \xC3",
         "\\x9b31m \\xc3"},
        {"C:\\x", "C:\\x"},
    };
    for (const auto& c : cases) EXPECT_EQ(VisibleText(c.text), c.visible);
}

}  // namespace
}  // namespace wordhawk
