#include "engine/suggest/wide_search.h"

#include "dict/phonetic_key.h"
#include "engine/suggest/edit_costs.h"
#include "engine/suggest/edit_path.h"
#include "engine/suggest/language_words.h"
#include "engine/suggest/logarithm.h"
#include "engine/suggest/near_distance.h"
#include "engine/suggest/word_skeletons.h"
#include "engine/suggest/word_traits.h"

#include <algorithm>

namespace wordhawk {
namespace {

constexpr int kNear = 2;
constexpr int kFar = kNear + 1;
/// When the edits to no word cost less, words more than kNear edits away are tried as well, at
/// first those with at most kNear edits in the beginning, and words that sound the same.
constexpr float kPoor = 4;
constexpr std::size_t kShortestBySound = 4;

/// What it costs at most to write a word by its sound, with the vowels and doubled consonants it
/// has; each of these that is another one costs one more.
constexpr float kByEar = 10;

constexpr std::size_t kMostSuggestions = 20;
/// Candidates that cost this much more than the best are not worth reading.
constexpr float kWorthReading = 9;

/// Commonness of words that the user added, as if they had been counted.
constexpr float kCustomCommonness = 5;
/// Costs of leaving out the blank between two words; one letter is joined most often (alot, abit).
constexpr float kJoin = 8;
constexpr float kJoinToLetter = 5;
/// How much rarer two words in a row are than their product says of one.
constexpr float kPairRarity = 20;
/// Words below this are not taken for a part of two words written as one.
constexpr float kCommonPart = 6;

int ScoreOf(float cost) {
    constexpr float kScale = 24;
    return std::clamp(static_cast<int>(100 * PowerOfMinus(std::max(cost, 0.0F) / kScale) + 0.5), 1,
                      99);
}

/// A word within reach, before its cost is known.
struct Near {
    int distance;
    float commonness;
    std::string_view word;
};

struct Candidate {
    float cost;
    std::string word;
};

}  // namespace

struct WideSearch::Parts {
    explicit Parts(DictionaryStore& the_store) : store(the_store), words(the_store) {}

    bool Refresh(Progress& progress) {
        if (!words.Refresh(progress)) return false;
        const ProgramState& state = store.State();
        const LearnedTable& wanted = LearnedTableFor(NumberOrZero(state.LanguageId));
        if (&wanted != table || page != state.CodePage) {
            table = &wanted;
            page = state.CodePage;
            costs = std::make_unique<EditCosts>(wanted);
            path = std::make_unique<EditPath<EditCosts>>(*costs);
            letters_of = letters::OfPage(*page);
        }
        seen.resize(words.Image().PrefixCount(), 0);
        return true;
    }

    Spelling Spell(std::string_view bytes) const { return SpellingOf(bytes, letters_of); }

    DictionaryStore& store;
    LanguageWords words;
    const LearnedTable* table = nullptr;
    const AnsiCodePage* page = nullptr;
    std::unique_ptr<EditCosts> costs;
    std::unique_ptr<EditPath<EditCosts>> path;
    std::array<Letter, 256> letters_of{};
    /// By prefix: the number of the search that looked at it last.
    std::vector<std::uint32_t> seen;
    std::uint32_t searches = 0;
};

/// One search, or one comparison.
class WideSearch::Search {
  public:
    Search(Parts& parts, std::wstring_view word)
        : parts_(parts),
          bytes_(parts.page->Encode(Lowered(word))),
          written_(parts.Spell(bytes_)),
          sounds_(written_),
          groups_(LetterGroups(bytes_)),
          distance_(std::string_view(bytes_).substr(0, WordImage::kLongestWord)) {}

    Suggestions Run() {
        GatherByBeginning(0, kNear);
        if (const int most = MostEdits(bytes_.size()); most >= kFar) {
            if (cheapest_edits_ >= kPoor) GatherByBeginning(kFar, most);
            if (cheapest_edits_ >= kHopeless) GatherFar(most);
        }
        if (cheapest_edits_ >= kPoor) GatherBySound();
        GatherPairs();
        return Finish();
    }

    Account Compare(std::wstring_view candidate) {
        const std::string word = parts_.page->Encode(Lowered(candidate));
        Account account;
        if (word.empty() || word.size() > WordImage::kLongestWord) return account;
        const auto place = parts_.words.Image().Find(word);
        float commonness = 0;
        const bool stands = place && !parts_.words.IsOutdated(*place) &&
                            (!parts_.words.Image().IsPair(*place) || HoldsPartsOf(word));
        if (stands) {
            account.known = true;
            commonness = CommonnessOf(*place);
        }
        for (const WordList& list : parts_.words.Lists()) {
            if (!list.Holds(word)) continue;
            account.known = true;
            commonness = std::max(commonness, kCustomCommonness);
        }
        account.distance = distance_.To(word);
        const Spelling meant = parts_.Spell(word);
        account.sounds_alike = SoundsAlike(meant);
        account.edits = CostOfEdits(meant, EditPath<EditCosts>::kNoWay);
        account.rarity = RarityCost(commonness);
        account.traits = TraitCost(meant);
        account.score =
            word == bytes_ ? 100 : ScoreOf(account.edits + account.rarity + account.traits);
        return account;
    }

  private:
    static std::wstring Lowered(std::wstring_view word) {
        std::wstring lower = Lower(word);
        std::replace(lower.begin(), lower.end(), L'\u2019', L'\'');
        return lower;
    }

    /// What can be known of a candidate without its bytes.
    bool MayBeWithin(int edits, std::size_t size, std::uint32_t groups) const {
        const auto most = static_cast<std::size_t>(edits);
        return size <= bytes_.size() + most && bytes_.size() <= size + most &&
               LeastEdits(groups_, groups) <= edits;
    }

    /// Words whose beginning is at most two edits from this one's.
    void GatherByBeginning(int least, int most) {
        const WordImage& image = parts_.words.Image();
        std::array<std::uint32_t, skeletons::kMost> buckets;
        const std::size_t count =
            skeletons::BucketsOf(skeletons::PrefixOf(bytes_), image.BucketBits(), buckets);
        const std::uint32_t number = ++parts_.searches;
        image.ForEachNearRange({buckets.data(), count},
                               [&](std::uint32_t prefix, std::uint32_t first, std::uint32_t last) {
                                   if (parts_.seen[prefix] == number) return;
                                   parts_.seen[prefix] = number;
                                   for (std::uint32_t i = first; i < last; ++i)
                                       TryPlace(i, least, most);
                               });
        for (const WordList& list : parts_.words.Lists()) TryList(list, least, most);
        TakeNearestFirst();
    }

    void GatherFar(int most) {
        const std::span<const std::uint32_t> groups = parts_.words.Image().AllGroups();
        // Turns many words away at the cost of one number each.
        std::array<std::uint8_t, 256> differing;
        for (std::size_t start = 0; start < groups.size(); start += differing.size()) {
            const std::size_t count = std::min(differing.size(), groups.size() - start);
            for (std::size_t i = 0; i < count; ++i)
                differing[i] = LeastEdits(groups_, groups[start + i]);
            for (std::size_t i = 0; i < count; ++i) {
                if (differing[i] <= most)
                    TryPlace(static_cast<std::uint32_t>(start + i), kFar, most);
            }
        }
        for (const WordList& list : parts_.words.Lists()) TryList(list, kFar, most);
        TakeNearestFirst();
    }

    /// Words that sound like this one, however they are written.
    void GatherBySound() {
        if (bytes_.size() < kShortestBySound || !KnowsSounds(*parts_.table)) return;
        const WordImage& image = parts_.words.Image();
        for (const std::uint32_t i : image.PlacesBySound(sounds_.sound)) {
            if (i < image.WordCount() && !parts_.words.IsOutdated(i))
                TakeIfAlike(image.Word(i), [&] { return CommonnessOf(i); });
        }
        const std::uint32_t sound = SoundHash(sounds_.sound);
        for (const WordList& list : parts_.words.Lists()) {
            for (std::size_t i = 0; i < list.size(); ++i) {
                if (list.sounds[i] == sound)
                    TakeIfAlike(list[i], [&] { return ListedCommonness(list[i]); });
            }
        }
    }

    void TryPlace(std::uint32_t i, int least, int most) {
        const WordImage& image = parts_.words.Image();
        const std::string_view word = image.Word(i);
        if (!MayBeWithin(most, word.size(), image.Groups(i))) return;
        const int distance = distance_.To(word, most);
        if (distance > most || distance < least || parts_.words.IsOutdated(i)) return;
        if (image.IsPair(i) && !HoldsPartsOf(word)) return;
        near_.push_back({distance, CommonnessOf(i), word});
    }

    void TryList(const WordList& list, int least, int most) {
        for (std::size_t i = 0; i < list.size(); ++i) {
            const std::string_view word = list[i];
            if (!MayBeWithin(most, word.size(), list.groups[i])) continue;
            const int distance = distance_.To(word, most);
            if (distance > most || distance < least) continue;
            near_.push_back({distance, ListedCommonness(word), word});
        }
    }

    float ListedCommonness(std::string_view word) const {
        // A word may stand in the image as well, with its count.
        const auto place = parts_.words.Image().Find(word);
        return std::max(kCustomCommonness, place ? CommonnessOf(*place) : 0);
    }

    /// So that most of the others are seen to be too dear before all their edits are weighed.
    void TakeNearestFirst() {
        std::sort(near_.begin(), near_.end(),
                  [](const Near& a, const Near& b) { return a.distance < b.distance; });
        for (const Near& near : near_) Take(near.word, near.commonness);
        near_.clear();
    }

    void Take(std::string_view word, float commonness) {
        if (word == bytes_) {
            holds_itself_ = true;
            return;
        }
        const Spelling meant = parts_.Spell(word);
        const float rarity = RarityCost(commonness);
        // A dearer way would neither be worth reading nor tell that the word is no poor one.
        const float most = std::max(best_ + kWorthReading - rarity, cheapest_edits_);
        const float edits = CostOfEdits(meant, most);
        cheapest_edits_ = std::min(cheapest_edits_, edits);
        Keep(word, meant, edits + rarity);
    }

    /// The commonness of words that do not sound alike is not asked for.
    template <class CommonnessOfWord>
    void TakeIfAlike(std::string_view word, CommonnessOfWord commonness) {
        const Spelling meant = parts_.Spell(word);
        if (word == bytes_ || !SoundsAlike(meant)) return;
        const float edits = CostOfEdits(meant, EditPath<EditCosts>::kNoWay);
        Keep(word, meant, edits + RarityCost(commonness()));
    }

    /// Exact up to `most`.
    float CostOfEdits(const Spelling& meant, float most) const {
        const float edits = parts_.path->Cost(meant, written_, most);
        if (edits <= kByEar || most < kByEar || !SoundsAlike(meant)) return edits;
        return std::min(edits, CostByEar(meant));
    }

    void Keep(std::string_view word, const Spelling& meant, float cost_without_traits) {
        if (cost_without_traits > best_ + kWorthReading) return;
        found_.push_back({cost_without_traits + TraitCost(meant), std::string(word)});
        best_ = std::min(best_, found_.back().cost);
    }

    bool SoundsAlike(const Spelling& meant) const {
        return KnowsSounds(*parts_.table) && bytes_.size() >= kShortestBySound &&
               SoundOf(meant) == sounds_.sound;
    }

    float CostByEar(const Spelling& meant) const {
        const WordSounds sounds(meant);
        return kByEar + static_cast<float>(NearDistance(sounds_.vowels).To(sounds.vowels) +
                                           NearDistance(sounds_.consonants).To(sounds.consonants));
    }

    /// Two common words with the blank between them left out.
    void GatherPairs() {
        if (written_.size < 3) return;
        for (std::size_t cut = 1; cut < bytes_.size(); ++cut) {
            const float first = PartCommonness(bytes_.substr(0, cut));
            const float second = first > 0 ? PartCommonness(bytes_.substr(cut)) : 0;
            if (second == 0) continue;
            const float pair = first + second - kPairRarity;
            found_.push_back({(cut == 1 ? kJoinToLetter : kJoin) + RarityCost(pair),
                              bytes_.substr(0, cut) + ' ' + bytes_.substr(cut)});
        }
    }

    bool Holds(std::string_view word) const {
        const auto place = parts_.words.Image().Find(word);
        if (place && !parts_.words.IsOutdated(*place)) return true;
        const std::vector<WordList>& lists = parts_.words.Lists();
        return std::any_of(lists.begin(), lists.end(),
                           [word](const WordList& list) { return list.Holds(word); });
    }

    bool HoldsPartsOf(std::string_view pair) const {
        const std::size_t blank = pair.find(' ');
        return Holds(pair.substr(0, blank)) && Holds(pair.substr(blank + 1));
    }

    /// 0 for what is no common word.
    float PartCommonness(const std::string& part) const {
        const auto place = parts_.words.Image().Find(part);
        if (!place || parts_.words.IsOutdated(*place)) return 0;
        const float commonness = CommonnessOf(*place);
        // One letter is a word in few cases, and these are very common.
        const float least = part.size() == 1 ? 1.5F * kCommonPart : kCommonPart;
        return commonness >= least ? commonness : 0;
    }

    Suggestions Finish() {
        if (holds_itself_) found_.push_back({-1, bytes_});
        std::sort(found_.begin(), found_.end(), [](const Candidate& a, const Candidate& b) {
            return a.cost != b.cost ? a.cost < b.cost : a.word < b.word;
        });
        Suggestions result;
        for (const Candidate& candidate : found_) {
            if (result.list.size() == kMostSuggestions) break;
            const float best = found_[holds_itself_ && found_.size() > 1 ? 1 : 0].cost;
            if (candidate.cost > best + kWorthReading) break;
            Suggestion suggestion;
            suggestion.word = parts_.page->Decode(candidate.word);
            const auto again = std::find_if(
                result.list.begin(), result.list.end(),
                [&](const Suggestion& other) { return other.word == suggestion.word; });
            if (again != result.list.end()) continue;  // in two dictionaries
            suggestion.key = GetPhoneticKeyOfBytes(candidate.word, *parts_.page);
            suggestion.score = candidate.word == bytes_ ? 100 : ScoreOf(candidate.cost);
            result.list.push_back(std::move(suggestion));
        }
        if (!result.list.empty()) result.best = 0;
        return result;
    }

    float CommonnessOf(std::uint32_t i) const {
        return static_cast<float>(parts_.words.Image().Commonness(i)) /
               WordImage::kStepsOfCommonness;
    }
    float RarityCost(float commonness) const { return CostOfRarity(*parts_.table, commonness); }
    float TraitCost(const Spelling& meant) const {
        const TraitValues values = CompareWords(meant, written_, sounds_);
        float cost = 0;
        for (std::size_t i = 0; i < kTraits; ++i) cost += parts_.table->traits[i] * values[i];
        return cost;
    }

    Parts& parts_;
    std::string bytes_;
    Spelling written_;
    WrittenSounds sounds_;
    std::uint32_t groups_;
    NearDistance distance_;
    std::vector<Near> near_;
    std::vector<Candidate> found_;
    bool holds_itself_ = false;
    float cheapest_edits_ = EditPath<EditCosts>::kNoWay;
    float best_ = EditPath<EditCosts>::kNoWay;
};

WideSearch::WideSearch(DictionaryStore& store) : parts_(std::make_unique<Parts>(store)) {}
WideSearch::~WideSearch() = default;

bool WideSearch::Prepare(Progress& progress) { return parts_->Refresh(progress); }

Suggestions WideSearch::Find(std::wstring_view word) {
    if (word.size() < 2 || word.size() > WordImage::kLongestWord) return {};
    Progress none;
    parts_->Refresh(none);
    return Search(*parts_, word).Run();
}

WideSearch::Account WideSearch::Explain(std::wstring_view word, std::wstring_view candidate) {
    if (word.empty() || word.size() > WordImage::kLongestWord) return {};
    Progress none;
    parts_->Refresh(none);
    return Search(*parts_, word).Compare(candidate);
}

}  // namespace wordhawk
