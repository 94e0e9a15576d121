#pragma once

#include "engine/program.h"
#include "tests/support/temp_dir.h"
#include "tests/windows/main_window/fake_desktop.h"
#include "ui/framework/FormDialog.h"
#include "ui/framework/controls/ComboBox.h"
#include "ui/framework/controls/ListBox.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace wordhawk::test {

/// Real dialogs on a real data folder with a small dictionary, driven by messages.
class DialogTest : public testing::Test {
  protected:
    DialogTest();
    ~DialogTest() override;

    /// As a start of the program: settings, flags and language are read anew.
    void Restart();
    Program& Running() { return *program_; }

    /// Written to the settings file; read by the next start.
    void Setting(std::wstring_view key, std::wstring_view value);
    std::wstring Stored(std::wstring_view key) const;
    Path Custom(std::wstring_view name) const;
    Path Data(std::wstring_view name) const { return folder_ / L"data" / PathFromText(name); }
    /// Makes a language whose file has these texts beside the English ones.
    void MakeLanguage(int locale, const std::vector<std::pair<int, std::wstring>>& texts);

    /// Shows a dialog as ShowModal does, without its loop.
    void Show(FormDialog& form);
    void Pump(unsigned milliseconds = 0);
    /// A click on a control of a dialog that can take it.
    void Click(const Control& control);
    static void Click(HWND dialog, int id);
    /// A choice in a list or combo box.
    void Choose(ListBox& list, int row);
    void Choose(ComboBox& combo, int row);
    /// A key for the control that has the keyboard.
    void Press(UINT key);

    using Act = std::function<void(HWND dialog)>;
    /// What to do in the next dialog of that class that comes up; several wait in order.
    void When(const wchar_t* class_name, Act act);
    /// Whether every dialog that was waited for has come.
    bool AllCame() const { return steps_.empty(); }

    /// The visible controls whose text does not fit, by number and text.
    static std::vector<std::string> Clipped(HWND dialog);

    TempDir folder_;
    FakeDesktop fakes_;

  private:
    struct Step {
        std::wstring class_name;
        Act act;
    };
    static void CALLBACK OnTick(HWND, UINT, UINT_PTR, DWORD);
    void Tick();

    std::unique_ptr<Program> program_;
    FormDialog* form_ = nullptr;
    std::deque<Step> steps_;
    UINT_PTR timer_ = 0;
    ULONGLONG idle_since_ = 0;
    static inline DialogTest* ticking_ = nullptr;
};

}  // namespace wordhawk::test
