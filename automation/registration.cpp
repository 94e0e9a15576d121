#include "automation/registration.h"

#include "platform/win32/handle.h"

#include <string>
#include <vector>

namespace wordhawk {
namespace {

struct RegistryTraits {
    using Type = HKEY;
    static Type Empty() { return nullptr; }
    static void Close(Type key) { RegCloseKey(key); }
};
using RegistryKey = Handle<RegistryTraits>;

/// The system's own marshaler, which reads how to do it from the type library.
constexpr const wchar_t* kTypeLibraryMarshaler = L"{00020424-0000-0000-C000-000000000046}";
constexpr REGSAM kViews[] = {KEY_WOW64_64KEY, KEY_WOW64_32KEY};

struct Value {
    std::wstring key;
    /// Empty for the key's default value.
    const wchar_t* name;
    std::wstring text;
};

HKEY Root(RegisterFor whom) {
    return whom == RegisterFor::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

/// A key below the classes, and the one subkey in it that is ours alone.
struct OwnKey {
    std::wstring parent;
    std::wstring name;
    std::wstring Path() const { return parent + L"\\" + name; }
};

struct OwnKeys {
    OwnKey program_id;
    OwnKey class_id;
    OwnKey interface_id;
    OwnKey library;
};

OwnKeys KeysOf(const TypeLibrary& library) {
    const std::wstring classes = L"Software\\Classes";
    return {{classes, library.program_id},
            {classes + L"\\CLSID", GuidText(library.class_id)},
            {classes + L"\\Interface", GuidText(library.interface_id)},
            {classes + L"\\TypeLib", GuidText(library.library)}};
}

std::vector<Value> ValuesOf(const TypeLibrary& library) {
    const OwnKeys keys = KeysOf(library);
    const std::wstring file = TextFromPath(library.file);
    const std::wstring folder = TextFromPath(library.file.parent_path());
    const std::wstring version =
        std::to_wstring(library.major_version) + L"." + std::to_wstring(library.minor_version);
    const std::wstring class_key = keys.class_id.Path();
    const std::wstring interface_key = keys.interface_id.Path();
    const std::wstring library_key = keys.library.Path() + L"\\" + version;
    return {
        {keys.program_id.Path(), L"", library.description},
        {keys.program_id.Path() + L"\\CLSID", L"", keys.class_id.name},
        {class_key, L"", library.description},
        {class_key + L"\\LocalServer32", L"", L"\"" + file + L"\" /Automation"},
        {class_key + L"\\LocalServer32", L"ServerExecutable", file},
        {class_key + L"\\ProgID", L"", library.program_id},
        {class_key + L"\\TypeLib", L"", keys.library.name},
        {class_key + L"\\Version", L"", version},
        {class_key + L"\\Programmable", L"", L""},
        {interface_key, L"", library.interface_name},
        {interface_key + L"\\ProxyStubClsid32", L"", kTypeLibraryMarshaler},
        {interface_key + L"\\TypeLib", L"", keys.library.name},
        {interface_key + L"\\TypeLib", L"Version", version},
        {library_key, L"", library.description},
        {library_key + L"\\0\\win64", L"", file},
        // The program holds the library once more, laid out for 32-bit programs.
        {library_key + L"\\0\\win32", L"", file + L"\\2"},
        {library_key + L"\\FLAGS", L"", L"0"},
        {library_key + L"\\HELPDIR", L"", folder},
    };
}

LSTATUS Write(HKEY root, REGSAM view, const Value& value) {
    HKEY opened = nullptr;
    const LSTATUS created = RegCreateKeyExW(root, value.key.c_str(), 0, nullptr, 0,
                                            KEY_WRITE | view, nullptr, &opened, nullptr);
    if (created != ERROR_SUCCESS) return created;
    const RegistryKey key(opened);
    const auto bytes = static_cast<DWORD>((value.text.size() + 1) * sizeof(wchar_t));
    return RegSetValueExW(key.Get(), value.name, 0, REG_SZ,
                          reinterpret_cast<const BYTE*>(value.text.c_str()), bytes);
}

LSTATUS Delete(HKEY root, REGSAM view, const OwnKey& own) {
    HKEY opened = nullptr;
    LSTATUS status =
        RegOpenKeyExW(root, own.parent.c_str(), 0,
                      DELETE | KEY_ENUMERATE_SUB_KEYS | KEY_QUERY_VALUE | view, &opened);
    if (status == ERROR_SUCCESS) {
        const RegistryKey key(opened);
        status = RegDeleteTreeW(key.Get(), own.name.c_str());
    }
    return status == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : status;
}

}  // namespace

LSTATUS RegisterServer(const TypeLibrary& library, RegisterFor whom) {
    const std::vector<Value> values = ValuesOf(library);
    for (const REGSAM view : kViews) {
        for (const Value& value : values) {
            const LSTATUS status = Write(Root(whom), view, value);
            if (status == ERROR_SUCCESS) continue;
            UnregisterServer(library, whom);
            return status;
        }
    }
    return ERROR_SUCCESS;
}

LSTATUS UnregisterServer(const TypeLibrary& library, RegisterFor whom) {
    const OwnKeys keys = KeysOf(library);
    LSTATUS first_error = ERROR_SUCCESS;
    for (const REGSAM view : kViews) {
        for (const OwnKey* key :
             {&keys.program_id, &keys.class_id, &keys.interface_id, &keys.library}) {
            const LSTATUS status = Delete(Root(whom), view, *key);
            if (first_error == ERROR_SUCCESS) first_error = status;
        }
    }
    return first_error;
}

}  // namespace wordhawk
