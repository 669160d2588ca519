#pragma once

#include <string>

class QWidget;

namespace ComQuorvantVelmar_Plugin {

/// Pictures of views, for documentation and for looking at a layout without a screen.
namespace QtScreenshot {

/// Renders widget as it looks on screen (laid out and polished, shown off-screen when it
/// is not shown yet) into a PNG file at path, creating its folder; false when the file
/// cannot be written.
bool saveWidget(QWidget& widget, const std::string& path);

}  // namespace QtScreenshot
}  // namespace ComQuorvantVelmar_Plugin
