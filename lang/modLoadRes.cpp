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
                                     state.LanguageFile);
    }
    return text.append(suffix);
}

}  // namespace wordhawk::modLoadRes
