#pragma once

#include "tests/support/temp_dir.h"
#include "tests/windows/program_window.h"
#include "ui/main_window/frmNewSpell.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace wordhawk::test {

/// Starts the real program on a data folder of its own and presses keys, as a person would.
class EndToEnd : public testing::Test {
  protected:
    EndToEnd();
    ~EndToEnd() override;

    /// The words that the dictionary holds, besides "the" and "and".
    static const std::vector<std::string>& Words();
    Path Data() const { return folder_ / L"data"; }
    void Setting(std::wstring_view key, std::wstring_view value);

    /// Starts the program in the folder of the test.
    void LaunchProcess(const std::wstring& arguments);
    /// The same, and waits for its window, which may be behind a box.
    void Launch(const std::wstring& arguments);
    /// The same, until its window has the keyboard.
    void Start(const std::wstring& arguments);
    /// The same with a document.
    void StartOn(const Path& file);
    /// Which of two programs started the other calls are about.
    void UseProgram(std::size_t number) { current_ = number; }
    HWND Window() const { return programs_[current_].window; }

    /// Until the keys go to a window of the program and have done so for a while: a screen is slow
    /// to settle who has the keyboard.
    void WaitForKeyboard(HWND window);
    /// The control of the program that gets the keys.
    HWND Focus() const;
    HWND Child(int id) const { return ControlOf(Window(), id); }
    int ListCount() const { return WordsListed(Window()); }
    bool WaitForCount(int count) const;
    std::wstring ChangeTo() const { return TextOf(main_id::txtChgTo); }
    std::wstring TextOf(int id) const;

    /// Presses and releases a key while another one is held.
    static void Key(WORD key, WORD held = 0);
    /// What a key sends that is kept down: the system would take a key for released whenever the
    /// keyboard goes from window to window, as no real one is down.
    void Repeat(WORD key, int times) const;
    /// Lower-case letters.
    static void Type(std::string_view letters);

    /// Gives a file dialog of the program a path, and confirms it with Enter.
    void AnswerFileDialog(const wchar_t* title, const Path& path);
    /// A message box of the program that has the keyboard.
    void WaitForBox(const wchar_t* title, HWND& box);
    void DismissBox(const wchar_t* title, WORD key = VK_RETURN);
    void DismissCompletion() { DismissBox(kComplete); }
    void ExpectEnd(DWORD expected_code = 0);

    static constexpr const wchar_t* kComplete = L"Spell check complete";

    TempDir folder_;

  private:
    struct Running {
        PROCESS_INFORMATION process{};
        HWND window = nullptr;
    };
    std::array<Running, 2> programs_;
    std::size_t current_ = 0;
};

}  // namespace wordhawk::test
