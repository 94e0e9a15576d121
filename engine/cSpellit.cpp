#include "engine/cSpellit.h"

#include "app/modValidations.h"
#include "app/version.h"
#include "engine/document/line_ends.h"
#include "engine/document/rtf_text.h"
#include "engine/document/text_exchange.h"
#include "platform/folders.h"

#include <utility>

namespace wordhawk {
namespace {

/// What is to become of the corrected text.
struct Outcome {
    bool is_rich_string = false;
    bool from_file = false;
    Path in_file;
    Path out_file;
    bool set_clipboard = false;
};

Outcome OutcomeOf(const SpellCheckArguments& arguments) {
    Outcome outcome;
    outcome.is_rich_string = arguments.blnIsStrRTF;
    outcome.from_file = !arguments.strPathInFile.empty();
    outcome.in_file = PathFromText(arguments.strPathInFile);
    if (arguments.blnSaveToFile) {
        outcome.out_file = arguments.strPathOutFile.empty()
                               ? outcome.in_file
                               : PathFromText(arguments.strPathOutFile);
    }
    outcome.set_clipboard = arguments.blnSetClipBoard;
    return outcome;
}

enum class Caller { Waits, WentOn };

/// `text` holds what the caller gave, and gets the corrected text. A text that nobody changed goes
/// back as it came, to the last character.
void HandOver(const Outcome& outcome, CheckWindow& window, Caller caller, std::wstring& text) {
    if (window.CallerIsGone()) return;
    const bool changed = window.TextChanged();
    if (caller == Caller::Waits && (outcome.from_file || changed)) {
        const std::wstring before = outcome.from_file ? std::wstring() : std::move(text);
        text = outcome.is_rich_string && window.Form() == TextForm::Rich
                   ? TextOfRtfBytes(window.RichText())
                   : LineEndMemory(before).Restore(window.Text());
    }
    bool arrived = caller == Caller::Waits;
    // The file it came from is what an unchanged text would be written to: it is that already.
    const bool is_there_already = !changed && outcome.out_file == outcome.in_file;
    if (!outcome.out_file.empty() && !is_there_already && !window.Text().empty()) {
        arrived = window.SaveFile(outcome.out_file);
    }
    if (outcome.set_clipboard && window.SetClipboard()) arrived = true;
    if (arrived) window.HandedOver();
}

}  // namespace

void cSpellit::Pass(CheckResult& result) {
    window_.ShowProgress([&](Progress& progress) {
        result = CheckText(window_.Text(), program_.dictionaries,
                           SplitRules::From(program_.state, program_.settings), progress);
    });
}

long cSpellit::SpellCheck(SpellCheckArguments& arguments) {
    const Outcome outcome = OutcomeOf(arguments);
    if (outcome.from_file) {
        const std::uint8_t type = modValidations::GetFileType(arguments.strPathInFile);
        if (type > modValidations::kRichTextFile) {
            window_.Refuse(outcome.in_file);
            return type;
        }
        const TextForm form =
            type == modValidations::kRichTextFile ? TextForm::Rich : TextForm::Plain;
        if (!window_.TakeFile(outcome.in_file, form)) return type;
    } else {
        const std::string rtf = arguments.blnIsStrRTF ? RtfBytesOf(arguments.strToCheck) : "";
        if (LooksLikeRtf(rtf)) {
            window_.TakeRichText(rtf);
        } else {
            window_.TakePlainText(arguments.strToCheck);
        }
    }

    CheckResult result;
    Pass(result);
    if (window_.CallerIsGone()) return kCheckedInPart;
    window_.SetCompletionNotice(arguments.blnComfirmComplete);
    const auto hand_over = [&] { HandOver(outcome, window_, Caller::Waits, arguments.strToCheck); };
    bool words_left = false;
    if (!window_.ShowWords(std::move(result))) {
        hand_over();
    } else {
        if (arguments.blnShowOptions) window_.ShowOptions();
        if (arguments.blnShowAutomationAlone) {
            window_.CorrectAlone([outcome, &window = window_] {
                std::wstring nobodys_text;
                HandOver(outcome, window, Caller::WentOn, nobodys_text);
            });
            return kChecked;
        }
        words_left = window_.CorrectAndWait(hand_over);
    }
    if (arguments.blnComfirmComplete && !window_.CallerIsGone()) window_.Announce();
    return words_left ? kCheckedInPart : kChecked;
}

std::wstring cSpellit::PlugNameVersion() { return FromUtf8(WORDHAWK_TITLE "\t" WORDHAWK_VERSION); }

std::wstring cSpellit::PlugFullPathToEXE() {
    return TextFromPath(ProgramFolder() / "Wordhawk.exe");
}

}  // namespace wordhawk
