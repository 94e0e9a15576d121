#include "ui/dialogs/progress_window.h"

#include "lang/modLoadRes.h"
#include "lang/text_ids.h"
#include "ui/framework/layout.h"

#include <commctrl.h>

#include <algorithm>

namespace wordhawk {
namespace {

constexpr std::uint64_t kYieldEvery = 30;   // milliseconds
constexpr std::uint64_t kWaitBefore = 400;  // milliseconds
constexpr int kBarSteps = 1000;

/// The bar: a common control without any text of its own.
class Bar : public Control {
  public:
    Bar() : Control(L"ProgressBar") {}
    void Create(const Where& where) {
        Make(where, PROGRESS_CLASSW, PBS_SMOOTH);
        Send(PBM_SETRANGE32, 0, kBarSteps);
    }
    void SetPosition(int steps) { Send(PBM_SETPOS, static_cast<WPARAM>(steps)); }
};

}  // namespace

class ProgressWindow::Box : public Dialog {
  public:
    Box(ProgressWindow& owner, const Theme& theme, std::wstring cancel_text)
        : owner_(owner), theme_(theme), cancel_text_(std::move(cancel_text)) {}

    void Update(const std::wstring& caption, int steps) {
        label_.SetText(caption);
        bar_.SetPosition(steps);
    }

  protected:
    void OnInit() override {
        label_.Create({handle_, 101}, Label::Kind::Value);
        bar_.Create({handle_, 102});
        cancel_.Create({handle_, IDCANCEL});
        cancel_.SetText(cancel_text_);
        theme_.Decorate(handle_);
        cancel_.SetFocus();
    }
    void OnFontsChanged() override {
        using namespace layout;
        const Measure measure{Dpi(), Font()};
        const NodePtr root = Margin(
            11, Column(7, List(Item(label_, {360, 0}), Item(bar_, {360, 17}),
                               Row(0, List(Space({0, 0}, 1), Item(cancel_, {88, kButtonHeight}),
                                           Space({0, 0}, 1))))));
        const int width = root->Width(measure);
        RECT frame{0, 0, width, root->Height(width, measure)};
        const RECT client = frame;
        AdjustWindowRectExForDpi(&frame, static_cast<DWORD>(GetWindowLongPtrW(handle_, GWL_STYLE)),
                                 FALSE, 0, static_cast<UINT>(Dpi()));
        RECT over{};
        GetWindowRect(GetWindow(handle_, GW_OWNER), &over);
        const LONG frame_width = frame.right - frame.left;
        const LONG frame_height = frame.bottom - frame.top;
        SetWindowPos(handle_, nullptr, (over.left + over.right - frame_width) / 2,
                     (over.top + over.bottom - frame_height) / 2, frame_width, frame_height,
                     SWP_NOZORDER | SWP_NOACTIVATE);
        Arrange(*root, client, measure);
    }
    bool OnCommand(const ControlEvent& event) override {
        if (event.id != IDCANCEL && event.id != IDOK) return false;
        owner_.Cancel();
        cancel_.SetEnabled(false);
        return true;
    }
    bool OnClose() override {
        owner_.Cancel();
        return true;
    }
    HBRUSH OnControlColor(UINT message, HDC device, HWND control) override {
        return theme_.Prepare(message, device, control);
    }

  private:
    ProgressWindow& owner_;
    const Theme& theme_;
    std::wstring cancel_text_;
    Label label_;
    Bar bar_;
    Button cancel_;
};

ProgressWindow::ProgressWindow(const ProgramState& state, const Theme& theme, HWND owner,
                               Appear appear)
    : state_(state), theme_(theme), owner_(owner), appear_(appear) {}

ProgressWindow::~ProgressWindow() { ProgressWindow::Hide(); }

HWND ProgressWindow::Handle() const { return box_ ? box_->Handle() : nullptr; }

void ProgressWindow::Begin() {
    running_ = true;
    began_ = GetTickCount64();
    last_yield_ = began_;
    // Disabled from the start: a click during the wait would change what is being worked on.
    owner_was_enabled_ = owner_ != nullptr && IsWindowEnabled(owner_) != FALSE;
    if (owner_was_enabled_) EnableWindow(owner_, FALSE);
}

void ProgressWindow::Show(std::wstring_view title) {
    title_ = title;
    if (!running_) Begin();
    if (appear_ == Appear::AtOnce) Update();
}

void ProgressWindow::Hide() {
    if (!running_) return;
    running_ = false;
    // The owner first: else the system would hand the focus to another program.
    if (owner_was_enabled_) EnableWindow(owner_, TRUE);
    box_.reset();
}

void ProgressWindow::Update() {
    if (!box_) {
        box_ =
            std::make_unique<Box>(*this, theme_, modLoadRes::LoadResText(state_, text_id::kCancel));
        box_->Create(owner_);
        SetWindowTextW(box_->Handle(), title_.c_str());
        ShowWindow(box_->Handle(), SW_SHOW);
    }
    const std::uint64_t within = std::min(position_, maximum_);
    box_->Update(caption_, maximum_ == 0 ? 0 : static_cast<int>(within * kBarSteps / maximum_));
    UpdateWindow(box_->Handle());
}

bool ProgressWindow::IsDue() { return !running_ || GetTickCount64() - last_yield_ >= kYieldEvery; }

bool ProgressWindow::YieldAndAskCancel() {
    if (!running_) Begin();
    const std::uint64_t now = GetTickCount64();
    if (now - last_yield_ < kYieldEvery) return cancelled_;
    if (box_ || now - began_ >= kWaitBefore) Update();
    PumpMessages();
    last_yield_ = GetTickCount64();
    return cancelled_;
}

void ProgressWindow::PumpMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            // For the loop that started all this.
            PostQuitMessage(static_cast<int>(message.wParam));
            cancelled_ = true;
            return;
        }
        if (box_ && box_->PreTranslate(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

}  // namespace wordhawk
