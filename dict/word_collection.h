#pragma once

#include "dict/usage_list.h"
#include "platform/result.h"
#include "platform/text.h"

#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace wordhawk {

/// How a dictionary's words are cut, and which of them are left out.
struct CollectionRules {
    const AnsiCodePage* page = &AnsiCodePage::Get(1252);
    /// Characters that cut words always: a word's parts are words of the dictionary as well.
    std::wstring cuts;
    /// Characters that cut words only where letters delimit: the parts go into the list of pieces.
    std::wstring letter_cuts;
    /// With it, names and parts of up to five letters and words that hide slips are taken only when
    /// people use them. Of what is joined by an apostrophe the longest part decides.
    UsageList in_use;
    /// Takes short names whether people use them or not.
    bool any_short_names = false;
    /// With it, names that are one slip away from a common word are taken only when people use
    /// them.
    UsageList names_in_use;
    /// With it, parts of compounds that have but three letters are taken only when they are common.
    UsageList parts_in_use;
};

/// How a word comes to the collection.
enum class WordSource {
    /// From a plain list: taken as it is, and cut.
    List,
    /// Spelled out by rules: one that holds cutting characters is only cut, as rules join endings
    /// to words by hyphens in endless number.
    Rules,
};

/// The entry lines of a dictionary in the making, by the file that they go to.
class WordCollection {
  public:
    explicit WordCollection(const CollectionRules& rules);

    /// To be called before the words are added.
    void Exclude(const std::wstring& word);
    /// `word` trimmed, in its own case.
    void Add(std::wstring_view word, WordSource source);
    void AddPiece(std::wstring_view word);
    /// A part of compounds, in its own case, with its roles (see CompoundRole).
    void AddCompoundPart(std::wstring_view part, unsigned roles);

    /// Words that the page cannot hold, or that hold a comma or a control character.
    std::size_t Skipped() const { return skipped_; }
    /// File name -> its lines, in no order and with repeats.
    const std::map<std::wstring, std::string>& Files() const { return files_; }
    /// Bytes of the lists of a PackExtras; empty when nothing was added.
    std::string Pieces();
    std::string CompoundParts() const;

  private:
    enum class Form { AsWritten, Part };
    void AddWord(const std::wstring& lower, Form form, bool is_name);
    /// Whether the rules on words in use keep a word out.
    bool IsLeftOut(const std::wstring& lower, Form form, bool is_name) const;
    std::string& FileOf(std::string_view line, std::wstring_view word);

    const CollectionRules& rules_;
    std::unordered_set<std::string> excluded_;
    std::map<std::wstring, std::string> files_;
    /// By the first two bytes of a line; the second is the comma after a single letter.
    std::vector<std::string*> file_of_beginning_;
    std::vector<std::string> pieces_;
    std::unordered_map<std::string, unsigned> parts_;
    std::size_t skipped_ = 0;
};

}  // namespace wordhawk
