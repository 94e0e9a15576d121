#pragma once

#include "tests/support/temp_dir.h"
#include "tests/windows/main_window/fake_desktop.h"
#include "ui/main_window/frmNewSpell.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace wordhawk::test {

/// The real main window on a real data folder with a small dictionary, driven by messages. It stays
/// open after the last word unless a test sets RemainOpen to 0.
class MainWindowTest : public testing::Test {
  protected:
    MainWindowTest();
    ~MainWindowTest() override;

    /// Written to the settings file before the window opens.
    void Setting(std::wstring_view key, std::wstring_view value);
    /// Lets the window find the language files that are shipped.
    void InstallShipped() { install_shipped_ = true; }
    void Flag(int index, int value) { flags_.emplace_back(index, value); }
    enum class Mode { Application, Automation };
    /// Opens the window; `command_file` stands for the command line.
    frmNewSpell& Open(const Path& command_file = {}, Mode mode = Mode::Application);
    /// Opens it with a text in the document, checked.
    frmNewSpell& OpenWith(std::wstring_view text);
    /// Puts a text into the open window's document and checks it.
    void Check(std::wstring_view text);

    /// Lets waiting messages through, also those that keep arriving for `milliseconds`.
    void Pump(unsigned milliseconds = 0);
    /// Lets messages through until the window is gone. False when it stays for ten seconds.
    bool ClosesItself();
    /// The button must be there and enabled.
    void Click(Button& button);
    /// A key for the control that has the focus, with other keys held down; AltGr is Ctrl and Alt.
    enum class With { Nothing, Alt, Control, AltGr };
    void Press(UINT key, With with = With::Nothing);
    /// A click on an entry of a list.
    void ChooseIn(ListBox& list, int index);
    void RightClick(const Control& control);

    frmNewSpell& Form() { return *form_; }
    NewSpellControls& Controls() { return *form_; }
    bool IsOpen() const { return form_ != nullptr && form_->Handle() != nullptr; }
    /// As a restart: settings are read anew.
    void Reopen();
    std::wstring DocumentText();
    /// What the user would see selected.
    std::wstring Selected() { return form_->document.SelectedText(); }
    std::vector<std::wstring> Listed() const;
    std::vector<std::wstring> Suggested() const;
    /// The file of a custom dictionary.
    Path Custom(std::wstring_view name) const;
    std::wstring StoredSetting(std::wstring_view section, std::wstring_view key) const;

    TempDir folder_;
    FakeDesktop fakes_;
    SharedMainWindow shared_;
    std::unique_ptr<Program> program_;

  private:
    std::vector<std::pair<int, int>> flags_;
    bool install_shipped_ = false;
    std::unique_ptr<frmNewSpell> form_;
};

}  // namespace wordhawk::test
