#pragma once

#include <QPointer>
#include <QWidget>

#include "core/Alert.h"

namespace ComQuorvantVelmar_Plugin {

/// Puts the engine's questions to the user as Qt message boxes: the request's message and
/// informative text, its buttons in order (the first is the default, the second answers
/// Escape), answering 1000 for the first button, 1001 for the second and so on. With a
/// parent window the box is a sheet of that window (window-modal); without one it blocks
/// the whole application.
class QtAlertPresenter : public AlertPresenter {
public:
    explicit QtAlertPresenter(QWidget* parentWindow = nullptr) : _parentWindow(parentWindow) {}

    /// The window whose sheet the boxes are; nullptr for application-modal boxes.
    void setParentWindow(QWidget* parentWindow) { _parentWindow = parentWindow; }
    QWidget* parentWindow() const { return _parentWindow; }

    /// Shows request and waits for a button; closing the box answers as Escape does.
    int runModal(const AlertRequest& request) override;

private:
    QPointer<QWidget> _parentWindow;
};

}  // namespace ComQuorvantVelmar_Plugin
