#pragma once

#include "engine/program.h"
#include "ui/desktop.h"
#include "ui/main_window/correction_commands.h"
#include "ui/main_window/document_pane.h"
#include "ui/main_window/recovery_copy.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace wordhawk {

/// The roads of a document in and out: dialogs, the command line, files dropped on the window, the
/// clipboard. A file that cannot be read or written gets a message and changes nothing; one that
/// would lose something by being written is asked about.
class DocumentFiles {
  public:
    struct Parts {
        Program& program;
        Desktop& desktop;
        DocumentPane& document;
        CorrectionCommands& commands;
        StatusLine& status;
    };
    explicit DocumentFiles(const Parts& parts);

    /// Makes the file the document, the one before being kept if it would be lost. Nobody is told
    /// of an error, which changes nothing.
    Result<void> Take(const Path& file, DocumentKind kind);
    /// Saves the document as the kind that it is. False: it was not, and the user knows.
    bool Save(const Path& file);
    /// Asks for a file and loads it. False when there is nothing new to check.
    bool Open(HWND owner);
    bool LoadDropped(const std::wstring& path);
    void SaveAs(HWND owner);
    /// Loads the file of the command line when it is still to be loaded. Returns false when it
    /// cannot be taken.
    bool LoadCommandFile();
    bool CommandFileIsPending() const { return !command_file_loaded_ && !CommandFile().empty(); }
    /// Whether the document is the file of the command line.
    bool FromCommandFile() const { return origin_ && origin_->named_by_command_line; }
    /// At the end of the session nobody can answer, and what is in doubt is not written.
    enum class Questions { Asked, AnsweredNo };
    /// Writes the text back to the file of the command line if that is wanted and it was changed.
    /// False: it is not there, and the user knows.
    bool SaveBack(Questions questions = Questions::Asked);

    /// The user did not want the text written as it is now.
    bool Declined() const { return origin_ && origin_->declined == parts_.document.Revision(); }

    /// Puts a text that would be lost into the folder of saved texts.
    void KeepUnsaved();
    /// Keeps a copy, from time to time, of a text that is in no file, in case the program ends
    /// without closing its window.
    void KeepRecoveryCopy();
    /// Says where the text is that was kept the last time, if one was and nobody was told yet.
    void TellOfKept();
    /// Offers the texts that programs left behind which ended without closing their window. True:
    /// one of them is the document now.
    bool OfferRecovered();

    /// Takes the text that the clipboard holds, rich before plain.
    void TakeClipboard();
    /// Puts the document on the clipboard in the form that is wanted.
    void SetClipboard();

    /// What is to be said of the document that was loaded last; once.
    std::wstring TakeNote() { return std::exchange(note_, {}); }
    /// Name of the document without its folder; empty for a text without a file.
    const std::wstring& Title() const { return title_; }

  private:
    /// The file that the document came from.
    struct Origin {
        Path file;
        bool rich = false;
        bool named_by_command_line = false;
        /// Something that it holds is not in the document.
        bool left_out = false;
        /// Of its bytes, as they were read or written last.
        std::size_t fingerprint = 0;
        /// Of the document, when it was the same as the file.
        std::uint64_t revision = 0;
        /// Of the document, when the user did not want it written.
        std::uint64_t declined = 0;
    };
    enum class Outcome { Written, Declined, Failed };

    bool Load(const Path& file, DocumentKind kind);
    Outcome Write(const Path& file, DocumentKind kind, Questions questions);
    bool MayReplace(const Path& file, Questions questions);
    bool Confirm(int text, const Path& file);
    bool IsOrigin(const Path& file) const;
    std::string Bytes(DocumentKind kind);
    void WriteRecoveryCopy();
    /// Keeps for good what programs left behind. What is to be said of it, or nothing.
    std::wstring PutRecoveredAside();
    bool KeepsTexts() const;
    const std::wstring& CommandFile() const { return parts_.program.state.CommandFile; }
    std::wstring Filters() const;

    Parts parts_;
    std::optional<Origin> origin_;
    RecoveryCopy recovery_;
    /// Revision of the document in the recovery copy.
    std::uint64_t recovery_revision_ = 0;
    ULONGLONG next_recovery_ = 0;
    std::wstring title_;
    std::wstring note_;
    bool command_file_loaded_ = false;
};

}  // namespace wordhawk
