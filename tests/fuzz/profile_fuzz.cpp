// Settings and language files: read and changed in memory, whatever their bytes.

#include "app/delimiter_flags.h"
#include "app/modRegs.h"
#include "platform/profile_text.h"
#include "tests/fuzz/rounds.h"
#include "tests/support/random_text.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace wordhawk {
namespace {

using test::Random;

const std::vector<std::wstring> kSections = {L"Settings", L"Dictionarys", L"", L"Wordhawk"};
const std::vector<std::wstring_view> kKeys = {L"0", L"CustomDic", L"ScoreValue", L"DSA", L"177"};

std::string RandomProfile(Random& random) {
    static const std::vector<std::string> kPieces = {"[Settings]",
                                                     "[dictionarys]",
                                                     "[",
                                                     "]",
                                                     "=",
                                                     ";",
                                                     "\r\n",
                                                     "\r\n",
                                                     "\n",
                                                     "\r",
                                                     "0=A.DIC",
                                                     "CustomDic=",
                                                     "ScoreValue = 99999999999",
                                                     "DSA=010",
                                                     "177=\"&OK\"",
                                                     "'",
                                                     " ",
                                                     "\t",
                                                     "\x1A",
                                                     std::string(1, '\0'),
                                                     "\xE9",
                                                     "\xFF\xFE",
                                                     "\xEF\xBB\xBF",
                                                     std::string(400, 'x')};
    std::string bytes;
    if (random.OneIn(8)) bytes = random.OneIn(2) ? "\xFF\xFE" : "\xEF\xBB\xBF";
    for (std::size_t count = random.Below(30); count > 0; --count) {
        bytes += random.OneIn(6) ? std::string(1, static_cast<char>(random.Below(256)))
                                 : random.Pick(kPieces);
    }
    return bytes;
}

/// Units at the beginning and at the end that two texts share, without counting any twice.
std::size_t Shared(std::string_view a, std::string_view b) {
    const std::size_t shorter = std::min(a.size(), b.size());
    std::size_t front = 0;
    while (front < shorter && a[front] == b[front]) ++front;
    std::size_t back = 0;
    while (back < shorter - front && a[a.size() - 1 - back] == b[b.size() - 1 - back]) ++back;
    return front + back;
}

TEST(ProfileFuzz, AChangeIsFoundAgainAndLeavesTheOtherLines) {
    constexpr int kPages[] = {1250, 1251, 1252, 1255};
    for (std::uint32_t round = 0; round < test::Rounds(); ++round) {
        Random random(test::Seed() + round);
        const AnsiCodePage& page = AnsiCodePage::Get(kPages[random.Below(4)]);
        const std::string bytes = RandomProfile(random);
        const test::Input input(round, bytes);
        ProfileText text(bytes, page);
        const bool whole_units = !bytes.starts_with("\xFF\xFE") || bytes.size() % 2 == 0;
        if (whole_units) {
            ASSERT_EQ(text.Bytes(), bytes);
        }

        const std::wstring section = random.Pick(kSections);
        const auto values = text.Values(section, kKeys);
        for (std::size_t i = 0; i < kKeys.size(); ++i)
            ASSERT_EQ(values[i], text.Value(section, kKeys[i]));
        for (const std::wstring& entry : text.Entries(section)) {
            ASSERT_EQ(entry.find_first_of(std::wstring_view(L"\r\n\0", 3)), std::wstring::npos);
        }

        if (section.empty()) continue;  // nothing is ever written there
        const std::wstring_view key = random.Pick(kKeys);
        const std::wstring value = random.Word(L"ab =;[]\"'", 0, 12);
        text.SetValue(section, key, value);
        const std::string changed = text.Bytes();
        std::wstring expected = value;
        expected.erase(0, std::min(expected.find_first_not_of(L' '), expected.size()));
        expected.erase(expected.find_last_not_of(L' ') + 1);
        ASSERT_EQ(ProfileText(changed, page).Value(section, key), expected);
        // One line at most is another: the longest piece, with header, key and value, in UTF-16.
        if (whole_units) {
            ASSERT_LE(bytes.size() - std::min(bytes.size(), Shared(bytes, changed)), 12'000u);
        }
    }
}

TEST(ProfileFuzz, EveryTextOfASettingGivesAValueInRange) {
    Random random(test::Seed() + 1);
    const auto rows = modRegs::Rows();
    for (std::uint32_t round = 0; round < test::Rounds(); ++round) {
        const std::wstring text = random.OneIn(2) ? random.Word(L"0123456789-+ ", 0, 14)
                                                  : random.Word(L"019x.\x0661\xFF11\xE9 ", 0, 6);
        Settings settings;
        for (const auto& row : rows) {
            row.assign(settings, text);
            // What is written is read back as the same.
            const std::wstring written = row.text(settings);
            Settings again;
            row.assign(again, written);
            ASSERT_EQ(row.text(again), written);
        }
        ASSERT_GE(settings.ScoreValue, -32768);
        ASSERT_LE(settings.ScoreValue, 32767);
        ASSERT_FALSE(settings.CustomDic.empty());
    }
}

}  // namespace
}  // namespace wordhawk
