#include "qt/QtIcons.h"

#include <QFileInfo>
#include <QMimeDatabase>
#include <QStandardPaths>

namespace ComQuorvantVelmar_Plugin {

const char* QtIcons::themeName(Kind kind) {
    switch (kind) {
        case Kind::Folder: return "folder";
        case Kind::GenericDocument: return "text-x-generic";
        case Kind::NoteDocument: return "text-x-generic-template";
    }
    return "text-x-generic";
}

QIcon QtIcons::icon(Kind kind) { return QIcon::fromTheme(QString::fromLatin1(themeName(kind))); }

QIcon QtIcons::fromThemeName(const std::string& name) {
    if (name.empty()) return {};
    return QIcon::fromTheme(QString::fromStdString(name));
}

QIcon QtIcons::forFile(const std::string& path) {
    const QFileInfo file(QString::fromStdString(path));
    if (file.isDir()) return icon(Kind::Folder);
    const QMimeType type = QMimeDatabase().mimeTypeForFile(file);
    QIcon own = QIcon::fromTheme(type.iconName());
    if (own.isNull()) own = QIcon::fromTheme(type.genericIconName());
    return own.isNull() ? icon(Kind::GenericDocument) : own;
}

QPixmap QtIcons::pixmapFromResource(const std::string& path, int size) {
    if (path.empty()) return {};
    QPixmap pixmap(QString::fromStdString(path));
    if (pixmap.isNull() || size <= 0) return pixmap;
    if (pixmap.width() <= size && pixmap.height() <= size) return pixmap;
    return pixmap.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

// Without a desktop, Qt knows neither the folders of the icon themes nor a theme that holds
// the icons of places and documents.
void QtIcons::useFallbackTheme() {
    const auto hasPlaces = [] { return !QIcon::fromTheme(QStringLiteral("folder")).isNull(); };
    if (hasPlaces()) return;
    QStringList paths = QIcon::themeSearchPaths();
    for (const QString& folder : QStandardPaths::locateAll(QStandardPaths::GenericDataLocation,
                                                           QStringLiteral("icons"), QStandardPaths::LocateDirectory))
        if (!paths.contains(folder)) paths.append(folder);
    QIcon::setThemeSearchPaths(paths);
    if (hasPlaces()) return;
    const QString desktopTheme = QIcon::themeName();
    for (const char* theme : {"Adwaita", "breeze"}) {
        QIcon::setThemeName(QString::fromLatin1(theme));
        if (hasPlaces()) return;
    }
    QIcon::setThemeName(desktopTheme);
}

}  // namespace ComQuorvantVelmar_Plugin
