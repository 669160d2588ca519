#include "settings_ui/LayoutUtil.h"

#include <algorithm>
#include <limits>

namespace ComQuorvantVelmar_Plugin {
namespace {

double topOf(const ViewNode& view) { return view.frame().y; }

double bottomOf(const ViewNode& view) { return view.frame().y + view.frame().height; }

// The views of one container that pass keep, by bottom edge; views on one line keep their
// order in the container.
template <class Predicate>
LayoutUtil::Views visibleViewsWhere(const ViewNode* view, Predicate keep) {
    LayoutUtil::Views views;
    if (!view) return views;
    for (const auto& subview : view->subviews())
        if (!subview->isHiddenView() && keep(*subview)) views.push_back(subview);
    std::stable_sort(views.begin(), views.end(),
                     [](const auto& first, const auto& second) { return bottomOf(*first) < bottomOf(*second); });
    return views;
}

}  // namespace

LayoutUtil::Views LayoutUtil::visibleSubViews(const ViewNode* view) {
    return visibleViewsWhere(view, [](const ViewNode&) { return true; });
}

void LayoutUtil::moveViews(const Views& views, double dx, double dy) {
    for (const auto& view : views) {
        if (!view) continue;
        ViewFrame frame = view->frame();
        frame.x += dx;
        frame.y += dy;
        view->setFrame(frame);
    }
}

double LayoutUtil::closeViewsToView(const Views& views, const ViewNode* targetView, double interval) {
    if (!targetView) return 0;
    double top = std::numeric_limits<double>::max();
    for (const auto& view : views)
        if (view) top = std::min(top, topOf(*view));
    if (top == std::numeric_limits<double>::max()) return 0;
    const double distance = bottomOf(*targetView) + interval - top;
    moveViews(views, 0, distance);
    return distance;
}

LayoutUtil::Views LayoutUtil::visibleRangeViews(const ViewNode* view, const ViewNode* topTarget,
                                                const ViewNode* bottomTarget) {
    const double upper = topTarget ? bottomOf(*topTarget) : std::numeric_limits<double>::lowest();
    const double lower = bottomTarget ? bottomOf(*bottomTarget) : std::numeric_limits<double>::max();
    return visibleViewsWhere(view, [&](const ViewNode& each) {
        return &each != topTarget && topOf(each) >= upper && bottomOf(each) <= lower;
    });
}

LayoutUtil::Views LayoutUtil::visibleSouthViews(const ViewNode* view, const ViewNode* target) {
    return visibleRangeViews(view, target, nullptr);
}

}  // namespace ComQuorvantVelmar_Plugin
