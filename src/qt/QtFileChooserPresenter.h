#pragma once

#include <QPointer>
#include <QWidget>

#include "core/FileChooser.h"

namespace ComQuorvantVelmar_Plugin {

/// Asks the user for a file with a Qt file dialog: an open dialog for an existing file or
/// a save dialog for a new path, starting in the request's folder with its proposed file
/// name, offering files with the request's extensions. With a parent window the dialog is
/// a sheet of that window (window-modal).
class QtFileChooserPresenter : public FileChooserPresenter {
public:
    explicit QtFileChooserPresenter(QWidget* parentWindow = nullptr) : _parentWindow(parentWindow) {}

    /// The window whose sheet the dialogs are; nullptr for application-modal dialogs.
    void setParentWindow(QWidget* parentWindow) { _parentWindow = parentWindow; }
    QWidget* parentWindow() const { return _parentWindow; }

    /// The chosen path, or nothing when the user cancelled.
    std::optional<std::string> runModal(const FileChooserRequest& request) override;

private:
    QPointer<QWidget> _parentWindow;
};

}  // namespace ComQuorvantVelmar_Plugin
