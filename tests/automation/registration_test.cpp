#include "automation/registration.h"

#include "platform/folders.h"
#include "tests/automation/automation_fixture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace wordhawk::test {
namespace {

TypeLibrary Library() {
    TypeLibrary library;
    EXPECT_EQ(TypeLibrary::Load(ProgramFolder() / "Wordhawk.exe", library), S_OK);
    return library;
}

bool KeyExists(HKEY root, const std::wstring& path, REGSAM view) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(root, path.c_str(), 0, KEY_READ | view, &key) != ERROR_SUCCESS) return false;
    RegCloseKey(key);
    return true;
}

std::wstring ValueOf(HKEY root, const std::wstring& path) {
    wchar_t text[500]{};
    DWORD size = sizeof text;
    const LSTATUS status =
        RegGetValueW(root, path.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text, &size);
    return status == ERROR_SUCCESS ? text : L"";
}

TEST(Registration, WritesWhatProgramsLookUpAndTakesAllOfItOutAgain) {
    const TypeLibrary library = Library();
    const std::wstring classes = L"Software\\Classes\\";
    const std::wstring class_id = GuidText(library.class_id);
    const std::vector<std::wstring> keys = {L"Wordhawk.cSpellit", L"CLSID\\" + class_id,
                                            L"Interface\\" + GuidText(library.interface_id),
                                            L"TypeLib\\" + GuidText(library.library)};
    const struct {
        RegisterFor whom;
        HKEY root;
    } cases[] = {{RegisterFor::User, HKEY_CURRENT_USER},
                 {RegisterFor::Machine, HKEY_LOCAL_MACHINE}};
    for (const auto& c : cases) {
        // Twice, as an upgrade does.
        EXPECT_EQ(RegisterServer(library, c.whom), ERROR_SUCCESS);
        EXPECT_EQ(RegisterServer(library, c.whom), ERROR_SUCCESS);
        EXPECT_EQ(ValueOf(c.root, classes + L"Wordhawk.cSpellit\\CLSID"), class_id);
        EXPECT_EQ(ValueOf(c.root, classes + L"CLSID\\" + class_id + L"\\LocalServer32"),
                  L"\"" + TextFromPath(library.file) + L"\" /Automation");
        for (const REGSAM view : {KEY_WOW64_64KEY, KEY_WOW64_32KEY}) {
            for (const std::wstring& key : keys) {
                EXPECT_TRUE(KeyExists(c.root, classes + key, view)) << testing::PrintToString(key);
            }
        }
        EXPECT_EQ(UnregisterServer(library, c.whom), ERROR_SUCCESS);
        EXPECT_EQ(UnregisterServer(library, c.whom), ERROR_SUCCESS) << "gone already";
        for (const REGSAM view : {KEY_WOW64_64KEY, KEY_WOW64_32KEY}) {
            for (const std::wstring& key : keys) {
                EXPECT_FALSE(KeyExists(c.root, classes + key, view)) << testing::PrintToString(key);
            }
        }
    }
}

TEST(Registration, TypeLibraryHasTheMembersAndParametersByTheirNamesAndKinds) {
    const TypeLibrary library = Library();
    EXPECT_EQ(library.program_id, L"Wordhawk.cSpellit");
    const struct {
        const wchar_t* name;
        VARTYPE type;
        bool by_reference;
    } parameters[] = {
        {L"strToCheck", VT_BSTR, true},
        {L"blnIsStrRTF", VT_BOOL, true},
        {L"strPathInFile", VT_BSTR, false},
        {L"blnSaveToFile", VT_BOOL, true},
        {L"strPathOutFile", VT_BSTR, false},
        {L"blnComfirmComplete", VT_BOOL, true},
        {L"blnSetClipBoard", VT_BOOL, true},
        {L"blnShowOptions", VT_BOOL, true},
        {L"blnShowAutomationAlone", VT_BOOL, true},
    };
    wchar_t member[] = L"SpellCheck";
    std::vector<std::wstring> texts = {member};
    for (const auto& parameter : parameters) texts.push_back(parameter.name);
    std::vector<wchar_t*> names;
    for (std::wstring& text : texts) names.push_back(text.data());
    std::vector<MEMBERID> ids(names.size(), -7);
    ASSERT_EQ(
        library.members->GetIDsOfNames(names.data(), static_cast<UINT>(names.size()), ids.data()),
        S_OK);
    EXPECT_EQ(ids, (std::vector<MEMBERID>{1, 0, 1, 2, 3, 4, 5, 6, 7, 8}));

    bool found = false;
    FUNCDESC* function = nullptr;
    for (UINT i = 0; SUCCEEDED(library.members->GetFuncDesc(i, &function)); ++i) {
        if (function->memid == 1) {
            found = true;
            ASSERT_EQ(function->cParams, 9);
            EXPECT_EQ(function->elemdescFunc.tdesc.vt, VT_I4);
            for (int p = 0; p < 9; ++p) {
                const TYPEDESC& type = function->lprgelemdescParam[p].tdesc;
                const bool pointer = type.vt == VT_PTR;
                EXPECT_EQ(pointer, parameters[p].by_reference) << p;
                EXPECT_EQ(pointer ? type.lptdesc->vt : type.vt, parameters[p].type) << p;
            }
        }
        library.members->ReleaseFuncDesc(function);
    }
    EXPECT_TRUE(found);
}

TEST(Registration, TypeLibraryFor32BitProgramsIsThereAsWell) {
    ITypeLib* library = nullptr;
    const std::wstring path = TextFromPath(ProgramFolder() / "Wordhawk.exe") + L"\\2";
    ASSERT_EQ(LoadTypeLibEx(path.c_str(), REGKIND_NONE, &library), S_OK);
    TLIBATTR* attributes = nullptr;
    ASSERT_EQ(library->GetLibAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->syskind, SYS_WIN32);
    EXPECT_EQ(attributes->guid, Library().library);
    library->ReleaseTLibAttr(attributes);
    library->Release();
}

}  // namespace
}  // namespace wordhawk::test
