#include "ui/main_window/document_files.h"

#include "app/modValidations.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"

namespace wordhawk {

using modLoadRes::LoadResText;

std::wstring DocumentFiles::Filters() const {
    const ProgramState& state = parts_.program.state;
    return LoadResText(state, text_id::kTextFiles) + L'\0' + L"*.txt" + L'\0' +
           LoadResText(state, text_id::kRtfFiles) + L'\0' + L"*.rtf" + L'\0';
}

bool DocumentFiles::Load(const Path& file, bool rich) {
    const Hourglass busy(parts_.program.ui);
    KeepUnsaved();
    const Result<void> loaded =
        rich ? parts_.document.LoadRichFile(file)
             : parts_.document.LoadPlainFile(file, *parts_.program.state.CodePage);
    if (!loaded) {
        parts_.commands.ShowError(text_id::kCannotRead, loaded.error());
        return false;
    }
    title_ = TextFromPath(file.filename());
    // The file of the command line is written back only while its text is the document.
    from_command_file_ = false;
    return true;
}

bool DocumentFiles::Open(HWND owner) {
    const auto choice = parts_.desktop.files.AskOpen(
        owner, LoadResText(parts_.program.state, text_id::kOpen), Filters());
    return choice && LoadDropped(TextFromPath(choice->file));
}

bool DocumentFiles::LoadDropped(const std::wstring& path) {
    const bool rich = modValidations::GetFileType(path) == modValidations::kRichTextFile;
    return Load(PathFromText(path), rich);
}

bool DocumentFiles::LoadCommandFile() {
    command_file_loaded_ = true;
    const Path file = PathFromText(CommandFile());
    const std::uint8_t type = modValidations::GetFileType(CommandFile());
    if (type > modValidations::kRichTextFile) {
        const bool missing = IsMissing(file);
        if (type == modValidations::kMissingFile && !missing) {
            // It is there and cannot be opened: the system knows why.
            const Result<std::string> read = ReadWholeFile(file);
            parts_.commands.ShowError(text_id::kCannotRead, read ? Error{{}, file} : read.error());
            return false;
        }
        parts_.commands.ShowError(missing ? text_id::kFileMissing : text_id::kWrongFileType,
                                  Error{{}, file});
        return false;
    }
    if (!Load(file, type == modValidations::kRichTextFile)) return false;
    from_command_file_ = true;
    command_file_is_rich_ = type == modValidations::kRichTextFile;
    return true;
}

bool DocumentFiles::SaveBack() {
    if (!from_command_file_ || !parts_.program.settings.SaveBack || parts_.document.Empty()) {
        return true;
    }
    const Path file = PathFromText(CommandFile());
    const Result<void> saved =
        command_file_is_rich_ ? parts_.document.SaveRichFile(file)
                              : parts_.document.SavePlainFile(file, *parts_.program.state.CodePage);
    if (!saved) parts_.commands.ShowError(text_id::kCannotWrite, saved.error());
    return saved.has_value();
}

void DocumentFiles::SaveAs(HWND owner) {
    const auto choice =
        parts_.desktop.files.AskSave(owner, LoadResText(parts_.program.state, text_id::kSaveAs),
                                     Filters(), parts_.program.state.DataFolder / "Saves");
    if (!choice || parts_.document.Empty()) return;
    const Result<void> saved =
        choice->filter == DocumentKind::Rich
            ? parts_.document.SaveRichFile(choice->file)
            : parts_.document.SavePlainFile(choice->file, *parts_.program.state.CodePage);
    if (!saved) {
        parts_.commands.ShowError(text_id::kCannotWrite, saved.error());
        return;
    }
    title_ = TextFromPath(choice->file.filename());
    parts_.status.Say(Filled(LoadResText(parts_.program.state, text_id::kSaved),
                             {TextFromPath(choice->file.filename())}));
}

Path DocumentFiles::Kept(DocumentKind kind) const {
    const char* name = kind == DocumentKind::Rich ? "Unsaved text.rtf" : "Unsaved text.txt";
    return parts_.program.state.DataFolder / "Saves" / name;
}

void DocumentFiles::KeepUnsaved() {
    DocumentPane& document = parts_.document;
    if (!document.HasUnsavedText()) return;
    // Nobody waits for this, so a failure is nobody's news.
    if (document.IsRich()) {
        static_cast<void>(document.SaveRichFile(Kept(DocumentKind::Rich)));
    } else {
        static_cast<void>(
            document.SavePlainFile(Kept(DocumentKind::Plain), *parts_.program.state.CodePage));
    }
}

void DocumentFiles::TellOfKept() {
    if (!parts_.document.Empty() || CommandFileIsPending()) return;
    for (const DocumentKind kind : {DocumentKind::Plain, DocumentKind::Rich}) {
        const Path kept = Kept(kind);
        if (!IsFile(kept)) continue;
        parts_.status.Say(Filled(LoadResText(parts_.program.state, text_id::kKeptUnsaved),
                                 {L"Saves\\" + TextFromPath(kept.filename())}));
    }
}

void DocumentFiles::TakeClipboard() {
    Clipboard& clipboard = parts_.desktop.clipboard;
    if (clipboard.HasRichText()) {
        if (const auto rtf = clipboard.RichText()) return parts_.document.LoadRichText(*rtf);
    } else if (clipboard.HasPlainText()) {
        if (auto text = clipboard.PlainText()) {
            return parts_.document.LoadPlainText({std::move(*text)});
        }
    } else {
        return;
    }
    parts_.status.Say(LoadResText(parts_.program.state, text_id::kClipboardInUse));
}

void DocumentFiles::SetClipboard() {
    const Settings& settings = parts_.program.settings;
    if (!settings.SetClip || parts_.document.Empty()) return;
    Clipboard& clipboard = parts_.desktop.clipboard;
    const bool done = settings.ClipType ? clipboard.SetRichText(parts_.document.RichText(),
                                                                parts_.document.Text())
                                        : clipboard.SetPlainText(parts_.document.Text());
    if (done) {
        parts_.document.MarkSaved();
    } else {
        parts_.commands.ShowError(text_id::kClipboardInUse, {});
    }
}

}  // namespace wordhawk
