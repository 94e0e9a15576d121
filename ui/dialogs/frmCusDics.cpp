#include "ui/dialogs/frmCusDics.h"

#include "dict/custom_list.h"
#include "lang/apply_language.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"
#include "ui/dialogs/dialog_ids.h"
#include "ui/dialogs/frmEditDict.h"
#include "ui/dialogs/input_box.h"
#include "ui/framework/themed_drawing.h"
#include "ui/resource.h"

#include <algorithm>

namespace wordhawk {

using modLoadRes::LoadResText;

frmCusDics::frmCusDics(Program& program, Desktop& desktop)
    : panel(program.state, *this), program_(program), desktop_(desktop) {
    mnuFiles.Add(cusdics_id::mnuFiles, std::to_wstring(text_id::kAskBeforeDeleting))
        .SetChecked(true);
}

Dialog::Look frmCusDics::WantedLook() const {
    Look look;
    look.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_CLIPCHILDREN;
    look.class_name = kClassName;
    look.icon_id = WORDHAWK_ICON;
    return look;
}

std::vector<FormControl*> frmCusDics::Controls() {
    return {&lblDum,
            &lstCusDics,
            &cmdNew,
            &cmdAdd,
            &cmdEdit,
            &cmdDelete,
            &cmdRemove,
            &cmdOK,
            &chkHO,
            &lblStatus,
            &panel.lblSearch,
            &panel.lblWord,
            &panel.cmdCanImport,
            mnuFiles[0]};
}

void frmCusDics::MakeControls() {
    const auto at = [this](int id) { return Control::Where{handle_, id, &Tips()}; };
    lblDum.Create(at(cusdics_id::lblDum), Label::Kind::Caption);
    lstCusDics.Create(at(cusdics_id::lstCusDics));
    cmdNew.Create(at(cusdics_id::cmdNew));
    cmdAdd.Create(at(cusdics_id::cmdAdd));
    cmdEdit.Create(at(cusdics_id::cmdEdit));
    cmdDelete.Create(at(cusdics_id::cmdDelete));
    cmdRemove.Create(at(cusdics_id::cmdRemove));
    chkHO.Create(at(cusdics_id::chkHO));
    lblStatus.Create(at(cusdics_id::lblStatus), Label::Kind::Value);
    panel.Create(handle_, Tips());
    cmdOK.Create(at(IDOK));
    cmdOK.SetDefault(true);
}

void frmCusDics::Form_Load() {
    struct Row {
        FormControl& control;
        int caption;
        int tip;
    };
    const Row rows[] = {
        {cmdNew, text_id::kNew, text_id::kTipNewDictionary},
        {cmdAdd, text_id::kAdd, text_id::kTipImportDictionary},
        {cmdEdit, text_id::kEdit, text_id::kTipEditDictionary},
        {cmdDelete, text_id::kDelete, text_id::kTipDeleteDictionary},
        {cmdRemove, text_id::kRemove, text_id::kTipRemoveDictionary},
        {panel.cmdCanImport, text_id::kCancel, 0},
        {cmdOK, text_id::kOk, 0},
    };
    for (const Row& row : rows) {
        row.control.SetTag(L"&" + std::to_wstring(row.caption));
        if (row.tip != 0) row.control.SetToolTipText(std::to_wstring(row.tip));
    }
    lblDum.SetTag(std::to_wstring(text_id::kTickedAreUsed));
    chkHO.SetTag(std::to_wstring(text_id::kImportWithoutOptions));
    SetTag(std::to_wstring(text_id::kCustomDictionaries));
    ApplyLanguage(program_.state, *this);
    RefreshDictionaryList(program_.settings.CustomDictionaries);
    SetMode(Mode::Idle);
}

void frmCusDics::RefreshDictionaryList(const std::vector<std::wstring>& ticked) {
    lstCusDics.Fill(CustomDictionaryFiles(program_.state));
    for (const std::wstring& name : ticked) {
        const int row = lstCusDics.FindExact(name);
        if (row >= 0) lstCusDics.SetChecked(row, true);
    }
    if (lstCusDics.Count() == 0) {
        program_.settings.CustomDic = L"CUSTOM.DIC";
        lstCusDics.SetChecked(lstCusDics.Append(program_.settings.CustomDic), true);
    }
    lstCusDics.SetCurrent(lstCusDics.FindExact(program_.settings.CustomDic));
    UpdateButtons();
}

std::vector<std::wstring> frmCusDics::Ticked() const {
    std::vector<std::wstring> names;
    for (int i = 0; i < lstCusDics.Count(); ++i) {
        if (lstCusDics.Checked(i)) names.push_back(lstCusDics.Item(i));
    }
    return names;
}

std::wstring frmCusDics::CurrentName() const {
    const int row = lstCusDics.Current();
    return row < 0 ? std::wstring() : lstCusDics.Item(row);
}

void frmCusDics::UpdateButtons() {
    const bool any = lstCusDics.Current() >= 0 && !panel.Running();
    const HWND focus = GetFocus();
    for (Button* button : {&cmdEdit, &cmdDelete, &cmdRemove}) button->SetEnabled(any);
    // Else the keyboard would be dead.
    if (focus != nullptr && IsChild(handle_, focus) && !IsWindowEnabled(focus)) {
        lstCusDics.SetFocus();
    }
}

void frmCusDics::Say(int text, std::wstring_view value) {
    lblStatus.SetText(Filled(LoadResText(program_.state, text), {value}));
}

void frmCusDics::Tell(const std::wstring& text, const std::wstring& title, MessageIcon icon) {
    desktop_.ui.ShowMessage(text, title, icon, MessageButtons::Ok);
}

// ---- new ones ----

void frmCusDics::cmdNew_Click() {
    const std::optional<std::wstring> name = AskForName();
    if (!name) return;
    std::vector<std::wstring> ticked = Ticked();
    const Result<std::wstring> made =
        CreateCustomDictionary(program_.state, program_.settings, *name);
    if (made) {
        // Words that are added to it are to be known.
        ticked.push_back(*made);
        lblStatus.SetText({});
    } else {
        Say(text_id::kCannotCreateDictionary);
        desktop_.ui.Beep();
    }
    program_.dictionaries.ReloadCustomDictionaries();
    RefreshDictionaryList(ticked);
}

std::optional<std::wstring> frmCusDics::AskForName() {
    const ProgramState& state = program_.state;
    InputRequest request;
    request.title = LoadResText(state, text_id::kNewCustomDictionary);
    request.prompt = LoadResText(state, text_id::kNewDictionaryName);
    request.longest = kLongestName;
    for (;;) {
        const std::optional<std::wstring> answer = AskForText(state, handle_, request);
        const std::wstring name(Trim(answer.value_or(std::wstring())));
        if (name.empty()) return std::nullopt;
        switch (CheckNewDictionaryName(state, name)) {
            case NameProblem::None: return name;
            case NameProblem::Taken:
                Tell(LoadResText(state, text_id::kDictionaryNameInUse, {}, L"\n\n") +
                         LoadResText(state, text_id::kTryAnotherName),
                     LoadResText(state, text_id::kDuplicateName), MessageIcon::Information);
                break;
            case NameProblem::NotAName:
                Tell(LoadResText(state, text_id::kBadDictionaryName), request.title,
                     MessageIcon::Exclamation);
                break;
            case NameProblem::NotStorable:
                Tell(LoadResText(state, text_id::kUnstorableName), request.title,
                     MessageIcon::Exclamation);
                break;
        }
    }
}

// ---- the ones there are ----

void frmCusDics::cmdEdit_Click() {
    const std::wstring name = CurrentName();
    if (name.empty()) return;
    frmEditDict editor(program_, desktop_);
    editor.OpenEditCustomDictionary(program_.dictionaries.CustomPath(name));
    editor.ShowModal(handle_);
}

void frmCusDics::cmdDelete_Click() {
    const std::wstring name = CurrentName();
    if (name.empty()) return;
    const ProgramState& state = program_.state;
    if (mnuFiles[0]->Checked()) {
        const std::wstring question =
            LoadResText(state, text_id::kDeleteDictionaryQuestion, {}, L":    " + name + L"\n") +
            LoadResText(state, text_id::kNoCopyRemains);
        const Answer answer =
            desktop_.ui.ShowMessage(question, LoadResText(state, text_id::kDeleteDictionaryTitle),
                                    MessageIcon::Exclamation, MessageButtons::YesNoDefaultNo);
        if (answer != Answer::Yes) return;
    }
    const Result<void> deleted = DeleteCustomDictionary(state, name);
    const Path file = program_.dictionaries.CustomPath(name);
    if (deleted || !IsFile(file)) {
        program_.dictionaries.ReloadFile(file);
        lstCusDics.RemoveCurrent();
        lblStatus.SetText({});
    } else {
        Say(text_id::kCannotDeleteDictionary, name);
        desktop_.ui.Beep();
        RefreshDictionaryList(Ticked());
    }
    UpdateButtons();
}

void frmCusDics::cmdRemove_Click() {
    lstCusDics.RemoveCurrent();
    UpdateButtons();
}

void frmCusDics::cmdOK_Click() {
    if (!StoreActiveDictionaries(program_.state, program_.settings, Ticked())) {
        Tell(LoadResText(program_.state, text_id::kSettingsNotWritten), Caption(),
             MessageIcon::Exclamation);
    }
    Close(IDOK);
}

void frmCusDics::lstCusDics_Click() {
    lstCusDics.TakeCurrent();
    UpdateButtons();
}

void frmCusDics::mnuFiles_Click() { mnuFiles[0]->SetChecked(!mnuFiles[0]->Checked()); }

bool frmCusDics::OnCommand(const ControlEvent& event) {
    if (event.id == cusdics_id::lstCusDics) {
        if (event.code == LBN_SELCHANGE || event.code == LBN_SETFOCUS) lstCusDics_Click();
        return true;
    }
    if (event.id == IDCANCEL) {
        // While an import runs, Esc and the close button end that first.
        if (panel.Running()) {
            cmdCanImport_Click();
        } else {
            Close(IDCANCEL);
        }
        return true;
    }
    if (event.code != BN_CLICKED) return false;
    switch (event.id) {
        case cusdics_id::cmdCanImport: cmdCanImport_Click(); return true;
        case cusdics_id::cmdNew: cmdNew_Click(); return true;
        case cusdics_id::cmdAdd: cmdAdd_Click(); return true;
        case cusdics_id::cmdEdit: cmdEdit_Click(); return true;
        case cusdics_id::cmdDelete: cmdDelete_Click(); return true;
        case cusdics_id::cmdRemove: cmdRemove_Click(); return true;
        case IDOK:
            if (!panel.Running()) cmdOK_Click();
            return true;
        default: return false;
    }
}

bool frmCusDics::OnKey(const MSG& message) {
    if (message.message == WM_KEYDOWN && message.wParam == VK_DELETE && lstCusDics.HasFocus()) {
        cmdDelete.Click();
        return true;
    }
    return FormDialog::OnKey(message);
}

bool frmCusDics::OnContextMenu(const ContextRequest& request) {
    if (request.control != cmdDelete.Handle()) return false;
    const int chosen = desktop_.menus.Track(handle_, mnuFiles.Handle(), request.Place());
    if (chosen == cusdics_id::mnuFiles) mnuFiles_Click();
    return true;
}

// ---- looks ----

layout::NodePtr frmCusDics::Layout() const {
    using namespace layout;
    constexpr Size kButton{100, kButtonHeight};
    NodePtr buttons =
        Column(7, List(Item(cmdNew, kButton), Item(cmdAdd, kButton), Item(cmdEdit, kButton),
                       Item(cmdDelete, kButton), Item(cmdRemove, kButton), Space({0, 0}, 1)));
    NodePtr below = Stack(List(Column(0, List(Item(lblStatus, {250, 17}))), panel.Layout()));
    return Margin(
        11, Column(7, List(Text(lblDum),
                           Row(9, List(Item(lstCusDics, {230, 190}, 1), std::move(buttons)), 1),
                           Item(chkHO, {0, 19}), std::move(below),
                           Row(7, List(Space({0, 0}, 1), Item(cmdOK, {80, kButtonHeight}))))));
}

void frmCusDics::OnMeasure() { lstCusDics.SetItemHeight(EntryHeight(Font(), Dpi())); }

bool frmCusDics::OnDrawItem(const DRAWITEMSTRUCT& item) {
    if (panel.Draw(Colours(), item)) return true;
    if (item.hwndItem != lstCusDics.Handle()) return false;
    const int row = static_cast<int>(item.itemID);
    DrawCheckedEntry(Colours(), item, row < 0 ? std::wstring() : lstCusDics.Item(row),
                     row == lstCusDics.Current() ? EntryRole::Current : EntryRole::Plain);
    return true;
}

}  // namespace wordhawk
