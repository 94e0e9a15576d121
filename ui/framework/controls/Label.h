#pragma once

#include "ui/framework/controls/Control.h"

namespace wordhawk {

/// A text; an "&" in it marks the key that leads to the control behind it in tab order.
class Label : public Control {
  public:
    enum class Kind {
        Caption,  ///< names the control behind it
        Value,    ///< shows a text as it is: "&" is a character, a long one ends in dots
        Path,     ///< shows the path of a file, a long one shortened in its middle
        Hidden    ///< not seen: names the control behind it for screen readers
    };
    Label() : Control(L"Label") {}
    void Create(const Where& where, Kind kind);
};

}  // namespace wordhawk
