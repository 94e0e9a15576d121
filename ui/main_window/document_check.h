#pragma once

#include "engine/cSpellit.h"
#include "ui/framework/Dialog.h"
#include "ui/main_window/correction_commands.h"
#include "ui/main_window/document_files.h"

#include <functional>
#include <string>

namespace wordhawk {

/// The main window as a check sees it: where the text goes, how the pass is shown, and how long a
/// caller waits. Serves the window's own Spell Check command and other programs alike.
class DocumentCheck : public CheckWindow {
  public:
    struct Parts {
        Program& program;
        Desktop& desktop;
        DocumentPane& document;
        DocumentFiles& files;
        CorrectionCommands& commands;
        StatusLine& status;
        const Theme& theme;
        Dialog& form;
        /// The pass lets messages through from now on; null: it is over.
        std::function<void(ProgressWindow*)> running;
        /// Makes the window visible to a user who works in another program.
        std::function<void()> show;
        std::function<void()> show_title;
        std::function<void()> show_options;
    };
    explicit DocumentCheck(Parts parts) : parts_(std::move(parts)) {}

    /// What the window's own command asks for: the file of the command line while it is still to be
    /// loaded, else the document as it stands.
    SpellCheckArguments OwnArguments();
    /// The last pass was stopped by the user.
    bool Cancelled() const { return cancelled_; }

    /// The window is about to go: hands the text over, once.
    void Closing();
    /// The program that asked for the check has ended.
    void CallerEnded() { caller_is_gone_ = true; }

    // CheckWindow
    bool TakeFile(const Path& file, TextForm form) override;
    void Refuse(const Path& file) override;
    void TakePlainText(const std::wstring& text) override;
    void TakeRichText(const std::string& rtf) override;
    const std::wstring& Text() override { return parts_.document.Text(); }
    void ShowProgress(const std::function<void(Progress&)>& pass) override;
    void SetCompletionNotice(bool wanted) override;
    bool ShowWords(CheckResult result) override;
    void ShowOptions() override { parts_.show_options(); }
    bool CorrectAndWait(const std::function<void()>& hand_over) override;
    void CorrectAlone(std::function<void()> hand_over) override;
    bool CallerIsGone() const override { return caller_is_gone_; }
    TextForm Form() const override;
    bool TextChanged() override { return ForAutomation() && parts_.document.Changed(); }
    std::string RichText() override { return parts_.document.RichText(); }
    bool SaveFile(const Path& file) override;
    bool SetClipboard() override;
    void HandedOver() override;
    void Announce() override;

  private:
    bool ForAutomation() const { return !parts_.program.state.ProgramMode; }

    Parts parts_;
    std::function<void()> hand_over_;
    bool cancelled_ = false;
    bool words_left_ = false;
    bool worked_off_ = false;
    bool caller_is_gone_ = false;
};

}  // namespace wordhawk
