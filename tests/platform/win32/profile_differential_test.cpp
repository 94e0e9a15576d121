// Our reading and writing of profile files against the system's own calls, over random files.

#include "platform/modSect.h"
#include "platform/win32/win.h"
#include "tests/support/random_text.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using test::Random;
using test::WriteBytes;

constexpr std::uint32_t kRounds = 200;
const std::vector<std::wstring> kSections = {L"S", L"t", L"S S"};
const std::vector<std::wstring> kKeys = {L"k", L"0", L"long key", L"z"};

std::string RandomProfile(Random& random) {
    static const std::vector<std::string> kPieces = {
        "[S]",     "[s]",
        "[t]",     " [ S ] ",
        "[S S]",   "[S",
        "[]",      "k=v",
        "k=",      "k",
        "0=1",     " 0 = 2",
        "z=\"q\"", "z='q'",
        "z=\"",    ";k=9",
        "; [S]",   "#k=1",
        "=5",      "k==",
        "a b=c",   "",
        "\t",      "\xE9=\xF6",
        "k=\x80",  "long key=" + std::string(300, 'y'),
        "x]",      "k=;",
        "  ",      "k=a\tb",
    };
    static const std::vector<std::string> kLineEnds = {"\r\n", "\r\n", "\r\n", "\n", "\r\n\r\n"};
    std::string bytes;
    for (std::size_t lines = random.Below(12); lines > 0; --lines)
        bytes += random.Pick(kPieces) + random.Pick(kLineEnds);
    if (random.OneIn(4)) bytes += random.Pick(kPieces);
    return bytes;
}

std::string Shown(const std::string& bytes) { return testing::PrintToString(bytes); }

TEST(ProfileDifferential, ReadsAsTheSystemDoes) {
    const test::TempDir folder;
    const Path file = folder / L"t.ini";
    for (std::uint32_t round = 0; round < kRounds; ++round) {
        Random random(round);
        const std::string bytes = RandomProfile(random);
        WriteBytes(file, bytes);
        const auto compare = [&](modSect::Change& change) -> Result<void> {
            for (const std::wstring& section : kSections) {
                EXPECT_EQ(change.Section(section), modSect::ReadSection(file, section));
                for (const std::wstring& key : kKeys) {
                    EXPECT_EQ(change.Value(section, key, L" d "),
                              modSect::ReadSetting(section, key, L" d ", file));
                }
            }
            return {};
        };
        ASSERT_TRUE(modSect::ChangeProfile(file, compare));
        ASSERT_FALSE(HasFailure()) << "round " << round << " " << Shown(bytes);
    }
}

TEST(ProfileDifferential, WritesWhatTheSystemWouldReadAfterItsOwnWriting) {
    const test::TempDir folder;
    const Path ours = folder / L"ours.ini";
    const Path systems = folder / L"systems.ini";
    const std::vector<std::wstring> values = {L"", L"v", L" v ", L"\"q\"", L"a=b", L";c", L"\xE9"};
    for (std::uint32_t round = 0; round < kRounds; ++round) {
        Random random(1000 + round);
        const std::string bytes = RandomProfile(random);
        // The header of a section without a name is lost in the system's own writing.
        if (bytes.find("[]") != std::string::npos) continue;
        WriteBytes(ours, bytes);
        WriteBytes(systems, bytes);
        const std::wstring section = random.Pick(kSections);
        const std::wstring key = random.Pick(kKeys);
        const std::wstring value = random.Pick(values);
        ASSERT_TRUE(modSect::WriteSetting(section, key, value, ours));
        ASSERT_TRUE(WritePrivateProfileStringW(section.c_str(), key.c_str(), value.c_str(),
                                               systems.c_str()));
        for (const std::wstring& each : kSections) {
            EXPECT_EQ(modSect::ReadSection(ours, each), modSect::ReadSection(systems, each));
            for (const std::wstring& name : kKeys) {
                EXPECT_EQ(modSect::ReadSetting(each, name, L"d", ours),
                          modSect::ReadSetting(each, name, L"d", systems));
            }
        }
        ASSERT_FALSE(HasFailure()) << "round " << round << " " << Shown(bytes) << "\nours:\n"
                                   << Shown(test::ReadBytes(ours)) << "\nthe system's:\n"
                                   << Shown(test::ReadBytes(systems));
    }
}

}  // namespace
}  // namespace wordhawk
