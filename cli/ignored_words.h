#pragma once

#include "platform/files.h"
#include "platform/result.h"
#include "platform/text.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace wordhawk {

/// Words that a run does not report, without regard to case and to the kind of apostrophe.
class WordSet {
  public:
    /// Adds the words of a list, one a line, UTF-8, UTF-16 or else ANSI; lines that begin with "#"
    /// are notes.
    void AddList(std::string_view bytes, const AnsiCodePage& page);
    bool Holds(std::wstring_view word) const;
    bool Empty() const { return words_.empty(); }

  private:
    std::unordered_set<std::wstring> words_;
};

/// The words of the lists that a run was given.
Result<WordSet> ReadWordLists(const std::vector<std::string>& files, const AnsiCodePage& page);

/// The words that projects know: those of every file ".wordhawk-words" in a text's folder and in
/// the folders above it, up to the repository's root, which has a ".git". Outside a repository
/// only the text's own folder counts.
class ProjectWords {
  public:
    static constexpr std::string_view kFileName = ".wordhawk-words";

    explicit ProjectWords(const AnsiCodePage& page) : page_(page) {}

    /// The words for texts in `folder`. Errors: a list is there and cannot be read.
    Result<std::shared_ptr<const WordSet>> In(const Path& folder);

  private:
    const AnsiCodePage& page_;
    std::map<Path, Result<std::shared_ptr<const WordSet>>> known_;
};

}  // namespace wordhawk
