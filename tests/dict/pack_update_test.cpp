#include "dict/build.h"
#include "dict/pack_extras.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

namespace wordhawk {
namespace {

using test::ReadBytes;
using test::TempDir;
using test::WriteBytes;
namespace fs = std::filesystem;

class PackUpdate : public testing::Test {
  protected:
    void Build(const Path& folder, std::string_view words, std::string_view pieces = "",
               PackOrigin origin = PackOrigin::Shipped) {
        const Path list = temp_ / L"words.txt";
        WriteBytes(list, words);
        WriteBytes(temp_ / L"pieces.txt", pieces);
        BuildOptions options;
        options.piece_lists = {temp_ / L"pieces.txt"};
        options.origin = origin;
        ASSERT_TRUE(BuildDictionary(std::span(&list, 1), folder, options));
    }

    /// The words of the installed folder's file.
    std::string Words(const char* file) {
        std::string words;
        std::string line;
        for (const char c : ReadBytes(installed_ / file)) {
            if (c != '\n') {
                line += c;
                continue;
            }
            words += line.substr(0, line.find(',')) + ' ';
            line.clear();
        }
        return words;
    }

    void Add(const char* file, const char* line) {
        WriteBytes(installed_ / file, ReadBytes(installed_ / file) + line);
    }

    TempDir temp_;
    Path installed_ = temp_ / L"installed";
    Path shipped_ = temp_ / L"shipped";
};

TEST_F(PackUpdate, KeepsWhatTheUserAddedAndReplacesTheRest) {
    Build(installed_, "house\nhorse\nmouse\nowl\n", "isn\n");
    WriteBytes(installed_ / "_compounds_.lst", "old,8\r\n");
    Add("ho_.dic", "homebrew,10000\r\n");
    WriteBytes(installed_ / "zz_.dic", "zzz,10000\r\n");
    Build(shipped_, "house\nhotel\nmoose\n");
    WriteBytes(shipped_ / "frequencies.txt", "house 9\n");
    ASSERT_TRUE(IsOtherPack(installed_, shipped_));
    ASSERT_TRUE(UpdatePack(installed_, shipped_));
    EXPECT_EQ(Words("ho_.dic"), "homebrew horse hotel house ");
    EXPECT_EQ(Words("mo_.dic"), "moose ") << "nobody had changed it";
    EXPECT_EQ(Words("zz_.dic"), "zzz ") << "the user's own file";
    EXPECT_FALSE(fs::exists(installed_ / "ow_.dic")) << "the pack has it no more";
    EXPECT_FALSE(fs::exists(installed_ / kPiecesFile)) << "nor its pieces";
    EXPECT_FALSE(fs::exists(installed_ / kCompoundsFile));
    EXPECT_TRUE(fs::exists(installed_ / "frequencies.txt"));
    EXPECT_FALSE(IsOtherPack(installed_, shipped_)) << "it is up to date";
    EXPECT_EQ(fs::last_write_time(installed_ / kPackListFile),
              fs::last_write_time(shipped_ / kPackListFile));
}

TEST_F(PackUpdate, OfAPackWithoutAListMovesThePiecesOut) {
    Build(installed_, "isn't\nisn\nisle\n");
    fs::remove(installed_ / kPackListFile);
    Build(shipped_, "isn't\nisle\nism\n", "isn\n");
    EXPECT_FALSE(IsOtherPack(installed_, shipped_)) << "nothing tells that it is a pack";
    WriteBytes(installed_ / "frequencies.txt", "isle 3\n");
    ASSERT_TRUE(IsOtherPack(installed_, shipped_));
    Add("is_.dic", "isabelline,10000\r\n");
    ASSERT_TRUE(UpdatePack(installed_, shipped_));
    EXPECT_EQ(Words("is_.dic"), "isabelline isle ism isn't ");
    EXPECT_TRUE(fs::exists(installed_ / kPiecesFile));
}

TEST_F(PackUpdate, LeavesWhatItsOwnerBuilt) {
    Build(installed_, "house\n", "", PackOrigin::Own);
    Build(shipped_, "hotel\n");
    EXPECT_FALSE(IsOtherPack(installed_, shipped_));
    Build(shipped_, "hotel\n", "", PackOrigin::Own);
    Build(installed_, "house\n");
    EXPECT_FALSE(IsOtherPack(installed_, shipped_)) << "the other is no pack";
}

TEST_F(PackUpdate, ThatFailsLosesNothingAndComesAgain) {
    Build(installed_, "house\nmouse\n");
    Add("ho_.dic", "homebrew,10000\r\n");
    Build(shipped_, "hotel\nmoose\n");
    fs::remove(shipped_ / "mo_.dic");
    fs::create_directories(installed_ / "blocked_.dic" / "inside");
    WriteBytes(shipped_ / "blocked_.dic", "x,1\r\n");
    EXPECT_FALSE(UpdatePack(installed_, shipped_));
    EXPECT_NE(Words("ho_.dic").find("homebrew "), std::string::npos);
    EXPECT_TRUE(IsOtherPack(installed_, shipped_));
    fs::remove_all(installed_ / "blocked_.dic");
    EXPECT_TRUE(UpdatePack(installed_, shipped_));
    EXPECT_EQ(Words("ho_.dic"), "homebrew hotel house ");
}

}  // namespace
}  // namespace wordhawk
