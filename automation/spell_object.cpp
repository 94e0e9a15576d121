#include "automation/spell_object.h"

#include "automation/by_reference.h"
#include "automation/call_arguments.h"
#include "automation/guarded.h"

#include <atomic>
#include <utility>

// Made from Wordhawk.idl.
#include <Wordhawk_com.h>

namespace wordhawk {
namespace {

/// Runs the check in its turn; the corrected text is in `arguments` afterwards.
HRESULT RunCheck(const ServerParts& parts, SpellCheckArguments& arguments, long& result) {
    const Clients::Process client = parts.clients.ThisCaller();
    const auto job = std::make_shared<CheckJob>();
    job->arguments = std::move(arguments);
    if (!parts.queue.Run(job, *client)) return RPC_E_DISCONNECTED;
    arguments = std::move(job->arguments);
    result = job->result;
    return job->outcome;
}

std::wstring TextOf(BSTR text) {
    return text == nullptr ? std::wstring() : std::wstring(text, SysStringLen(text));
}

HRESULT HandOut(const std::wstring& text, BSTR* out) {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    return ReplaceText(out, text);
}

class SpellObject : public _cSpellit {
  public:
    explicit SpellObject(const ServerParts& parts)
        : parts_(parts), hold_(parts.clients.Add(parts.clients.ThisCaller())) {}
    SpellObject(const SpellObject&) = delete;
    SpellObject& operator=(const SpellObject&) = delete;

    // IUnknown
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override {
        if (out == nullptr) return E_POINTER;
        *out = nullptr;
        if (id != IID_IUnknown && id != IID_IDispatch && id != parts_.library.interface_id) {
            return E_NOINTERFACE;
        }
        *out = static_cast<_cSpellit*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

    // IDispatch
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (count == nullptr) return E_POINTER;
        *count = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** info) override {
        if (info == nullptr) return E_POINTER;
        *info = nullptr;
        if (index != 0) return DISP_E_BADINDEX;
        *info = parts_.library.members.Get();
        (*info)->AddRef();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                            DISPID* ids) override {
        return DispGetIDsOfNames(parts_.library.members.Get(), names, count, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD flags,
                                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                     UINT* wrong) override {
        return Guarded([&] {
            if (parameters == nullptr) return E_POINTER;
            UINT blamed = 0;
            const HRESULT done = Call(member, flags, *parameters, result, blamed);
            if (wrong != nullptr) *wrong = blamed;
            const bool is_ours = done == E_FAIL || done == E_OUTOFMEMORY;
            if (!is_ours || exception == nullptr) return done;
            *exception = {};
            exception->scode = done;
            exception->bstrSource = SysAllocString(parts_.library.program_id.c_str());
            exception->bstrDescription = SysAllocString(L"The check could not be carried out.");
            return DISP_E_EXCEPTION;
        });
    }

    // _cSpellit
    HRESULT STDMETHODCALLTYPE SpellCheck(BSTR* strToCheck, VARIANT_BOOL* blnIsStrRTF,
                                         BSTR strPathInFile, VARIANT_BOOL* blnSaveToFile,
                                         BSTR strPathOutFile, VARIANT_BOOL* blnComfirmComplete,
                                         VARIANT_BOOL* blnSetClipBoard,
                                         VARIANT_BOOL* blnShowOptions,
                                         VARIANT_BOOL* blnShowAutomationAlone,
                                         LONG* result) override {
        return Guarded([&]() -> HRESULT {
            for (const void* reference : std::initializer_list<const void*>{
                     strToCheck, blnIsStrRTF, blnSaveToFile, blnComfirmComplete, blnSetClipBoard,
                     blnShowOptions, blnShowAutomationAlone, result}) {
                if (reference == nullptr) return E_POINTER;
            }
            SpellCheckArguments arguments;
            arguments.strToCheck = TextOf(*strToCheck);
            arguments.blnIsStrRTF = *blnIsStrRTF != VARIANT_FALSE;
            arguments.strPathInFile = TextOf(strPathInFile);
            arguments.blnSaveToFile = *blnSaveToFile != VARIANT_FALSE;
            arguments.strPathOutFile = TextOf(strPathOutFile);
            arguments.blnComfirmComplete = *blnComfirmComplete != VARIANT_FALSE;
            arguments.blnSetClipBoard = *blnSetClipBoard != VARIANT_FALSE;
            arguments.blnShowOptions = *blnShowOptions != VARIANT_FALSE;
            arguments.blnShowAutomationAlone = *blnShowAutomationAlone != VARIANT_FALSE;
            long number = 0;
            const HRESULT done = RunCheck(parts_, arguments, number);
            if (FAILED(done)) return done;
            *result = number;
            return number < kChecked ? S_OK : ReplaceText(strToCheck, arguments.strToCheck);
        });
    }
    HRESULT STDMETHODCALLTYPE get_PlugNameVersion(BSTR* text) override {
        return Guarded([&] { return HandOut(cSpellit::PlugNameVersion(), text); });
    }
    HRESULT STDMETHODCALLTYPE get_PlugFullPathToEXE(BSTR* path) override {
        return Guarded([&] { return HandOut(cSpellit::PlugFullPathToEXE(), path); });
    }

  private:
    /// Identifiers of the members, as in the type library.
    enum Member : DISPID { kSpellCheck = 1, kPlugNameVersion = 2, kPlugFullPathToEXE = 3 };

    virtual ~SpellObject() { parts_.clients.Remove(hold_); }

    HRESULT Call(DISPID member, WORD flags, const DISPPARAMS& parameters, VARIANT* result,
                 UINT& wrong) {
        VARIANT nobodys;
        VARIANT& value = result != nullptr ? *result : nobodys;
        VariantInit(&value);
        const HRESULT done = member == kSpellCheck ? CallSpellCheck(flags, parameters, value, wrong)
                                                   : GetProperty(member, flags, parameters, value);
        if (result == nullptr) VariantClear(&nobodys);
        return done;
    }
    HRESULT CallSpellCheck(WORD flags, const DISPPARAMS& parameters, VARIANT& result, UINT& wrong) {
        if ((flags & DISPATCH_METHOD) == 0) return DISP_E_MEMBERNOTFOUND;
        CallArguments call;
        SpellCheckArguments arguments;
        HRESULT done = call.Read(parameters, arguments, wrong);
        if (FAILED(done)) return done;
        long number = 0;
        done = RunCheck(parts_, arguments, number);
        if (FAILED(done)) return done;
        result.vt = VT_I4;
        result.lVal = number;
        return number < kChecked ? S_OK : call.WriteText(arguments.strToCheck);
    }
    HRESULT GetProperty(DISPID member, WORD flags, const DISPPARAMS& parameters, VARIANT& result) {
        const bool known = member == kPlugNameVersion || member == kPlugFullPathToEXE;
        // Some clients cannot tell a property from a method without arguments.
        if (!known || (flags & (DISPATCH_PROPERTYGET | DISPATCH_METHOD)) == 0) {
            return DISP_E_MEMBERNOTFOUND;
        }
        if (parameters.cArgs != 0) return DISP_E_BADPARAMCOUNT;
        result.bstrVal = nullptr;
        result.vt = VT_BSTR;
        return member == kPlugNameVersion ? get_PlugNameVersion(&result.bstrVal)
                                          : get_PlugFullPathToEXE(&result.bstrVal);
    }

    const ServerParts parts_;
    const Clients::Hold hold_;
    std::atomic<ULONG> references_{1};
};

class SpellFactory : public IClassFactory {
  public:
    explicit SpellFactory(const ServerParts& parts) : parts_(parts) {}
    SpellFactory(const SpellFactory&) = delete;
    SpellFactory& operator=(const SpellFactory&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override {
        if (out == nullptr) return E_POINTER;
        *out = nullptr;
        if (id != IID_IUnknown && id != IID_IClassFactory) return E_NOINTERFACE;
        *out = static_cast<IClassFactory*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** out) override {
        if (out == nullptr) return E_POINTER;
        *out = nullptr;
        if (outer != nullptr) return CLASS_E_NOAGGREGATION;
        return MakeSpellObject(parts_, id, out);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
        return Guarded([&] {
            if (lock) {
                parts_.clients.Lock(parts_.clients.ThisCaller());
            } else {
                parts_.clients.Unlock(parts_.clients.ThisCaller());
            }
            return S_OK;
        });
    }

  private:
    virtual ~SpellFactory() = default;

    const ServerParts parts_;
    std::atomic<ULONG> references_{1};
};

}  // namespace

HRESULT MakeSpellObject(const ServerParts& parts, REFIID interface_id, void** out) {
    return Guarded([&] {
        auto* const object = new SpellObject(parts);
        const HRESULT result = object->QueryInterface(interface_id, out);
        object->Release();
        return result;
    });
}

HRESULT MakeSpellFactory(const ServerParts& parts, IUnknown** out) {
    return Guarded([&] {
        *out = new SpellFactory(parts);
        return S_OK;
    });
}

}  // namespace wordhawk
