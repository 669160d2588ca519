#include "qt/ViewTreeWidget.h"

#include <QStackedWidget>
#include <QTabWidget>

#include <algorithm>
#include <cmath>

#include "qt/VORNUIWidget.h"
#include "settings_ui/TabViewNode.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

int pixels(double points) { return static_cast<int>(std::lround(points)); }

// A plain view is as large as its frame, or large enough for its visible sub-views when
// its frame gives no size.
class ContainerWidget : public QWidget {
public:
    ContainerWidget(std::shared_ptr<const ViewNode> view, QWidget* parent) : QWidget(parent), _view(std::move(view)) {}
    QSize sizeHint() const override {
        const ViewFrame& frame = _view->frame();
        if (frame.width > 0 && frame.height > 0) return {pixels(frame.width), pixels(frame.height)};
        QRect bounds;
        for (const QWidget* child : findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            if (!child->isHidden()) bounds |= QRect(child->pos(), child->size());
        return {std::max(pixels(frame.width), bounds.right() + 1), std::max(pixels(frame.height), bounds.bottom() + 1)};
    }

private:
    std::shared_ptr<const ViewNode> _view;
};

}  // namespace

ViewTreeWidget::ViewTreeWidget(std::shared_ptr<ViewNode> root, QWidget* parent)
    : QWidget(parent), _root(std::move(root)) {
    if (!_root) return;
    _rootWidget = render(_root, this);
    refresh();
    _rootWidget->move(0, 0);
}

QWidget* ViewTreeWidget::render(const std::shared_ptr<ViewNode>& view, QWidget* parent) {
    QWidget* widget = nullptr;
    if (auto control = std::dynamic_pointer_cast<VORNUI>(view))
        widget = new VORNUIWidget(control, parent);
    else if (auto tabs = std::dynamic_pointer_cast<TabViewNode>(view))
        widget = renderTabs(tabs, parent);
    else
        widget = renderContainer(view, parent);
    _widgets[view.get()] = {view, widget};
    return widget;
}

QWidget* ViewTreeWidget::renderContainer(const std::shared_ptr<ViewNode>& view, QWidget* parent) {
    auto* container = new ContainerWidget(view, parent);
    for (const auto& subview : view->subviews()) render(subview, container);
    return container;
}

// The tab views are sub-views of the tab container as well; they are rendered once, as pages.
QWidget* ViewTreeWidget::renderTabs(const std::shared_ptr<TabViewNode>& tabs, QWidget* parent) {
    const std::weak_ptr<TabViewNode> node = tabs;
    const auto select = [node](int index) {
        if (auto tabView = node.lock()) tabView->selectTabAtIndex(index);
    };
    if (tabs->isTabless()) {
        auto* stack = new QStackedWidget(parent);
        for (const TabEntry& entry : tabs->tabs()) stack->addWidget(render(entry.view, nullptr));
        connect(stack, &QStackedWidget::currentChanged, stack, select);
        return stack;
    }
    auto* tabWidget = new QTabWidget(parent);
    for (const TabEntry& entry : tabs->tabs()) {
        QWidget* page = entry.view ? render(entry.view, nullptr) : new QWidget;
        tabWidget->addTab(page, QString::fromStdString(entry.label));
    }
    connect(tabWidget, &QTabWidget::currentChanged, tabWidget, select);
    return tabWidget;
}

// A view the engine dropped may leave its address to a new one, which this tree never showed.
QWidget* ViewTreeWidget::widgetFor(const ViewNode* view) const {
    const auto found = _widgets.find(view);
    if (found == _widgets.end() || found->second.view.lock().get() != view) return nullptr;
    return found->second.widget;
}

// Pages of tab containers are placed by their tab widget, not by their frames.
void ViewTreeWidget::place(const ViewNode& view, QWidget* widget) const {
    if (auto* tabs = dynamic_cast<const TabViewNode*>(&view)) showSelection(*tabs, widget);
    const bool isPage = view.superview() && dynamic_cast<const TabViewNode*>(view.superview());
    if (isPage || &view == _root.get()) return;
    const ViewFrame& frame = view.frame();
    const QSize natural = widget->sizeHint();
    widget->setGeometry(pixels(frame.x), pixels(frame.y), frame.width > 0 ? pixels(frame.width) : natural.width(),
                        frame.height > 0 ? pixels(frame.height) : natural.height());
    widget->setVisible(!view.isHiddenView());
}

void ViewTreeWidget::showSelection(const TabViewNode& tabs, QWidget* widget) const {
    const QSignalBlocker blocker(widget);
    if (auto* tabWidget = qobject_cast<QTabWidget*>(widget))
        tabWidget->setCurrentIndex(tabs.selectedIndex());
    else if (auto* stack = qobject_cast<QStackedWidget*>(widget))
        stack->setCurrentIndex(tabs.selectedIndex());
}

// Deepest views first, so that a container measures sub-views already in place.
void ViewTreeWidget::refresh() {
    std::vector<const ViewNode*> order;
    std::vector<const ViewNode*> pending{_root.get()};
    while (!pending.empty()) {
        const ViewNode* view = pending.back();
        pending.pop_back();
        if (!view) continue;
        order.push_back(view);
        if (!dynamic_cast<const VORNUI*>(view))
            for (const auto& subview : view->subviews()) pending.push_back(subview.get());
    }
    for (auto view = order.rbegin(); view != order.rend(); ++view)
        if (QWidget* widget = widgetFor(*view)) place(**view, widget);
    if (_rootWidget) {
        _rootWidget->resize(_rootWidget->sizeHint().expandedTo(size()));
        _rootWidget->setVisible(!_root->isHiddenView());
    }
    updateGeometry();
}

QSize ViewTreeWidget::sizeHint() const { return _rootWidget ? _rootWidget->sizeHint() : QSize(0, 0); }

void ViewTreeWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (_rootWidget) _rootWidget->resize(_rootWidget->sizeHint().expandedTo(size()));
}

}  // namespace ComQuorvantVelmar_Plugin
