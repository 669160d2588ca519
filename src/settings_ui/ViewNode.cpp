#include "settings_ui/ViewNode.h"

#include <algorithm>

namespace ComQuorvantVelmar_Plugin {

ViewNode::~ViewNode() {
    for (const auto& view : _subviews) view->_superview = nullptr;
}

void ViewNode::addSubview(const std::shared_ptr<ViewNode>& view) {
    if (!view || view.get() == this) return;
    if (view->_superview) view->_superview->detach(view.get());
    view->_superview = this;
    _subviews.push_back(view);
}

void ViewNode::detach(const ViewNode* view) {
    std::erase_if(_subviews, [view](const auto& each) { return each.get() == view; });
}

void ViewNode::removeAllSubviews() {
    while (!_subviews.empty()) {
        _subviews.back()->_superview = nullptr;
        _subviews.pop_back();
    }
}

}  // namespace ComQuorvantVelmar_Plugin
