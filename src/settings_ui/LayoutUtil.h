#pragma once

#include <memory>
#include <vector>

#include "settings_ui/ViewNode.h"

namespace ComQuorvantVelmar_Plugin {

/// Moves and closes up the visible views of a layout when some of its views are hidden, so
/// that a pane shows no gaps. Views are ordered by their bottom edge, the topmost first;
/// frames are measured from the top left corner of the enclosing view.
class LayoutUtil {
public:
    using Views = std::vector<std::shared_ptr<ViewNode>>;

    /// The visible sub-views of view, by bottom edge; empty for nullptr.
    static Views visibleSubViews(const ViewNode* view);
    /// Moves every view by dx points to the right and dy points down.
    static void moveViews(const Views& views, double dx, double dy);
    /// Moves views together, keeping their distances, so that the topmost begins interval
    /// points below the bottom edge of targetView; answers the distance moved down (0 when
    /// views is empty or targetView is nullptr).
    static double closeViewsToView(const Views& views, const ViewNode* targetView, double interval);
    /// The visible sub-views of view that begin at or below topTarget's bottom edge and end
    /// at or above bottomTarget's bottom edge (bottomTarget itself included); a nullptr
    /// target sets no limit on its side.
    static Views visibleRangeViews(const ViewNode* view, const ViewNode* topTarget, const ViewNode* bottomTarget);
    /// The visible sub-views of view that begin at or below target's bottom edge.
    static Views visibleSouthViews(const ViewNode* view, const ViewNode* target);
};

}  // namespace ComQuorvantVelmar_Plugin
