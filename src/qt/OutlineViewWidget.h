#pragma once

#include <QTreeView>

namespace ComQuorvantVelmar_Plugin {

class OutlineItemModel;
class OutlineViewModel;

/// The Qt view of an engine tree control: the control's items with their icons (by theme
/// name) and gray labels, opened and closed exactly as the control says, its selection and
/// its column width. The user's clicks on a branch's arrow and on an item are put to the
/// control, which decides; the view then shows what it decided.
class OutlineViewWidget : public QTreeView {
    Q_OBJECT
public:
    /// Renders outline (which must outlive the view) and gives it the view's label measure
    /// and indentation.
    explicit OutlineViewWidget(OutlineViewModel& outline, QWidget* parent = nullptr);

    OutlineItemModel& itemModel() const { return *_model; }
    /// Shows the control's state: its items afresh after a reload, which items are open,
    /// the selection and the column width.
    void refresh();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showExpansion(const QModelIndex& parent);
    void showSelection();
    void showColumnWidth();
    void expandedByUser(const QModelIndex& index);
    void collapsedByUser(const QModelIndex& index);
    void selectedByUser();

    OutlineViewModel& _outline;
    OutlineItemModel* _model;
    bool _showing = false;
};

}  // namespace ComQuorvantVelmar_Plugin
