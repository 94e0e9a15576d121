#pragma once

#include "engine/check/check_pass.h"
#include "engine/program.h"

#include <functional>
#include <string>

namespace wordhawk {

/// What SpellCheck is asked for, under the names by which other programs know it.
struct SpellCheckArguments {
    /// The text to check; afterwards the corrected text, with the line ends that it came with.
    std::wstring strToCheck;
    /// strToCheck is rich text. One that does not look like it is taken as plain text.
    bool blnIsStrRTF = false;
    /// A file to check instead of strToCheck.
    std::wstring strPathInFile;
    bool blnSaveToFile = false;
    /// Where to save; empty means strPathInFile.
    std::wstring strPathOutFile;
    bool blnComfirmComplete = false;
    bool blnSetClipBoard = false;
    bool blnShowOptions = false;
    /// Return at once, while the user goes on correcting; saving and the clipboard then follow when
    /// the window closes.
    bool blnShowAutomationAlone = false;
};

/// Results of SpellCheck; lower ones are the modValidations::FileType of a file not taken.
enum SpellCheckResult : long {
    kChecked = 888,
    /// The user closed the window while words were still listed.
    kCheckedInPart = 889,
};

/// Whether a document has formats.
enum class TextForm { Plain, Rich };

/// The main window as a check drives it.
class CheckWindow {
  public:
    virtual ~CheckWindow() = default;

    /// Makes the file the document. False: it cannot be read, and nothing changed.
    virtual bool TakeFile(const Path& file, TextForm form) = 0;
    /// The file is missing or of no kind that can be checked.
    virtual void Refuse(const Path& /*file*/) {}
    /// Makes the text the document. Rich text comes as the bytes of an RTF file.
    virtual void TakePlainText(const std::wstring& text) = 0;
    virtual void TakeRichText(const std::string& rtf) = 0;
    /// The document's plain text; a line break is one CR. Valid until the document changes.
    virtual const std::wstring& Text() = 0;

    /// Runs the pass with a progress display.
    virtual void ShowProgress(const std::function<void(Progress&)>& pass) = 0;
    /// Whether the end of the correction is to be announced by the window.
    virtual void SetCompletionNotice(bool wanted) = 0;
    /// Lists the words, shows the counts and goes to the first word. False: nothing to correct.
    virtual bool ShowWords(CheckResult result) = 0;
    virtual void ShowOptions() = 0;

    /// Lets the user correct and returns when the window is closed; `hand_over` is called just
    /// before, while the document is still there. True when words were left.
    virtual bool CorrectAndWait(const std::function<void()>& hand_over) = 0;
    /// The same without waiting.
    virtual void CorrectAlone(std::function<void()> hand_over) = 0;

    /// The caller ended in the meantime: nobody waits for the text any more.
    virtual bool CallerIsGone() const = 0;
    virtual TextForm Form() const = 0;
    /// Whether the document differs from what was taken.
    virtual bool TextChanged() = 0;
    virtual std::string RichText() = 0;
    /// False: it failed, and the user knows.
    virtual bool SaveFile(const Path& file) = 0;
    virtual bool SetClipboard() = 0;
    /// The text reached its place: no copy of it need be kept for the user.
    virtual void HandedOver() = 0;
    /// Gives the completion notice unless the window gave it during the correction.
    virtual void Announce() = 0;
};

/// The check of a text or a file, as other programs and the main window's own command ask for it.
class cSpellit {
  public:
    /// Both must outlive what SpellCheck starts.
    cSpellit(Program& program, CheckWindow& window) : program_(program), window_(window) {}

    /// Checks, lets the user correct, hands the text back. Returns a SpellCheckResult or the type
    /// of a file that cannot be taken.
    long SpellCheck(SpellCheckArguments& arguments);

    /// Title, tab and version.
    static std::wstring PlugNameVersion();
    /// The program's file.
    static std::wstring PlugFullPathToEXE();

  private:
    void Pass(CheckResult& result);

    Program& program_;
    CheckWindow& window_;
};

}  // namespace wordhawk
