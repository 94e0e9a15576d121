#pragma once

#include "engine/cSpellit.h"
#include "platform/win32/win.h"

#include <oaidl.h>

#include <array>
#include <string>

namespace wordhawk {

/// The arguments of SpellCheck as a late-bound client passes them: by position, by name, or both.
class CallArguments {
  public:
    /// Sorts the arguments to their parameters and reads them. On an error `wrong` is the number of
    /// the argument to blame, in the client's own order.
    HRESULT Read(const DISPPARAMS& parameters, SpellCheckArguments& out, UINT& wrong);
    /// Puts the corrected text where the client wants it.
    HRESULT WriteText(const std::wstring& text) const;

  private:
    static constexpr std::size_t kCount = 9;

    HRESULT Sort(const DISPPARAMS& parameters, UINT& wrong);

    /// Null where an argument is left out.
    std::array<const VARIANT*, kCount> values_{};
};

}  // namespace wordhawk
