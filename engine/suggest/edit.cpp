#include "engine/suggest/edit.h"

namespace wordhawk {
namespace {

using letters::IsVowel;
using letters::kApostrophe;
using letters::kSeparator;

/// What a property looks at. Each names up to four letters, or numbers below 32.
enum Property : EditFeature {
    kClass,
    kLetters,
    kLettersBefore,
    kLettersBehind,
    kLettersAround,
    kPropertiesOfKind,
};

constexpr EditFeature Feature(EditKind kind, Property property, unsigned a, unsigned b = 0,
                              unsigned c = 0, unsigned d = 0) {
    return (static_cast<EditFeature>(kind) * kPropertiesOfKind + property) << 20 | a << 15 |
           b << 10 | c << 5 | d;
}

enum Class : unsigned {
    kPlain,
    kApostropheAlone,
    kLikeBefore,  ///< the letter before is the same: a doubled letter
    kLikeBehind,
    kVowel,
    kNeighbour,  ///< keys that touch
    kAccentAlone,
    kVowelForVowel,
    kMixed,  ///< a vowel and a consonant
    kSeparatorAlone,
};

bool IsSign(Letter l) { return l == kApostrophe || l == kSeparator; }

unsigned ClassOfDrop(const Edit& e) {
    const Letter l = e.meant[0];
    if (IsSign(l)) return l == kSeparator ? kSeparatorAlone : kApostropheAlone;
    if (l == e.before) return kLikeBefore;
    if (l == e.behind) return kLikeBehind;
    return IsVowel(l) ? kVowel : kPlain;
}

unsigned ClassOfInsert(const Edit& e) {
    const Letter l = e.written[0];
    if (IsSign(l)) return l == kSeparator ? kSeparatorAlone : kApostropheAlone;
    if (l == e.before) return kLikeBefore;
    if (l == e.behind) return kLikeBehind;
    if (IsVowel(l)) return kVowel;
    const bool slip = letters::AreNeighbours(l, e.before) || letters::AreNeighbours(l, e.behind);
    return slip ? kNeighbour : kPlain;
}

unsigned ClassOfMistake(const Edit& e) {
    const Letter meant = e.meant[0];
    const Letter written = e.written[0];
    if (meant == written && meant != letters::kOther) return kAccentAlone;
    if (IsSign(meant) && IsSign(written)) return kApostropheAlone;
    if (IsVowel(meant) && IsVowel(written)) return kVowelForVowel;
    if (letters::AreNeighbours(meant, written)) return kNeighbour;
    return IsVowel(meant) != IsVowel(written) ? kMixed : kPlain;
}

unsigned VowelsMeant(const Edit& e) {
    return static_cast<unsigned>(IsVowel(e.meant[0])) + static_cast<unsigned>(IsVowel(e.meant[1]));
}

unsigned ClassOf(const Edit& e) {
    switch (e.kind) {
        case EditKind::Drop: return ClassOfDrop(e);
        case EditKind::Insert: return ClassOfInsert(e);
        case EditKind::Mistake: return ClassOfMistake(e);
        case EditKind::Swap:
        case EditKind::TwoForOne: return VowelsMeant(e);
        case EditKind::OneForTwo: return 0;
    }
    return 0;
}

}  // namespace

EditFeatures FeaturesOf(const Edit& e) {
    const unsigned first = e.before == letters::kBeginning;
    const unsigned last = e.behind == letters::kEnd;
    EditFeatures features;
    features.Add(Feature(e.kind, kClass, ClassOf(e), first, last));
    // The letters that the kind of edit has, at most three.
    std::array<unsigned, 3> named{};
    switch (e.kind) {
        case EditKind::Drop: named = {e.meant[0]}; break;
        case EditKind::Insert: named = {e.written[0]}; break;
        case EditKind::Mistake: named = {e.meant[0], e.written[0]}; break;
        case EditKind::Swap: named = {e.meant[0], e.meant[1]}; break;
        case EditKind::TwoForOne: named = {e.meant[0], e.meant[1], e.written[0]}; break;
        case EditKind::OneForTwo: named = {e.meant[0], e.written[0], e.written[1]}; break;
    }
    const auto [a, b, c] = named;
    features.Add(Feature(e.kind, kLetters, a, b, c));
    features.Add(Feature(e.kind, kLettersBefore, a, b, c, e.before));
    features.Add(Feature(e.kind, kLettersBehind, a, b, c, e.behind));
    // Only where the edit itself leaves room for both.
    if (c == 0) features.Add(Feature(e.kind, kLettersAround, a, b, e.before, e.behind));
    return features;
}

bool IsGeneric(EditFeature feature) { return (feature >> 20) % kPropertiesOfKind == kClass; }

float InitialCost(EditFeature feature) {
    if (!IsGeneric(feature)) return 0;
    const auto kind = static_cast<EditKind>((feature >> 20) / kPropertiesOfKind);
    const unsigned edit_class = feature >> 15 & 31;
    switch (kind) {
        case EditKind::Drop:
        case EditKind::Insert:
            if (edit_class == kApostropheAlone || edit_class == kSeparatorAlone) return 2;
            return edit_class == kLikeBefore || edit_class == kLikeBehind ? 3 : 4;
        case EditKind::Mistake:
            return edit_class == kAccentAlone ? 1 : edit_class == kVowelForVowel ? 3.5F : 4.5F;
        case EditKind::Swap: return 3.5F;
        case EditKind::TwoForOne:
        case EditKind::OneForTwo: return 8;
    }
    return 0;
}

}  // namespace wordhawk
