#include "cli/ignored_words.h"

#include "app/apostrophes.h"
#include "cli/console.h"
#include "dict/word_list.h"

namespace wordhawk {
namespace {

/// The folders whose lists count for a text in `folder`.
std::vector<Path> FoldersOfProject(const Path& folder) {
    std::vector<Path> folders;
    for (Path at = folder;; at = at.parent_path()) {
        folders.push_back(at);
        std::error_code error;
        if (std::filesystem::exists(at / ".git", error)) return folders;
        if (at.parent_path() == at || at.empty()) return {folder};
    }
}

}  // namespace

void WordSet::AddList(std::string_view bytes, const AnsiCodePage& page) {
    for (const std::wstring& line : EntriesOfWordList(bytes, page)) {
        const std::wstring_view word = Trim(line);
        if (!word.empty() && !word.starts_with(L'#'))
            words_.insert(WithStraightApostrophes(Lower(word)));
    }
}

bool WordSet::Holds(std::wstring_view word) const {
    return !words_.empty() && words_.contains(WithStraightApostrophes(Lower(word)));
}

Result<WordSet> ReadWordLists(const std::vector<std::string>& files, const AnsiCodePage& page) {
    WordSet words;
    for (const std::string& file : files) {
        const auto bytes = ReadWholeFile(PathFromArgument(file), Accepted::Streams);
        if (!bytes) return tl::unexpected(bytes.error());
        words.AddList(*bytes, page);
    }
    return words;
}

Result<std::shared_ptr<const WordSet>> ProjectWords::In(const Path& folder) {
    const auto known = known_.find(folder);
    if (known != known_.end()) return known->second;
    const auto words = std::make_shared<WordSet>();
    Result<std::shared_ptr<const WordSet>> result = std::shared_ptr<const WordSet>(words);
    for (const Path& at : FoldersOfProject(folder)) {
        const Path list = at / kFileName;
        if (IsMissing(list)) continue;
        const auto bytes = ReadWholeFile(list);
        if (!bytes) {
            result = tl::unexpected(bytes.error());
            break;
        }
        words->AddList(*bytes, page_);
    }
    return known_.emplace(folder, result).first->second;
}

}  // namespace wordhawk
