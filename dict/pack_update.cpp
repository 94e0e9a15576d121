#include "dict/pack_update.h"

#include "dict/code_page_file.h"
#include "dict/dictionary_file.h"
#include "dict/lines.h"
#include "dict/pack_extras.h"
#include "dict/sorted_words.h"
#include "platform/file_stamps.h"
#include "platform/replace_file.h"
#include "platform/single_writer.h"

#include <algorithm>
#include <cstdint>
#include <system_error>
#include <vector>

namespace wordhawk {
namespace {

namespace fs = std::filesystem;

/// Shipped packs have had it for longer than the list.
constexpr std::string_view kFrequenciesFile = "frequencies.txt";

std::uint32_t Checksum(std::string_view bytes) {
    std::uint32_t sum = 2166136261u;
    for (const char c : bytes) sum = (sum ^ static_cast<unsigned char>(c)) * 16777619u;
    return sum;
}

std::vector<Path> FilesIn(const Path& folder) {
    std::vector<Path> files;
    std::error_code failed;
    for (fs::directory_iterator at(folder, failed), end; !failed && at != end; at.increment(failed))
        if (IsFile(at->path())) files.push_back(at->path().filename());
    return files;
}

bool IsDictionary(const Path& file) { return file.extension() == ".dic"; }

std::string ContentsOrNothing(const Path& path) { return ReadWholeFile(path).value_or(""); }

/// What becomes of each dictionary file of one pack.
class Update {
  public:
    Update(const Path& installed, const Path& shipped)
        : installed_(installed),
          shipped_(shipped),
          old_list_(ContentsOrNothing(installed / kPackListFile)),
          pieces_(ContentsOrNothing(shipped / kPiecesFile)) {}

    Result<void> Take(const Path& file) {
        Result<std::string> bytes = ReadWholeFile(shipped_ / file);
        if (!bytes) return tl::unexpected(bytes.error());
        if (IsDictionary(file) && IsFile(installed_ / file)) {
            const Result<std::string> old = ReadWholeFile(installed_ / file);
            if (!old) return tl::unexpected(old.error());
            if (*old == *bytes) return {};
            if (!IsUnchanged(file, *old)) bytes = WithKept(*old, std::move(*bytes));
        }
        return ReplaceFileContents(installed_ / file, *bytes, Durability::LeftToTheSystem);
    }

    /// Removes what the shipped pack has no more.
    void Drop(const Path& file) {
        std::error_code ignored;
        const std::string name = ToUtf8(TextFromPath(file));
        if (name == kPiecesFile || name == kCompoundsFile ||
            (IsDictionary(file) && IsUnchanged(file, ContentsOrNothing(installed_ / file))))
            fs::remove(installed_ / file, ignored);
    }

  private:
    bool IsUnchanged(const Path& file, std::string_view bytes) const {
        return old_list_.ValueOf(ToUtf8(TextFromPath(file))) == Checksum(bytes);
    }

    std::string WithKept(std::string_view old, std::string bytes) const {
        ForEachLine(old, [&](std::string_view line) {
            const std::string_view word = line.substr(0, line.find(','));
            const bool is_piece = old_list_.IsEmpty() && pieces_.ValueOf(word).has_value();
            if (!word.empty() && !is_piece) bytes.append(line).append("\r\n");
        });
        const AnsiCodePage* const page = CodePageOfFolder(shipped_);
        return dictionary_edit::SortedDistinct(bytes,
                                               page != nullptr ? *page : AnsiCodePage::Get(1252));
    }

    const Path& installed_;
    const Path& shipped_;
    SortedWords old_list_;
    SortedWords pieces_;
};

}  // namespace

Result<void> WritePackList(const Path& folder, PackOrigin origin) {
    std::vector<std::pair<std::string, unsigned>> sums;
    if (origin == PackOrigin::Shipped) {
        for (const Path& file : FilesIn(folder)) {
            if (!IsDictionary(file)) continue;
            sums.emplace_back(ToUtf8(TextFromPath(file)),
                              Checksum(ContentsOrNothing(folder / file)));
        }
    }
    return ReplaceFileContents(folder / kPackListFile, SortedWords::Make(std::move(sums)),
                               Durability::LeftToTheSystem);
}

void NoteSamePack(const Path& installed, const Path& shipped) {
    std::error_code ignored;
    const fs::file_time_type shipped_at = fs::last_write_time(shipped / kPackListFile, ignored);
    if (!ignored) fs::last_write_time(installed / kPackListFile, shipped_at, ignored);
}

bool IsOtherPack(const Path& installed, const Path& shipped) {
    // A copy carries its source's time, which saves reading both at every start.
    const FileStamp shipped_stamp = StampOf(shipped / kPackListFile);
    const FileStamp installed_stamp = StampOf(installed / kPackListFile);
    if (shipped_stamp.size == installed_stamp.size && shipped_stamp.time == installed_stamp.time)
        return false;
    const std::string wanted = ContentsOrNothing(shipped / kPackListFile);
    if (wanted.empty()) return false;
    if (!IsFile(installed / kPackListFile)) return IsFile(installed / kFrequenciesFile);
    const std::string present = ContentsOrNothing(installed / kPackListFile);
    return !present.empty() && present != wanted;
}

Result<void> UpdatePack(const Path& installed, const Path& shipped) {
    const auto only_writer = SingleWriter::Acquire(installed);
    if (!only_writer) return tl::unexpected(only_writer.error());
    if (!IsOtherPack(installed, shipped)) return {};  // another copy of the program was faster
    Update update(installed, shipped);
    const std::vector<Path> files = FilesIn(shipped);
    for (const Path& file : files) {
        if (file == kPackListFile) continue;
        if (const Result<void> taken = update.Take(file); !taken) return taken;
    }
    for (const Path& file : FilesIn(installed)) {
        if (std::ranges::find(files, file) == files.end()) update.Drop(file);
    }
    const Result<void> noted =
        ReplaceFileContents(installed / kPackListFile, ContentsOrNothing(shipped / kPackListFile));
    if (noted) NoteSamePack(installed, shipped);
    return noted;
}

}  // namespace wordhawk
