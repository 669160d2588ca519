#pragma once

#include <memory>
#include <string>
#include <vector>

namespace ComQuorvantVelmar_Plugin {

/// A rectangle in points, measured from the top left corner of the enclosing view.
struct ViewFrame {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    bool operator==(const ViewFrame&) const = default;
};

/// One view of a layout tree that the engine describes and a toolkit renders: a plain
/// container, a tab container or a settings control. Views own their sub-views.
class ViewNode {
public:
    ViewNode() = default;
    virtual ~ViewNode();
    ViewNode(const ViewNode&) = delete;
    ViewNode& operator=(const ViewNode&) = delete;

    /// The kind of view, as the layout walkers test it ("View", "TabView", "VORNUI").
    virtual std::string className() const { return "View"; }

    const std::vector<std::shared_ptr<ViewNode>>& subviews() const { return _subviews; }
    /// The enclosing view, or nullptr for a root.
    ViewNode* superview() const { return _superview; }
    /// Appends view as the last sub-view (it leaves its former superview first).
    void addSubview(const std::shared_ptr<ViewNode>& view);
    /// Removes every sub-view, the last first.
    void removeAllSubviews();

    const ViewFrame& frame() const { return _frame; }
    void setFrame(const ViewFrame& frame) { _frame = frame; }
    bool isHiddenView() const { return _hidden; }
    void setHiddenView(bool hidden) { _hidden = hidden; }
    /// Text attribute the layout loader fills (a control's description key); "" when none.
    const std::string& toolTip() const { return _toolTip; }
    void setToolTip(std::string toolTip) { _toolTip = std::move(toolTip); }

private:
    void detach(const ViewNode* view);

    std::vector<std::shared_ptr<ViewNode>> _subviews;
    ViewNode* _superview = nullptr;
    ViewFrame _frame;
    bool _hidden = false;
    std::string _toolTip;
};

}  // namespace ComQuorvantVelmar_Plugin
