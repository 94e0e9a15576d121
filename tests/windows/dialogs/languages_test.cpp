// Every dialog in every language that is shipped: no caption is cut off and no access key occurs
// twice in one window.

#include "engine/install_languages.h"
#include "lang/modLoadRes.h"
#include "lang/text_ids.h"
#include "platform/folders.h"
#include "tests/windows/captions.h"
#include "tests/windows/dialogs/dialog_fixture.h"
#include "ui/dialogs/frmCusDics.h"
#include "ui/dialogs/frmEditDict.h"
#include "ui/dialogs/frmPreferences.h"
#include "ui/dialogs/frmValify.h"
#include "ui/dialogs/progress_window.h"
#include "ui/dialogs/sound_picker.h"
#include "ui/framework/layout.h"

#include <gmock/gmock.h>

#include <map>

namespace wordhawk::test {
namespace {

using testing::IsEmpty;

class DialogInLanguage : public DialogTest, public testing::WithParamInterface<int> {
  protected:
    DialogInLanguage() {
        InstallShippedLanguage(Running().state, ProgramFolder() / "languages", GetParam());
        Setting(L"Language", std::to_wstring(GetParam()));
        Restart();
        EXPECT_EQ(Running().state.LanguageId, std::to_wstring(GetParam()));
    }
    static void ExpectGoodCaptions(HWND dialog) {
        EXPECT_THAT(Clipped(dialog), IsEmpty());
        std::map<wchar_t, std::string> keys;
        for (const HWND control : test::Captions(dialog)) {
            const std::wstring text = test::TextOf(control);
            const wchar_t key = AccessKey(text);
            // The key of what is disabled does nothing, as behind a running import.
            if (key == 0 || !IsWindowEnabled(control)) continue;
            EXPECT_TRUE(keys.emplace(key, ToUtf8(text)).second)
                << ToUtf8(text) << " has the key of " << keys[key];
        }
    }
    std::wstring Text(int id) { return modLoadRes::LoadResText(Running().state, id); }
};

TEST_P(DialogInLanguage, PreferencesHaveGoodCaptions) {
    frmPreferences form(Running(), fakes_.desktop);
    Show(form);
    for (std::size_t i = 0; i < form.lblTab.size(); ++i) {
        if (i > 0) Click(form.lblTab[i]);
        SCOPED_TRACE(ToUtf8(form.lblTab[i].Text()));
        ExpectGoodCaptions(form.Handle());
    }
}

TEST_P(DialogInLanguage, SoundPickerHasGoodCaptions) {
    When(L"WordhawkSoundPicker", [](HWND picker) {
        ExpectGoodCaptions(picker);
        Click(picker, IDCANCEL);
    });
    PickSound(Running().state, fakes_.desktop, nullptr, L"");
    EXPECT_TRUE(AllCame());
}

TEST_P(DialogInLanguage, CustomDictionariesAndTheirImportHaveGoodCaptions) {
    frmCusDics form(Running(), fakes_.desktop);
    Show(form);
    ExpectGoodCaptions(form.Handle());
    When(L"WordhawkInputBox", [](HWND box) {
        ExpectGoodCaptions(box);
        Click(box, IDCANCEL);
    });
    Click(form.cmdNew);
    fakes_.files.choice = FileChoice{folder_ / L"words.txt", DocumentKind::Plain};
    When(L"frmValify", [&form](HWND options) {
        ExpectGoodCaptions(options);
        ExpectGoodCaptions(form.Handle());
        Click(options, IDOK);
    });
    Click(form.cmdAdd);
    EXPECT_TRUE(AllCame());
}

TEST_P(DialogInLanguage, WordsOfADictionaryHaveGoodCaptions) {
    WriteBytes(Custom(L"CUSTOM.DIC"), "gizmo,71250\r\n");
    frmEditDict form(Running(), fakes_.desktop);
    form.OpenEditCustomDictionary({});
    Show(form);
    ExpectGoodCaptions(form.Handle());
    const layout::Measure measure{form.Dpi(), form.Font()};
    for (const int news :
         {text_id::kFileMissing, text_id::kCannotWriteDictionary, text_id::kWordNotRemoved}) {
        const std::wstring text = Filled(Text(news), {L"gizmo"});
        EXPECT_LE(measure.TextSize(text).cx, form.lblStatus.Bounds().right) << ToUtf8(text);
    }
}

TEST_P(DialogInLanguage, ProgressHasGoodCaptions) {
    const Theme theme;
    ProgressWindow progress(Running().state, theme, nullptr, ProgressWindow::Appear::AtOnce);
    for (const int caption : {text_id::kSpellingCheck, text_id::kPreparingSearch}) {
        progress.SetCaption(Text(caption));
        progress.Show(Text(caption));
        ExpectGoodCaptions(progress.Handle());
    }
}

INSTANTIATE_TEST_SUITE_P(All, DialogInLanguage,
                         testing::Values(1033, 1030, 1031, 1034, 1036, 1040, 1043, 1045, 1046, 1053,
                                         2070),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace wordhawk::test
