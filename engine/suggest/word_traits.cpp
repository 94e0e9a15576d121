#include "engine/suggest/word_traits.h"

#include <algorithm>

namespace wordhawk {
namespace {

using letters::IsVowel;
using letters::Of;

/// Appends unless it is there already.
void Put(std::string& key, char sound) {
    if (key.empty() || key.back() != sound) key += sound;
}

/// Reads a word letter by letter, the next ones in sight.
class Reader {
  public:
    explicit Reader(const Spelling& word) {
        for (int i = 0; i < word.size; ++i) {
            if (word.At(i) <= Of('z')) plain_ += static_cast<char>(word.At(i) + 'a' - 1);
        }
    }

    std::string Sound() {
        for (at_ = 0; at_ < plain_.size(); ++at_) Take(plain_[at_]);
        return std::move(key_);
    }

  private:
    char Next(std::size_t n = 1) const { return at_ + n < plain_.size() ? plain_[at_ + n] : '\0'; }
    bool SoftensAt(std::size_t n) const {
        const char c = Next(n);
        return c == 'e' || c == 'i' || c == 'y';
    }
    /// As in "-tion", "-cial".
    bool HissesNext() const { return Next() == 'i' && (Next(2) == 'a' || Next(2) == 'o'); }
    /// One sound for the letter and the next.
    void PutPair(char sound) {
        Put(key_, sound);
        ++at_;
    }

    void Take(char c) {
        const bool first = at_ == 0;
        switch (c) {
            case 'a':
            case 'e':
            case 'i':
            case 'o':
            case 'u':
            case 'y':
                if (first) Put(key_, 'a');
                break;
            case 'p':
                if (Next() == 'h') {
                    PutPair('f');
                } else if (!first || (Next() != 's' && Next() != 'n')) {
                    Put(key_, 'p');
                }
                break;
            case 'v': Put(key_, 'f'); break;
            case 'c': TakeC(); break;
            case 'q': Put(key_, 'k'); break;
            case 'k':
                if (!first || Next() != 'n') Put(key_, 'k');
                break;
            case 's': TakeS(); break;
            case 'z': Put(key_, 's'); break;
            case 't':
                if (Next() == 'h') {
                    PutPair('0');
                } else {
                    Put(key_, HissesNext() ? 'x' : 't');
                }
                break;
            case 'd':
                if (Next() == 'g') {
                    PutPair('j');
                } else {
                    Put(key_, 't');
                }
                break;
            case 'g':
                if (Next() == 'h') {
                    ++at_;
                } else if (!first || Next() != 'n') {
                    Put(key_, SoftensAt(1) ? 'j' : 'k');
                }
                break;
            case 'x':
                if (!first) Put(key_, 'k');
                Put(key_, 's');
                break;
            case 'h': break;
            case 'w':
                if (first && Next() != 'r') Put(key_, 'w');
                break;
            default: Put(key_, c);
        }
    }

    void TakeC() {
        if (Next() == 'h') {
            PutPair('x');
        } else if (HissesNext()) {
            Put(key_, 'x');
        } else if (SoftensAt(1)) {
            Put(key_, 's');
        } else if (Next() == 'k') {
            PutPair('k');
        } else {
            Put(key_, 'k');
        }
    }

    void TakeS() {
        if (Next() == 'h') {
            PutPair('x');
        } else if (HissesNext()) {
            Put(key_, 'x');
        } else if (Next() == 'c' && SoftensAt(2)) {
            PutPair('s');
        } else {
            Put(key_, 's');
        }
    }

    std::string plain_;
    std::string key_;
    std::size_t at_ = 0;
};

bool EndsInS(const Spelling& word) { return word.At(word.size - 1) == Of('s'); }

}  // namespace

std::string SoundOf(const Spelling& word) { return Reader(word).Sound(); }

WordSounds::WordSounds(const Spelling& word) : sound(SoundOf(word)) {
    for (int i = 0; i < word.size; ++i) {
        const Letter l = word.At(i);
        if (l == letters::kApostrophe || l == letters::kSeparator) continue;
        letters += static_cast<char>(l);
        if (IsVowel(l)) {
            Put(vowels, static_cast<char>(l));
        } else if (l != Of('h')) {
            Put(consonants, static_cast<char>(l));
        }
    }
    std::sort(letters.begin(), letters.end());
}

TraitValues CompareWords(const Spelling& meant, const Spelling& written,
                         const WrittenSounds& written_sounds) {
    TraitValues values{};
    const auto set = [&values](Trait trait, bool holds) {
        values[static_cast<std::size_t>(trait)] = holds ? 1.0F : 0.0F;
    };
    const WordSounds sounds(meant);
    set(Trait::Consonants, sounds.consonants != written_sounds.consonants);
    set(Trait::FirstLetter, meant.At(0) != written.At(0));
    set(Trait::FinalS, EndsInS(meant) != EndsInS(written));
    const bool sounds_differ = sounds.sound != written_sounds.sound;
    set(Trait::Sound, sounds_differ);
    if (sounds_differ)
        values[static_cast<std::size_t>(Trait::SoundEdits)] =
            static_cast<float>(written_sounds.sound_distance.To(sounds.sound));
    set(Trait::LastLetter, meant.At(meant.size - 1) != written.At(written.size - 1));
    set(Trait::Letters, sounds.letters != written_sounds.letters);
    set(Trait::Vowels, sounds.vowels != written_sounds.vowels);
    set(Trait::Shorter, meant.size < written.size);
    set(Trait::Possessive,
        meant.size > 2 && EndsInS(meant) && meant.At(meant.size - 2) == letters::kApostrophe);
    return values;
}

}  // namespace wordhawk
