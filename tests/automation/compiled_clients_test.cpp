// Clients in C++, by the type library (early bound) and by name (late bound).

#include "automation/type_library.h"
#include "platform/modSect.h"
#include "platform/text.h"
#include "platform/win32/system_clipboard.h"
#include "tests/automation/automation_fixture.h"
#include "ui/main_window/new_spell_controls.h"

#include <gmock/gmock.h>

#include <objbase.h>

#include <chrono>
#include <future>
#include <utility>
#include <vector>

// Made from Wordhawk.idl.
#include <Wordhawk_com.h>

namespace wordhawk::test {
namespace {

using testing::HasSubstr;

/// The arguments of one early-bound call, and what came of it.
struct Call {
    std::wstring text = {};
    bool rich = false;
    std::wstring in_file = {};
    bool save = false;
    std::wstring out_file = {};
    bool notice = false;
    bool clipboard = false;
    bool options = false;
    bool alone = false;

    HRESULT outcome = E_FAIL;
    LONG result = -1;
};

std::wstring TakeText(BSTR text) {
    const std::wstring copy(text, SysStringLen(text));
    SysFreeString(text);
    return copy;
}

BSTR NewText(const std::wstring& text) {
    return SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

/// Makes an object and calls it as compiled code does.
Call RunCall(Call call) {
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    {
        ComPointer<_cSpellit> spell;
        call.outcome = CoCreateInstance(__uuidof(::cSpellit), nullptr, CLSCTX_LOCAL_SERVER,
                                        __uuidof(_cSpellit), spell.OutVoid());
        if (SUCCEEDED(call.outcome)) {
            BSTR text = NewText(call.text);
            BSTR in = NewText(call.in_file);
            BSTR out = NewText(call.out_file);
            const auto flag = [](bool value) { return value ? VARIANT_TRUE : VARIANT_FALSE; };
            VARIANT_BOOL flags[] = {flag(call.rich),      flag(call.save),    flag(call.notice),
                                    flag(call.clipboard), flag(call.options), flag(call.alone)};
            call.outcome = spell->SpellCheck(&text, &flags[0], in, &flags[1], out, &flags[2],
                                             &flags[3], &flags[4], &flags[5], &call.result);
            EXPECT_EQ(flags[0], flag(call.rich)) << "what comes in by reference is left alone";
            call.text = TakeText(text);
            SysFreeString(in);
            SysFreeString(out);
        }
    }
    CoUninitialize();
    return call;
}

/// A call that waits while the test works in the window. One that waits in vain is a failure, and
/// has its windows closed.
class RunningCall {
  public:
    explicit RunningCall(Call call)
        : future_(std::async(std::launch::async, RunCall, std::move(call))) {}
    ~RunningCall() {
        if (future_.valid()) GiveUp();
    }
    RunningCall(RunningCall&&) = default;
    RunningCall& operator=(RunningCall&&) = default;

    Call Get() {
        if (future_.wait_for(std::chrono::seconds(60)) != std::future_status::ready) {
            ADD_FAILURE() << "the call does not return";
            GiveUp();
        }
        return future_.get();
    }

  private:
    void GiveUp() {
        do {
            for (const wchar_t* name : {L"#32770", L"frmNewSpell"}) {
                if (HWND left = FindWindowW(name, nullptr)) PostMessageW(left, WM_CLOSE, 0, 0);
            }
        } while (future_.wait_for(std::chrono::milliseconds(200)) != std::future_status::ready);
    }

    std::future<Call> future_;
};

TEST_F(AutomationTest, CompiledClientGetsTextClipboardAndNotice) {
    Call call;
    call.text = L"the housee\nwaterr \u4E2D";
    call.clipboard = call.notice = call.options = true;
    RunningCall running(call);
    ASSERT_TRUE(WaitForWindow(2));
    EXPECT_TRUE(IsWindowVisible(Child(main_id::hsScore))) << "the options are shown";
    EXPECT_TRUE(CorrectAll(2));
    EXPECT_TRUE(DismissCompletion());
    const Call done = running.Get();
    EXPECT_EQ(done.outcome, S_OK);
    EXPECT_EQ(done.result, 888);
    EXPECT_EQ(done.text, L"the house\nwater \u4E2D");
    EXPECT_EQ(SystemClipboard().PlainText(), L"the house\r\nwater \u4E2D");
    EXPECT_EQ(FindWindowW(L"#32770", L"Spell check complete"), nullptr) << "once is enough";
}

TEST_F(AutomationTest, WindowForAnotherProgramOffersNeitherCheckNorPreferencesNorFiles) {
    for (const wchar_t* key : {L"OpenSave", L"RemainOpen", L"SetClip", L"OpenWOptions"})
        Setting(key, L"1");
    SystemClipboard().SetPlainText(L"before");
    RunningCall running({.text = L"housee"});
    ASSERT_TRUE(WaitForWindow(1));
    for (const int id :
         {main_id::cmdSpellcheck, main_id::cmdPreferences, main_id::cmdOpen, main_id::cmdSaveAs}) {
        EXPECT_FALSE(IsWindowVisible(Child(id))) << id;
        EXPECT_FALSE(IsWindowEnabled(Child(id))) << id;
    }
    EXPECT_FALSE(IsWindowVisible(Child(main_id::hsScore))) << "options only when asked for";
    EXPECT_TRUE(CorrectAll(1));
    EXPECT_EQ(running.Get().text, L"house") << "RemainOpen is for the program's own window";
    EXPECT_EQ(SystemClipboard().PlainText(), L"before");
}

TEST_F(AutomationTest, ClosingTheWindowAtOnceHandsBackWhatWasDone) {
    RunningCall running({.text = L"housee\r\nwaterr"});
    ASSERT_TRUE(WaitForWindow(2));
    CloseWindow();
    Call done = running.Get();
    EXPECT_EQ(done.result, 889);
    EXPECT_EQ(done.text, L"housee\r\nwaterr");
    running = RunningCall({.text = L"housee\r\nwaterr"});
    ASSERT_TRUE(WaitForWindow(2));
    ASSERT_TRUE(Click(main_id::cmdChange, 1));
    CloseWindow();
    done = running.Get();
    EXPECT_EQ(done.result, 889);
    EXPECT_EQ(done.text, L"house\r\nwaterr");
    EXPECT_FALSE(IsFile(Data() / "Saves" / "Unsaved text.txt")) << "the caller has it";
}

TEST_F(AutomationTest, RichTextAndRichFilesStayRich) {
    Call call;
    call.text = L"{\\rtf1\\ansi the {\\b housee} caf\u00E9}";
    call.rich = true;
    RunningCall running(call);
    ASSERT_TRUE(WaitForWindow(2));
    ASSERT_TRUE(Click(main_id::cmdChange, 1));
    ASSERT_TRUE(Click(main_id::cmdIgnoreAll, 0));
    const std::string text = ToUtf8(running.Get().text);
    EXPECT_THAT(text, HasSubstr("{\\rtf1"));
    EXPECT_THAT(text, HasSubstr("\\b"));
    EXPECT_THAT(text, HasSubstr("house"));
    EXPECT_THAT(text, testing::Not(HasSubstr("housee")));

    const Path in = folder_ / L"in.rtf";
    const Path out = folder_ / L"out.rtf";
    WriteBytes(in, "{\\rtf1\\ansi the {\\i waterr}}");
    running =
        RunningCall({.in_file = TextFromPath(in), .save = true, .out_file = TextFromPath(out)});
    EXPECT_TRUE(CorrectAll(1));
    EXPECT_EQ(running.Get().text, L"the water") << "asked for as plain text";
    EXPECT_THAT(ReadBytes(out), HasSubstr("\\i"));
    EXPECT_THAT(ReadBytes(out), HasSubstr("water"));
    EXPECT_THAT(ReadBytes(in), HasSubstr("waterr"));
}

TEST_F(AutomationTest, RichTextThatIsBrokenOrNoneAtAllComesBackAsItWas) {
    for (const wchar_t* text :
         {L"the house {\\rtf1", L"{\\rtf1{{{{{\\bin99999999 the}", L"{\\rtf", L""}) {
        Call call;
        call.text = text;
        call.rich = true;
        const Call done = RunCall(call);
        EXPECT_EQ(done.outcome, S_OK);
        EXPECT_EQ(done.result, 888);
        EXPECT_EQ(done.text, text);
    }
}

TEST_F(AutomationTest, AloneReturnsAtOnceAndTheServerStaysForTheWindow) {
    const Path out = folder_ / L"out.txt";
    const Call done =
        RunCall({.text = L"housee", .save = true, .out_file = TextFromPath(out), .alone = true});
    EXPECT_EQ(done.result, 888);
    EXPECT_EQ(done.text, L"housee");
    ASSERT_TRUE(WaitForWindow(1));
    EXPECT_FALSE(IsFile(out));
    Sleep(3000);
    ASSERT_TRUE(CorrectAll(1)) << "longer than the server would stay without its window";
    EXPECT_TRUE(ServersEnd());
    EXPECT_EQ(ReadBytes(out), "house");
}

TEST_F(AutomationTest, LongTextComesBackWhole) {
    std::wstring text;
    while (text.size() < 2'000'000) text += L"the house and the water \u4E2D\r\n";
    RunningCall running({.text = text + L"housee"});
    EXPECT_TRUE(CorrectAll(1));
    const std::wstring corrected = running.Get().text;
    EXPECT_EQ(corrected.size(), text.size() + 5);
    EXPECT_TRUE(corrected == text + L"house");
}

/// A late-bound call of any member.
struct Late {
    HRESULT outcome = E_FAIL;
    VARTYPE type = VT_EMPTY;
    LONG number = 0;
};

VARIANT Number(LONG value) {
    VARIANT variant{};
    variant.vt = VT_I4;
    variant.lVal = value;
    return variant;
}
VARIANT Text(const wchar_t* value) {
    VARIANT variant{};
    variant.vt = VT_BSTR;
    variant.bstrVal = SysAllocString(value);
    return variant;
}

class LateBound : public AutomationTest {
  protected:
    LateBound() {
        CoInitializeEx(nullptr, COINIT_MULTITHREADED);
        EXPECT_EQ(CoCreateInstance(__uuidof(::cSpellit), nullptr, CLSCTX_LOCAL_SERVER,
                                   IID_IDispatch, spell_.OutVoid()),
                  S_OK);
    }
    ~LateBound() override {
        spell_ = {};
        CoUninitialize();
    }
    /// `arguments` in the order of the call; each with its parameter's name, or "" for its place.
    Late Invoke(std::vector<std::pair<std::wstring, VARIANT>> arguments) {
        std::wstring member = L"SpellCheck";
        std::vector<VARIANT> values;
        std::vector<DISPID> named;
        for (auto& [name, value] : arguments) {
            if (name.empty()) continue;
            wchar_t* names[] = {member.data(), name.data()};
            DISPID ids[2]{};
            if (FAILED(spell_->GetIDsOfNames(IID_NULL, names, 2, 0, ids))) ids[1] = 99;
            values.push_back(value);
            named.push_back(ids[1]);
        }
        for (auto it = arguments.rbegin(); it != arguments.rend(); ++it) {
            if (it->first.empty()) values.push_back(it->second);
        }
        DISPPARAMS parameters{values.data(), named.data(), static_cast<UINT>(values.size()),
                              static_cast<UINT>(named.size())};
        VARIANT result{};
        UINT wrong = 0;
        Late late;
        late.outcome =
            spell_->Invoke(1, IID_NULL, 0, DISPATCH_METHOD, &parameters, &result, nullptr, &wrong);
        late.type = result.vt;
        late.number = result.vt == VT_I4 ? result.lVal : -1;
        return late;
    }

    ComPointer<IDispatch> spell_;
};

TEST_F(LateBound, ArgumentsOfEveryKindAreTakenOrRefusedClearly) {
    SAFEARRAY* const array = SafeArrayCreateVector(VT_I4, 0, 3);
    VARIANT an_array{};
    an_array.vt = VT_ARRAY | VT_I4;
    an_array.parray = array;
    VARIANT big{};
    big.vt = VT_R8;
    big.dblVal = -1e300;
    const std::wstring at = L"";
    const std::vector<std::pair<std::wstring, VARIANT>> ten(10, {at, Number(0)});
    const struct {
        std::vector<std::pair<std::wstring, VARIANT>> arguments;
        HRESULT outcome;
        LONG number;
        const char* why;
    } cases[] = {
        {{{at, Text(L"the house")}}, S_OK, 888, "the rest left out"},
        {{{at, Number(-2147483647)}}, S_OK, 888, "a number is its digits"},
        {{{at, Text(L"the")}, {at, big}, {at, Number(99)}}, S_OK, 8, "any number but 0 is True"},
        {{{L"strPathInFile", Text(L"readme")}}, S_OK, 8, "by name alone"},
        {{{at, Text(L"the")}, {L"strPathInFile", Text(L"C:\\none.txt")}}, S_OK, 7, "both"},
        {{{L"strToCheck", Text(L"the")}, {at, Text(L"the")}}, DISP_E_PARAMNOTFOUND, -1, "twice"},
        {{{L"strToCheckk", Text(L"the")}}, DISP_E_PARAMNOTFOUND, -1, "no such name"},
        {{{at, an_array}}, DISP_E_TYPEMISMATCH, -1, "an array is no text"},
        {{{at, Text(L"the")}, {at, Text(L"perhaps")}}, DISP_E_TYPEMISMATCH, -1, "no Boolean"},
        {ten, DISP_E_BADPARAMCOUNT, -1, "too many"},
        {{}, DISP_E_PARAMNOTOPTIONAL, -1, "nothing to check"},
    };
    for (const auto& c : cases) {
        const Late late = Invoke(c.arguments);
        EXPECT_EQ(late.outcome, c.outcome) << c.why;
        EXPECT_EQ(late.number, c.number) << c.why;
    }
    SafeArrayDestroy(array);
}

TEST_F(LateBound, TextByReferenceComesBackWhateverKindOfVariableItIs) {
    BSTR text = SysAllocString(L"housee");
    VARIANT by_text{};
    by_text.vt = VT_BYREF | VT_BSTR;
    by_text.pbstrVal = &text;
    VARIANT variable = Text(L"waterr");
    VARIANT by_variant{};
    by_variant.vt = VT_BYREF | VT_VARIANT;
    by_variant.pvarVal = &variable;
    std::future<bool> user = std::async(std::launch::async, [&] {
        return CorrectAll(1) && WaitUntil([&] { return !IsWindow(Window()); }) && CorrectAll(1);
    });
    EXPECT_EQ(Invoke({{L"", by_text}}).number, 888);
    EXPECT_EQ(Invoke({{L"", by_variant}}).number, 888);
    EXPECT_TRUE(user.get());
    EXPECT_STREQ(text, L"house");
    ASSERT_EQ(variable.vt, VT_BSTR);
    EXPECT_STREQ(variable.bstrVal, L"water");
    SysFreeString(text);
    VariantClear(&variable);
}

}  // namespace
}  // namespace wordhawk::test
