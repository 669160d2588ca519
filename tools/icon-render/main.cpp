// ostrin-icon-render SVG SIZE PNG: draws the product's icon from its SVG source at SIZE
// pixels into a PNG file, for the icon theme sizes the build installs.

#include <QCoreApplication>
#include <QImage>

#include <cstdio>

#include "SvgIconRenderer.h"

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fprintf(stderr, "usage: ostrin-icon-render SVG SIZE PNG\n");
        return 2;
    }
    bool sized = false;
    const int size = QString::fromLocal8Bit(argv[2]).toInt(&sized);
    if (!sized || size < 1 || size > 4096) {
        std::fprintf(stderr, "ostrin-icon-render: SIZE must be a number of pixels from 1 to 4096: %s\n", argv[2]);
        return 2;
    }
    QString error;
    const QImage image = renderSvgIcon(QString::fromLocal8Bit(argv[1]), size, &error);
    if (image.isNull()) {
        std::fprintf(stderr, "ostrin-icon-render: %s: %s\n", argv[1], qPrintable(error));
        return 3;
    }
    if (!image.save(QString::fromLocal8Bit(argv[3]), "PNG")) {
        std::fprintf(stderr, "ostrin-icon-render: cannot write %s\n", argv[3]);
        return 3;
    }
    return 0;
}
