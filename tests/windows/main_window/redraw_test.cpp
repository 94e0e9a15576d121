// What is on the screen after the window changed its size.

#include "tests/windows/main_window/main_window_fixture.h"

#include <algorithm>

namespace wordhawk::test {
namespace {

/// The window as it is on the screen, a number for every pixel.
class Picture {
  public:
    explicit Picture(HWND window) {
        RECT client{};
        GetClientRect(window, &client);
        size_ = {client.right, client.bottom};
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = size_.cx;
        info.bmiHeader.biHeight = -size_.cy;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        const HDC screen = GetDC(window);
        const HDC memory = CreateCompatibleDC(screen);
        void* bits = nullptr;
        const HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        const HGDIOBJ before = SelectObject(memory, bitmap);
        BitBlt(memory, 0, 0, size_.cx, size_.cy, screen, 0, 0, SRCCOPY);
        GdiFlush();
        const auto* pixels = static_cast<const DWORD*>(bits);
        pixels_.assign(pixels, pixels + size_.cx * size_.cy);
        SelectObject(memory, before);
        DeleteObject(bitmap);
        DeleteDC(memory);
        ReleaseDC(window, screen);
    }

    /// Where the two differ; empty when they do not.
    RECT Difference(const Picture& other) const {
        RECT found{size_.cx, size_.cy, 0, 0};
        for (LONG y = 0; y < size_.cy; ++y) {
            for (LONG x = 0; x < size_.cx; ++x) {
                const auto at = static_cast<std::size_t>(y * size_.cx + x);
                if ((pixels_[at] & 0xFFFFFF) == (other.pixels_[at] & 0xFFFFFF)) continue;
                found = {std::min(found.left, x), std::min(found.top, y),
                         std::max(found.right, x + 1), std::max(found.bottom, y + 1)};
            }
        }
        return found;
    }

  private:
    SIZE size_{};
    std::vector<DWORD> pixels_;
};

class Redraw : public MainWindowTest {
  protected:
    void ExpectNothingStale(const std::string& when) {
        const HWND form = Form().Handle();
        Pump();
        const Picture now(form);
        RedrawWindow(form, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        const RECT stale = now.Difference(Picture(form));
        EXPECT_GE(stale.left, stale.right) << when << ": " << stale.left << "," << stale.top
                                           << " to " << stale.right << "," << stale.bottom;
    }
    void Resize(int width, int height) {
        SetWindowPos(Form().Handle(), nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
        Pump();
    }
};

TEST_F(Redraw, NoStalePixelIsLeftWhateverTheSizeWas) {
    Setting(L"ScoreBox", L"1");
    Setting(L"OpenSave", L"1");
    Setting(L"OpenWOptions", L"1");
    OpenWith(L"teh dog and a recieve, xqzwv and the lazy dgo\ranother line of the story");
    // A blinking caret would differ by itself.
    Controls().cmdIgnore.SetFocus();
    SetWindowPos(Form().Handle(), nullptr, 0, 0, 700, 560, SWP_NOZORDER);
    // A drag in small steps: larger, smaller, and past the width where the arrangement changes.
    for (int step = 1; step <= 60; ++step) {
        const int along = step <= 30 ? step : 60 - step;
        Resize(700 + 17 * along, 560 + 7 * along);
        if (step % 10 == 0) ExpectNothingStale("step " + std::to_string(step));
    }
    ShowWindow(Form().Handle(), SW_SHOWMAXIMIZED);
    ExpectNothingStale("maximised");
    ShowWindow(Form().Handle(), SW_RESTORE);
    ExpectNothingStale("restored");
    Click(Controls().cmdOptions);
    ExpectNothingStale("without the options");
    Click(Controls().cmdOptions);
    ExpectNothingStale("with the options");
}

}  // namespace
}  // namespace wordhawk::test
