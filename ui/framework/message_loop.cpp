#include "ui/framework/message_loop.h"

namespace wordhawk {
namespace {

void HandOut(Dialog& form, MSG& message) {
    if (form.PreTranslate(message)) return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

}  // namespace

int RunMessageLoop(Dialog& form) {
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) HandOut(form, message);
    return static_cast<int>(message.wParam);
}

void RunMessagesUntilClosed(Dialog& form) {
    MSG message{};
    while (form.Handle() != nullptr) {
        if (GetMessageW(&message, nullptr, 0, 0) <= 0) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        HandOut(form, message);
    }
}

bool PumpWaitingMessages(Dialog& form) {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return false;
        }
        HandOut(form, message);
    }
    return true;
}

}  // namespace wordhawk
