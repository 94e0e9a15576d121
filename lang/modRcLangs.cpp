#include "lang/modRcLangs.h"

#include "app/modRegs.h"
#include "lang/modLoadRes.h"
#include "lang/modRegionLocales.h"
#include "lang/whole_number.h"

namespace wordhawk::modRcLangs {
namespace {

using modRegionLocales::LanguageName;
using modRegionLocales::Want;

constexpr int kEnglish = 1033;
constexpr std::wstring_view kLanguageKey = L"Language";

std::wstring FileBase(std::wstring_view locale) {
    return std::wstring(LanguageName(0, Want::FilePrefix)).append(locale);
}

Path LanguageFilePath(const ProgramState& state, std::wstring_view locale, std::wstring_view base) {
    return state.ResourcesFolder() / PathFromText(locale) /
           PathFromText(std::wstring(base) + L".ini");
}

/// Writes the texts in force as a start for translators. Fails quietly where the folder is missing.
void GenerateLanguageFile(const ProgramState& state, UiServices& ui) {
    constexpr int kFirstId = 100;
    constexpr int kLastId = 500;
    constexpr std::size_t kLongestReadable = 255;
    std::vector<modSect::KeyAndValue> texts;
    for (int id = kFirstId; id <= kLastId; ++id) {
        std::wstring text = modLoadRes::LoadResText(state, id);
        if (text.empty()) continue;
        if (text.size() > kLongestReadable) ui.Beep();
        texts.push_back({std::to_wstring(id), std::move(text)});
    }
    modSect::WriteSettings(modLoadRes::kTextSection, texts, {state.LanguageFile, state.CodePage});
}

/// Stores the language in force, unless another program stored one since `chosen` was read.
void RememberLanguage(const ProgramState& state, std::wstring_view chosen) {
    if (chosen == state.LanguageId) return;
    const auto store = [&](modSect::Change& change) -> Result<void> {
        if (change.Value(modRegs::kSettingsSection, kLanguageKey, {}) == chosen)
            change.Set(modRegs::kSettingsSection, kLanguageKey, state.LanguageId);
        return {};
    };
    // A settings file that cannot be written is no reason not to start.
    [[maybe_unused]] const Result<void> stored =
        modSect::ChangeProfile(state.SettingsProfile(), store);
}

}  // namespace

std::wstring ChosenLanguage(const modSect::ProfileReader& settings) {
    return settings.ReadSetting(modRegs::kSettingsSection, kLanguageKey, {});
}

int WantedLocale(const ProgramState& state, std::wstring_view chosen) {
    if (const auto number = WholeNumber(chosen)) return *number;
    return WholeNumber(state.LanguageId).value_or(kEnglish);
}

std::wstring InitLanguage(ProgramState& state, UiServices& ui, MissingFile missing) {
    const modSect::ProfileReader settings(state.SettingsProfile());
    return InitLanguage(state, ui, ChosenLanguage(settings), missing);
}

std::wstring InitLanguage(ProgramState& state, UiServices& ui, std::wstring_view chosen,
                          MissingFile missing) {
    const int wanted = WantedLocale(state, chosen);
    state.LanguageId = std::to_wstring(wanted);
    state.LanguageFileBase = FileBase(state.LanguageId);
    SetLanguageFilePath(state);
    bool usable = missing == MissingFile::Leave || IsFile(state.LanguageFile);
    if (!usable) {
        GenerateLanguageFile(state, ui);
        usable = IsFile(state.LanguageFile);
    }
    if (usable) {
        MakeFolder(state.DataFolder / "Dictionarys" / PathFromText(state.LanguageId));
    } else {
        // Looked for in the folder of the wished locale, where a translator may have put it.
        const std::wstring english = std::to_wstring(kEnglish);
        const bool english_there =
            IsFile(LanguageFilePath(state, state.LanguageId, FileBase(english)));
        state.LanguageId = english;
        state.LanguageFileBase = FileBase(english);
        if (english_there) SetLanguageFilePath(state);
    }

    const int locale = WholeNumber(state.LanguageId).value_or(kEnglish);
    state.HelpFile = TextFromPath(state.DataFolder) + L"\\Wordhawk.chm::/" +
                     std::wstring(LanguageName(locale, Want::EnglishName)) + L".txt";
    state.LanguageDictFolder = state.DataFolder / "Dictionarys" / PathFromText(state.LanguageId);
    RememberLanguage(state, chosen);
    return state.LanguageId;
}

void SetLanguageFilePath(ProgramState& state) {
    state.LanguageFile = LanguageFilePath(state, state.LanguageId, state.LanguageFileBase);
}

bool LanguageFileExists(ProgramState& state, std::wstring_view locale) {
    state.LanguageFileBase = FileBase(locale);
    return IsFile(LanguageFilePath(state, locale, state.LanguageFileBase));
}

std::vector<LanguageEntry> FillLanguageList(ProgramState& state) {
    std::vector<LanguageEntry> languages;
    for (const std::wstring& folder : ListFolders(state.ResourcesFolder())) {
        const auto locale = WholeNumber(folder);
        if (!locale || !LanguageFileExists(state, folder)) continue;
        languages.push_back({std::wstring(LanguageName(*locale, Want::EnglishName)), *locale});
    }
    return languages;
}

}  // namespace wordhawk::modRcLangs
