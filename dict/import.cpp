#include "dict/import.h"

#include "dict/change_file.h"
#include "dict/dictionary_names.h"
#include "dict/word_list.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"

#include <unordered_set>

namespace wordhawk {
namespace {

constexpr int kFlagSkipMainWords = kFirstShownImportFlag;
constexpr int kFlagSkipCustomWords = kFirstShownImportFlag + 1;

constexpr std::size_t kShortestWord = 2;

/// Which words the user's dictionaries hold already, as the two switches ask. The new dictionary
/// itself may be one of them: then what is about to be written to it counts as well.
class KnownWords {
  public:
    KnownWords(DictionaryStore& store, const DelimiterFlagStore& flags, bool new_one_is_active)
        : store_(store),
          skip_main_(flags.Get(kFlagSkipMainWords) == 1),
          skip_custom_(flags.Get(kFlagSkipCustomWords) == 1),
          remember_(new_one_is_active && skip_custom_) {}

    bool Hold(const std::wstring& word) const {
        if (remember_ && taken_.contains(word)) return true;
        if (skip_main_) {
            return store_.IsWordInDictionaries(
                word, skip_custom_ ? Scope::MainAndCustom : Scope::MainOnly);
        }
        return skip_custom_ && store_.IsWordInCustomDictionaries(word);
    }

    void Take(const std::wstring& word) {
        if (remember_) taken_.insert(word);
    }

  private:
    DictionaryStore& store_;
    bool skip_main_;
    bool skip_custom_;
    bool remember_;
    std::unordered_set<std::wstring> taken_;
};

bool IsActive(DictionaryStore& store, const Path& file) {
    for (std::size_t i = 0; i < store.CustomCount(); ++i) {
        if (store.CustomPath(store.CustomName(i)) == file) return true;
    }
    return false;
}

class ImportDisplay {
  public:
    ImportDisplay(const ProgramState& state, std::size_t lines, Progress& progress)
        : progress_(progress) {
        using modLoadRes::LoadResText;
        progress_.Show(LoadResText(state, text_id::kImporting));
        progress_.SetCaption(
            LoadResText(state, text_id::kChecking, {}, L" (" + std::to_wstring(lines) + L") ") +
            LoadResText(state, text_id::kWords, {}, L"..."));
        progress_.SetRange(lines);
    }
    ~ImportDisplay() { progress_.Hide(); }
    ImportDisplay(const ImportDisplay&) = delete;
    ImportDisplay& operator=(const ImportDisplay&) = delete;

    void Step(std::size_t position) { progress_.SetPosition(position); }

  private:
    Progress& progress_;
};

}  // namespace

std::wstring ImportedName(const Path& source) {
    const bool is_dictionary = EqualIgnoringCase(TextFromPath(source.extension()), L".dic");
    return is_dictionary ? TextFromPath(source.filename())
                         : TextFromPath(source.stem()).append(L".DIC");
}

Result<int> ImportDictionary(DictionaryStore& store, const DelimiterFlagStore& flags,
                             const Path& source, std::wstring_view file_name, Progress& progress,
                             UiServices& ui) {
    return ImportWordList(store, flags, source, file_name, progress, ui)
        .map([](const ImportReport& report) { return report.added; });
}

Result<ImportReport> ImportWordList(DictionaryStore& store, const DelimiterFlagStore& flags,
                                    const Path& source, std::wstring_view file_name,
                                    Progress& progress, UiServices& ui) {
    const Hourglass busy(ui);
    ProgramState& state = store.State();
    state.StopFlag = false;
    const Result<std::wstring> name = CustomDictionaryName(file_name);
    if (!name) return tl::unexpected(name.error());
    const Path target = store.CustomPath(*name);

    const std::string bytes = ReadWholeFile(source, Accepted::Streams).value_or(std::string());
    if (bytes.empty()) {
        ui.ShowMessage(modLoadRes::LoadResText(state, text_id::kHoldsNoWords),
                       modLoadRes::LoadResText(state, text_id::kDictionaryIsEmpty),
                       MessageIcon::Exclamation, MessageButtons::Ok);
        return ImportReport();
    }
    const std::vector<std::wstring> lines = EntriesOfWordList(bytes, store.Page());
    ImportDisplay display(state, lines.size(), progress);

    KnownWords known(store, flags, IsActive(store, target));
    ImportReport report;
    std::vector<std::string> entries;
    for (std::size_t i = 0; i < lines.size() && !state.StopFlag; ++i) {
        display.Step(i + 1);
        const std::wstring_view field = std::wstring_view(lines[i]).substr(0, lines[i].find(L','));
        const std::wstring word = Lower(Trim(field));
        if (word.size() < kShortestWord) {
            if (!lines[i].empty()) ++report.too_short;
        } else if (known.Hold(word)) {
            ++report.known;
        } else if (Result<std::string> entry = CheckedEntryLine(word, store.Page())) {
            entries.push_back(std::move(*entry));
            known.Take(word);
        } else {
            ++report.unfit;  // a control character, or one that the page lacks
        }
        progress.SetDetail(word);
        if (progress.YieldAndAskCancel()) state.StopFlag = true;
    }
    if (entries.empty()) return report;

    // One rewrite gives what a rewrite after each word would: the words are sorted in as if it
    // were.
    const Result<bool> written = ChangeDictionaryFile(target, [&](std::string_view old) {
        return dictionary_edit::WithEntries(old, entries, store.Page(),
                                            dictionary_edit::SortMoment::AfterEachEntry);
    });
    if (!written) return tl::unexpected(written.error());
    if (*written) store.ReloadCustomDictionaries();
    report.added = static_cast<int>(entries.size());
    return report;
}

}  // namespace wordhawk
