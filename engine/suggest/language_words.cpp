#include "engine/suggest/language_words.h"

#include "engine/suggest/edit_costs.h"
#include "engine/suggest/word_skeletons.h"
#include "platform/replace_file.h"
#include "platform/single_writer.h"

#include <algorithm>
#include <utility>

namespace wordhawk {
namespace {

/// With more changed files than this the image is made anew.
constexpr std::size_t kMostChangedFiles = 8;

constexpr std::chrono::milliseconds kShortestPause{100};
constexpr int kPausePerLook = 20;

}  // namespace

void WordList::Add(std::string_view word, std::uint32_t sound) {
    text += word;
    offsets.push_back(static_cast<std::uint32_t>(text.size()));
    groups.push_back(LetterGroups(word));
    sounds.push_back(sound);
}

bool WordList::Holds(std::string_view word) const {
    for (std::size_t i = 0; i < size(); ++i) {
        if ((*this)[i] == word) return true;
    }
    return false;
}

Path LanguageWords::FrequenciesFile() const {
    const ProgramState& state = store_.State();
    Path beside = state.LanguageDictFolder / "frequencies.txt";
    // A folder that was filled by an earlier version has none.
    return IsFile(beside) ? beside : state.ShippedFrequencies;
}

WordImageSources LanguageWords::Sources() const {
    const LearnedTable& table = LearnedTableFor(NumberOrZero(store_.State().LanguageId));
    return {folder_, FrequenciesFile(), page_, KnowsSounds(table)};
}

bool LanguageWords::Refresh(Progress& progress) {
    const ProgramState& state = store_.State();
    const bool same = image_ && folder_ == state.LanguageDictFolder && page_ == state.CodePage &&
                      data_folder_ == state.DataFolder;
    const auto now = Clock::now();
    if (!same) {
        folder_ = state.LanguageDictFolder;
        data_folder_ = state.DataFolder;
        page_ = state.CodePage;
        letters_of_page_ = letters::OfPage(*page_);
        lists_.clear();
        main_lists_ = 0;
        image_.reset();
    }
    const FileStamp folder_stamp = StampOf(folder_ / ".");
    if (!same || now >= next_look_ || folder_stamp != folder_stamp_) {
        if ((!same || !CompareMainFiles()) && !OpenImage(progress)) return false;
        folder_stamp_ = folder_stamp;
        const auto after = Clock::now();
        next_look_ =
            after + std::max<Clock::duration>(kShortestPause, kPausePerLook * (after - now));
    }
    ReadCustomLists();
    return true;
}

bool LanguageWords::OpenImage(Progress& progress) {
    if (ReadCache() && CompareMainFiles()) return true;
    const Path cache = ImageFileOf(store_.State());
    MakeFolder(cache.parent_path());
    // Only one copy of the program makes it; those that waited find it made.
    const auto only_maker = SingleWriter::Acquire(cache.parent_path());
    if (only_maker && ReadCache() && CompareMainFiles()) return true;

    image_.reset();
    mapped_.reset();
    in_memory_ = BuildWordImage(Sources(), progress);
    if (in_memory_.empty()) return false;
    const bool written =
        only_maker && ReplaceFileContents(cache, in_memory_, Durability::LeftToTheSystem);
    // The file stands for the block in memory, which millions of words make large; an assignment
    // would keep it.
    if (written) std::string().swap(in_memory_);
    if (!written || !ReadCache()) {
        // Somebody took the file away again.
        if (written) in_memory_ = BuildWordImage(Sources(), progress);
        if (in_memory_.empty()) return false;
        image_ = WordImage::Read(in_memory_, page_->Number());
    }
    outdated_.clear();
    lists_.erase(lists_.begin(), lists_.begin() + static_cast<std::ptrdiff_t>(main_lists_));
    main_lists_ = 0;
    return true;
}

bool LanguageWords::ReadCache() {
    auto file = ImageFile::Open(ImageFileOf(store_.State()), page_->Number());
    if (!file) return false;
    image_ = std::move(file->image);
    mapped_ = std::move(file->mapped);
    return true;
}

bool LanguageWords::CompareMainFiles() {
    if (image_->FrequenciesStamp() != StampOf(FrequenciesFile())) return false;
    const std::vector<StampedName> now = StampedFiles(folder_, L".dic");
    std::vector<Range> outdated;
    std::vector<const StampedName*> changed;
    auto at = now.begin();
    // Both are ascending by name.
    for (const WordImage::FileRow& row : image_->Files()) {
        const std::wstring name = FromUtf8(image_->FileName(row));
        for (; at != now.end() && at->name < name; ++at) changed.push_back(&*at);
        const bool stands = at != now.end() && at->name == name;
        if (stands && at->stamp == row.stamp) {
            ++at;
            continue;
        }
        outdated.push_back({row.first_word, row.first_word + row.words});
        if (stands) changed.push_back(&*at++);
    }
    for (; at != now.end(); ++at) changed.push_back(&*at);
    if (outdated.size() > kMostChangedFiles || changed.size() > kMostChangedFiles) return false;

    std::sort(outdated.begin(), outdated.end(),
              [](const Range& a, const Range& b) { return a.first < b.first; });
    outdated_ = std::move(outdated);
    std::vector<WordList> custom(
        std::make_move_iterator(lists_.begin() + static_cast<std::ptrdiff_t>(main_lists_)),
        std::make_move_iterator(lists_.end()));
    lists_.resize(main_lists_);
    old_lists_ = std::exchange(lists_, {});
    for (const StampedName* const file : changed)
        KeepList(folder_ / PathFromText(file->name), file->stamp, false);
    main_lists_ = lists_.size();
    lists_.insert(lists_.end(), std::make_move_iterator(custom.begin()),
                  std::make_move_iterator(custom.end()));
    return true;
}

void LanguageWords::ReadCustomLists() {
    const bool main_only = store_.CurrentSettings().SuggFromMain != 0;
    const std::size_t count = main_only ? 0 : store_.CustomCount();
    std::vector<std::pair<Path, FileStamp>> wanted;
    for (std::size_t i = 0; i < count; ++i) {
        Path path = store_.CustomPath(store_.CustomName(i));
        const FileStamp stamp = StampOf(path);
        wanted.emplace_back(std::move(path), stamp);
    }
    const auto is_read = [](const WordList& list, const std::pair<Path, FileStamp>& file) {
        return list.path == file.first && list.stamp == file.second;
    };
    const auto custom = lists_.begin() + static_cast<std::ptrdiff_t>(main_lists_);
    if (std::equal(custom, lists_.end(), wanted.begin(), wanted.end(), is_read)) return;
    old_lists_.assign(std::make_move_iterator(custom), std::make_move_iterator(lists_.end()));
    lists_.resize(main_lists_);
    for (const auto& [path, stamp] : wanted) KeepList(path, stamp, true);
}

void LanguageWords::KeepList(const Path& path, const FileStamp& stamp, bool custom) {
    const auto known = std::find_if(old_lists_.begin(), old_lists_.end(), [&](const WordList& old) {
        return old.path == path && old.stamp == stamp;
    });
    if (known != old_lists_.end()) {
        lists_.push_back(std::move(*known));
        old_lists_.erase(known);
        return;
    }
    WordList& list = lists_.emplace_back();
    list.path = path;
    list.stamp = stamp;
    const Result<std::string> bytes = ReadWholeFile(path);
    if (!bytes) return;
    const std::string name = ToUtf8(TextFromPath(path.filename()));
    MainEntryTest test(name, *page_);
    ForEachEntry(*bytes, custom, [&](std::string_view word) {
        if (custom ? FitsTable(word, *page_) : test.Passes(word))
            list.Add(word, SoundHash(SoundOf(SpellingOf(word, letters_of_page_))));
    });
}

bool LanguageWords::IsOutdated(std::uint32_t word) const {
    return std::any_of(outdated_.begin(), outdated_.end(), [word](const Range& range) {
        return word >= range.first && word < range.last;
    });
}

}  // namespace wordhawk
