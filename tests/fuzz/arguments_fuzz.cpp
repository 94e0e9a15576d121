#include "app/command_file.h"
#include "cli/options.h"
#include "tests/fuzz/rounds.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using test::Random;

TEST(ArgumentsFuzz, GiveAnOrderOrAMessage) {
    const std::vector<std::string> pieces = {"check",
                                             "suggest",
                                             "explain",
                                             "key",
                                             "add",
                                             "remove",
                                             "import",
                                             "dictionaries",
                                             "pipe",
                                             "build-dictionary",
                                             "--data",
                                             "--locale",
                                             "--set",
                                             "--flag",
                                             "--list",
                                             "--json",
                                             "--stdin",
                                             "-a",
                                             "-l",
                                             "-d",
                                             "-j",
                                             "-n",
                                             "-",
                                             "--",
                                             "---",
                                             "-\xFF",
                                             "--=",
                                             "--set=",
                                             "ScoreValue=",
                                             "=",
                                             "1033",
                                             "99999999999999999999",
                                             "-1",
                                             "16=1",
                                             "16=2",
                                             "",
                                             " ",
                                             "\x1B[31m",
                                             "a\nb",
                                             "\xC3",
                                             "--help",
                                             "--version",
                                             "--activate",
                                             "--output",
                                             std::string(300, 'x'),
                                             "--main",
                                             "--custom",
                                             "--jobs",
                                             "--jobs=2",
                                             "-lj4",
                                             "--exit-zero",
                                             "--max-suggestions",
                                             "--no-suggestions",
                                             "--ignore-words",
                                             "--no-project-words",
                                             "--search",
                                             "wide",
                                             "--classic",
                                             "--no-install",
                                             "%s%n"};
    CommandLineParser parser;
    for (std::uint32_t round = 0; round < test::Rounds(); ++round) {
        Random random(test::Seed() + round);
        std::vector<std::string> arguments;
        for (std::size_t count = random.Below(7); count > 0; --count)
            arguments.push_back(random.Pick(pieces));
        const bool is_ispell = IsIspellCommandLine(arguments);
        const ParsedCommandLine parsed =
            is_ispell ? ParseIspellCommandLine(arguments) : parser.Parse(arguments);
        if (!is_ispell) {
            const ParsedCommandLine once = ParseCommandLine(arguments);
            // Options that exclude one another are listed as they happen to lie in memory.
            const auto same_part = [](const std::string& text) {
                return text.substr(0, text.find("xcludes"));
            };
            ASSERT_EQ(same_part(once.text), same_part(parsed.text))
                << testing::PrintToString(arguments);
            ASSERT_EQ(once.exit_code, parsed.exit_code);
            ASSERT_EQ(once.options.has_value(), parsed.options.has_value());
        }
        ASSERT_TRUE(parsed.options.has_value() || !parsed.text.empty())
            << testing::PrintToString(arguments);
        ASSERT_TRUE(parsed.exit_code == 0 || parsed.exit_code == 2)
            << testing::PrintToString(arguments);
    }
}

TEST(ArgumentsFuzz, AnyCommandLineNamesAFileWithoutQuotes) {
    Random random(test::Seed() + 1);
    for (std::uint32_t round = 0; round < test::Rounds(); ++round) {
        const std::wstring line = random.Word(L"ab \"\".\\/-\xE9", 0, 20);
        const std::wstring file = CommandFileFrom(line);
        ASSERT_LE(file.size(), line.size());
        ASSERT_EQ(file.find(L'"'), std::wstring::npos);
    }
}

}  // namespace
}  // namespace wordhawk
