#include "dict/build.h"

#include "dict/code_page_file.h"
#include "dict/dictionary_file.h"
#include "dict/lines.h"
#include "dict/phonetic_key.h"
#include "platform/replace_file.h"

#include <algorithm>
#include <map>
#include <span>
#include <unordered_set>
#include <utility>

namespace wordhawk {
namespace {

constexpr std::size_t kShortestPiece = 2;
constexpr wchar_t kByteOrderMark = 0xFEFF;

/// Calls `use(word)` for every line of a list, trimmed and lower-cased, unless it is empty.
template <class Use>
Result<void> ForEachWordOf(const Path& list, const AnsiCodePage& page, Use&& use) {
    const Result<std::string> bytes = ReadWholeFile(list, Accepted::Streams);
    if (!bytes) return tl::unexpected(bytes.error());
    const bool is_utf8 = IsUtf8(*bytes);
    bool at_start = true;
    ForEachLine(*bytes, [&](std::string_view line) {
        std::wstring text = is_utf8 ? FromUtf8(line) : page.Decode(line);
        if (std::exchange(at_start, false) && is_utf8 && text.starts_with(kByteOrderMark))
            text.erase(0, 1);
        const std::wstring word = Lower(Trim(text));
        if (!word.empty()) use(word);
    });
    return {};
}

template <class Use>
void ForEachPiece(std::wstring_view word, std::wstring_view delimiters, Use&& use) {
    for (std::size_t start = 0; start < word.size();) {
        const std::size_t stop = std::min(word.find_first_of(delimiters, start), word.size());
        if (stop - start >= kShortestPiece) use(word.substr(start, stop - start));
        start = stop + 1;
    }
}

/// The entry lines of all lists, by the file that they go to.
class WordCollection {
  public:
    explicit WordCollection(const BuildOptions& options)
        : options_(options), file_of_beginning_(65536) {}

    /// To be called before the words are added.
    void Exclude(const std::wstring& word) {
        if (PageHolds(word, *options_.page)) excluded_.insert(EntryLine(word, *options_.page));
    }

    void Add(const std::wstring& word) {
        AddOne(word);
        if (word.find_first_of(options_.piece_delimiters) == std::wstring::npos) return;
        ForEachPiece(word, options_.piece_delimiters,
                     [this](std::wstring_view piece) { AddOne(piece); });
    }

    std::size_t Skipped() const { return skipped_; }
    /// File name -> its lines, in no order and with repeats.
    const std::map<std::wstring, std::string>& Files() const { return files_; }

  private:
    void AddOne(std::wstring_view word) {
        const Result<std::string> line = CheckedEntryLine(word, *options_.page);
        if (!line) {
            ++skipped_;
        } else if (excluded_.empty() || !excluded_.contains(*line)) {
            FileOf(*line, word) += *line;
        }
    }

    std::string& FileOf(std::string_view line, std::wstring_view word) {
        const auto byte = [line](std::size_t i) { return static_cast<unsigned char>(line[i]); };
        std::string*& file = file_of_beginning_[byte(0) * 256u + byte(1)];
        if (file == nullptr) file = &files_[GetDictionaryFileName(word, *options_.page)];
        return *file;
    }

    const BuildOptions& options_;
    std::unordered_set<std::string> excluded_;
    std::map<std::wstring, std::string> files_;
    /// By the first two bytes of a line; the second is the comma after a single letter.
    std::vector<std::string*> file_of_beginning_;
    std::size_t skipped_ = 0;
};

}  // namespace

Result<BuildReport> BuildDictionary(std::span<const Path> word_lists, const Path& output,
                                    const BuildOptions& options) {
    WordCollection words(options);
    for (const Path& list : options.excluded_lists) {
        const Result<void> read = ForEachWordOf(
            list, *options.page, [&](const std::wstring& word) { words.Exclude(word); });
        if (!read) return tl::unexpected(read.error());
    }
    for (const Path& list : word_lists) {
        const Result<void> read =
            ForEachWordOf(list, *options.page, [&](const std::wstring& word) { words.Add(word); });
        if (!read) return tl::unexpected(read.error());
    }

    if (!MakeFolder(output))
        return tl::unexpected(Error{L"the output folder cannot be made", output});
    BuildReport report{0, 0, words.Skipped()};
    for (const auto& [name, bytes] : words.Files()) {
        const std::string sorted = dictionary_edit::SortedDistinct(bytes, *options.page);
        // Hundreds of files that can be built again are not worth a flush to the disk each.
        const Result<void> written =
            ReplaceFileContents(output / PathFromText(name), sorted, Durability::LeftToTheSystem);
        if (!written) return tl::unexpected(written.error());
        report.words += static_cast<std::size_t>(std::count(sorted.begin(), sorted.end(), '\n'));
        ++report.files;
    }
    if (const Result<void> noted = WriteCodePageOfFolder(output, *options.page); !noted)
        return tl::unexpected(noted.error());
    return report;
}

}  // namespace wordhawk
