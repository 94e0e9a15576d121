#include "lang/delimiter_names.h"

#include "lang/modLoadRes.h"
#include "lang/text_ids.h"

namespace wordhawk {
namespace {

using modLoadRes::LoadResText;

/// Control characters, marks of direction and marks that need a letter before them.
bool IsInvisible(wchar_t c) {
    return c < 32 || (c >= 127 && c < 160) || (c >= 0x300 && c < 0x370) ||
           (c >= 0x200B && c <= 0x200F) || (c >= 0x202A && c <= 0x202E);
}

std::wstring Hexadecimal(wchar_t c) {
    constexpr std::wstring_view kDigits = L"0123456789ABCDEF";
    std::wstring text(4, L'0');
    auto rest = static_cast<unsigned>(c);
    for (std::size_t i = text.size(); i-- > 0; rest /= 16) text[i] = kDigits[rest % 16];
    return text;
}

}  // namespace

std::wstring DelimiterName(const ProgramState& state, unsigned char code) {
    const wchar_t c = state.CodePage->ToUnicode(code);
    switch (c) {
        case L'\t': return LoadResText(state, text_id::kTabKey);
        case L'\x00A0': return LoadResText(state, text_id::kNoBreakSpace);
        case L'\x00AD': return LoadResText(state, text_id::kSoftHyphen);
        default: break;
    }
    if (!IsInvisible(c)) return {c};
    return Filled(LoadResText(state, text_id::kCharacterCode), {std::to_wstring(code)});
}

std::wstring DelimiterTip(const ProgramState& state, unsigned char code) {
    return Filled(LoadResText(state, text_id::kDelimiterTip),
                  {DelimiterName(state, code), std::to_wstring(code),
                   Hexadecimal(state.CodePage->ToUnicode(code))});
}

}  // namespace wordhawk
