#pragma once

#include "platform/win32/win.h"

#include <utility>

namespace wordhawk {

/// Owns one handle of the system. `Traits` has a Type, its empty value and the closing function.
template <class Traits>
class Handle {
  public:
    using Type = typename Traits::Type;

    Handle() = default;
    explicit Handle(Type handle) : handle_(handle) {}
    Handle(Handle&& other) noexcept : handle_(other.Release()) {}
    Handle& operator=(Handle&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    ~Handle() { Reset(); }

    explicit operator bool() const { return handle_ != Traits::Empty(); }
    Type Get() const { return handle_; }
    Type Release() { return std::exchange(handle_, Traits::Empty()); }
    void Reset(Type handle = Traits::Empty()) {
        const Type old = std::exchange(handle_, handle);
        if (old != Traits::Empty()) Traits::Close(old);
    }

  private:
    Type handle_ = Traits::Empty();
};

// Files and the other kernel objects have different empty values, hence different types.
struct FileTraits {
    using Type = HANDLE;
    static Type Empty() { return INVALID_HANDLE_VALUE; }
    static void Close(Type handle) { CloseHandle(handle); }
};
using FileHandle = Handle<FileTraits>;

struct KernelTraits {
    using Type = HANDLE;
    static Type Empty() { return nullptr; }
    static void Close(Type handle) { CloseHandle(handle); }
};
using KernelHandle = Handle<KernelTraits>;

struct FindTraits {
    using Type = HANDLE;
    static Type Empty() { return INVALID_HANDLE_VALUE; }
    static void Close(Type handle) { FindClose(handle); }
};
using FindHandle = Handle<FindTraits>;

struct ModuleTraits {
    using Type = HMODULE;
    static Type Empty() { return nullptr; }
    static void Close(Type handle) { FreeLibrary(handle); }
};
using ModuleHandle = Handle<ModuleTraits>;

template <class GdiType>
struct GdiTraits {
    using Type = GdiType;
    static Type Empty() { return nullptr; }
    static void Close(Type handle) { DeleteObject(handle); }
};
using FontHandle = Handle<GdiTraits<HFONT>>;
using BrushHandle = Handle<GdiTraits<HBRUSH>>;
using PenHandle = Handle<GdiTraits<HPEN>>;
using BitmapHandle = Handle<GdiTraits<HBITMAP>>;

struct IconTraits {
    using Type = HICON;
    static Type Empty() { return nullptr; }
    static void Close(Type handle) { DestroyIcon(handle); }
};
using IconHandle = Handle<IconTraits>;

struct MenuTraits {
    using Type = HMENU;
    static Type Empty() { return nullptr; }
    static void Close(Type handle) { DestroyMenu(handle); }
};
using MenuHandle = Handle<MenuTraits>;

struct GlobalMemoryTraits {
    using Type = HGLOBAL;
    static Type Empty() { return nullptr; }
    static void Close(Type handle) { GlobalFree(handle); }
};
using GlobalMemory = Handle<GlobalMemoryTraits>;

}  // namespace wordhawk
