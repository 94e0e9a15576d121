#include "engine/suggest/build_word_image.h"

#include "dict/dictionary_file.h"
#include "dict/lines.h"
#include "dict/phonetic_key.h"
#include "engine/suggest/logarithm.h"
#include "engine/suggest/word_skeletons.h"
#include "engine/suggest/word_traits.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <span>
#include <type_traits>
#include <unordered_map>
#include <vector>

namespace wordhawk {
namespace {

/// Counts below this differ by chance; it also is the count of a word without one.
constexpr double kChance = 5;

using Commonness = std::unordered_map<std::string, std::uint8_t>;

Commonness ReadCommonness(const Path& file, const AnsiCodePage& page) {
    Commonness commonness;
    const Result<std::string> bytes = ReadWholeFile(file);
    if (!bytes) return commonness;
    ForEachLine(*bytes, [&](std::string_view line) {
        const std::size_t blank = line.rfind(' ');
        if (blank == std::string_view::npos) return;
        const std::string_view digits = line.substr(blank + 1);
        std::uint64_t count = 0;
        std::from_chars(digits.data(), digits.data() + digits.size(), count);
        const double nats = NaturalLog((static_cast<double>(count) + kChance) / kChance);
        commonness[page.Encode(FromUtf8(line.substr(0, blank)))] =
            static_cast<std::uint8_t>(std::min(255.0, nats * WordImage::kStepsOfCommonness + 0.5));
    });
    return commonness;
}

/// Collects the parts of an image and writes them behind each other.
class ImageWriter {
  public:
    ImageWriter(const WordImageSources& sources, std::span<const StampedName> files)
        : page_(*sources.page),
          by_sound_(sources.by_sound),
          commonness_(ReadCommonness(sources.frequencies, page_)) {
        header_.magic = word_image::kMagic;
        header_.version = word_image::kVersion;
        header_.code_page = static_cast<std::uint32_t>(page_.Number());
        header_.frequencies = StampOf(sources.frequencies);
        for (const auto& [word, commonness] : commonness_)
            may_be_counted_[PlaceInCounted(word)] = true;
        // Room for as many words as there can be, which costs nothing until it is used: parts that
        // grow would leave holes in memory behind.
        constexpr std::size_t kShortestLine = 8;
        std::size_t bytes = 0;
        for (const StampedName& file : files) bytes += file.stamp.size;
        text_.reserve(bytes);
        offsets_.reserve(bytes / kShortestLine);
        groups_.reserve(bytes / kShortestLine);
        values_.reserve(bytes / kShortestLine);
        offsets_.push_back(0);
    }

    void AddFile(const Path& folder, const StampedName& file) {
        const std::string name = ToUtf8(file.name);
        WordImage::FileRow row{};
        row.stamp = file.stamp;
        row.name = static_cast<std::uint32_t>(names_.size());
        row.name_size = static_cast<std::uint32_t>(name.size());
        row.first_word = static_cast<std::uint32_t>(values_.size());
        names_ += name;
        const Result<std::string> bytes = ReadWholeFile(folder / PathFromText(file.name));
        if (bytes) AddWords(*bytes, name);
        row.words = static_cast<std::uint32_t>(values_.size()) - row.first_word;
        files_.push_back(row);
    }

    /// Behind the words of all files.
    void AddPairs() {
        std::vector<std::string> pairs;
        for (const auto& [word, commonness] : commonness_) {
            if (word.find(' ') != std::string::npos && word.size() <= WordImage::kLongestWord)
                pairs.push_back(word);
        }
        std::sort(pairs.begin(), pairs.end());
        for (const std::string& pair : pairs) AddWord(pair);
        header_.pairs = static_cast<std::uint32_t>(pairs.size());
    }

    /// The image; the writer is used up.
    std::string Finish() {
        prefix_starts_.push_back(static_cast<std::uint32_t>(values_.size()));
        BuildIndex();
        BuildSoundIndex();
        commonness_ = Commonness();
        header_.files = static_cast<std::uint32_t>(files_.size());
        header_.words = static_cast<std::uint32_t>(values_.size());
        header_.prefixes = static_cast<std::uint32_t>(prefixes_.size());
        prefixes_ = std::vector<std::uint64_t>();
        header_.sounds = static_cast<std::uint32_t>(sound_words_.size());
        header_.entries = static_cast<std::uint32_t>(entries_.size());
        header_.text_size = static_cast<std::uint32_t>(text_.size());
        header_.names_size = static_cast<std::uint32_t>(names_.size());
        const word_image::Layout layout(header_);
        std::string image;
        image.reserve(layout.size);
        // Each part leaves its own memory to the image as it goes there.
        const auto move_to = [&image](std::uint64_t at, auto& part) {
            image.resize(at);
            if (!part.empty())
                image.append(reinterpret_cast<const char*>(part.data()),
                             part.size() * sizeof part[0]);
            // An assignment would let a text keep its memory.
            std::remove_reference_t<decltype(part)>().swap(part);
        };
        move_to(layout.files, files_);
        move_to(layout.names, names_);
        std::vector<std::uint32_t> slots = WordTable::SlotsOf(offsets_, text_);
        move_to(layout.offsets, offsets_);
        move_to(layout.slots, slots);
        move_to(layout.text, text_);
        move_to(layout.groups, groups_);
        move_to(layout.prefix_starts, prefix_starts_);
        move_to(layout.heads, heads_);
        move_to(layout.entries, entries_);
        move_to(layout.sound_heads, sound_heads_);
        move_to(layout.sound_words, sound_words_);
        move_to(layout.commonness, values_);
        image.resize(layout.size);
        std::memcpy(image.data(), &header_, sizeof header_);
        word_image::Seal(image);
        return image;
    }

  private:
    void AddWords(std::string_view bytes, std::string_view file_name) {
        words_.clear();
        MainEntryTest test(file_name, page_);
        ForEachEntry(bytes, false, [&](std::string_view word) {
            if (test.Passes(word)) words_.push_back(word);
        });
        std::sort(words_.begin(), words_.end());
        words_.erase(std::unique(words_.begin(), words_.end()), words_.end());
        for (const std::string_view word : words_) AddWord(word);
    }

    void AddWord(std::string_view word) {
        const std::uint64_t prefix = skeletons::PrefixOf(word);
        if (prefixes_.empty() || prefixes_.back() != prefix) {
            prefixes_.push_back(prefix);
            prefix_starts_.push_back(static_cast<std::uint32_t>(values_.size()));
        }
        text_ += word;
        offsets_.push_back(static_cast<std::uint32_t>(text_.size()));
        groups_.push_back(LetterGroups(word));
        values_.push_back(CommonnessOf(word));
    }

    static std::size_t PlaceInCounted(std::string_view word) {
        return DictionaryFile::HashBytes(word) >> (32 - kCountedBits);
    }

    std::uint8_t CommonnessOf(std::string_view word) {
        if (!may_be_counted_[PlaceInCounted(word)]) return 0;
        key_ = word;
        const auto known = commonness_.find(key_);
        return known == commonness_.end() ? std::uint8_t{0} : known->second;
    }

    /// Lists the prefixes by the buckets of their skeletons.
    void BuildIndex() {
        constexpr std::size_t kSkeletonsEach = 20;
        constexpr std::size_t kEntriesEach = 2;
        header_.bucket_bits = static_cast<std::uint32_t>(
            std::bit_width(prefixes_.size() * kSkeletonsEach / kEntriesEach + 1));
        std::array<std::uint32_t, skeletons::kMost> buckets;
        ListByBucket(header_.bucket_bits, prefixes_.size(), heads_, entries_,
                     [&](std::size_t prefix) {
                         const std::size_t count =
                             skeletons::BucketsOf(prefixes_[prefix], header_.bucket_bits, buckets);
                         return std::span<const std::uint32_t>(buckets.data(), count);
                     });
    }

    /// Lists the words by the buckets of their sounds.
    void BuildSoundIndex() {
        const std::size_t words = by_sound_ ? values_.size() - header_.pairs : 0;
        header_.sound_bits = static_cast<std::uint32_t>(std::bit_width(words + 1));
        const std::array<Letter, 256> letters = letters::OfPage(page_);
        std::vector<std::uint32_t> buckets(words);
        for (std::size_t i = 0; i < words; ++i) {
            const std::string_view word =
                std::string_view(text_).substr(offsets_[i], offsets_[i + 1] - offsets_[i]);
            buckets[i] =
                word_image::SoundBucket(SoundOf(SpellingOf(word, letters)), header_.sound_bits);
        }
        ListByBucket(header_.sound_bits, words, sound_heads_, sound_words_, [&](std::size_t word) {
            return std::span<const std::uint32_t>(&buckets[word], 1);
        });
    }

    /// Puts the numbers below `count` into `list`, each as often as `buckets_of(number)` says;
    /// those of a bucket begin at its head. Counts, then places them.
    template <class BucketsOf>
    static void ListByBucket(std::uint32_t bits, std::size_t count,
                             std::vector<std::uint32_t>& heads, std::vector<std::uint32_t>& list,
                             BucketsOf buckets_of) {
        heads.assign((std::size_t{1} << bits) + 1, 0);
        for (std::size_t i = 0; i < count; ++i) {
            for (const std::uint32_t bucket : buckets_of(i)) ++heads[bucket + 1];
        }
        for (std::size_t i = 1; i < heads.size(); ++i) heads[i] += heads[i - 1];
        list.resize(heads.back());
        // From behind, so that each head ends where its entries begin.
        for (std::size_t i = count; i-- > 0;) {
            for (const std::uint32_t bucket : buckets_of(i))
                list[--heads[bucket + 1]] = static_cast<std::uint32_t>(i);
        }
        // Every head has moved to the start of its own entries, one place too high.
        std::copy(heads.begin() + 1, heads.end(), heads.begin());
        heads.back() = static_cast<std::uint32_t>(list.size());
    }

    static constexpr int kCountedBits = 22;

    const AnsiCodePage& page_;
    bool by_sound_;
    Commonness commonness_;
    /// By some bits of their hashes, the words that may have a count: of millions of forms few do.
    std::vector<bool> may_be_counted_ = std::vector<bool>(std::size_t{1} << kCountedBits);
    WordImage::Header header_{};
    std::vector<WordImage::FileRow> files_;
    std::vector<std::uint32_t> offsets_;
    std::vector<std::uint32_t> groups_;
    std::vector<std::uint64_t> prefixes_;
    std::vector<std::uint32_t> prefix_starts_;
    std::vector<std::uint32_t> heads_;
    std::vector<std::uint32_t> entries_;
    std::vector<std::uint32_t> sound_heads_;
    std::vector<std::uint32_t> sound_words_;
    std::vector<std::uint8_t> values_;
    std::string text_;
    std::string names_;
    std::vector<std::string_view> words_;
    std::string key_;
};

}  // namespace

MainEntryTest::MainEntryTest(std::string_view file_name, const AnsiCodePage& page)
    : file_name_(FromUtf8(file_name)), page_(page) {}

bool MainEntryTest::Passes(std::string_view word) {
    if (!FitsTable(word, page_)) return false;
    if (const std::string_view beginning = word.substr(0, 2); beginning != beginning_) {
        beginning_ = beginning;
        // Without regard to case, as some file systems look for names.
        belongs_ =
            EqualIgnoringCase(GetDictionaryFileName(page_.Decode(beginning), page_), file_name_);
    }
    return belongs_;
}

std::string BuildWordImage(const WordImageSources& sources, Progress& progress) {
    const std::vector<StampedName> files = StampedFiles(sources.folder, L".dic");
    ImageWriter writer(sources, files);
    progress.SetRange(files.size());
    std::uint64_t done = 0;
    for (const StampedName& file : files) {
        writer.AddFile(sources.folder, file);
        progress.SetPosition(++done);
        if (progress.YieldAndAskCancel()) return {};
    }
    writer.AddPairs();
    return writer.Finish();
}

}  // namespace wordhawk
