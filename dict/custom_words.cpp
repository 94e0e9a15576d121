#include "dict/custom_words.h"

#include "dict/change_file.h"
#include "dict/dictionary_names.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"

#include <unordered_map>

namespace wordhawk {
namespace {

using dictionary_edit::SortMoment;
using dictionary_edit::WithEntries;

constexpr std::wstring_view kDefaultCustomName = L"CUSTOM.DIC";
/// Shorter lists are done before a progress display could be read.
constexpr std::size_t kFewestWordsWithProgress = 10;

/// Why nothing can be written to `target`, if so: its name comes from the settings.
Result<void> CheckTarget(DictionaryStore& store, AddTarget target) {
    if (target != AddTarget::ActiveCustom) return {};
    store.ActiveCustomPath();
    const Result<std::wstring> name = CustomDictionaryName(store.CurrentSettings().CustomDic);
    if (!name && !IsPlainFileName(store.CurrentSettings().CustomDic))
        return tl::unexpected(name.error());
    return {};
}

Result<bool> AddEntries(DictionaryStore& store, const Path& file,
                        const std::vector<std::string>& entries, SortMoment moment) {
    return ChangeDictionaryFile(file, [&](std::string_view bytes) {
        return WithEntries(bytes, entries, store.Page(), moment);
    });
}

/// The progress of Add All, shown for lists that are long enough.
class AddingDisplay {
  public:
    AddingDisplay(const ProgramState& state, std::size_t count, Progress& progress)
        : progress_(progress),
          count_(std::to_wstring(count)),
          is_shown_(count >= kFewestWordsWithProgress) {
        using modLoadRes::LoadResText;
        if (!is_shown_) return;
        progress_.Show(LoadResText(state, text_id::kPleaseWait, {}, L"..."));
        progress_.SetCaption(LoadResText(state, text_id::kAdding, {}, L" " + count_ + L" ") +
                             LoadResText(state, text_id::kWordsToDictionary));
        progress_.SetRange(count);
    }
    ~AddingDisplay() {
        if (is_shown_) progress_.Hide();
    }
    AddingDisplay(const AddingDisplay&) = delete;
    AddingDisplay& operator=(const AddingDisplay&) = delete;

    void Step(std::size_t position) {
        if (!is_shown_) return;
        progress_.SetCaption(L"Adding word " + std::to_wstring(position) + L" of " + count_);
        progress_.SetPosition(position);
    }

  private:
    Progress& progress_;
    std::wstring count_;
    bool is_shown_;
};

/// Entries for one file, written together.
struct Batch {
    Path file;
    std::vector<std::string> entries;
    std::size_t words_to_come = 0;
};

/// Sorts the words of a list into batches by their file, in the order of the list.
class BatchPlan {
  public:
    BatchPlan(DictionaryStore& store, std::span<const std::wstring> words, AddTarget target,
              Path& path) {
        std::unordered_map<Path::string_type, std::size_t> known;
        Path shared;
        if (target != AddTarget::Main) shared = AdditionFile(store, {}, target, path);
        for (const std::wstring& word : words) {
            const Path file =
                target == AddTarget::Main ? AdditionFile(store, word, target, path) : shared;
            const auto [at, is_new] = known.emplace(file.native(), batches_.size());
            if (is_new) batches_.push_back({file, {}, 0});
            ++batches_[at->second].words_to_come;
            batch_of_word_.push_back(at->second);
        }
    }

    Batch& BatchOfWord(std::size_t i) { return batches_[batch_of_word_[i]]; }
    std::vector<Batch>& Batches() { return batches_; }

  private:
    std::vector<Batch> batches_;
    std::vector<std::size_t> batch_of_word_;
};

std::string_view WithoutLineEnd(std::string_view line) { return line.substr(0, line.size() - 2); }

}  // namespace

Path AdditionFile(DictionaryStore& store, std::wstring_view word, AddTarget target, Path& path) {
    switch (target) {
        case AddTarget::Main: return store.MainPathFor(Lower(word));
        case AddTarget::ActiveCustom: return store.ActiveCustomPath();
        case AddTarget::ExplicitFile: break;
    }
    if (path.empty()) path = store.CustomPath(kDefaultCustomName);
    return path;
}

Result<void> AddWordToDictionary(DictionaryStore& store, std::wstring_view word, AddTarget target,
                                 Path& path) {
    if (word.empty()) return {};
    if (const Result<void> allowed = CheckTarget(store, target); !allowed) return allowed;
    const Result<std::string> entry = CheckedEntryLine(word, store.Page());
    if (!entry) return tl::unexpected(entry.error());
    const Path file = AdditionFile(store, word, target, path);
    const Result<bool> added = AddEntries(store, file, {*entry}, SortMoment::AfterEachEntry);
    if (!added) return tl::unexpected(added.error());
    if (*added) store.ReloadCustomDictionaries();
    return {};
}

Result<void> AddWordsToDictionary(DictionaryStore& store, std::span<const std::wstring> words,
                                  AddTarget target, Path& path, Progress& progress) {
    bool& stop = store.State().StopFlag;
    stop = false;
    if (const Result<void> allowed = CheckTarget(store, target); !allowed) return allowed;
    // Main files are sorted after each word, others once: it decides what their first line hides.
    const SortMoment moment =
        target == AddTarget::Main ? SortMoment::AfterEachEntry : SortMoment::AfterLastEntry;
    BatchPlan plan(store, words, target, path);
    Result<void> outcome;
    const auto write = [&](Batch& batch) {
        const Result<bool> added = AddEntries(store, batch.file, batch.entries, moment);
        batch.entries.clear();
        if (!added) outcome = tl::unexpected(added.error());
        return added.has_value();
    };

    AddingDisplay display(store.State(), words.size(), progress);
    bool may_write = true;
    for (std::size_t i = 0; i < words.size() && may_write; ++i) {
        if (progress.YieldAndAskCancel()) stop = true;
        if (stop) break;
        display.Step(i + 1);
        Batch& batch = plan.BatchOfWord(i);
        Result<std::string> entry = CheckedEntryLine(words[i], store.Page());
        if (entry) {
            batch.entries.push_back(std::move(*entry));
        } else if (!words[i].empty() && outcome) {
            outcome = tl::unexpected(entry.error());
        }
        if (--batch.words_to_come == 0 && !batch.entries.empty()) may_write = write(batch);
    }
    for (Batch& batch : plan.Batches()) {
        if (may_write && !batch.entries.empty()) may_write = write(batch);
    }
    store.ReloadCustomDictionaries();
    return outcome;
}

Removal RemoveWordFromDictionaries(DictionaryStore& store, std::wstring_view word) {
    Removal removal;
    if (word.empty() || !PageHolds(word, store.Page())) return removal;
    const std::string line = EntryLine(word, store.Page());
    const std::string_view entry = WithoutLineEnd(line);
    std::vector<Path> files = {store.MainPathFor(Lower(word))};
    for (std::size_t i = 0; i < store.CustomCount(); ++i)
        files.push_back(store.CustomPath(store.CustomName(i)));
    for (const Path& file : files) {
        const Result<bool> holds = FileHoldsEntry(file, entry);
        if (!holds) removal.failures.push_back(holds.error());
        if (!holds.value_or(false)) continue;
        const Result<bool> removed = RemoveEntryFromFile(file, entry);
        if (!removed) {
            // It stays where it was found; the files behind are not its place.
            removal.failures.push_back(removed.error());
            break;
        }
        // Another program may have been faster.
        if (!*removed) continue;
        removal.file = file;
        if (file != files.front()) store.ReloadCustomDictionaries();
        break;
    }
    return removal;
}

Result<bool> RemoveWordFromCustomDictionary(DictionaryStore& store, std::wstring_view word,
                                            const Path& path) {
    if (word.empty() || !PageHolds(word, store.Page())) return false;
    const std::string line = EntryLine(word, store.Page());
    const Path file = path.empty() ? store.CustomPath(kDefaultCustomName) : path;
    Result<bool> removed = RemoveEntryFromFile(file, WithoutLineEnd(line));
    if (removed && *removed) store.ReloadCustomDictionaries();
    return removed;
}

}  // namespace wordhawk
