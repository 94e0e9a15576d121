// Scripts as people write them, run by the system's script host. It prints nothing and reports no
// failure when a script stops at an error, so every test looks at the lines that were printed.

#include "platform/text.h"
#include "tests/automation/automation_fixture.h"
#include "ui/main_window/new_spell_controls.h"

#include <gmock/gmock.h>

namespace wordhawk::test {
namespace {

using testing::HasSubstr;

/// In a script's text, a path needs its backslashes doubled for JScript alone.
std::string ForScript(const Path& path) { return ToUtf8(TextFromPath(path)); }

/// The sample under a heading of the page about automation, without the lines that set it off.
std::string SampleUnder(const std::string& heading) {
    const std::string page = ReadBytes(Path(WORDHAWK_DOCS "/automation.md"));
    const std::size_t section = page.find("\n### " + heading + "\n");
    if (section == std::string::npos) return {};
    const std::size_t fence = page.find("```", section);
    const std::size_t start = page.find('\n', fence) + 1;
    return page.substr(start, page.find("```", start) - start);
}

TEST_F(AutomationTest, SamplesRunAsTheyStandInThePage) {
    const Path letter = folder_ / L"today's letter.txt";
    WriteBytes(letter, "the housee\n");
    const Script checks_file = Start(L"vbs", SampleUnder("VBScript"), letter);
    EXPECT_TRUE(CorrectAll(1));
    EXPECT_TRUE(DismissCompletion());
    EXPECT_EQ(Finish(checks_file), "Checked.\r\n");
    EXPECT_EQ(ReadBytes(letter), "the house\n");
    EXPECT_EQ(Finish(Start(L"vbs", SampleUnder("VBScript"), folder_ / L"none.txt")),
              "There is no such file.\r\n");
    const Script checks_text = Start(L"js", SampleUnder("JScript"));
    EXPECT_TRUE(CorrectAll(1));
    EXPECT_EQ(Finish(checks_text), "This is it.\r\n");
}

TEST_F(AutomationTest, VbScriptGetsItsTextBackCorrected) {
    const Script script = Start(L"vbs", R"(
Dim spell, text, result
Set spell = CreateObject("Wordhawk.cSpellit")
text = "the housee and" & vbCrLf & "the Waterr"
result = spell.SpellCheck(text, False, "", False, "", False, False, False, False)
WScript.Echo "result " & result & " " & VarType(text)
WScript.Echo Replace(text, vbCrLf, "|")
result = spell.SpellCheck(text, False, "", False, "", False, False, False, False)
WScript.Echo "again " & result
WScript.Echo Replace(spell.PlugNameVersion, vbTab, "|")
WScript.Echo spell.PlugFullPathToEXE
)");
    EXPECT_TRUE(CorrectAll(2));
    const std::string output = Finish(script);
    EXPECT_THAT(output, HasSubstr("result 888 8"));
    EXPECT_THAT(output, HasSubstr("the house and|the Water"));
    EXPECT_THAT(output, HasSubstr("again 888")) << "nothing unknown: nobody is asked";
    EXPECT_THAT(output, HasSubstr("Wordhawk|1.0.0"));
    EXPECT_THAT(output, HasSubstr("\\Wordhawk.exe"));
}

TEST_F(AutomationTest, JScriptGetsItsTextBackInAnObject) {
    const Script script = Start(L"js", R"(
var spell = new ActiveXObject("Wordhawk.cSpellit");
var text = {value: "the housee"};
var result = spell.SpellCheck(text, false, "", false, "", false, false, false, false);
WScript.Echo("result " + result + " " + text.value);
result = spell.SpellCheck("the house", false, "", false, "", false, false, false, false);
WScript.Echo("by value " + result);
)");
    EXPECT_TRUE(CorrectAll(1));
    const std::string output = Finish(script);
    EXPECT_THAT(output, HasSubstr("result 888 the house\r\n"));
    EXPECT_THAT(output, HasSubstr("by value 888"));
}

TEST_F(AutomationTest, ScriptChecksFilesAndLeavesArgumentsOut) {
    const Path in = folder_ / L"in.txt";
    const Path out = folder_ / L"out.txt";
    WriteBytes(in, "the housee\n");
    const Script script = Start(L"vbs", R"(
Set spell = CreateObject("Wordhawk.cSpellit")
WScript.Echo "missing " & spell.SpellCheck("", False, "C:\missing.txt", False, "", False, False, False, False)
WScript.Echo "no name " & spell.SpellCheck("", False, "readme")
WScript.Echo "wrong " & spell.SpellCheck("", False, WScript.ScriptFullName)
text = "kept"
result = spell.SpellCheck(text, , ")" + ForScript(in) +
                                            R"(", True, ")" + ForScript(out) + R"(")
WScript.Echo "saved " & result & " " & text
On Error Resume Next
spell.SpellCheck
WScript.Echo "none " & (Err.Number <> 0)
)");
    EXPECT_TRUE(CorrectAll(1));
    const std::string output = Finish(script);
    EXPECT_THAT(output, HasSubstr("missing 7"));
    EXPECT_THAT(output, HasSubstr("no name 8"));
    EXPECT_THAT(output, HasSubstr("wrong 9"));
    EXPECT_THAT(output, HasSubstr("saved 888 the house"));
    EXPECT_THAT(output, HasSubstr("none True"));
    EXPECT_EQ(ReadBytes(in), "the housee\n");
    EXPECT_EQ(ReadBytes(out), "the house\n");
}

TEST_F(AutomationTest, TwoScriptsWaitForOneAnother) {
    const std::string text = R"(
Set spell = CreateObject("Wordhawk.cSpellit")
text = "housee NAME"
result = spell.SpellCheck(text, False, "", False, "", False, False, False, False)
WScript.Echo "result " & result & " " & text
)";
    const auto named = [&](const char* name) {
        return std::string(text).replace(text.find("NAME"), 4, name);
    };
    const Script first = Start(L"vbs", named("the"));
    ASSERT_TRUE(WaitForWindow(1));
    const Script second = Start(L"vbs", named("and"));
    Sleep(1000);
    ASSERT_TRUE(WaitForWindow(1)) << "the second must not disturb the first";
    ASSERT_TRUE(Click(main_id::cmdChange, 0));
    EXPECT_THAT(Finish(first), HasSubstr("result 888 house the"));
    ASSERT_TRUE(CorrectAll(1));
    EXPECT_THAT(Finish(second), HasSubstr("result 888 house and"));
}

TEST_F(AutomationTest, KilledScriptLeavesNoServerButWhatTheUserCorrected) {
    const Path file = folder_ / L"letter.txt";
    WriteBytes(file, "the housee waterr");
    const Script script = Start(L"vbs", R"(
Set spell = CreateObject("Wordhawk.cSpellit")
spell.SpellCheck "", False, ")" + ForScript(file) +
                                            R"(", True, "", True, True, True, False
)");
    ASSERT_TRUE(WaitForWindow(2));
    ASSERT_TRUE(Click(main_id::cmdChange, 1));
    TerminateProcess(script.process, 1);
    EXPECT_TRUE(ServersEnd());
    EXPECT_EQ(Finish(script), "");
    EXPECT_EQ(ReadBytes(file), "the housee waterr") << "nobody finished it";
    EXPECT_EQ(ReadBytes(Data() / "Saves" / "Unsaved text.txt"), "the house waterr");
}

TEST_F(AutomationTest, ScriptThatEndsWithoutACallOrInTheMiddleOfTheNoticeLeavesNoServer) {
    const Script short_one = Start(L"vbs",
                                   "Set s = CreateObject(\"Wordhawk.cSpellit\")\n"
                                   "WScript.Echo \"made\"\n");
    EXPECT_THAT(Finish(short_one), HasSubstr("made"));
    EXPECT_TRUE(ServersEnd());
    const Script killed = Start(L"vbs", R"(
Set s = CreateObject("Wordhawk.cSpellit")
s.SpellCheck "the house", False, "", False, "", True, False, False, False
)");
    ASSERT_TRUE(
        WaitUntil([] { return FindWindowW(L"#32770", L"Spell check complete") != nullptr; }));
    TerminateProcess(killed.process, 1);
    EXPECT_TRUE(ServersEnd()) << "its box must not keep it";
    Finish(killed);
}

}  // namespace
}  // namespace wordhawk::test
