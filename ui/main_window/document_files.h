#pragma once

#include "engine/program.h"
#include "ui/desktop.h"
#include "ui/main_window/correction_commands.h"
#include "ui/main_window/document_pane.h"

#include <string>

namespace wordhawk {

/// The roads of a document in and out: dialogs, the command line, files dropped on the window, the
/// clipboard. A file that cannot be read or written gets a message and changes nothing.
class DocumentFiles {
  public:
    struct Parts {
        Program& program;
        Desktop& desktop;
        DocumentPane& document;
        CorrectionCommands& commands;
        StatusLine& status;
    };
    explicit DocumentFiles(const Parts& parts) : parts_(parts) {}

    /// Asks for a file and loads it. False when there is nothing new to check.
    bool Open(HWND owner);
    bool LoadDropped(const std::wstring& path);
    void SaveAs(HWND owner);
    /// Loads the file of the command line when it is still to be loaded. Returns false when it
    /// cannot be taken.
    bool LoadCommandFile();
    bool CommandFileIsPending() const { return !command_file_loaded_ && !CommandFile().empty(); }
    /// Whether the document is the file of the command line.
    bool FromCommandFile() const { return from_command_file_; }
    /// Writes the text back to the file of the command line if that is wanted. False: it failed,
    /// and the user knows.
    bool SaveBack();

    /// Puts a text that would be lost into the folder of saved texts, in the place of the one kept
    /// there before.
    void KeepUnsaved();
    /// Says where the text is that was kept the last time, if one was.
    void TellOfKept();

    /// Takes the text that the clipboard holds, rich before plain.
    void TakeClipboard();
    /// Puts the document on the clipboard in the form that is wanted.
    void SetClipboard();

    /// Name of the document without its folder; empty for a text without a file.
    const std::wstring& Title() const { return title_; }

  private:
    bool Load(const Path& file, bool rich);
    const std::wstring& CommandFile() const { return parts_.program.state.CommandFile; }
    std::wstring Filters() const;
    Path Kept(DocumentKind kind) const;

    Parts parts_;
    std::wstring title_;
    bool command_file_loaded_ = false;
    bool from_command_file_ = false;
    bool command_file_is_rich_ = false;
};

}  // namespace wordhawk
