#pragma once

#include "app/progress.h"
#include "dict/dictionary_store.h"
#include "engine/suggest/build_word_image.h"
#include "engine/suggest/image_file.h"
#include "engine/suggest/letters.h"
#include "platform/file_stamps.h"

#include <array>
#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wordhawk {

/// The words of one file that is searched beside the image.
struct WordList {
    Path path;
    FileStamp stamp;
    std::string text;
    std::vector<std::uint32_t> offsets = {0};
    std::vector<std::uint32_t> groups;
    std::vector<std::uint32_t> sounds;  ///< hashes, see SoundHash

    std::size_t size() const { return groups.size(); }
    std::string_view operator[](std::size_t i) const {
        return std::string_view(text).substr(offsets[i], offsets[i + 1] - offsets[i]);
    }
    void Add(std::string_view word, std::uint32_t sound);
    bool Holds(std::string_view word) const;
};

/// Every word that a look-up would find on the disk now: the image of the main files, files that
/// changed since it was made, and the active custom dictionaries, unless the setting SuggFromMain
/// leaves these out. The image is kept in the folder "Cache" of the data folder, made anew when it
/// is missing, damaged or of another version or page, or when much has changed, and kept in memory
/// alone when it cannot be written there.
class LanguageWords {
  public:
    /// The store must outlive the object; its language and custom dictionaries may change.
    explicit LanguageWords(DictionaryStore& store) : store_(store) {}

    /// Brings the words up to date. Custom dictionaries and the folder of the main files are looked
    /// at each time, the single main files only after a pause, which is longer where looking takes
    /// long: a tenth of a second, or twenty times what looking took. False when there is no image
    /// because the user stopped its making; the words must not be used then.
    bool Refresh(Progress& progress);
    /// Makes the next Refresh look at every file.
    void LookAtAllFiles() { next_look_ = {}; }

    const WordImage& Image() const { return *image_; }
    /// Whether a word of the image stands in a file that changed; such a file is one of Lists().
    bool IsOutdated(std::uint32_t word) const;
    /// The changed main files and the custom dictionaries.
    const std::vector<WordList>& Lists() const { return lists_; }

  private:
    using Clock = std::chrono::steady_clock;

    Path FrequenciesFile() const;
    WordImageSources Sources() const;
    bool OpenImage(Progress& progress);
    bool ReadCache();
    void Adopt(WordImage image);
    /// False when the image does not serve any more.
    bool CompareMainFiles();
    void ReadCustomLists();
    void KeepList(const Path& path, const FileStamp& stamp, bool custom);

    DictionaryStore& store_;
    Path folder_;
    Path data_folder_;
    const AnsiCodePage* page_ = nullptr;
    std::array<Letter, 256> letters_of_page_{};
    FileStamp folder_stamp_;
    Clock::time_point next_look_{};

    /// Where the image stands in its file, what keeps that; and where it does not, itself.
    std::optional<MappedFile> mapped_;
    std::string in_memory_;
    std::optional<WordImage> image_;

    /// Ranges of words in files that changed, ascending.
    struct Range {
        std::uint32_t first;
        std::uint32_t last;
    };
    std::vector<Range> outdated_;
    std::vector<WordList> lists_;
    std::vector<WordList> old_lists_;
    /// The first of lists_ are main files.
    std::size_t main_lists_ = 0;
};

}  // namespace wordhawk
