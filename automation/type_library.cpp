#include "automation/type_library.h"

#include <objbase.h>

namespace wordhawk {
namespace {

std::wstring TakeText(BSTR text) {
    const std::wstring copy(text, SysStringLen(text));
    SysFreeString(text);
    return copy;
}

std::wstring NameOf(ITypeLib& library, int index) {
    BSTR name = nullptr;
    if (FAILED(library.GetDocumentation(index, &name, nullptr, nullptr, nullptr))) return {};
    return TakeText(name);
}

HRESULT IdentifierOf(ITypeLib& library, unsigned index, GUID& id) {
    ComPointer<ITypeInfo> info;
    HRESULT result = library.GetTypeInfo(index, info.Out());
    if (FAILED(result)) return result;
    TYPEATTR* attributes = nullptr;
    result = info->GetTypeAttr(&attributes);
    if (FAILED(result)) return result;
    id = attributes->guid;
    info->ReleaseTypeAttr(attributes);
    return S_OK;
}

}  // namespace

HRESULT TypeLibrary::Load(const Path& file, TypeLibrary& out) {
    ComPointer<ITypeLib> library;
    HRESULT result = LoadTypeLibEx(file.c_str(), REGKIND_NONE, library.Out());
    if (FAILED(result)) return result;
    TLIBATTR* attributes = nullptr;
    result = library->GetLibAttr(&attributes);
    if (FAILED(result)) return result;
    out.file = file;
    out.library = attributes->guid;
    out.major_version = attributes->wMajorVerNum;
    out.minor_version = attributes->wMinorVerNum;
    library->ReleaseTLibAttr(attributes);
    BSTR description = nullptr;
    if (SUCCEEDED(library->GetDocumentation(-1, nullptr, &description, nullptr, nullptr))) {
        out.description = TakeText(description);
    }
    for (unsigned i = 0; i < library->GetTypeInfoCount(); ++i) {
        TYPEKIND kind{};
        if (FAILED(library->GetTypeInfoType(i, &kind))) continue;
        const std::wstring name = NameOf(*library.Get(), static_cast<int>(i));
        if (kind == TKIND_COCLASS) {
            result = IdentifierOf(*library.Get(), i, out.class_id);
            out.program_id = NameOf(*library.Get(), -1) + L"." + name;
        } else if (kind == TKIND_DISPATCH) {
            result = IdentifierOf(*library.Get(), i, out.interface_id);
            out.interface_name = name;
        }
        if (FAILED(result)) return result;
    }
    return library->GetTypeInfoOfGuid(out.interface_id, out.members.Out());
}

std::wstring GuidText(const GUID& guid) {
    wchar_t text[40]{};
    StringFromGUID2(guid, text, 40);
    return text;
}

}  // namespace wordhawk
