#pragma once

#include "platform/files.h"
#include "platform/win32/win.h"

#include <oaidl.h>

#include <string>

namespace wordhawk {

/// Owns one reference to an object of the system's.
template <class Interface>
class ComPointer {
  public:
    ComPointer() = default;
    ComPointer(const ComPointer& other) : object_(other.object_) {
        if (object_ != nullptr) object_->AddRef();
    }
    ComPointer& operator=(ComPointer other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~ComPointer() {
        if (object_ != nullptr) object_->Release();
    }
    Interface* operator->() const { return object_; }
    Interface* Get() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }
    /// For a call that hands out a reference.
    Interface** Out() { return &object_; }
    void** OutVoid() { return reinterpret_cast<void**>(&object_); }

  private:
    Interface* object_ = nullptr;
};

/// The type library in the program's file: names and identifiers of all that other programs see.
struct TypeLibrary {
    Path file;
    GUID library{};
    unsigned major_version = 0;
    unsigned minor_version = 0;
    std::wstring description;
    GUID class_id{};
    GUID interface_id{};
    std::wstring interface_name;
    /// Library and class, joined by a full stop.
    std::wstring program_id;
    /// The interface, with the names of its members and parameters.
    ComPointer<ITypeInfo> members;

    /// Reads the library of the program at `file`.
    static HRESULT Load(const Path& file, TypeLibrary& out);
};

/// In braces, as in the registry.
std::wstring GuidText(const GUID& guid);

}  // namespace wordhawk
