#pragma once

#include "platform/files.h"
#include "platform/win32/handle.h"
#include "ui/desktop.h"

#include <optional>
#include <string>
#include <string_view>

namespace wordhawk {

/// A window's copy, in the folder of saved texts, of a text that is in no file as it stands. It has
/// a number of the window's own, held as long as the process lives: a copy whose number nobody
/// holds was left by a program that ended without closing its window.
class RecoveryCopy {
  public:
    explicit RecoveryCopy(Path folder) : folder_(std::move(folder)) {}

    /// Replaces the window's copy, which gets a number first when it has none.
    Result<void> Write(std::string_view bytes, DocumentKind kind);
    /// The window has a copy.
    bool Exists() const { return !file_.empty(); }
    /// The text is safe elsewhere.
    void Discard();
    /// Makes the copy a text of the user's own, "Unsaved text" with a number behind all but the
    /// first, in place of none other until there are nine of them; then in that of the oldest.
    /// Returns its name.
    Result<std::wstring> KeepForGood();
    /// Takes over a copy that was left behind, as the window's own. None when there is no more.
    std::optional<Path> TakeLeft();

  private:
    bool Hold(int number);
    bool HoldFree();
    void Release();
    Path FileOf(int number, DocumentKind kind) const;

    Path folder_;
    int number_ = 0;
    FileHandle hold_;
    Path file_;
};

}  // namespace wordhawk
