#include "ui/framework/layout.h"

#include "ui/framework/controls/Button.h"

#include <gtest/gtest.h>

#include <memory>

namespace wordhawk::test {
namespace {

using namespace layout;

class LayoutTest : public testing::Test {
  protected:
    LayoutTest() {
        window_ = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1000, 1000, nullptr, nullptr,
                                  nullptr, nullptr);
    }
    ~LayoutTest() override { DestroyWindow(window_); }

    Button& Make(const wchar_t* caption = L"") {
        buttons_.push_back(std::make_unique<Button>());
        buttons_.back()->Create({window_, static_cast<int>(buttons_.size())});
        buttons_.back()->SetText(caption);
        return *buttons_.back();
    }
    static std::string At(const Control& control) {
        const RECT bounds = control.Bounds();
        return std::to_string(bounds.left) + "," + std::to_string(bounds.top) + " " +
               std::to_string(bounds.right - bounds.left) + "x" +
               std::to_string(bounds.bottom - bounds.top);
    }

    HWND window_;
    std::vector<std::unique_ptr<Button>> buttons_;
};

TEST_F(LayoutTest, RoomGoesToThoseThatStretchAndTheRestKeepsItsSize) {
    Button& fixed = Make();
    Button& one = Make();
    Button& two = Make();
    const NodePtr row =
        Row(10, List(Item(fixed, {50, 20}), Item(one, {10, 20}, 1), Item(two, {10, 20}, 3)));
    Arrange(*row, {0, 0, 250, 40}, {96, nullptr});
    EXPECT_EQ(At(fixed), "0,0 50x40");
    EXPECT_EQ(At(one), "60,0 50x40");
    EXPECT_EQ(At(two), "120,0 130x40");
}

TEST_F(LayoutTest, LengthsGrowWithTheMonitorsDensity) {
    Button& top = Make();
    Button& rest = Make();
    const NodePtr column =
        Margin(10, Column(4, List(Item(top, {50, 20}), Item(rest, {50, 20}, 1))));
    Arrange(*column, {0, 0, 300, 300}, {144, nullptr});
    EXPECT_EQ(At(top), "15,15 270x30");
    EXPECT_EQ(At(rest), "15,51 270x234");
}

TEST_F(LayoutTest, HiddenControlsTakeNeitherRoomNorGap) {
    Button& first = Make();
    Button& hidden = Make();
    Button& last = Make();
    hidden.SetVisible(false);
    const NodePtr column =
        Column(5, List(Item(first, {50, 20}), Item(hidden, {50, 20}), Item(last, {50, 20})));
    Arrange(*column, {0, 0, 50, 100}, {96, nullptr});
    EXPECT_EQ(At(last), "0,25 50x20");
}

TEST_F(LayoutTest, ThoseThatStretchGiveWayWhenThereIsTooLittle) {
    Button& fixed = Make();
    Button& soft = Make();
    const NodePtr column = Column(0, List(Item(fixed, {50, 30}), Item(soft, {50, 60}, 1)));
    Arrange(*column, {0, 0, 50, 50}, {96, nullptr});
    EXPECT_EQ(At(fixed), "0,0 50x30");
    EXPECT_EQ(At(soft), "0,30 50x20");
}

TEST_F(LayoutTest, ButtonsTakeFewerColumnsWhenTheirTextsNeedTheWidth) {
    std::vector<const Control*> buttons;
    for (int i = 0; i < 4; ++i) buttons.push_back(&Make(L"A rather long caption for a button"));
    const NodePtr grid = Buttons(4, 4, buttons);
    const Measure measure{96, static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT))};
    const int widest = grid->Width(measure);
    Arrange(*grid, {0, 0, 4 * widest + 12, 100}, measure);
    EXPECT_EQ(buttons_[3]->Bounds().top, 0);
    Arrange(*grid, {0, 0, 2 * widest + 4, 100}, measure);
    EXPECT_EQ(buttons_[1]->Bounds().top, 0);
    EXPECT_EQ(buttons_[1]->Bounds().right, 2 * widest + 4);
    EXPECT_GT(buttons_[2]->Bounds().top, 0);
    Arrange(*grid, {0, 0, 20, 200}, measure);
    EXPECT_EQ(buttons_[3]->Bounds().left, 0);
}

}  // namespace
}  // namespace wordhawk::test
