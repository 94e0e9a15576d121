#pragma once

#include "platform/win32/win.h"
#include "ui/framework/controls/Control.h"

#include <memory>
#include <vector>

namespace wordhawk {

/// Arranges the controls of one window in rows and columns. Lengths are given in units of 1/96 inch
/// and scaled to the window's monitor; controls that are hidden take no room.
namespace layout {

/// What lengths and texts are measured with.
struct Measure {
    int dpi = 96;
    HFONT font = nullptr;
    int Scaled(int length) const { return MulDiv(length, dpi, 96); }
    SIZE TextSize(const std::wstring& text) const;
};

/// The window positions that an arrangement comes to.
struct Placement {
    HWND control;
    RECT bounds;
};

class Node {
  public:
    explicit Node(int stretch) : stretch_(stretch) {}
    virtual ~Node() = default;

    /// Share of the room that is left over along the row or column; 0: keeps its size.
    int Stretch() const { return stretch_; }
    virtual bool Shown() const = 0;
    virtual int Width(const Measure& measure) const = 0;
    /// Height at a given width, both in pixels.
    virtual int Height(int width, const Measure& measure) const = 0;
    virtual void Place(const RECT& area, const Measure& measure,
                       std::vector<Placement>& placements) const = 0;

  private:
    int stretch_;
};
using NodePtr = std::unique_ptr<Node>;

/// One control. A width or height of 0 comes from its text.
struct Size {
    int width = 0;
    int height = 0;
};
enum class Fill { Whole, Centred };  ///< in an area that is higher than the control
NodePtr Item(const Control& control, Size size, int stretch = 0, Fill fill = Fill::Whole);

/// A label's text on one line.
NodePtr Text(const Control& label, int stretch = 0);

/// Room without a control.
NodePtr Space(Size size, int stretch = 0);

template <class... Nodes>
std::vector<NodePtr> List(Nodes... nodes) {
    std::vector<NodePtr> list;
    (list.push_back(std::move(nodes)), ...);
    return list;
}
NodePtr Row(int gap, std::vector<NodePtr> children, int stretch = 0);
NodePtr Column(int gap, std::vector<NodePtr> children, int stretch = 0);

/// Buttons of one common width, large enough for the longest text, in as many columns of `columns`
/// as fit. They fill the width.
NodePtr Buttons(int gap, int columns, std::vector<const Control*> buttons);

/// A fixed margin around.
NodePtr Margin(int margin, NodePtr child, int stretch = 0);

/// A panel with what it holds, arranged within it; it takes its room shown or hidden.
NodePtr Frame(HWND panel, NodePtr inside, int stretch = 0);

/// All in one area, large enough for each: pages of which one is shown at a time.
NodePtr Stack(std::vector<NodePtr> children, int stretch = 0);

/// Height of a push button and of a text box.
inline constexpr int kButtonHeight = 25;
inline constexpr int kFieldHeight = 23;

}  // namespace layout

/// Moves the controls of `node` so that they fill `area`.
void Arrange(const layout::Node& node, const RECT& area, const layout::Measure& measure);

}  // namespace wordhawk
