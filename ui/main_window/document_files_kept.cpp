// Texts that are in no file as they stand: what becomes of them.
#include "app/version.h"
#include "engine/document/rtf_text.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"
#include "platform/modSect.h"
#include "ui/main_window/document_files.h"

#include <algorithm>

namespace wordhawk {

using modLoadRes::LoadResText;

namespace {

/// Where the settings file remembers the name of a kept text that nobody was told of yet.
constexpr std::wstring_view kWindowSection = L"Window";
constexpr std::wstring_view kKeptKey = L"KeptText";

constexpr ULONGLONG kBetweenCopies = 3000;  // milliseconds
/// A copy may take this part of the time at most.
constexpr ULONGLONG kShareOfTime = 20;
constexpr std::size_t kShownOfText = 200;

/// The beginning of a text, in one line.
std::wstring Beginning(std::wstring text) {
    std::replace_if(
        text.begin(), text.end(), [](wchar_t c) { return c < 0x20; }, L' ');
    const std::wstring_view trimmed = Trim(text);
    if (trimmed.size() <= kShownOfText) return std::wstring(trimmed);
    return std::wstring(trimmed.substr(0, kShownOfText)) + L" ...";
}

}  // namespace

// A text of another program is that program's to keep.
bool DocumentFiles::KeepsTexts() const {
    return parts_.program.settings.KeepUnsaved != 0 && parts_.program.state.ProgramMode;
}

void DocumentFiles::WriteRecoveryCopy() {
    DocumentPane& document = parts_.document;
    if (recovery_.Exists() && recovery_revision_ == document.Revision()) return;
    const DocumentKind kind = document.IsRich() ? DocumentKind::Rich : DocumentKind::Plain;
    const std::string bytes = Bytes(kind);
    // Nobody waits for this, so a failure is nobody's news.
    if (!bytes.empty() && recovery_.Write(bytes, kind)) recovery_revision_ = document.Revision();
}

void DocumentFiles::KeepRecoveryCopy() {
    if (!KeepsTexts() || !parts_.document.HasUnsavedText()) {
        recovery_.Discard();
        return;
    }
    const ULONGLONG start = GetTickCount64();
    if (start < next_recovery_) return;
    WriteRecoveryCopy();
    const ULONGLONG took = GetTickCount64() - start;
    next_recovery_ = start + std::max(kBetweenCopies, took * kShareOfTime);
}

void DocumentFiles::KeepUnsaved() {
    // What another program asked for and did not get, because it ended, has only this place to go.
    const bool wanted = KeepsTexts() || !parts_.program.state.ProgramMode;
    if (!wanted || !parts_.document.HasUnsavedText()) {
        recovery_.Discard();
        return;
    }
    WriteRecoveryCopy();
    if (!recovery_.Exists()) return;
    if (const Result<std::wstring> kept = recovery_.KeepForGood()) {
        modSect::WriteSetting(kWindowSection, kKeptKey, *kept, parts_.program.state.SettingsFile);
    }
}

void DocumentFiles::TellOfKept() {
    if (!parts_.document.Empty() || CommandFileIsPending()) return;
    const ProgramState& state = parts_.program.state;
    const std::wstring name =
        modSect::ReadSetting(kWindowSection, kKeptKey, L"", state.SettingsFile);
    if (name.empty()) return;
    modSect::WriteSetting(kWindowSection, kKeptKey, L"", state.SettingsFile);
    if (!IsFile(state.DataFolder / "Saves" / PathFromText(name))) return;
    parts_.status.Say(Filled(LoadResText(state, text_id::kKeptUnsaved), {L"Saves\\" + name}));
}

std::wstring DocumentFiles::PutRecoveredAside() {
    std::wstring said;
    // The window's own copy first, whose place the others take for a moment.
    if (!KeepsTexts() || recovery_.Exists()) return said;
    while (recovery_.TakeLeft()) {
        const Result<std::wstring> kept = recovery_.KeepForGood();
        if (!kept) break;
        said = Filled(LoadResText(parts_.program.state, text_id::kKeptRecovered),
                      {L"Saves\\" + *kept});
    }
    return said;
}

bool DocumentFiles::OfferRecovered() {
    const ProgramState& state = parts_.program.state;
    if (!KeepsTexts() || CommandFileIsPending()) return false;
    if (!parts_.document.Empty()) {
        const std::wstring said = PutRecoveredAside();
        if (!said.empty()) parts_.status.Say(said);
        return false;
    }
    while (const std::optional<Path> left = recovery_.TakeLeft()) {
        const bool rich = left->extension() == L".rtf";
        const Result<std::string> bytes = ReadWholeFile(*left);
        if (!bytes) return false;
        DocumentText text;
        if (!rich) text = DecodeDocument(*bytes, *state.CodePage);
        const std::wstring question = LoadResText(state, text_id::kAskRecover) + L"\r\n\r\n" +
                                      Beginning(rich ? RtfToText(*bytes) : text.text);
        if (parts_.program.ui.ShowMessage(question, FromUtf8(WORDHAWK_TITLE), MessageIcon::Question,
                                          MessageButtons::YesNo) == Answer::Yes) {
            if (rich) {
                parts_.document.LoadRichText(*bytes);
            } else {
                parts_.document.LoadPlainText(std::move(text));
            }
            parts_.document.MarkUnsaved();
            recovery_revision_ = parts_.document.Revision();
            return true;
        }
        const Result<std::wstring> kept = recovery_.KeepForGood();
        if (!kept) return false;
        parts_.status.Say(
            Filled(LoadResText(state, text_id::kKeptRecovered), {L"Saves\\" + *kept}));
    }
    return false;
}

}  // namespace wordhawk
