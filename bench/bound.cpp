// What a spell checker cannot well be faster than: cuts a text at everything that is no letter,
// lower-cases, asks one hash table about every word and counts the unknown ones. No apostrophes, no
// addresses, no output, ASCII alone.
//
//   bound WORDLIST < TEXT

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr std::size_t kSlots = std::size_t{1} << 19;
constexpr std::uint32_t kSeed = 2166136261U;

std::uint32_t Mixed(std::uint32_t hash, char c) {
    return (hash ^ static_cast<unsigned char>(c)) * 16777619U;
}

/// Open addressing over the bytes of the list; never deletes.
class WordTable {
  public:
    void Add(std::string_view word, std::uint32_t hash) {
        std::size_t at = hash % kSlots;
        while (slots_[at].text) at = (at + 1) % kSlots;
        slots_[at] = {word.data(), static_cast<std::uint32_t>(word.size()), hash};
    }

    bool Has(std::string_view word, std::uint32_t hash) const {
        for (std::size_t at = hash % kSlots; slots_[at].text; at = (at + 1) % kSlots) {
            const Slot& slot = slots_[at];
            if (slot.hash == hash && slot.size == word.size() &&
                std::memcmp(slot.text, word.data(), word.size()) == 0) {
                return true;
            }
        }
        return false;
    }

  private:
    struct Slot {
        const char* text = nullptr;
        std::uint32_t size = 0;
        std::uint32_t hash = 0;
    };
    std::vector<Slot> slots_{kSlots};
};

std::array<char, 256> LowerLetters() {
    std::array<char, 256> lower{};
    for (int c = 'a'; c <= 'z'; ++c) {
        lower[static_cast<std::size_t>(c)] = static_cast<char>(c);
        lower[static_cast<std::size_t>(c - 'a' + 'A')] = static_cast<char>(c);
    }
    return lower;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: bound WORDLIST < TEXT\n", stderr);
        return 2;
    }
    const std::array<char, 256> lower = LowerLetters();
    std::ifstream list(argv[1], std::ios::binary);
    std::string words((std::istreambuf_iterator<char>(list)), {});
    WordTable table;
    std::size_t start = 0;
    std::uint32_t hash = kSeed;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i] == '\n') {
            table.Add(std::string_view(words).substr(start, i - start), hash);
            start = i + 1;
            hash = kSeed;
            continue;
        }
        if (const char c = lower[static_cast<unsigned char>(words[i])]) words[i] = c;
        hash = Mixed(hash, words[i]);
    }

    static std::array<char, 1 << 16> block;
    std::array<char, 256> word;
    std::size_t length = 0;
    std::size_t unknown = 0;
    hash = kSeed;
    const auto end_word = [&] {
        unknown += length > 1 && !table.Has({word.data(), length}, hash);
        length = 0;
        hash = kSeed;
    };
    for (std::size_t got = 0; (got = std::fread(block.data(), 1, block.size(), stdin)) > 0;) {
        for (std::size_t i = 0; i < got; ++i) {
            const char c = lower[static_cast<unsigned char>(block[i])];
            if (c && length < word.size()) {
                word[length++] = c;
                hash = Mixed(hash, c);
            } else if (length) {
                end_word();
            }
        }
    }
    end_word();
    std::printf("%zu\n", unknown);
}
