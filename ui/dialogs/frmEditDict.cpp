#include "ui/dialogs/frmEditDict.h"

#include "dict/custom_words.h"
#include "dict/word_lines.h"
#include "lang/apply_language.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"
#include "ui/dialogs/dialog_ids.h"
#include "ui/framework/themed_drawing.h"
#include "ui/resource.h"

#include <algorithm>

namespace wordhawk {
namespace {

/// Whether the removal of a word is asked about; the same flag as before an addition to the main
/// dictionary.
constexpr int kConfirmationFlag = 254;

}  // namespace

using modLoadRes::LoadResText;

frmEditDict::frmEditDict(Program& program, Desktop& desktop)
    : program_(program), desktop_(desktop) {
    mnuFile.Add(editdict_id::mnuFiles, std::to_wstring(text_id::kAskBeforeRemoving));
}

Dialog::Look frmEditDict::WantedLook() const {
    Look look;
    look.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_CLIPCHILDREN;
    look.class_name = kClassName;
    look.icon_id = WORDHAWK_ICON;
    return look;
}

void frmEditDict::OpenEditCustomDictionary(const Path& path) {
    path_ = path.empty() ? program_.dictionaries.CustomPath(L"CUSTOM.DIC") : path;
    if (handle_ != nullptr) FillList();
}

std::vector<FormControl*> frmEditDict::Controls() {
    return {&lblDum, &txtSrch, &lstEdit, &lblCount, &lblStatus, &cmdDelete, &cmdOK, mnuFile[0]};
}

void frmEditDict::MakeControls() {
    const auto at = [this](int id) { return Control::Where{handle_, id, &Tips()}; };
    lblDum.Create(at(editdict_id::lblDum), Label::Kind::Caption);
    txtSrch.Create(at(editdict_id::txtSrch));
    lstEdit.Create(at(editdict_id::lstEdit));
    lblCount.Create(at(editdict_id::lblCount), Label::Kind::Value);
    cmdDelete.Create(at(editdict_id::cmdDelete));
    cmdOK.Create(at(IDOK));
    lblStatus.Create(at(editdict_id::lblStatus), Label::Kind::Value);
    cmdOK.SetDefault(true);
}

void frmEditDict::Form_Load() {
    const ProgramState& state = program_.state;
    lblDum.SetTag(L"&" + std::to_wstring(text_id::kSearch));
    cmdDelete.SetTag(L"&" + std::to_wstring(text_id::kDelete));
    cmdDelete.SetToolTipText(std::to_wstring(text_id::kTipDeleteWord));
    ApplyLanguage(state, *this);
    cmdOK.SetText(LoadResText(state, text_id::kOk, L"&"));
    mnuFiles(1).SetChecked(program_.flags.Get(kConfirmationFlag) == 1);
    OpenEditCustomDictionary(path_);
}

void frmEditDict::FillList() {
    const Hourglass busy(desktop_.ui);
    SetCaption(LoadResText(program_.state, text_id::kEditCustomDictionary, {},
                           L" - " + TextFromPath(path_.filename())));
    const std::string bytes = ReadWholeFile(path_).value_or(std::string());
    lstEdit.Fill(WordsOfLines(bytes, program_.dictionaries.Page()));
    UpdateState();
}

void frmEditDict::UpdateState() {
    lblCount.SetText(std::to_wstring(lstEdit.Count()) +
                     LoadResText(program_.state, text_id::kWords, L" - "));
    const bool had_focus = cmdDelete.HasFocus();
    cmdDelete.SetEnabled(lstEdit.Selected() >= 0);
    if (had_focus && !cmdDelete.Enabled()) txtSrch.SetFocus();
}

// ---- events ----

void frmEditDict::txtSrch_Change() {
    const std::wstring beginning = txtSrch.Text();
    const int found = beginning.empty() ? -1 : lstEdit.FindBeginning(beginning);
    lstEdit.Select(found);
    lstEdit.SetTop(std::max(0, found));
    UpdateState();
}

void frmEditDict::lstEdit_Click() { UpdateState(); }

bool frmEditDict::Confirmed(const std::wstring& word) {
    if (!mnuFiles(1).Checked()) return true;
    const ProgramState& state = program_.state;
    const std::wstring question =
        LoadResText(state, text_id::kRemoveWordQuestion, {}, L" '" + word + L"' ") +
        LoadResText(state, text_id::kFromPersonalDictionary);
    return desktop_.ui.ShowMessage(question, LoadResText(state, text_id::kConfirmation),
                                   MessageIcon::Question, MessageButtons::YesNo) == Answer::Yes;
}

void frmEditDict::cmdDelete_Click() {
    const int row = lstEdit.Selected();
    if (row < 0) return;
    const std::wstring word = lstEdit.Item(row);
    if (!Confirmed(word)) return;
    const Result<bool> removed = RemoveWordFromCustomDictionary(program_.dictionaries, word, path_);
    if (removed && *removed) {
        lstEdit.RemoveAt(row);
        // On to the next, so that several can go one after another.
        lstEdit.Select(std::min(row, lstEdit.Count() - 1));
        lblStatus.SetText({});
    } else if (removed && !IsFile(path_)) {
        lblStatus.SetText(LoadResText(program_.state, text_id::kFileMissing));
    } else if (removed) {
        // The line stays in the file, and so in the list.
        lblStatus.SetText(Filled(LoadResText(program_.state, text_id::kWordNotRemoved), {word}));
    } else {
        lblStatus.SetText(LoadResText(program_.state, text_id::kCannotWriteDictionary));
        desktop_.ui.Beep();
    }
    UpdateState();
}

void frmEditDict::mnuFiles_Click(int index) {
    MenuItem& item = mnuFiles(static_cast<std::size_t>(index));
    item.SetChecked(!item.Checked());
    const DelimiterFlagStore::Flag changed[] = {{kConfirmationFlag, item.Checked() ? 1 : 0}};
    program_.flags.Change(changed);
}

bool frmEditDict::OnCommand(const ControlEvent& event) {
    switch (event.id) {
        case IDOK:
        case IDCANCEL: cmdOK_Click(); return true;
        case editdict_id::cmdDelete: cmdDelete_Click(); return true;
        case editdict_id::txtSrch:
            if (event.code == EN_CHANGE) txtSrch_Change();
            return true;
        case editdict_id::lstEdit:
            if (event.code == LBN_SELCHANGE) lstEdit_Click();
            return true;
        default: return false;
    }
}

bool frmEditDict::OnKey(const MSG& message) {
    if (message.message == WM_KEYDOWN && message.wParam == VK_DELETE && lstEdit.HasFocus()) {
        cmdDelete.Click();
        return true;
    }
    // From the search box up and down in the list, as the eye does.
    const bool leads = message.wParam == VK_DOWN || message.wParam == VK_UP ||
                       message.wParam == VK_NEXT || message.wParam == VK_PRIOR;
    if (message.message == WM_KEYDOWN && leads && txtSrch.HasFocus()) {
        SendMessageW(lstEdit.Handle(), WM_KEYDOWN, message.wParam, message.lParam);
        return true;
    }
    return FormDialog::OnKey(message);
}

bool frmEditDict::OnContextMenu(const ContextRequest& request) {
    if (request.control != cmdDelete.Handle()) return false;
    const int chosen = desktop_.menus.Track(handle_, mnuFile.Handle(), request.Place());
    if (chosen == editdict_id::mnuFiles) mnuFiles_Click(1);
    return true;
}

// ---- looks ----

layout::NodePtr frmEditDict::Layout() const {
    using namespace layout;
    NodePtr buttons = Column(7, List(Item(cmdDelete, {90, kButtonHeight}), Space({0, 0}, 1),
                                     Item(cmdOK, {90, kButtonHeight})));
    return Margin(11,
                  Column(5, List(Text(lblDum), Item(txtSrch, {100, kFieldHeight}),
                                 Row(9, List(Item(lstEdit, {290, 300}, 1), std::move(buttons)), 1),
                                 Item(lblCount, {110, 17}), Item(lblStatus, {150, 17}))));
}

void frmEditDict::OnMeasure() { lstEdit.SetItemHeight(EntryHeight(Font(), Dpi())); }

bool frmEditDict::OnDrawItem(const DRAWITEMSTRUCT& item) {
    if (item.hwndItem != lstEdit.Handle()) return false;
    const int row = static_cast<int>(item.itemID);
    DrawEntry(Colours(), item, row < 0 ? std::wstring() : lstEdit.Item(row));
    return true;
}

}  // namespace wordhawk
