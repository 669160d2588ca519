#pragma once

#include <QImage>
#include <QString>

// Renders the product's icon from its SVG source with QPainter, so that the PNG sizes of the
// icon theme always show the committed drawing. It reads the few SVG elements the icon is
// drawn with (rect, circle, path with absolute and relative M L H V C Q Z, linear gradients
// in user space) and refuses anything else, so that a drawing it cannot show fails the build
// instead of coming out different.

/// The image of the SVG file at path drawn at size x size pixels; a null image, with the
/// reason in error, when the file cannot be read or uses what the renderer does not know.
QImage renderSvgIcon(const QString& path, int size, QString* error);
