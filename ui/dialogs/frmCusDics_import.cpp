// How the custom dictionaries manager imports a file.
#include "app/version.h"
#include "dict/custom_list.h"
#include "dict/import.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"
#include "ui/dialogs/frmCusDics.h"
#include "ui/dialogs/frmValify.h"

namespace wordhawk {

using modLoadRes::LoadResText;

void frmCusDics::cmdAdd_Click() {
    const ProgramState& state = program_.state;
    std::wstring filters;
    for (const auto& [text, pattern] : {std::pair{text_id::kDictionaryFiles, L"*.DIC"},
                                        std::pair{text_id::kWordLists, L"*.txt"}}) {
        filters += LoadResText(state, text) + L'\0' + pattern + L'\0';
    }
    const auto source = desktop_.files.AskFile(handle_, LoadResText(state, text_id::kOpen), filters,
                                               state.CustomFolder());
    if (!source) return;
    const std::wstring name = ImportedName(*source);
    if (Importable(*source, name)) Import(*source, name);
}

bool frmCusDics::Importable(const Path& source, const std::wstring& name) {
    const ProgramState& state = program_.state;
    const auto is_in = [&](const Path& folder) {
        std::error_code failed;
        return std::filesystem::equivalent(source.parent_path(), folder, failed) && !failed;
    };
    const std::wstring program = FromUtf8(WORDHAWK_TITLE);
    if (is_in(state.LanguageDictFolder)) {
        Tell(LoadResText(state, text_id::kCannotCopyMainFiles, {}, L"..."), program,
             MessageIcon::Exclamation);
        return false;
    }
    if (is_in(state.CustomFolder())) {
        Tell(LoadResText(state, text_id::kCannotCopyCustomFiles, {}, L"..."), program,
             MessageIcon::Exclamation);
        return false;
    }
    switch (CheckNewDictionaryName(state, name)) {
        case NameProblem::None: return true;
        case NameProblem::Taken:
            Tell(LoadResText(state, text_id::kCannotCopyOver, {}, L"\n\n") +
                     LoadResText(state, text_id::kAlreadyInCustomFolder, {}, L"\n\n") +
                     LoadResText(state, text_id::kRemoveExistingFirst),
                 LoadResText(state, text_id::kDictionaryExists), MessageIcon::Exclamation);
            return false;
        case NameProblem::NotAName:
            Tell(LoadResText(state, text_id::kBadDictionaryName), program,
                 MessageIcon::Exclamation);
            return false;
        case NameProblem::NotStorable:
            Tell(LoadResText(state, text_id::kUnstorableName), program, MessageIcon::Exclamation);
            return false;
    }
    return false;
}

void frmCusDics::Import(const Path& source, const std::wstring& name) {
    const ProgramState& state = program_.state;
    std::vector<std::wstring> ticked = Ticked();
    SetMode(Mode::Importing);
    if (!chkHO.Checked()) frmValify(program_.state, program_.flags).ShowModal(handle_);
    const Result<int> added =
        ImportDictionary(program_.dictionaries, program_.flags, source, name, panel, desktop_.ui);
    // The program may have been asked to end meanwhile.
    if (handle_ == nullptr) return;
    SetMode(Mode::Idle);
    if (!added) {
        std::wstring reason = LoadResText(state, text_id::kCannotImport);
        if (!added.error().where.empty()) reason += L"\n\n" + TextFromPath(added.error().where);
        if (!added.error().what.empty()) reason += L"\n" + added.error().what + L".";
        Tell(reason, FromUtf8(WORDHAWK_TITLE), MessageIcon::Exclamation);
    } else if (panel.Cancelled()) {
        Say(text_id::kImportCancelled, std::to_wstring(*added));
    } else if (!IsFile(program_.dictionaries.CustomPath(name))) {
        Tell(LoadResText(state, text_id::kNoNewWords, {}, L"\n\n") +
                 LoadResText(state, text_id::kAllWordsAlreadyFound),
             LoadResText(state, text_id::kDictionaryPossessive), MessageIcon::Information);
    }
    if (added && *added > 0) {
        ticked.push_back(name);
        Tell(std::to_wstring(*added) + LoadResText(state, text_id::kNewWordsAdded, L" "),
             LoadResText(state, text_id::kDictionaryNewWords), MessageIcon::Information);
    }
    RefreshDictionaryList(ticked);
}

void frmCusDics::SetMode(Mode mode) {
    const bool idle = mode == Mode::Idle;
    for (Control* control :
         std::initializer_list<Control*>{&lstCusDics, &cmdNew, &cmdAdd, &chkHO, &cmdOK}) {
        control->SetEnabled(idle);
    }
    for (Button* button : {&cmdEdit, &cmdDelete, &cmdRemove}) button->SetEnabled(false);
    ShowWindow(panel.fraASC.Handle(), idle ? SW_HIDE : SW_SHOW);
    lblStatus.SetVisible(idle);
    if (idle) {
        UpdateButtons();
        lstCusDics.SetFocus();
    } else {
        lblStatus.SetText({});
        panel.cmdCanImport.SetFocus();
        UpdateWindow(handle_);
    }
}

}  // namespace wordhawk
