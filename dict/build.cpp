#include "dict/build.h"

#include "dict/affix_expansion.h"
#include "dict/code_page_file.h"
#include "dict/dictionary_file.h"
#include "dict/lines.h"
#include "dict/pack_extras.h"
#include "platform/replace_file.h"

#include <algorithm>
#include <functional>
#include <system_error>
#include <utility>

namespace wordhawk {
namespace {

constexpr wchar_t kByteOrderMark = 0xFEFF;
// Hundreds of files that can be built again are not worth a flush to the disk each.
constexpr Durability kDurability = Durability::LeftToTheSystem;

using UseWord = std::function<void(std::wstring_view word)>;

/// Calls `use` for every line of each list, trimmed, unless it is empty.
Result<void> ForEachWordOf(std::span<const Path> lists, const AnsiCodePage& page,
                           const UseWord& use) {
    for (const Path& list : lists) {
        const Result<std::string> bytes = ReadWholeFile(list, Accepted::Streams);
        if (!bytes) return tl::unexpected(bytes.error());
        const bool is_utf8 = IsUtf8(*bytes);
        bool at_start = true;
        ForEachLine(*bytes, [&](std::string_view line) {
            std::wstring text = is_utf8 ? FromUtf8(line) : page.Decode(line);
            if (std::exchange(at_start, false) && is_utf8 && text.starts_with(kByteOrderMark))
                text.erase(0, 1);
            if (const std::wstring_view word = Trim(text); !word.empty()) use(word);
        });
    }
    return {};
}

Result<void> AddExpanded(std::span<const Path> dictionaries, WordCollection& words,
                         BuildReport& report) {
    for (const Path& dictionary : dictionaries) {
        const auto expanded =
            ExpandHunspellDictionary(dictionary, [&](std::wstring_view form, unsigned roles) {
                const bool is_stem = (roles & kWordStem) != 0;
                if ((roles & kWordAlone) != 0)
                    words.Add(form, is_stem ? WordSource::List : WordSource::Rules);
                roles &= kCompoundBegin | kCompoundMiddle | kCompoundEnd;
                if (roles != 0) words.AddCompoundPart(form, roles);
            });
        if (!expanded) return tl::unexpected(expanded.error());
        report.not_expressed.insert(expanded->not_expressed.begin(), expanded->not_expressed.end());
    }
    return {};
}

Result<void> WriteWords(const WordCollection& words, const AnsiCodePage& page, const Path& output,
                        BuildReport& report) {
    for (const auto& [name, bytes] : words.Files()) {
        const std::string sorted = dictionary_edit::SortedDistinct(bytes, page);
        const Result<void> written =
            ReplaceFileContents(output / PathFromText(name), sorted, kDurability);
        if (!written) return written;
        report.words += static_cast<std::size_t>(std::count(sorted.begin(), sorted.end(), '\n'));
        ++report.files;
    }
    return {};
}

Result<void> WriteList(const std::string& bytes, const Path& path) {
    if (!bytes.empty()) return ReplaceFileContents(path, bytes, kDurability);
    // One that an earlier build left would let words pass that this dictionary does not have.
    std::error_code failed;
    std::filesystem::remove(path, failed);
    return failed ? tl::unexpected(Error{FromUtf8(failed.message()), path}) : Result<void>();
}

}  // namespace

Result<BuildReport> BuildDictionary(std::span<const Path> word_lists, const Path& output,
                                    const BuildOptions& options) {
    const AnsiCodePage& page = *options.page;
    WordCollection words(options);
    BuildReport report;
    Result<void> done = ForEachWordOf(options.excluded_lists, page,
                                      [&](std::wstring_view word) { words.Exclude(Lower(word)); });
    if (done) {
        done = ForEachWordOf(word_lists, page,
                             [&](std::wstring_view word) { words.Add(word, WordSource::List); });
    }
    if (done) {
        done = ForEachWordOf(options.piece_lists, page,
                             [&](std::wstring_view word) { words.AddPiece(word); });
    }
    if (done) done = AddExpanded(options.hunspell_dictionaries, words, report);
    if (!done) return tl::unexpected(done.error());

    if (!MakeFolder(output))
        return tl::unexpected(Error{L"the output folder cannot be made", output});
    // The page comes last: only a finished dictionary has one noted.
    done = WriteWords(words, page, output, report);
    if (done) done = WriteList(words.Pieces(), output / kPiecesFile);
    if (done) done = WriteList(words.CompoundParts(), output / kCompoundsFile);
    if (done) done = WritePackList(output, options.origin);
    if (done) done = WriteCodePageOfFolder(output, page);
    if (!done) return tl::unexpected(done.error());
    report.skipped = words.Skipped();
    return report;
}

}  // namespace wordhawk
