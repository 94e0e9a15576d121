#include "lang/apply_language.h"

#include "lang/built_in_texts.h"
#include "lang/modLoadRes.h"
#include "lang/whole_number.h"

#include <algorithm>
#include <array>
#include <optional>

namespace wordhawk {
namespace {

using modLoadRes::LoadResText;

enum class Kind { Menu, TabStrip, Toolbar, ListView, Other };

Kind KindOf(const FormControl& control) {
    const std::wstring type = control.TypeName();
    if (type == L"Menu") return Kind::Menu;
    if (type == L"TabStrip") return Kind::TabStrip;
    if (type == L"Toolbar") return Kind::Toolbar;
    if (type == L"ListView") return Kind::ListView;
    return Kind::Other;
}

/// The text of the id that `carrier` is; nothing when it is no id.
std::optional<std::wstring> TextOf(const ProgramState& state, std::wstring_view carrier) {
    const auto id = WholeNumber(carrier);
    if (!id) return std::nullopt;
    return LoadResText(state, *id);
}

/// As TextOf, but "&" before the id makes the text's first letter the accelerator.
std::optional<std::wstring> CaptionOf(const ProgramState& state, std::wstring_view carrier) {
    if (!carrier.starts_with(L'&')) return TextOf(state, carrier);
    const auto id = WholeNumber(carrier.substr(1));
    if (!id) return std::nullopt;
    return LoadResText(state, *id, L"&");
}

/// Replaces `target` by the text of the id in `carrier`, if there is one.
void Replace(const ProgramState& state, const std::wstring& carrier, std::wstring& target) {
    if (auto text = TextOf(state, carrier)) target = std::move(*text);
}

void ApplyToButton(const ProgramState& state, FormItem& button) {
    Replace(state, button.tag, button.tool_tip);
    Replace(state, button.description, button.description);
    if (!button.drop_down) return;
    for (FormItem& entry : button.button_menus) {
        // Menus of buttons stay in English whatever the language file says.
        if (const auto id = WholeNumber(entry.tag)) entry.caption = BuiltInText(*id);
    }
}

void ApplyToItems(const ProgramState& state, Kind kind, FormControl& control) {
    std::vector<FormItem> items = control.Items();
    for (FormItem& item : items) {
        if (kind == Kind::Toolbar) {
            ApplyToButton(state, item);
            continue;
        }
        Replace(state, item.tag, item.caption);
        if (kind == Kind::TabStrip) Replace(state, item.tool_tip, item.tool_tip);
    }
    control.SetItems(items);
}

void ApplyToControl(const ProgramState& state, FormControl& control) {
    const Kind kind = KindOf(control);
    switch (kind) {
        case Kind::Menu:
            if (const auto caption = CaptionOf(state, control.Caption())) {
                control.SetCaption(*caption);
            }
            break;
        case Kind::TabStrip:
        case Kind::Toolbar:
        case Kind::ListView: ApplyToItems(state, kind, control); break;
        case Kind::Other:
            if (const auto caption = CaptionOf(state, control.Tag())) control.SetCaption(*caption);
            if (const auto tool_tip = TextOf(state, control.ToolTipText())) {
                control.SetToolTipText(*tool_tip);
            }
            break;
    }
}

void ClearItem(FormItem& item) {
    item.caption.clear();
    item.tag.clear();
    item.tool_tip.clear();
    item.description.clear();
    for (FormItem& entry : item.button_menus) ClearItem(entry);
}

bool HasPicture(const FormControl& control) {
    constexpr std::array<std::wstring_view, 4> kTypes = {L"PictureBox", L"Image", L"CommandButton",
                                                         L"OptionButton"};
    const std::wstring type = control.TypeName();
    return std::find(kTypes.begin(), kTypes.end(), type) != kTypes.end();
}

void ClearControl(FormControl& control) {
    const Kind kind = KindOf(control);
    if (kind == Kind::TabStrip || kind == Kind::Toolbar || kind == Kind::ListView) {
        std::vector<FormItem> items = control.Items();
        for (FormItem& item : items) ClearItem(item);
        control.SetItems(items);
    }
    control.SetCaption({});
    control.SetTag({});
    control.SetToolTipText({});
    if (HasPicture(control)) control.ClearPicture();
}

}  // namespace

void ApplyLanguage(const ProgramState& state, Form& form) {
    if (const auto caption = TextOf(state, form.Tag())) form.SetCaption(*caption);
    for (FormControl* control : form.Controls()) ApplyToControl(state, *control);
}

void ClearFormTexts(Form& form) {
    for (FormControl* control : form.Controls()) ClearControl(*control);
    form.SetCaption({});
    form.SetTag({});
    form.ReleaseIcon();
}

}  // namespace wordhawk
