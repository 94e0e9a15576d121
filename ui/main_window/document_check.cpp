#include "ui/main_window/document_check.h"

#include "app/version.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"
#include "ui/framework/message_loop.h"

#include <utility>

namespace wordhawk {

using modLoadRes::LoadResText;

SpellCheckArguments DocumentCheck::OwnArguments() {
    SpellCheckArguments arguments;
    if (parts_.files.CommandFileIsPending()) {
        arguments.strPathInFile = parts_.program.state.CommandFile;
    } else {
        arguments.strToCheck = parts_.document.Text();
    }
    arguments.blnComfirmComplete = true;
    // The command that asks must return: the window goes on by itself, and saves as it closes.
    arguments.blnShowAutomationAlone = true;
    return arguments;
}

bool DocumentCheck::TakeFile(const Path& file, TextForm form) {
    if (!ForAutomation()) return parts_.files.LoadCommandFile();
    // The caller learns it from the result; the user asked for nothing.
    const DocumentKind kind = form == TextForm::Rich ? DocumentKind::Rich : DocumentKind::Plain;
    if (!parts_.files.Take(file, kind)) return false;
    SetWindowTextW(parts_.form.Handle(),
                   (TextFromPath(file.filename()) + L" - " + FromUtf8(WORDHAWK_TITLE)).c_str());
    return true;
}

void DocumentCheck::Refuse(const Path&) {
    // Tells the user what is wrong with the file.
    if (!ForAutomation()) parts_.files.LoadCommandFile();
}

void DocumentCheck::TakePlainText(const std::wstring& text) {
    // The window's own text is there already, with its formats and what can be undone.
    if (ForAutomation()) parts_.document.LoadPlainText({text});
}

void DocumentCheck::TakeRichText(const std::string& rtf) { parts_.document.LoadRichText(rtf); }

void DocumentCheck::ShowProgress(const std::function<void(Progress&)>& pass) {
    if (!ForAutomation()) parts_.show_title();
    const Hourglass busy(parts_.program.ui);
    ProgressWindow progress(parts_.program.state, parts_.theme, parts_.form.Handle(),
                            ProgressWindow::Appear::WhenItTakesLong);
    progress.Show(LoadResText(parts_.program.state, text_id::kSpellingCheck));
    parts_.running(&progress);
    pass(progress);
    parts_.running(nullptr);
}

void DocumentCheck::SetCompletionNotice(bool wanted) {
    parts_.commands.session.SetCompletionNotice(wanted);
}

bool DocumentCheck::ShowWords(CheckResult result) {
    const ProgramState& state = parts_.program.state;
    const std::size_t count = result.words.size();
    cancelled_ = result.cancelled;
    words_left_ = parts_.commands.Begin(std::move(result.words));
    const int outcome = cancelled_ ? text_id::kCheckCancelled
                        : ListFiles(state.LanguageDictFolder, L".dic").empty()
                            ? text_id::kNoDictionary
                        : count == 0 ? text_id::kNoUnknownWords
                        : count == 1 ? text_id::kOneUnknownWord
                                     : text_id::kUnknownWords;
    const std::wstring note = parts_.files.TakeNote();
    parts_.status.Say(Filled(LoadResText(state, outcome), {std::to_wstring(count)}) +
                      (note.empty() ? L"" : L" ") + note);
    return words_left_;
}

bool DocumentCheck::CorrectAndWait(const std::function<void()>& hand_over) {
    hand_over_ = hand_over;
    parts_.show();
    RunMessagesUntilClosed(parts_.form);
    // Still open when the whole program is asked to end.
    Closing();
    return words_left_;
}

void DocumentCheck::CorrectAlone(std::function<void()> hand_over) {
    if (!ForAutomation()) return;
    hand_over_ = std::move(hand_over);
    parts_.show();
}

void DocumentCheck::Closing() {
    const std::function<void()> hand_over = std::exchange(hand_over_, nullptr);
    if (!hand_over) return;
    words_left_ = !parts_.commands.session.Words().empty();
    worked_off_ = !words_left_;
    hand_over();
}

TextForm DocumentCheck::Form() const {
    return parts_.document.IsRich() ? TextForm::Rich : TextForm::Plain;
}

bool DocumentCheck::SaveFile(const Path& file) { return parts_.files.Save(file); }

bool DocumentCheck::SetClipboard() {
    DocumentPane& document = parts_.document;
    Clipboard& clipboard = parts_.desktop.clipboard;
    const bool done = document.IsRich()
                          ? clipboard.SetRichText(document.RichText(), document.Text())
                          : clipboard.SetPlainText(document.Text());
    if (!done) parts_.commands.ShowError(text_id::kClipboardInUse, {});
    return done;
}

void DocumentCheck::HandedOver() {
    // In the window's own hands it is handed to nobody.
    if (ForAutomation()) parts_.document.MarkSaved();
}

void DocumentCheck::Announce() {
    // When the list was worked off, the window has done so; and its own command does it itself.
    if (!ForAutomation() || worked_off_) return;
    parts_.commands.Announce(parts_.commands.session.Notice());
}

}  // namespace wordhawk
