#pragma once

#include "tests/support/temp_dir.h"
#include "tests/windows/program_window.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace wordhawk::test {

/// The program registered for other programs, on a data folder with a small dictionary ("the",
/// "and", "house", "water"), and somebody who works in its window. The window is driven by the
/// messages that a click on a button sends, so that no test depends on who has the keyboard.
class AutomationTest : public testing::Test {
  protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();
    AutomationTest();
    ~AutomationTest() override;

    /// Runs the program with a switch and waits; its exit code.
    static DWORD RunProgram(const std::wstring& arguments);

    /// A script run by the system's script host.
    struct Script {
        HANDLE process = nullptr;
        Path output;
    };
    /// `extension` chooses the language: "vbs" or "js"; `argument` is handed to the script.
    Script Start(const std::wstring& extension, const std::string& text, const Path& argument = {});
    /// Waits for its end; what it printed.
    std::string Finish(Script script);

    /// Waits for the window of a check that lists `count` words.
    ::testing::AssertionResult WaitForWindow(int count);
    HWND Window() const { return window_; }
    HWND Child(int id) const { return ControlOf(window_, id); }
    /// Clicks the button and waits until the list has that many words, or the window is gone.
    ::testing::AssertionResult Click(int button, int words_then);
    /// Takes the first suggestion for every word of the list.
    ::testing::AssertionResult CorrectAll(int count);
    /// Closes the window as its close button does.
    void CloseWindow();
    /// The box that says that the check is complete.
    ::testing::AssertionResult DismissCompletion();
    /// Number of running servers.
    static int Servers();
    ::testing::AssertionResult ServersEnd();

    Path Data() const { return folder_ / L"data"; }
    void Setting(std::wstring_view key, std::wstring_view value) const;

    TempDir folder_;

  private:
    int ListCount() const { return WordsListed(window_); }

    HWND window_ = nullptr;
    int scripts_ = 0;
};

}  // namespace wordhawk::test
