#include "ui/main_window/document_files.h"

#include "app/command_file.h"
#include "app/modValidations.h"
#include "app/version.h"
#include "engine/document/rtf_text.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"
#include "platform/replace_file.h"

#include <filesystem>
#include <functional>
#include <system_error>

namespace wordhawk {

using modLoadRes::LoadResText;

namespace {

DocumentKind KindOf(std::uint8_t file_type) {
    return file_type == modValidations::kRichTextFile ? DocumentKind::Rich : DocumentKind::Plain;
}

std::size_t FingerprintOf(std::string_view bytes) { return std::hash<std::string_view>()(bytes); }

}  // namespace

std::wstring DocumentFiles::Filters() const {
    const ProgramState& state = parts_.program.state;
    return LoadResText(state, text_id::kTextFiles) + L'\0' + L"*.txt" + L'\0' +
           LoadResText(state, text_id::kRtfFiles) + L'\0' + L"*.rtf" + L'\0';
}

DocumentFiles::DocumentFiles(const Parts& parts)
    : parts_(parts), recovery_(parts.program.state.DataFolder / "Saves") {
    parts_.document.before_rich_text = [this] {
        if (KeepsTexts() && parts_.document.HasUnsavedText()) WriteRecoveryCopy();
    };
}

bool DocumentFiles::Load(const Path& file, DocumentKind kind) {
    const Result<void> taken = Take(file, kind);
    if (!taken) parts_.commands.ShowError(text_id::kCannotRead, taken.error());
    return taken.has_value();
}

Result<void> DocumentFiles::Take(const Path& file, DocumentKind kind) {
    const Hourglass busy(parts_.program.ui);
    const Result<std::string> bytes = ReadWholeFile(file);
    if (!bytes) return tl::unexpected(bytes.error());
    const bool rich = kind == DocumentKind::Rich;
    // An empty file is an empty document; anything else must say what it is.
    if (rich && !bytes->empty() && !LooksLikeRtf(*bytes)) {
        return tl::unexpected(Error{L"the file holds no rich text", file});
    }
    KeepUnsaved();
    DocumentPane& document = parts_.document;
    bool left_out = false;
    if (rich) {
        left_out = document.LoadRichText(*bytes) == DocumentPane::Loaded::InPart;
    } else {
        const AnsiCodePage& page = *parts_.program.state.CodePage;
        document.LoadPlainText(DecodeDocument(*bytes, page));
        left_out = document.PlainBytes(page) != *bytes;
    }
    title_ = TextFromPath(file.filename());
    note_ = left_out ? Filled(LoadResText(parts_.program.state, text_id::kLeftOut), {title_})
                     : std::wstring();
    // The file of the command line is written back only while its text is the document.
    origin_ = Origin{file, rich, false, left_out, FingerprintOf(*bytes), document.Revision(), 0};
    return {};
}

bool DocumentFiles::Open(HWND owner) {
    const auto choice = parts_.desktop.files.AskOpen(
        owner, LoadResText(parts_.program.state, text_id::kOpen), Filters());
    return choice && LoadDropped(TextFromPath(choice->file));
}

bool DocumentFiles::LoadDropped(const std::wstring& path) {
    return Load(PathFromText(path), KindOf(modValidations::GetFileType(path)));
}

bool DocumentFiles::LoadCommandFile() {
    command_file_loaded_ = true;
    const Path file = PathFromText(AbsoluteName(CommandFile()));
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
    if (!Load(file, KindOf(type))) return false;
    origin_->named_by_command_line = true;
    const std::wstring said = PutRecoveredAside();
    if (!said.empty()) note_ += (note_.empty() ? L"" : L" ") + said;
    return true;
}

bool DocumentFiles::SaveBack(Questions questions) {
    if (!origin_ || !origin_->named_by_command_line || !parts_.program.settings.SaveBack ||
        parts_.document.Empty() || origin_->revision == parts_.document.Revision()) {
        return true;
    }
    // Not asked twice about the same text.
    if (origin_->declined == parts_.document.Revision()) return false;
    const DocumentKind kind = origin_->rich ? DocumentKind::Rich : DocumentKind::Plain;
    return Write(origin_->file, kind, questions) == Outcome::Written;
}

void DocumentFiles::SaveAs(HWND owner) {
    const auto choice =
        parts_.desktop.files.AskSave(owner, LoadResText(parts_.program.state, text_id::kSaveAs),
                                     Filters(), parts_.program.state.DataFolder / "Saves");
    if (!choice || parts_.document.Empty()) return;
    if (Write(choice->file, choice->filter, Questions::Asked) != Outcome::Written) return;
    title_ = TextFromPath(choice->file.filename());
    parts_.status.Say(Filled(LoadResText(parts_.program.state, text_id::kSaved),
                             {TextFromPath(choice->file.filename())}));
}

bool DocumentFiles::Save(const Path& file) {
    const DocumentKind kind = parts_.document.IsRich() ? DocumentKind::Rich : DocumentKind::Plain;
    return Write(file, kind, Questions::Asked) == Outcome::Written;
}

DocumentFiles::Outcome DocumentFiles::Write(const Path& file, DocumentKind kind,
                                            Questions questions) {
    if (!MayReplace(file, questions)) {
        origin_->declined = parts_.document.Revision();
        return Outcome::Declined;
    }
    const std::string bytes = Bytes(kind);
    const Result<void> saved = bytes.empty() ? tl::unexpected(Error{L"not enough memory", file})
                                             : ReplaceFileContents(file, bytes);
    if (!saved) {
        parts_.commands.ShowError(text_id::kCannotWrite, saved.error());
        return Outcome::Failed;
    }
    parts_.document.MarkSaved();
    if (IsOrigin(file)) {
        origin_->left_out = false;
        origin_->fingerprint = FingerprintOf(bytes);
        origin_->revision = parts_.document.Revision();
    }
    return Outcome::Written;
}

bool DocumentFiles::MayReplace(const Path& file, Questions questions) {
    if (!IsOrigin(file)) return true;
    const auto confirmed = [&](int text) {
        return questions == Questions::Asked && Confirm(text, file);
    };
    if (origin_->left_out && !confirmed(text_id::kAskLeftOut)) return false;
    // One that is gone loses nothing by being written, and one that cannot be read says so then.
    const Result<std::string> now = ReadWholeFile(file);
    return !now || FingerprintOf(*now) == origin_->fingerprint || confirmed(text_id::kAskChanged);
}

bool DocumentFiles::Confirm(int text, const Path& file) {
    const std::wstring question =
        Filled(LoadResText(parts_.program.state, text), {TextFromPath(file.filename())});
    return parts_.program.ui.ShowMessage(question, FromUtf8(WORDHAWK_TITLE), MessageIcon::Question,
                                         MessageButtons::YesNoDefaultNo) == Answer::Yes;
}

bool DocumentFiles::IsOrigin(const Path& file) const {
    if (!origin_) return false;
    std::error_code missing;
    return file == origin_->file || std::filesystem::equivalent(file, origin_->file, missing);
}

std::string DocumentFiles::Bytes(DocumentKind kind) {
    return kind == DocumentKind::Rich ? parts_.document.RichText()
                                      : parts_.document.PlainBytes(*parts_.program.state.CodePage);
}

void DocumentFiles::TakeClipboard() {
    Clipboard& clipboard = parts_.desktop.clipboard;
    if (clipboard.HasRichText()) {
        if (const auto rtf = clipboard.RichText()) {
            if (parts_.document.LoadRichText(*rtf) == DocumentPane::Loaded::InPart) {
                const ProgramState& state = parts_.program.state;
                parts_.status.Say(Filled(LoadResText(state, text_id::kLeftOut),
                                         {LoadResText(state, text_id::kTextOfTheClipboard)}));
            }
            return;
        }
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
