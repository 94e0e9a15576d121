#pragma once

#include "app/progress.h"
#include "platform/ui_services.h"

#include <string>
#include <vector>

namespace wordhawk::test {

/// Records what was shown and gives the answer it was told to give.
class FakeUi : public UiServices {
  public:
    struct Shown {
        std::wstring text;
        std::wstring title;
        MessageIcon icon;
        MessageButtons buttons;
    };

    Answer ShowMessage(std::wstring_view text, std::wstring_view title, MessageIcon icon,
                       MessageButtons buttons) override {
        shown.push_back({std::wstring(text), std::wstring(title), icon, buttons});
        return answer;
    }
    void Beep() override { ++beeps; }
    void SetBusy(bool busy) override { busy_depth += busy ? 1 : -1; }

    std::vector<Shown> shown;
    Answer answer = Answer::Yes;
    int beeps = 0;
    int busy_depth = 0;
};

/// Records captions and cancels at a given call of YieldAndAskCancel (counted from 1; 0: never).
class FakeProgress : public Progress {
  public:
    explicit FakeProgress(int cancel_at = 0) : cancel_at_(cancel_at) {}
    void Show(std::wstring_view title) override { titles.emplace_back(title); }
    void Hide() override { ++hidden; }
    void SetCaption(std::wstring_view caption) override { captions.emplace_back(caption); }
    void SetRange(std::uint64_t maximum) override { range = maximum; }
    void SetPosition(std::uint64_t new_position) override { position = new_position; }
    bool IsDue() override { return true; }
    bool YieldAndAskCancel() override { return ++yields == cancel_at_; }

    std::vector<std::wstring> titles;
    std::vector<std::wstring> captions;
    std::uint64_t range = 0;
    std::uint64_t position = 0;
    int hidden = 0;
    int yields = 0;

  private:
    int cancel_at_;
};

}  // namespace wordhawk::test
