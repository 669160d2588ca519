#include "qt/QtScreenshot.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPixmap>
#include <QWidget>

namespace ComQuorvantVelmar_Plugin {

// A widget that was never shown has no layout yet; showing it off the screen lays it out
// without a window appearing.
bool QtScreenshot::saveWidget(QWidget& widget, const std::string& path) {
    const bool wasShown = widget.isVisible();
    if (!wasShown) {
        widget.setAttribute(Qt::WA_DontShowOnScreen, true);
        widget.show();
    }
    // A shown widget may still owe a layout for a change just made.
    QApplication::processEvents();
    const QPixmap picture = widget.grab();
    if (!wasShown) {
        widget.hide();
        widget.setAttribute(Qt::WA_DontShowOnScreen, false);
    }
    const QString file = QString::fromStdString(path);
    if (picture.isNull() || !QDir().mkpath(QFileInfo(file).absolutePath())) return false;
    return picture.save(file, "PNG");
}

}  // namespace ComQuorvantVelmar_Plugin
