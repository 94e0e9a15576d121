#include "ui/framework/controls/Slider.h"

#include <commctrl.h>

namespace wordhawk {

void Slider::Create(const Where& where, int minimum, int maximum) {
    Make(where, TRACKBAR_CLASSW, WS_TABSTOP | TBS_HORZ | TBS_NOTICKS);
    Send(TBM_SETRANGEMIN, FALSE, minimum);
    Send(TBM_SETRANGEMAX, TRUE, maximum);
    Send(TBM_SETPAGESIZE, 0, (maximum - minimum + 9) / 10);
}

int Slider::Value() const { return Index(TBM_GETPOS); }

void Slider::SetValue(int value) { Send(TBM_SETPOS, TRUE, value); }

}  // namespace wordhawk
