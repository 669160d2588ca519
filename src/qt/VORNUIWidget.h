#pragma once

#include <QWidget>

#include <memory>
#include <vector>

#include "settings_ui/VORNUI.h"

class QLabel;
class QToolButton;
class QVBoxLayout;

namespace ComQuorvantVelmar_Plugin {

class ControlBodyWidget;

/// The Qt view of one settings control: its group heading, its title, the widget of its
/// type, and the views of its child controls at the places the control gave them. It
/// renders the control's state and hands on what the user does; the control decides the
/// rest. One point of the control's geometry is one pixel.
class VORNUIWidget : public QWidget, public VORNUIView {
    Q_OBJECT
public:
    /// Renders control and becomes its view until this widget is gone.
    explicit VORNUIWidget(std::shared_ptr<VORNUI> control, QWidget* parent = nullptr);
    ~VORNUIWidget() override;

    const std::shared_ptr<VORNUI>& control() const { return _control; }
    /// The widget of the control's type; nullptr for a control of unknown type or one that
    /// shows its title only.
    ControlBodyWidget* body() const { return _body; }
    /// The views of the child controls, in the control's order.
    const std::vector<VORNUIWidget*>& childWidgets() const { return _children; }
    /// The title above the control; nullptr when it shows none.
    QLabel* titleLabel() const { return _title; }
    /// The group heading above the control; nullptr when it has none.
    QLabel* groupTitleLabel() const { return _groupTitle; }
    /// The triangle that folds the children of a group's main control; nullptr for others.
    QToolButton* disclosureButton() const { return _disclosure; }
    /// The part that enabling greys: heading, title and the widget of the type (not the
    /// child controls, which are enabled on their own).
    QWidget* ownPart() const { return _own; }

    void controlDidChange(const VORNUI& control, VORNUIChange change) override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void rebuild();
    void buildHeading(QVBoxLayout* layout);
    void buildTitle(QVBoxLayout* layout);
    void buildChildren();
    void placeParts();
    void showEnabled();
    void showHidden();
    void showDisclosure();
    int ownHeight() const;
    int ownTop() const;
    int contentWidth() const;

    std::shared_ptr<VORNUI> _control;
    QWidget* _own = nullptr;
    ControlBodyWidget* _body = nullptr;
    QLabel* _title = nullptr;
    QLabel* _groupTitle = nullptr;
    QToolButton* _disclosure = nullptr;
    std::vector<VORNUIWidget*> _children;
};

}  // namespace ComQuorvantVelmar_Plugin
