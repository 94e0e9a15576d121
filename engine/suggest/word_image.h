#pragma once

#include "dict/word_table.h"
#include "platform/file_stamps.h"
#include "platform/text.h"

#include <array>
#include <bit>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace wordhawk {

/// All words of a language in one block of bytes, as it stands in the cache file: the words of each
/// dictionary file with how common they are, a table of them, and an index of their beginnings. It
/// is derived from the dictionary files, whose stamps it holds; see BuildWordImage. Little-endian.
class WordImage {
  public:
    using Number = std::uint32_t;

    /// How common a word is, in fifteenths of a nat above the rarest; words without a count have 0.
    static constexpr float kStepsOfCommonness = 15;
    /// Longer words are left out.
    static constexpr std::size_t kLongestWord = kLongestTableWord;

    /// One dictionary file, as it was.
    struct FileRow {
        FileStamp stamp;
        std::uint32_t name;  ///< offset among the names
        std::uint32_t name_size;
        std::uint32_t first_word;
        std::uint32_t words;
    };

    struct Header {
        std::array<char, 8> magic;
        std::uint32_t version;
        std::uint32_t code_page;
        std::uint64_t checksum;         ///< of what is behind it, up to the search's parts
        std::uint64_t search_checksum;  ///< of these
        FileStamp frequencies;
        std::uint32_t files;
        std::uint32_t words;
        std::uint32_t prefixes;
        std::uint32_t entries;
        std::uint32_t bucket_bits;
        std::uint32_t text_size;
        std::uint32_t names_size;
        std::uint32_t pairs;
        std::uint32_t sounds;  ///< words listed by sound: all but the pairs, or none
        std::uint32_t sound_bits;
    };

    /// What an image is read for: the files and the table of words alone, a quarter of it, or the
    /// search as well.
    enum class Use { Table, Search };

    /// Reads the block; none when it is damaged as far as it is used, cut short, of another version
    /// or for another page. `bytes` must stay, and begin where a 64-bit number may.
    static std::optional<WordImage> Read(std::string_view bytes, int code_page,
                                         Use use = Use::Search);

    std::uint32_t WordCount() const { return header_.words; }
    std::string_view Word(std::uint32_t i) const { return table_.Word(i); }
    std::uint32_t Groups(std::uint32_t i) const { return groups_[i]; }
    std::span<const Number> AllGroups() const { return groups_; }
    /// Whether it is no word but two with a blank between them that are often written as one. These
    /// stand behind all words; neither of the two need be in a dictionary.
    bool IsPair(std::uint32_t i) const { return i + std::uint64_t{header_.pairs} >= header_.words; }
    /// All words, the pairs too.
    const WordTable& Table() const { return table_; }
    std::uint32_t PairCount() const { return std::min(header_.pairs, header_.words); }
    std::uint8_t Commonness(std::uint32_t i) const { return commonness_[i]; }
    /// The place of a word; none when it is not there.
    std::optional<std::uint32_t> Find(std::string_view word) const {
        return table_.Find(word, DictionaryFile::HashBytes(word));
    }

    const FileStamp& FrequenciesStamp() const { return header_.frequencies; }
    std::span<const FileRow> Files() const { return files_; }
    /// In UTF-8.
    std::string_view FileName(const FileRow& file) const {
        return names_.substr(std::min<std::size_t>(file.name, names_.size()), file.name_size);
    }

    /// Calls `use(first, last)` for ranges of words among which are all that are at most two edits
    /// from a word with this beginning (see skeletons). A range may come more than once.
    template <class Use>
    void ForEachNearRange(std::span<const std::uint32_t> buckets, Use&& use) const {
        for (const std::uint32_t bucket : buckets) {
            const std::uint32_t last = std::min(heads_[bucket + 1], header_.entries);
            for (std::uint32_t i = heads_[bucket]; i < last; ++i) {
                const std::uint32_t prefix = entries_[i];
                if (prefix < header_.prefixes)
                    use(prefix, prefix_starts_[prefix],
                        std::min(prefix_starts_[prefix + 1], header_.words));
            }
        }
    }
    /// Places of words among which are all that have this sound (see SoundOf); none where the image
    /// was made without. They may be WordCount() and above when the image was tampered with.
    std::span<const Number> PlacesBySound(std::string_view sound) const;
    unsigned BucketBits() const { return header_.bucket_bits; }
    std::uint32_t PrefixCount() const { return header_.prefixes; }

  private:
    WordImage() = default;

    Header header_{};
    std::span<const FileRow> files_;
    WordTable table_;
    std::span<const Number> groups_;
    std::span<const Number> prefix_starts_;
    std::span<const Number> heads_;
    std::span<const Number> entries_;
    std::span<const Number> sound_heads_;
    std::span<const Number> sound_words_;
    std::span<const std::uint8_t> commonness_;
    std::string_view names_;
};

/// Words that sound the same (see SoundOf) have the same.
inline std::uint32_t SoundHash(std::string_view sound) { return DictionaryFile::HashBytes(sound); }

namespace word_image {

inline constexpr std::array<char, 8> kMagic = {'W', 'H', 'W', 'O', 'R', 'D', 'S', '\n'};
/// To be raised whenever the layout, or what is derived, changes.
inline constexpr std::uint32_t kVersion = 4;

/// Where the parts of an image stand.
struct Layout {
    explicit Layout(const WordImage::Header& header);

    std::uint64_t files, names, offsets, slots, text;
    /// The parts that only the search needs.
    std::uint64_t groups, prefix_starts, heads, entries, sound_heads, sound_words, commonness;
    std::uint64_t size;
};

/// Where the words of a sound begin in the list by sound.
inline std::uint32_t SoundBucket(std::string_view sound, unsigned bits) {
    return SoundHash(sound) >> (32 - bits);
}

/// Writes both checksums, as far as the parts lie within the image. It holds a whole header, with
/// numbers of bits that an image may have.
void Seal(std::string& image);

}  // namespace word_image
}  // namespace wordhawk
