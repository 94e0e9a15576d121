#pragma once

#include "engine/session/spell_session.h"
#include "tests/engine/session/fake_document.h"
#include "tests/support/fake_services.h"
#include "tests/support/temp_dir.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace wordhawk::test {

/// A session on a string document, with a data folder of its own.
class SessionFixture : public testing::Test {
  protected:
    SessionFixture()
        : dictionaries_(state_, settings_),
          session_({document_, dictionaries_, flags_, recent_, ui_}) {
        state_.DataFolder = folder_.Folder();
        state_.SettingsFile = folder_ / L"Wordhawk.ini";
        state_.LanguageId = L"1033";
        state_.LanguageDictFolder = state_.DataFolder / "Dictionarys" / "1033" / "";
        MakeFolder(state_.LanguageDictFolder);
        MakeFolder(state_.CustomFolder());
        settings_.RemainOpen = true;
    }

    SessionStep Begin(std::wstring text, std::vector<std::wstring> words) {
        document_ = FakeDocument(std::move(text));
        return session_.Begin(std::move(words));
    }

    TempDir folder_;
    ProgramState state_;
    Settings settings_;
    DictionaryStore dictionaries_;
    DelimiterFlagStore flags_;
    RecentChanges recent_;
    FakeUi ui_;
    FakeDocument document_;
    SpellSession session_;
};

using Words = std::vector<std::wstring>;

}  // namespace wordhawk::test
