#include "ui/dialogs/import_panel.h"

#include "lang/modLoadRes.h"
#include "lang/text_ids.h"
#include "ui/dialogs/dialog_ids.h"
#include "ui/framework/message_loop.h"

#include <algorithm>

namespace wordhawk {
namespace {

constexpr std::uint64_t kYieldEvery = 30;  // milliseconds

}  // namespace

void ImportPanel::Create(HWND form, ToolTips& tips) {
    fraASC.CreateIn(form, cusdics_id::fraASC);
    const HWND panel = fraASC.Handle();
    lblSearch.Create({panel, cusdics_id::lblSearch}, Label::Kind::Value);
    lblWord.Create({panel, cusdics_id::lblWord}, Label::Kind::Value);
    picIP.Create({panel, cusdics_id::picIP});
    cmdCanImport.Create({panel, cusdics_id::cmdCanImport, &tips});
}

layout::NodePtr ImportPanel::Layout() const {
    using namespace layout;
    NodePtr bar = Row(
        7, List(Item(picIP, {180, 19}, 1, Fill::Centred), Item(cmdCanImport, {80, kButtonHeight})));
    return Frame(fraASC.Handle(), Column(3, List(Item(lblSearch, {200, 17}),
                                                 Item(lblWord, {200, 17}), std::move(bar))));
}

void ImportPanel::Show(std::wstring_view title) {
    lblSearch.SetText(title);
    detail_.clear();
    position_ = 0;
    running_ = true;
    last_yield_ = GetTickCount64();
    Update();
}

void ImportPanel::SetCaption(std::wstring_view caption) {
    lblSearch.SetText(caption);
    Update();
}

void ImportPanel::Update() {
    lblWord.SetText(detail_.empty()
                        ? std::wstring()
                        : modLoadRes::LoadResText(state_, text_id::kSearch, {}, L": ") + detail_);
    picIP.SetPercent(
        maximum_ == 0 ? 0 : static_cast<int>(std::min(position_, maximum_) * 100 / maximum_));
    UpdateWindow(fraASC.Handle());
    RedrawWindow(fraASC.Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

bool ImportPanel::YieldAndAskCancel() {
    const std::uint64_t now = GetTickCount64();
    if (now - last_yield_ >= kYieldEvery) {
        Update();
        if (!PumpWaitingMessages(form_)) Cancel();
        last_yield_ = GetTickCount64();
    }
    return Cancelled();
}

bool ImportPanel::Draw(const Theme& theme, const DRAWITEMSTRUCT& item) const {
    if (item.hwndItem != picIP.Handle()) return false;
    picIP.Draw(theme, item);
    return true;
}

}  // namespace wordhawk
