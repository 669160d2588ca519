#pragma once

#include <QPointer>
#include <QWidget>

#include <memory>
#include <unordered_map>

#include "settings_ui/ViewNode.h"

class QTabWidget;

namespace ComQuorvantVelmar_Plugin {

class TabViewNode;
class VORNUI;

/// Shows a layout tree of the engine (a pane's or the panel's views) as widgets: plain
/// views become containers that place their sub-views at their frames, tab containers
/// become tab widgets (or a plain stack of pages when tabless), controls become
/// VORNUIWidgets. The engine keeps the tree; after it moved, hid or selected views, refresh
/// shows that. Views added to the tree later are not shown; they need a new rendering.
class ViewTreeWidget : public QWidget {
    Q_OBJECT
public:
    /// Renders root (nothing for nullptr) and everything below it.
    explicit ViewTreeWidget(std::shared_ptr<ViewNode> root, QWidget* parent = nullptr);

    const std::shared_ptr<ViewNode>& root() const { return _root; }
    /// The widget that renders view; nullptr for a view outside the tree.
    QWidget* widgetFor(const ViewNode* view) const;
    /// Shows the frames, hidden flags and tab selections the engine holds now.
    void refresh();
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* render(const std::shared_ptr<ViewNode>& view, QWidget* parent);
    QWidget* renderContainer(const std::shared_ptr<ViewNode>& view, QWidget* parent);
    QWidget* renderTabs(const std::shared_ptr<TabViewNode>& tabs, QWidget* parent);
    void place(const ViewNode& view, QWidget* widget) const;
    void showSelection(const TabViewNode& tabs, QWidget* widget) const;

    std::shared_ptr<ViewNode> _root;
    QWidget* _rootWidget = nullptr;
    struct Rendered {
        std::weak_ptr<ViewNode> view;
        QPointer<QWidget> widget;
    };
    std::unordered_map<const ViewNode*, Rendered> _widgets;
};

}  // namespace ComQuorvantVelmar_Plugin
