#include "engine/suggest/word_image.h"

#include <algorithm>
#include <cstring>

namespace wordhawk {
namespace {

std::uint64_t Checksum(std::string_view bytes) {
    // Four sums side by side, so that no step waits for the one before.
    std::array<std::uint64_t, 4> sums = {bytes.size(), 1, 2, 3};
    const auto mix = [](std::uint64_t sum, std::uint64_t next) {
        sum = (sum ^ next) * 0x9E3779B97F4A7C15U;
        return sum ^ sum >> 32;
    };
    std::size_t at = 0;
    for (; bytes.size() - at >= 32; at += 32) {
        std::array<std::uint64_t, 4> next;
        std::memcpy(next.data(), bytes.data() + at, 32);
        for (std::size_t i = 0; i < 4; ++i) sums[i] = mix(sums[i], next[i]);
    }
    for (; at < bytes.size(); ++at) sums[0] = mix(sums[0], static_cast<unsigned char>(bytes[at]));
    return mix(mix(mix(sums[0], sums[1]), sums[2]), sums[3]);
}

std::string_view TablePart(std::string_view image, const word_image::Layout& layout) {
    constexpr std::size_t kStart = offsetof(WordImage::Header, search_checksum);
    return image.substr(kStart, layout.groups - kStart);
}

std::string_view SearchPart(std::string_view image, const word_image::Layout& layout) {
    return image.substr(std::min<std::uint64_t>(layout.groups, image.size()));
}

}  // namespace

namespace word_image {

Layout::Layout(const WordImage::Header& header) {
    std::uint64_t at = sizeof(WordImage::Header);
    const auto part = [&at](std::uint64_t count, std::uint64_t each) {
        const std::uint64_t start = at;
        at += (count * each + 7) / 8 * 8;
        return start;
    };
    constexpr std::uint64_t kNumber = sizeof(WordImage::Number);
    files = part(header.files, sizeof(WordImage::FileRow));
    names = part(header.names_size, 1);
    offsets = part(std::uint64_t{header.words} + 1, kNumber);
    slots = part(std::uint64_t{1} << WordTable::SlotBits(header.words), kNumber);
    text = part(header.text_size, 1);
    groups = part(header.words, kNumber);
    prefix_starts = part(std::uint64_t{header.prefixes} + 1, kNumber);
    heads = part((std::uint64_t{1} << header.bucket_bits) + 1, kNumber);
    entries = part(header.entries, kNumber);
    sound_heads = part((std::uint64_t{1} << header.sound_bits) + 1, kNumber);
    sound_words = part(header.sounds, kNumber);
    commonness = part(header.words, 1);
    size = at;
}

void Seal(std::string& image) {
    WordImage::Header header;
    std::memcpy(&header, image.data(), sizeof header);
    const Layout layout(header);
    header.search_checksum = Checksum(SearchPart(image, layout));
    std::memcpy(image.data(), &header, sizeof header);
    header.checksum = Checksum(TablePart(image, layout));
    std::memcpy(image.data(), &header, sizeof header);
}

}  // namespace word_image

std::optional<WordImage> WordImage::Read(std::string_view bytes, int code_page, Use use) {
    static_assert(std::endian::native == std::endian::little);
    constexpr unsigned kMostBucketBits = 28;
    WordImage image;
    Header& header = image.header_;
    if (bytes.size() < sizeof header ||
        reinterpret_cast<std::uintptr_t>(bytes.data()) % alignof(std::uint64_t) != 0)
        return std::nullopt;
    std::memcpy(&header, bytes.data(), sizeof header);
    if (header.magic != word_image::kMagic || header.version != word_image::kVersion ||
        header.code_page != static_cast<std::uint32_t>(code_page) || header.bucket_bits == 0 ||
        header.bucket_bits > kMostBucketBits || header.sound_bits == 0 ||
        header.sound_bits > kMostBucketBits)
        return std::nullopt;
    const word_image::Layout layout(header);
    if (layout.size != bytes.size() || header.checksum != Checksum(TablePart(bytes, layout)))
        return std::nullopt;
    if (use == Use::Search && header.search_checksum != Checksum(SearchPart(bytes, layout)))
        return std::nullopt;

    const auto part = [&]<class Value>(std::span<const Value>& values, std::uint64_t start,
                                       std::uint64_t count) {
        values = {reinterpret_cast<const Value*>(bytes.data() + start),
                  static_cast<std::size_t>(count)};
    };
    part(image.files_, layout.files, header.files);
    std::span<const Number> offsets;
    std::span<const Number> slots;
    part(offsets, layout.offsets, std::uint64_t{header.words} + 1);
    part(slots, layout.slots, std::uint64_t{1} << WordTable::SlotBits(header.words));
    image.table_ = WordTable(slots, offsets, bytes.substr(layout.text, header.text_size));
    part(image.groups_, layout.groups, header.words);
    part(image.prefix_starts_, layout.prefix_starts, std::uint64_t{header.prefixes} + 1);
    part(image.heads_, layout.heads, (std::uint64_t{1} << header.bucket_bits) + 1);
    part(image.entries_, layout.entries, header.entries);
    part(image.sound_heads_, layout.sound_heads, (std::uint64_t{1} << header.sound_bits) + 1);
    part(image.sound_words_, layout.sound_words, header.sounds);
    part(image.commonness_, layout.commonness, header.words);
    image.names_ = bytes.substr(layout.names, header.names_size);
    return image;
}

std::span<const WordImage::Number> WordImage::PlacesBySound(std::string_view sound) const {
    const std::uint32_t bucket = word_image::SoundBucket(sound, header_.sound_bits);
    const std::uint32_t last = std::min(sound_heads_[bucket + 1], header_.sounds);
    const std::uint32_t first = std::min(sound_heads_[bucket], last);
    return sound_words_.subspan(first, last - first);
}

}  // namespace wordhawk
