#include "lang/modLoadRes.h"

#include "lang/built_in_texts.h"
#include "platform/modSect.h"

namespace wordhawk::modLoadRes {

std::wstring LoadResText(const ProgramState& state, int id, std::wstring_view prefix,
                         std::wstring_view suffix) {
    std::wstring text(prefix);
    if (state.LanguageFile.empty()) {
        text += BuiltInText(id);
    } else {
        text += modSect::ReadSetting(kTextSection, std::to_wstring(id), BuiltInText(id),
                                     {state.LanguageFile, state.CodePage});
    }
    return text.append(suffix);
}

std::wstring LoadCaption(const ProgramState& state, int id) {
    std::wstring text = LoadResText(state, id);
    for (std::size_t at = text.find(L'&'); at != text.npos; at = text.find(L'&', at + 2)) {
        // Two of them stand for the character itself.
        if (at + 1 < text.size() && text[at + 1] != L'&') return text;
    }
    return text.insert(0, 1, L'&');
}

}  // namespace wordhawk::modLoadRes

namespace wordhawk {

std::wstring Filled(std::wstring_view text, std::initializer_list<std::wstring_view> values) {
    std::wstring result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool mark =
            text[i] == L'%' && i + 1 < text.size() && text[i + 1] >= L'1' && text[i + 1] <= L'9';
        const std::size_t which = mark ? static_cast<std::size_t>(text[i + 1] - L'1') : 0;
        if (mark && which < values.size()) {
            result += *(values.begin() + which);
            ++i;
        } else {
            result += text[i];
        }
    }
    return result;
}

}  // namespace wordhawk
