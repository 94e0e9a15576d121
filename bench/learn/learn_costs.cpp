// Learns the costs of edits and traits from pairs of misspelling and word.
//
//     learn_costs DATA_FOLDER LEARN TUNE OUTPUT
//
// DATA_FOLDER is a data folder with the English dictionary. LEARN and TUNE have lines of
// misspelling, tab, word in UTF-8. For every pair the chance of each candidate is taken as
// proportional to exp(-cost); the costs are moved, pair by pair, so that the right word's chance
// grows. After each round over LEARN the shares of TUNE whose word comes first, and among the first
// five, are printed; OUTPUT gets the tables learned from both.

#include "dict/dictionary_store.h"
#include "engine/suggest/edit_costs.h"
#include "engine/suggest/edit_path.h"
#include "engine/suggest/language_words.h"
#include "engine/suggest/near_distance.h"
#include "engine/suggest/wide_search.h"
#include "engine/suggest/word_skeletons.h"
#include "engine/suggest/word_traits.h"
#include "platform/replace_file.h"

#include <cmath>
#include <cstdio>
#include <iostream>
#include <map>
#include <random>
#include <unordered_map>

namespace wordhawk {
namespace {

constexpr int kRounds = 2;
constexpr double kStep = 0.15;
constexpr std::size_t kPairsPerStep = 16;
/// Candidates that cost this much more than the cheapest before anything was learned, or that have
/// so many cheaper ones, are not learned from.
constexpr double kHopeless = 10;
constexpr std::size_t kMostCandidates = 30;

enum class Properties { All, Generic };

/// A weight, and what its adaptive steps are made from.
struct Weight {
    float value = 0;
    float initial = 0;
    double squares = 0;
    double gradient = 0;
};

class Model {
  public:
    Model(Properties properties, double sparsity) : properties_(properties), sparsity_(sparsity) {
        const TraitWeights start = {0.5F, 0.5F, 1.5F, 0.6F, 0.9F, 1.5F, 0.3F, 1, 1, 0.5F, 0, 0};
        for (std::size_t i = 0; i < kTraits; ++i) traits[i].value = traits[i].initial = start[i];
        if (properties == Properties::Generic) {
            for (std::size_t i = 0; i < kTraits; ++i)
                if (IsOfEnglish(i)) traits[i] = {};
        }
    }

    float Of(const Edit& edit) {
        Known& known = edits_[edit.Number()];
        if (known.count == 0) {
            for (const EditFeature feature : FeaturesOf(edit)) {
                if (properties_ == Properties::Generic && !IsGeneric(feature)) continue;
                Weight& weight = weights[feature];
                if (weight.initial == 0 && InitialCost(feature) != 0)
                    weight.value = weight.initial = InitialCost(feature);
                known.weights[known.count++] = &weight;
            }
        }
        if (known.round != round_) {
            known.round = round_;
            known.cost = 0;
            for (std::size_t i = 0; i < known.count; ++i) known.cost += known.weights[i]->value;
            known.cost = std::max(known.cost, EditCosts::kLowest);
        }
        return known.cost;
    }

    void AddGradient(const Edit& edit, double gradient) {
        const Known& known = edits_[edit.Number()];
        for (std::size_t i = 0; i < known.count; ++i) Touch(*known.weights[i], gradient);
    }
    void AddTraitGradient(std::size_t trait, double gradient) {
        if (properties_ == Properties::All || !IsOfEnglish(trait)) Touch(traits[trait], gradient);
    }

    /// Moves every weight that has a gradient, the rare ones further; what brings little goes back
    /// to where it began.
    void Move() {
        for (Weight* const weight : touched_) {
            if (weight->gradient == 0) continue;
            weight->squares += weight->gradient * weight->gradient;
            const double step = kStep / std::sqrt(weight->squares + 0.1);
            double moved = weight->value - weight->initial - step * weight->gradient;
            const double back = step * sparsity_;
            moved = moved > back ? moved - back : moved < -back ? moved + back : 0;
            weight->value = static_cast<float>(weight->initial + moved);
            weight->gradient = 0;
        }
        touched_.clear();
        for (Weight& trait : traits) trait.value = std::max(trait.value, 0.0F);
        ++round_;
    }

    std::array<Weight, kTraits> traits;
    std::unordered_map<EditFeature, Weight> weights;

  private:
    struct Known {
        std::array<Weight*, 5> weights{};
        std::size_t count = 0;
        float cost = 0;
        std::uint32_t round = 0;
    };

    /// The sounds are those of English, and so is how common its common words are.
    static bool IsOfEnglish(std::size_t trait) {
        constexpr std::array kEnglish = {Trait::Sound, Trait::SoundEdits, Trait::FirstRarity};
        return std::find(kEnglish.begin(), kEnglish.end(), static_cast<Trait>(trait)) !=
               kEnglish.end();
    }

    void Touch(Weight& weight, double gradient) {
        if (weight.gradient == 0) touched_.push_back(&weight);
        weight.gradient += gradient;
    }

    Properties properties_;
    double sparsity_;
    std::unordered_map<std::uint64_t, Known> edits_;
    std::vector<Weight*> touched_;
    std::uint32_t round_ = 1;
};

struct Pair {
    std::string written;
    std::vector<std::uint32_t> candidates;
    std::size_t right;
};

class Learner {
  public:
    explicit Learner(LanguageWords& words, const AnsiCodePage& page)
        : words_(words), image_(words.Image()), page_(page), letters_(letters::OfPage(page)) {}

    std::vector<Pair> Read(const char* file, Properties properties, double& reachable) {
        std::vector<Pair> pairs;
        const auto bytes = ReadWholeFile(file);
        if (!bytes) throw std::runtime_error(std::string("cannot read ") + file);
        std::size_t all = 0;
        std::size_t at = 0;
        while (at < bytes->size()) {
            const std::size_t end = std::min(bytes->find('\n', at), bytes->size());
            const std::string line = bytes->substr(at, end - at);
            at = end + 1;
            const std::size_t tab = line.find('\t');
            const std::string right = page_.Encode(FromUtf8(line.substr(tab + 1)));
            ++all;
            Pair pair{page_.Encode(FromUtf8(line.substr(0, tab))), {}, 0};
            Gather(pair, right, properties);
            pair.right = PlaceOf(right, pair);
            if (pair.right == pair.candidates.size()) continue;
            Prune(pair);
            pairs.push_back(std::move(pair));
        }
        reachable = static_cast<double>(pairs.size()) / static_cast<double>(all);
        return pairs;
    }

    void Learn(Model& model, std::vector<Pair> pairs, const std::vector<Pair>& tune,
               double reachable) {
        std::mt19937 chance(5);
        for (int round = 1; round <= kRounds; ++round) {
            for (std::size_t i = pairs.size(); i > 1; --i)
                std::swap(pairs[i - 1], pairs[chance() % i]);
            for (std::size_t i = 0; i < pairs.size(); ++i) {
                LearnFrom(model, pairs[i]);
                if ((i + 1) % kPairsPerStep == 0) model.Move();
            }
            model.Move();
            if (!tune.empty()) Report(model, tune, reachable, round);
        }
    }

  private:
    std::size_t PlaceOf(std::string_view word, const Pair& pair) const {
        const auto& all = pair.candidates;
        const auto is_it = [&](std::uint32_t i) { return image_.Word(i) == word; };
        return static_cast<std::size_t>(std::find_if(all.begin(), all.end(), is_it) - all.begin());
    }

    /// What the search would weigh: words further away where the right one is, or, of all
    /// alphabets, where none is one edit away, which ranks slips in other languages better.
    void Gather(Pair& pair, std::string_view right, Properties properties) {
        const int least = GatherWithin(pair, 2);
        if (properties == Properties::All) {
            if (PlaceOf(right, pair) == pair.candidates.size())
                GatherWithin(pair, WideSearch::MostEdits(pair.written.size()));
        } else if (least > 1 && pair.written.size() >= 5) {
            GatherWithin(pair, 3);
        }
    }

    /// Words of a similar beginning at most so many edits away; returns the fewest edits.
    int GatherWithin(Pair& pair, int most) {
        int least = most + 1;
        const NearDistance distance(pair.written);
        const std::uint32_t own = LetterGroups(pair.written);
        std::array<std::uint32_t, skeletons::kMost> buckets;
        const std::size_t count =
            skeletons::BucketsOf(skeletons::PrefixOf(pair.written), image_.BucketBits(), buckets);
        pair.candidates.clear();
        image_.ForEachNearRange({buckets.data(), count},
                                [&](std::uint32_t, std::uint32_t i, std::uint32_t last) {
                                    for (; i < last; ++i) {
                                        if (LeastEdits(own, image_.Groups(i)) > most) continue;
                                        const int edits = distance.To(image_.Word(i), most);
                                        if (edits > most || edits == 0) continue;
                                        least = std::min(least, edits);
                                        pair.candidates.push_back(i);
                                    }
                                });
        std::sort(pair.candidates.begin(), pair.candidates.end());
        pair.candidates.erase(std::unique(pair.candidates.begin(), pair.candidates.end()),
                              pair.candidates.end());
        return least;
    }

    void Prune(Pair& pair) {
        Weigh(
            unlearned_, pair, costs_, [](std::size_t, const Edit&) {},
            [](std::size_t, const TraitValues&) {});
        std::vector<double> ascending = costs_;
        std::sort(ascending.begin(), ascending.end());
        const double most = std::min(ascending[0] + kHopeless,
                                     ascending[std::min(ascending.size(), kMostCandidates) - 1]);
        std::size_t kept = 0;
        for (std::size_t c = 0; c < costs_.size(); ++c) {
            const bool right = c == pair.right;
            if (!right && costs_[c] > most) continue;
            if (right) pair.right = kept;
            pair.candidates[kept++] = pair.candidates[c];
        }
        pair.candidates.resize(kept);
    }

    /// Costs of all candidates; calls `edit(candidate, edit)` for the edits and `trait(candidate,
    /// values)` for the traits of each.
    template <class OnEdit, class OnTraits>
    void Weigh(Model& model, const Pair& pair, std::vector<double>& costs, OnEdit on_edit,
               OnTraits on_traits) {
        EditPath<Model> path(model);
        const Spelling written = SpellingOf(pair.written, letters_);
        const WrittenSounds sounds(written);
        costs.clear();
        for (std::size_t c = 0; c < pair.candidates.size(); ++c) {
            const std::uint32_t word = pair.candidates[c];
            const Spelling meant = SpellingOf(image_.Word(word), letters_);
            double cost = path.Cost(meant, written);
            path.ForEachEdit([&](const Edit& edit) { on_edit(c, edit); });
            TraitValues values = CompareWords(meant, written, sounds);
            SetRarity(values,
                      static_cast<float>(image_.Commonness(word)) / WordImage::kStepsOfCommonness);
            for (std::size_t i = 0; i < kTraits; ++i)
                cost += static_cast<double>(model.traits[i].value * values[i]);
            on_traits(c, values);
            costs.push_back(cost);
        }
    }

    void LearnFrom(Model& model, const Pair& pair) {
        edits_.clear();
        traits_.clear();
        Weigh(
            model, pair, costs_, [&](std::size_t c, const Edit& e) { edits_.emplace_back(c, e); },
            [&](std::size_t, const TraitValues& values) { traits_.push_back(values); });
        const double lowest = *std::min_element(costs_.begin(), costs_.end());
        double sum = 0;
        for (const double cost : costs_) sum += std::exp(lowest - cost);
        // How far the right word's cost should fall, and the others' rise.
        for (std::size_t c = 0; c < costs_.size(); ++c)
            costs_[c] = (c == pair.right) - std::exp(lowest - costs_[c]) / sum;
        for (const auto& [c, edit] : edits_) model.AddGradient(edit, costs_[c]);
        for (std::size_t c = 0; c < traits_.size(); ++c) {
            for (std::size_t i = 0; i < kTraits; ++i) {
                if (traits_[c][i] != 0)
                    model.AddTraitGradient(i, costs_[c] * static_cast<double>(traits_[c][i]));
            }
        }
    }

    void Report(Model& model, const std::vector<Pair>& pairs, double reachable, int round) {
        std::size_t first = 0;
        std::size_t five = 0;
        for (const Pair& pair : pairs) {
            Weigh(
                model, pair, costs_, [](std::size_t, const Edit&) {},
                [](std::size_t, const TraitValues&) {});
            const auto better = std::count_if(costs_.begin(), costs_.end(), [&](double cost) {
                return cost < costs_[pair.right];
            });
            first += better == 0;
            five += better < 5;
        }
        const double share = 100 * reachable / static_cast<double>(pairs.size());
        std::printf(
            "round %d: first %.2f %%, in first five %.2f %%, among the candidates %.2f %%\n", round,
            share * static_cast<double>(first), share * static_cast<double>(five), 100 * reachable);
        std::fflush(stdout);
    }

    LanguageWords& words_;
    const WordImage& image_;
    const AnsiCodePage& page_;
    std::array<Letter, 256> letters_;
    Model unlearned_{Properties::Generic, 0};
    std::vector<double> costs_;
    std::vector<std::pair<std::size_t, Edit>> edits_;
    std::vector<TraitValues> traits_;
};

/// Writes a model as the tables of edit_costs.cpp.
std::string TableText(const Model& model, const std::string& name) {
    std::map<EditFeature, long> edits;
    for (const auto& [feature, weight] : model.weights) {
        const long hundredths = std::lround(weight.value * 100);
        if (std::abs(hundredths) >= 5) edits[feature] = hundredths;
    }
    std::string text = "constexpr LearnedCost k" + name + "Edits[] = {";
    std::size_t column = 1000;
    for (const auto& [feature, hundredths] : edits) {
        char entry[40];
        std::snprintf(entry, sizeof entry, "{0x%x, %ld},", feature, hundredths);
        if (column + std::string_view(entry).size() > 99) {
            text += "\n    ";
            column = 4;
        }
        text += entry;
        column += std::string_view(entry).size();
    }
    text += "\n};\nconstexpr TraitWeights k" + name + "Traits = {";
    for (std::size_t i = 0; i < kTraits; ++i) {
        char entry[40];
        std::snprintf(entry, sizeof entry, "%s%.3fF", i == 0 ? "" : ", ",
                      static_cast<double>(model.traits[i].value));
        text += entry;
    }
    std::printf("%s: %zu costs\n", name.c_str(), edits.size());
    return text + "};\n";
}

void Run(char** arguments) {
    ProgramState state;
    state.DataFolder = arguments[0];
    state.LanguageId = L"1033";
    state.LanguageDictFolder = state.DataFolder / "Dictionarys" / "1033" / "";
    Settings settings;
    DictionaryStore store(state, settings);
    LanguageWords words(store);
    Progress none;
    words.Refresh(none);
    Learner learner(words, *state.CodePage);
    constexpr double kSparsity = 0.002;  // of the table with letters
    std::string text =
        "// Written by bench/learn/learn.py from pairs of misspelling and word; not to be edited.\n"
        "// clang-format off\n";
    for (const Properties properties : {Properties::Generic, Properties::All}) {
        double reachable = 0;
        std::vector<Pair> pairs = learner.Read(arguments[1], properties, reachable);
        const std::vector<Pair> tune = learner.Read(arguments[2], properties, reachable);
        std::printf("%zu pairs to learn from, %zu to tune on\n", pairs.size(), tune.size());
        const double sparsity = properties == Properties::All ? kSparsity : 0;
        Model judged(properties, sparsity);
        learner.Learn(judged, pairs, tune, reachable);
        pairs.insert(pairs.end(), tune.begin(), tune.end());
        Model model(properties, sparsity);
        learner.Learn(model, pairs, {}, 0);
        text += TableText(model, properties == Properties::All ? "English" : "Generic");
    }
    text += "// clang-format on\n";
    if (!ReplaceFileContents(arguments[3], text))
        throw std::runtime_error("the table cannot be written");
}

}  // namespace
}  // namespace wordhawk

int main(int count, char** arguments) {
    if (count != 5) {
        std::cerr << "learn_costs DATA_FOLDER LEARN TUNE OUTPUT\n";
        return 2;
    }
    try {
        wordhawk::Run(arguments + 1);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 2;
    }
}
