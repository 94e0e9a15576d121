#include "ui/framework/layout.h"

#include <algorithm>

namespace wordhawk {
namespace layout {
namespace {

constexpr int kButtonPadding = 9;
// A check mark and the gap behind it, or the two edges of a button.
constexpr int kMarkWidth = 22;
// Letters may reach a little beyond the width that the system measures.
constexpr int kOverhang = 2;

int WidthOf(const RECT& area) { return static_cast<int>(area.right - area.left); }
int HeightOf(const RECT& area) { return static_cast<int>(area.bottom - area.top); }

class ItemNode : public Node {
  public:
    ItemNode(const Control& control, Size size, int stretch, Fill fill)
        : Node(stretch), control_(control), size_(size), fill_(fill) {}

    bool Shown() const override { return control_.Visible(); }
    int Width(const Measure& measure) const override {
        if (size_.width != 0) return measure.Scaled(size_.width);
        return static_cast<int>(measure.TextSize(control_.Text()).cx) +
               measure.Scaled(kMarkWidth);
    }
    int Height(int, const Measure& measure) const override {
        if (size_.height != 0) return measure.Scaled(size_.height);
        return static_cast<int>(measure.TextSize(L"Xg").cy);
    }
    void Place(const RECT& area, const Measure& measure,
               std::vector<Placement>& placements) const override {
        RECT bounds = area;
        if (fill_ == Fill::Centred) {
            const int height = std::min(Height(WidthOf(area), measure), HeightOf(area));
            bounds.top += (HeightOf(area) - height) / 2;
            bounds.bottom = bounds.top + height;
        }
        placements.push_back({control_.Handle(), bounds});
    }

  private:
    const Control& control_;
    Size size_;
    Fill fill_;
};

class TextNode : public ItemNode {
  public:
    TextNode(const Control& label, int stretch)
        : ItemNode(label, {}, stretch, Fill::Centred), label_(label) {}
    int Width(const Measure& measure) const override {
        // A stretched text may end in dots; another keeps its whole width.
        if (Stretch() > 0) return 0;
        return static_cast<int>(measure.TextSize(label_.Text()).cx) + measure.Scaled(kOverhang);
    }

  private:
    const Control& label_;
};

class SpaceNode : public Node {
  public:
    SpaceNode(Size size, int stretch) : Node(stretch), size_(size) {}
    bool Shown() const override { return true; }
    int Width(const Measure& measure) const override { return measure.Scaled(size_.width); }
    int Height(int, const Measure& measure) const override { return measure.Scaled(size_.height); }
    void Place(const RECT&, const Measure&, std::vector<Placement>&) const override {}

  private:
    Size size_;
};

/// Sizes along a line of children: what they need, plus shares of what is left (or less, when there
/// is too little: those that stretch give way).
std::vector<int> ShareOut(const std::vector<int>& needed, const std::vector<int>& stretch,
                          int available) {
    std::vector<int> sizes = needed;
    int left = available;
    for (const int size : needed) left -= size;
    const bool growing = left > 0;
    long weights = 0;
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        if (stretch[i] > 0) weights += growing ? stretch[i] : needed[i];
    }
    for (std::size_t i = 0; i < sizes.size() && weights > 0; ++i) {
        if (stretch[i] == 0) continue;
        const long weight = growing ? stretch[i] : needed[i];
        const int share = static_cast<int>(left * weight / weights);
        sizes[i] = std::max(0, sizes[i] + share);
        left -= share;
        weights -= weight;
    }
    return sizes;
}

class Line : public Node {
  public:
    Line(int gap, std::vector<NodePtr> children, int stretch)
        : Node(stretch), gap_(gap), children_(std::move(children)) {}
    bool Shown() const override {
        return std::any_of(children_.begin(), children_.end(),
                           [](const NodePtr& child) { return child->Shown(); });
    }

  protected:
    std::vector<const Node*> Children() const {
        std::vector<const Node*> shown;
        for (const NodePtr& child : children_) {
            if (child->Shown()) shown.push_back(child.get());
        }
        return shown;
    }
    static std::vector<int> Stretches(const std::vector<const Node*>& children) {
        std::vector<int> stretches;
        for (const Node* child : children) stretches.push_back(child->Stretch());
        return stretches;
    }
    int Gaps(const std::vector<const Node*>& children, const Measure& measure) const {
        return children.empty() ? 0 : static_cast<int>(children.size() - 1) * measure.Scaled(gap_);
    }

    int gap_;

  private:
    std::vector<NodePtr> children_;
};

class RowNode : public Line {
  public:
    using Line::Line;
    int Width(const Measure& measure) const override {
        const auto children = Children();
        int width = Gaps(children, measure);
        for (const Node* child : children) width += child->Width(measure);
        return width;
    }
    int Height(int width, const Measure& measure) const override {
        const auto children = Children();
        const std::vector<int> widths = Widths(children, width, measure);
        int height = 0;
        for (std::size_t i = 0; i < children.size(); ++i) {
            height = std::max(height, children[i]->Height(widths[i], measure));
        }
        return height;
    }
    void Place(const RECT& area, const Measure& measure,
               std::vector<Placement>& placements) const override {
        const auto children = Children();
        const std::vector<int> widths = Widths(children, WidthOf(area), measure);
        RECT cell = area;
        for (std::size_t i = 0; i < children.size(); ++i) {
            cell.right = cell.left + widths[i];
            children[i]->Place(cell, measure, placements);
            cell.left = cell.right + measure.Scaled(gap_);
        }
    }

  private:
    std::vector<int> Widths(const std::vector<const Node*>& children, int width,
                            const Measure& measure) const {
        std::vector<int> needed;
        for (const Node* child : children) needed.push_back(child->Width(measure));
        return ShareOut(needed, Stretches(children), width - Gaps(children, measure));
    }
};

class ColumnNode : public Line {
  public:
    using Line::Line;
    int Width(const Measure& measure) const override {
        int width = 0;
        for (const Node* child : Children()) width = std::max(width, child->Width(measure));
        return width;
    }
    int Height(int width, const Measure& measure) const override {
        const auto children = Children();
        int height = Gaps(children, measure);
        for (const Node* child : children) height += child->Height(width, measure);
        return height;
    }
    void Place(const RECT& area, const Measure& measure,
               std::vector<Placement>& placements) const override {
        const auto children = Children();
        std::vector<int> needed;
        for (const Node* child : children) needed.push_back(child->Height(WidthOf(area), measure));
        const std::vector<int> heights =
            ShareOut(needed, Stretches(children), HeightOf(area) - Gaps(children, measure));
        RECT cell = area;
        for (std::size_t i = 0; i < children.size(); ++i) {
            cell.bottom = cell.top + heights[i];
            children[i]->Place(cell, measure, placements);
            cell.top = cell.bottom + measure.Scaled(gap_);
        }
    }
};

class ButtonsNode : public Node {
  public:
    ButtonsNode(int gap, int columns, std::vector<const Control*> buttons)
        : Node(0), gap_(gap), columns_(columns), buttons_(std::move(buttons)) {}

    bool Shown() const override { return !Buttons().empty(); }
    int Width(const Measure& measure) const override { return Widest(measure); }
    int Height(int width, const Measure& measure) const override {
        const int count = static_cast<int>(Buttons().size());
        const int columns = ColumnsIn(width, measure);
        const int rows = (count + columns - 1) / columns;
        return rows * measure.Scaled(kButtonHeight) + (rows - 1) * measure.Scaled(gap_);
    }
    void Place(const RECT& area, const Measure& measure,
               std::vector<Placement>& placements) const override {
        const int columns = ColumnsIn(WidthOf(area), measure);
        const int gap = measure.Scaled(gap_);
        const int height = measure.Scaled(kButtonHeight);
        const int room = WidthOf(area) - (columns - 1) * gap;
        int at = 0;
        for (const Control* button : Buttons()) {
            const int column = at % columns;
            const int row = at / columns;
            // Cut from the whole width, so that the last column ends exactly at the edge.
            RECT cell;
            cell.left = area.left + room * column / columns + column * gap;
            cell.right = area.left + room * (column + 1) / columns + column * gap;
            cell.top = area.top + row * (height + gap);
            cell.bottom = cell.top + height;
            placements.push_back({button->Handle(), cell});
            ++at;
        }
    }

  private:
    std::vector<const Control*> Buttons() const {
        std::vector<const Control*> shown;
        for (const Control* button : buttons_) {
            if (button->Visible()) shown.push_back(button);
        }
        return shown;
    }
    int Widest(const Measure& measure) const {
        int width = 0;
        for (const Control* button : Buttons()) {
            width = std::max(width, static_cast<int>(measure.TextSize(button->Text()).cx));
        }
        return width + 2 * measure.Scaled(kButtonPadding) / 2;
    }
    int ColumnsIn(int width, const Measure& measure) const {
        const int widest = Widest(measure);
        const int gap = measure.Scaled(gap_);
        int columns = columns_;
        while (columns > 1 && columns * widest + (columns - 1) * gap > width) --columns;
        return columns;
    }

    int gap_;
    int columns_;
    std::vector<const Control*> buttons_;
};

class MarginNode : public Node {
  public:
    MarginNode(int margin, NodePtr child, int stretch)
        : Node(stretch), margin_(margin), child_(std::move(child)) {}
    bool Shown() const override { return child_->Shown(); }
    int Width(const Measure& measure) const override {
        return child_->Width(measure) + 2 * measure.Scaled(margin_);
    }
    int Height(int width, const Measure& measure) const override {
        const int both = 2 * measure.Scaled(margin_);
        return child_->Height(width - both, measure) + both;
    }
    void Place(const RECT& area, const Measure& measure,
               std::vector<Placement>& placements) const override {
        RECT inner = area;
        InflateRect(&inner, -measure.Scaled(margin_), -measure.Scaled(margin_));
        child_->Place(inner, measure, placements);
    }

  private:
    int margin_;
    NodePtr child_;
};

}  // namespace

SIZE Measure::TextSize(const std::wstring& text) const {
    const HDC screen = GetDC(nullptr);
    const HGDIOBJ before = SelectObject(screen, font);
    RECT bounds{};
    // As controls draw it: the mark of an access key takes no room.
    DrawTextW(screen, text.c_str(), static_cast<int>(text.size()), &bounds,
              DT_CALCRECT | DT_SINGLELINE);
    SelectObject(screen, before);
    ReleaseDC(nullptr, screen);
    return {bounds.right, bounds.bottom};
}

NodePtr Item(const Control& control, Size size, int stretch, Fill fill) {
    return std::make_unique<ItemNode>(control, size, stretch, fill);
}

NodePtr Text(const Control& label, int stretch) {
    return std::make_unique<TextNode>(label, stretch);
}

NodePtr Space(Size size, int stretch) { return std::make_unique<SpaceNode>(size, stretch); }

NodePtr Row(int gap, std::vector<NodePtr> children, int stretch) {
    return std::make_unique<RowNode>(gap, std::move(children), stretch);
}

NodePtr Column(int gap, std::vector<NodePtr> children, int stretch) {
    return std::make_unique<ColumnNode>(gap, std::move(children), stretch);
}

NodePtr Buttons(int gap, int columns, std::vector<const Control*> buttons) {
    return std::make_unique<ButtonsNode>(gap, columns, std::move(buttons));
}

NodePtr Margin(int margin, NodePtr child, int stretch) {
    return std::make_unique<MarginNode>(margin, std::move(child), stretch);
}

}  // namespace layout

void Arrange(const layout::Node& node, const RECT& area, const layout::Measure& measure) {
    std::vector<layout::Placement> placements;
    node.Place(area, measure, placements);
    // A control that stays is not touched: a rich text box breaks its lines anew even then.
    std::erase_if(placements, [](const layout::Placement& placed) {
        RECT bounds{};
        GetWindowRect(placed.control, &bounds);
        MapWindowPoints(nullptr, GetParent(placed.control), reinterpret_cast<POINT*>(&bounds), 2);
        return EqualRect(&bounds, &placed.bounds) != FALSE;
    });
    // The system moves together only what has one parent.
    const bool together =
        std::all_of(placements.begin(), placements.end(), [&](const auto& placed) {
            return GetParent(placed.control) == GetParent(placements.front().control);
        });
    HDWP batch = together ? BeginDeferWindowPos(static_cast<int>(placements.size())) : nullptr;
    // Copying what was drawn elsewhere leaves parts of it behind under Wine.
    constexpr UINT kFlags = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS;
    for (const layout::Placement& placed : placements) {
        const RECT& bounds = placed.bounds;
        const int width = std::max(0, static_cast<int>(bounds.right - bounds.left));
        const int height = std::max(0, static_cast<int>(bounds.bottom - bounds.top));
        if (batch != nullptr) {
            batch = DeferWindowPos(batch, placed.control, nullptr, bounds.left, bounds.top, width,
                                   height, kFlags);
        } else {
            SetWindowPos(placed.control, nullptr, bounds.left, bounds.top, width, height, kFlags);
        }
    }
    if (batch != nullptr) EndDeferWindowPos(batch);
}

}  // namespace wordhawk
