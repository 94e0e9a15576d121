#include "ui/dialogs/frmValify.h"

#include "dict/import.h"
#include "lang/apply_language.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"
#include "ui/dialogs/dialog_ids.h"

namespace wordhawk {

using modLoadRes::LoadResText;

Dialog::Look frmValify::WantedLook() const {
    Look look = FormDialog::WantedLook();
    look.class_name = kClassName;
    return look;
}

std::vector<FormControl*> frmValify::Controls() {
    return {&chkVO[0], &chkVO[1], &chkVO[2], &cmdOK};
}

void frmValify::MakeControls() {
    for (std::size_t i = 0; i < chkVO.size(); ++i) {
        chkVO[i].Create({handle_, valify_id::chkVO + static_cast<int>(i), &Tips()});
    }
    cmdOK.Create({handle_, IDOK, &Tips()});
    cmdOK.SetDefault(true);
}

void frmValify::Form_Load() {
    constexpr int kTexts[] = {text_id::kSkipMainWords, text_id::kSkipCustomWords,
                              text_id::kThirdSwitch};
    for (std::size_t i = 0; i < chkVO.size(); ++i) {
        chkVO[i].SetTag(std::to_wstring(kTexts[i]));
        chkVO[i].SetChecked(flags_.Get(kFirstShownImportFlag + static_cast<int>(i)) == 1);
    }
    ApplyLanguage(state_, *this);
    SetCaption(LoadResText(state_, text_id::kImporting, {}, L" ") +
               LoadResText(state_, text_id::kOptions));
    cmdOK.SetText(LoadResText(state_, text_id::kOk, L"&"));
}

layout::NodePtr frmValify::Layout() const {
    using namespace layout;
    constexpr Size kBox{0, 19};
    return Margin(
        11, Column(5, List(Item(chkVO[0], kBox), Item(chkVO[1], kBox), Item(chkVO[2], kBox),
                           Space({230, 4}),
                           Row(0, List(Space({0, 0}, 1), Item(cmdOK, {80, kButtonHeight}))))));
}

bool frmValify::OnCommand(const ControlEvent& event) {
    if (event.id != IDOK && event.id != IDCANCEL) return false;
    cmdOK_Click();
    return true;
}

void frmValify::Unload() {
    std::vector<DelimiterFlagStore::Flag> changed;
    for (std::size_t i = 0; i < chkVO.size(); ++i) {
        changed.push_back(
            {kFirstSavedImportFlag + static_cast<int>(i), chkVO[i].Checked() ? 1 : 0});
    }
    flags_.Change(changed);
    Close(IDOK);
}

}  // namespace wordhawk
