// Panels within a layout: what stands in a window of its own.
#include "ui/framework/layout.h"

#include <algorithm>

namespace wordhawk::layout {
namespace {

class FrameNode : public Node {
  public:
    FrameNode(HWND panel, NodePtr inside, int stretch)
        : Node(stretch), panel_(panel), inside_(std::move(inside)) {}
    bool Shown() const override { return true; }
    int Width(const Measure& measure) const override { return inside_->Width(measure); }
    int Height(int width, const Measure& measure) const override {
        return inside_->Height(width, measure);
    }
    void Place(const RECT& area, const Measure& measure,
               std::vector<Placement>& placements) const override {
        placements.push_back({panel_, area});
        const RECT own{0, 0, area.right - area.left, area.bottom - area.top};
        inside_->Place(own, measure, placements);
    }

  private:
    HWND panel_;
    NodePtr inside_;
};

class StackNode : public Node {
  public:
    StackNode(std::vector<NodePtr> children, int stretch)
        : Node(stretch), children_(std::move(children)) {}
    bool Shown() const override { return true; }
    int Width(const Measure& measure) const override {
        int width = 0;
        for (const NodePtr& child : children_) width = std::max(width, child->Width(measure));
        return width;
    }
    int Height(int width, const Measure& measure) const override {
        int height = 0;
        for (const NodePtr& child : children_) {
            height = std::max(height, child->Height(width, measure));
        }
        return height;
    }
    void Place(const RECT& area, const Measure& measure,
               std::vector<Placement>& placements) const override {
        for (const NodePtr& child : children_) child->Place(area, measure, placements);
    }

  private:
    std::vector<NodePtr> children_;
};

}  // namespace

NodePtr Frame(HWND panel, NodePtr inside, int stretch) {
    return std::make_unique<FrameNode>(panel, std::move(inside), stretch);
}

NodePtr Stack(std::vector<NodePtr> children, int stretch) {
    return std::make_unique<StackNode>(std::move(children), stretch);
}

}  // namespace wordhawk::layout
