#include "automation/by_reference.h"

namespace wordhawk {
namespace {

constexpr int kDeepest = 8;

/// The variant at the end of a chain of references to variants.
const VARIANT& Behind(const VARIANT& argument) {
    const VARIANT* at = &argument;
    for (int depth = 0; at->vt == (VT_BYREF | VT_VARIANT) && at->pvarVal != nullptr; ++depth) {
        if (depth == kDeepest) break;
        at = at->pvarVal;
    }
    return *at;
}

bool IsLeftOut(const VARIANT& value) {
    return value.vt == VT_EMPTY || value.vt == VT_NULL ||
           (value.vt == VT_ERROR && value.scode == DISP_E_PARAMNOTFOUND);
}

/// A variant of our own.
struct OwnVariant : VARIANT {
    OwnVariant() { VariantInit(this); }
    ~OwnVariant() { VariantClear(this); }
    OwnVariant(const OwnVariant&) = delete;
    OwnVariant& operator=(const OwnVariant&) = delete;
};

IDispatch* ObjectIn(const VARIANT& value) {
    if (value.vt == VT_DISPATCH) return value.pdispVal;
    if (value.vt == (VT_BYREF | VT_DISPATCH)) return *value.ppdispVal;
    return nullptr;
}

/// The member that stands for the variable.
DISPID ValueOf(IDispatch& object) {
    wchar_t name[] = L"value";
    wchar_t* names[] = {name};
    DISPID id = DISPID_VALUE;
    return SUCCEEDED(object.GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id))
               ? id
               : DISPID_VALUE;
}

HRESULT GetValue(IDispatch& object, VARIANT& value) {
    DISPPARAMS none{};
    return object.Invoke(ValueOf(object), IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET,
                         &none, &value, nullptr, nullptr);
}

HRESULT PutValue(IDispatch& object, VARIANT& value) {
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&value, &named, 1, 1};
    return object.Invoke(ValueOf(object), IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYPUT,
                         &parameters, nullptr, nullptr, nullptr);
}

/// The argument as a variant of `type`; empty when it is left out.
HRESULT Convert(const VARIANT& argument, VARTYPE type, VARIANT& result) {
    const VARIANT& value = Behind(argument);
    if (IsLeftOut(value)) return S_OK;
    if (IDispatch* object = ObjectIn(value)) {
        OwnVariant held;
        const HRESULT got = GetValue(*object, held);
        if (FAILED(got) || held.vt == VT_DISPATCH) return DISP_E_TYPEMISMATCH;
        return IsLeftOut(held) ? S_OK : VariantChangeType(&result, &held, VARIANT_ALPHABOOL, type);
    }
    if ((value.vt & VT_ARRAY) != 0) return DISP_E_TYPEMISMATCH;
    return VariantChangeType(&result, const_cast<VARIANT*>(&value), VARIANT_ALPHABOOL, type);
}

}  // namespace

HRESULT ReadText(const VARIANT& argument, std::wstring& text) {
    OwnVariant value;
    const HRESULT result = Convert(argument, VT_BSTR, value);
    if (FAILED(result)) return result;
    text.clear();
    if (value.vt == VT_BSTR) text.assign(value.bstrVal, SysStringLen(value.bstrVal));
    return S_OK;
}

HRESULT ReadBoolean(const VARIANT& argument, bool& value) {
    OwnVariant converted;
    const HRESULT result = Convert(argument, VT_BOOL, converted);
    if (FAILED(result)) return result;
    value = converted.vt == VT_BOOL && converted.boolVal != VARIANT_FALSE;
    return S_OK;
}

HRESULT ReplaceText(BSTR* at, const std::wstring& text) {
    const BSTR copy = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (copy == nullptr) return E_OUTOFMEMORY;
    SysFreeString(*at);
    *at = copy;
    return S_OK;
}

HRESULT WriteText(const VARIANT& argument, const std::wstring& text) {
    const VARIANT& target = Behind(argument);
    if (target.vt == (VT_BYREF | VT_BSTR)) {
        return target.pbstrVal == nullptr ? E_POINTER : ReplaceText(target.pbstrVal, text);
    }
    IDispatch* const object = ObjectIn(target);
    const bool is_variable = &target != &argument;
    if (object == nullptr && !is_variable) return S_OK;
    OwnVariant value;
    value.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (value.bstrVal == nullptr) return E_OUTOFMEMORY;
    value.vt = VT_BSTR;
    if (object != nullptr) return PutValue(*object, value);
    auto& variable = const_cast<VARIANT&>(target);
    VariantClear(&variable);
    variable = value;
    value.vt = VT_EMPTY;
    return S_OK;
}

}  // namespace wordhawk
