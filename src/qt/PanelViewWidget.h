#pragma once

#include <QPointer>
#include <QWidget>

#include <memory>
#include <unordered_map>
#include <vector>

class QBoxLayout;
class QPushButton;

namespace ComQuorvantVelmar_Plugin {

class PanelButton;
class ViewNode;

/// Shows the view of the panel or of a tray sheet as a column laid out by Qt, as their
/// interface lays them out: settings controls as their control widgets, push buttons,
/// labels, a plain view without sub-views as a separator line, and a plain view with
/// sub-views as a row of them. Settings that follow each other may stand in columns side by
/// side, the first of them in the first column. A button alone in the column sits at its
/// right edge, as a dialog's button does. The engine keeps the views; refresh shows their titles, texts,
/// enabling and hiding, and a view that lies below the height its container was cut to is
/// not shown. A click runs the button's action and then announces it.
class PanelViewWidget : public QWidget {
    Q_OBJECT
public:
    /// Renders the sub-views of root (nothing for nullptr), settings that follow each other
    /// in settingColumns columns; views added later are not shown.
    explicit PanelViewWidget(std::shared_ptr<ViewNode> root, int settingColumns = 1, QWidget* parent = nullptr);

    /// The widget that shows view; nullptr for a view that is not shown here.
    QWidget* widgetFor(const ViewNode* view) const;
    /// The Qt button of button; nullptr when it is not shown here.
    QPushButton* buttonFor(const PanelButton& button) const;
    /// Puts widget into the row of view, right after it (before it with before); it is
    /// shown and hidden with view. False (widget left alone) when view is not in a row here.
    bool insertBeside(const ViewNode& view, QWidget* widget, bool before = false);
    /// Shows the views as the engine holds them now.
    void refresh();

signals:
    /// A button's action ran (the engine may have changed anything).
    void actionRan();

private:
    struct Shown {
        std::weak_ptr<ViewNode> view;
        QPointer<QWidget> widget;
        std::vector<QPointer<QWidget>> companions;
    };

    QWidget* render(const std::shared_ptr<ViewNode>& view, QWidget* parent, bool inRow);
    QWidget* renderRow(const std::shared_ptr<ViewNode>& view, QWidget* parent);
    QWidget* renderButton(const std::shared_ptr<PanelButton>& button, QWidget* parent);
    void addToColumn(const std::shared_ptr<ViewNode>& view, QBoxLayout* column);
    void addSettings(const std::vector<std::shared_ptr<ViewNode>>& settings, int columns, QBoxLayout* column);
    void show(const ViewNode& view, QWidget* widget) const;

    std::shared_ptr<ViewNode> _root;
    std::vector<const ViewNode*> _order;
    std::unordered_map<const ViewNode*, Shown> _shown;
};

}  // namespace ComQuorvantVelmar_Plugin
