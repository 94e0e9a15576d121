#include "ui/framework/message_loop.h"

namespace wordhawk {

int RunMessageLoop(Dialog& form) {
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (form.PreTranslate(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}

void RunMessagesUntilClosed(Dialog& form) {
    MSG message{};
    while (form.Handle() != nullptr) {
        if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        if (form.PreTranslate(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

}  // namespace wordhawk
