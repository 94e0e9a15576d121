#include "engine/session/captions.h"

#include "lang/modLoadRes.h"
#include "lang/text_ids.h"

namespace wordhawk::captions {
namespace {

using modLoadRes::LoadResText;

constexpr std::wstring_view kParagraph = L"\r\n\r\n";

}  // namespace

std::wstring NotFound(std::size_t count) { return std::to_wstring(count) + L" - Not Found"; }

std::wstring NothingFoundYet(const ProgramState& state) {
    return LoadResText(state, text_id::kNotFound, L"0 - ");
}

std::wstring SuggestionCount(const ProgramState& state, std::size_t count) {
    return LoadResText(state,
                       count == 1 ? text_id::kSuggestionCaption : text_id::kSuggestionsCaption,
                       std::to_wstring(count) + L" - ", L":");
}

std::wstring NoSuggestionsYet(const ProgramState& state) {
    return LoadResText(state, text_id::kSuggestionsCaption, L"0 - ");
}

std::wstring ScoreRange(const ProgramState& state, int value) {
    if (value == 100) return LoadResText(state, text_id::kMatch, L"100% ");
    return LoadResText(state, text_id::kMatch, ScoreText(value) + L" - 100% ");
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
    std::wstring question = LoadResText(state, text_id::kConfirmMainAdd);
    question += LoadResText(state, text_id::kResult, kParagraph, L":");
    question += LoadResText(state, text_id::kMainWordsStay, std::wstring(kParagraph) + L"  ");
    // So that the sentence before does not frighten anyone away from the button.
    question += LoadResText(state, text_id::kUndoTakesMainWordOut, L"\r\n  ");
    question += LoadResText(state, text_id::kAlternate, kParagraph, L":");
    question += LoadResText(state, text_id::kCustomWordsGo, kParagraph);
    question += LoadResText(state, text_id::kAddToMainQuestion, kParagraph);
    return question;
}

std::wstring MainAddTitle(const ProgramState& state) {
    return LoadResText(state, text_id::kAddToMainTitle);
}

std::wstring MainRemoveQuestion(const ProgramState& state, std::wstring_view word) {
    return Filled(LoadResText(state, text_id::kRemoveFromMainQuestion), {word});
}

std::wstring MainRemoveTitle(const ProgramState& state) {
    return LoadResText(state, text_id::kRemoveWord);
}

}  // namespace wordhawk::captions
