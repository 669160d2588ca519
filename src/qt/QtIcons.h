#pragma once

#include <QIcon>
#include <QPixmap>

#include <string>

namespace ComQuorvantVelmar_Plugin {

/// Icons of the views: images of the bundles and icons of the desktop's freedesktop.org
/// icon theme, looked up by their theme names.
namespace QtIcons {

/// The icons the dialogs show for files.
enum class Kind { Folder, GenericDocument, NoteDocument };

/// The theme name of kind ("folder", "text-x-generic", "text-x-generic-template").
const char* themeName(Kind kind);
/// The theme icon of kind; an empty icon when no theme has it.
QIcon icon(Kind kind);
/// The theme icon named name; an empty icon when no theme has it.
QIcon fromThemeName(const std::string& name);
/// The icon of the file at path by its type (its MIME type's theme icon), else the
/// generic document or folder icon.
QIcon forFile(const std::string& path);
/// The image file at path (a bundle's PNG resource) scaled to fit size pixels, keeping its
/// proportions and never enlarged; a null pixmap when the file is missing or unreadable.
QPixmap pixmapFromResource(const std::string& path, int size);
/// Makes the icons of places and documents available where the desktop provides none (no
/// desktop at all): the icon folders of the XDG data folders, and the Adwaita theme, else
/// Breeze, when installed.
void useFallbackTheme();

}  // namespace QtIcons
}  // namespace ComQuorvantVelmar_Plugin
