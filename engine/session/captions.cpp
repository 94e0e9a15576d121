#include "engine/session/captions.h"

#include "lang/modLoadRes.h"

namespace wordhawk::captions {
namespace {

using modLoadRes::LoadResText;

constexpr int kTextCustomWordsGo = 102;
constexpr int kTextMainWordsStay = 103;
constexpr int kTextAddToMain = 107;
constexpr int kTextAlternate = 110;
constexpr int kTextDoYouWant = 150;
constexpr int kTextMatch = 167;
constexpr int kTextNotFound = 175;
constexpr int kTextPleaseConfirm = 185;
constexpr int kTextResult = 196;
constexpr int kTextSuggestion = 212;
constexpr int kTextSuggestions = 213;

constexpr std::wstring_view kParagraph = L"\r\n\r\n";

}  // namespace

std::wstring NotFound(std::size_t count) { return std::to_wstring(count) + L" - Not Found"; }

std::wstring NothingFoundYet(const ProgramState& state) {
    return LoadResText(state, kTextNotFound, L"0 - ");
}

std::wstring SuggestionCount(const ProgramState& state, std::size_t count) {
    return LoadResText(state, count == 1 ? kTextSuggestion : kTextSuggestions,
                       std::to_wstring(count) + L" - ", L":");
}

std::wstring NoSuggestionsYet(const ProgramState& state) {
    return LoadResText(state, kTextSuggestions, L"0 - ");
}

std::wstring ScoreRange(const ProgramState& state, int value) {
    if (value == 100) return LoadResText(state, kTextMatch, L"100% ");
    return LoadResText(state, kTextMatch, ScoreText(value) + L" - 100% ");
}

std::wstring Diversity(int value) {
    return L"Less- diversity(" + std::to_wstring(value) + L") -More";
}

std::wstring ScoreText(std::int32_t percent) { return std::to_wstring(percent) + L"%"; }

std::wstring PadScoreText(std::wstring_view text,
                          const std::function<int(std::wstring_view)>& width) {
    // A font in which blanks have no width must not keep us here for ever.
    constexpr std::size_t kMostBlanks = 64;
    const int wanted = width(L"100%");
    std::wstring padded(text);
    for (std::size_t blanks = 1; width(padded) < wanted && blanks <= kMostBlanks; ++blanks) {
        padded = std::wstring(blanks, L' ').append(text);
    }
    return padded;
}

std::wstring MainAddQuestion(const ProgramState& state) {
    std::wstring question = LoadResText(state, kTextPleaseConfirm);
    question += LoadResText(state, kTextResult, kParagraph, L":");
    question += LoadResText(state, kTextMainWordsStay, std::wstring(kParagraph) + L"  ");
    question += LoadResText(state, kTextAlternate, kParagraph, L":");
    question += LoadResText(state, kTextCustomWordsGo, kParagraph);
    question += LoadResText(state, kTextDoYouWant, kParagraph);
    return question;
}

std::wstring MainAddTitle(const ProgramState& state) { return LoadResText(state, kTextAddToMain); }

}  // namespace wordhawk::captions
