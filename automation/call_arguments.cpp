#include "automation/call_arguments.h"

#include "automation/by_reference.h"

#include <variant>

namespace wordhawk {
namespace {

using Member = std::variant<std::wstring SpellCheckArguments::*, bool SpellCheckArguments::*>;

/// In the order of the parameters.
constexpr Member kMembers[] = {
    &SpellCheckArguments::strToCheck,
    &SpellCheckArguments::blnIsStrRTF,
    &SpellCheckArguments::strPathInFile,
    &SpellCheckArguments::blnSaveToFile,
    &SpellCheckArguments::strPathOutFile,
    &SpellCheckArguments::blnComfirmComplete,
    &SpellCheckArguments::blnSetClipBoard,
    &SpellCheckArguments::blnShowOptions,
    &SpellCheckArguments::blnShowAutomationAlone,
};

HRESULT ReadInto(const VARIANT& value, const Member& member, SpellCheckArguments& out) {
    if (const auto* text = std::get_if<std::wstring SpellCheckArguments::*>(&member)) {
        return ReadText(value, out.**text);
    }
    return ReadBoolean(value, out.*std::get<bool SpellCheckArguments::*>(member));
}

}  // namespace

// Arguments come last first, the named ones, whose identifier is the number of their parameter,
// before all others.
HRESULT CallArguments::Sort(const DISPPARAMS& parameters, UINT& wrong) {
    if (parameters.cArgs > kCount || parameters.cNamedArgs > parameters.cArgs) {
        return DISP_E_BADPARAMCOUNT;
    }
    if (parameters.cArgs == 0) return DISP_E_PARAMNOTOPTIONAL;
    for (UINT i = parameters.cNamedArgs; i < parameters.cArgs; ++i) {
        values_[parameters.cArgs - 1 - i] = &parameters.rgvarg[i];
    }
    for (UINT i = 0; i < parameters.cNamedArgs; ++i) {
        wrong = i;
        const DISPID id = parameters.rgdispidNamedArgs[i];
        if (id < 0 || static_cast<std::size_t>(id) >= kCount) return DISP_E_PARAMNOTFOUND;
        if (values_[static_cast<std::size_t>(id)] != nullptr) return DISP_E_PARAMNOTFOUND;
        values_[static_cast<std::size_t>(id)] = &parameters.rgvarg[i];
    }
    return S_OK;
}

HRESULT CallArguments::Read(const DISPPARAMS& parameters, SpellCheckArguments& out, UINT& wrong) {
    const HRESULT sorted = Sort(parameters, wrong);
    if (FAILED(sorted)) return sorted;
    for (std::size_t i = 0; i < kCount; ++i) {
        if (values_[i] == nullptr) continue;
        wrong = static_cast<UINT>(values_[i] - parameters.rgvarg);
        const HRESULT read = ReadInto(*values_[i], kMembers[i], out);
        if (FAILED(read)) return read;
    }
    return S_OK;
}

HRESULT CallArguments::WriteText(const std::wstring& text) const {
    return values_[0] == nullptr ? S_OK : wordhawk::WriteText(*values_[0], text);
}

}  // namespace wordhawk
