#include <gtest/gtest.h>

#include <QColor>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QMap>
#include <QTextStream>

#include <filesystem>
#include <string>

#include "TestSupport.h"

namespace {

// The keys of the [Desktop Entry] group.
QMap<QString, QString> desktopEntry() {
    QFile file(QStringLiteral(OSTRIN_DESKTOP_ENTRY));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text));
    QMap<QString, QString> keys;
    QTextStream stream(&file);
    bool inEntry = false;
    while (!stream.atEnd()) {
        const QString line = stream.readLine();
        if (line.startsWith(QLatin1Char('['))) inEntry = line == QLatin1String("[Desktop Entry]");
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (inEntry && equals > 0) keys.insert(line.left(equals), line.mid(equals + 1));
    }
    return keys;
}

QString iconFile(int size) {
    return QStringLiteral(OSTRIN_ICON_DIR "/%1x%1/apps/ostrin-flow.png").arg(size);
}

std::string renderCommand(const std::string& svg, const std::string& png) {
    return std::string(OSTRIN_ICON_RENDER) + " '" + svg + "' 32 '" + png + "'";
}

}  // namespace

// The menu finds the command and the icon the build installs, under the categories of the
// printer settings.
TEST(DesktopEntry, StartsTheGuiCommandWithTheInstalledIcon) {
    const auto keys = desktopEntry();
    EXPECT_EQ(keys.value("Type"), "Application");
    EXPECT_EQ(keys.value("Exec"), "ostrin-flow gui");
    EXPECT_EQ(keys.value("TryExec"), QFileInfo(QStringLiteral(OSTRIN_COMMAND_PATH)).fileName());
    EXPECT_TRUE(QFile::exists(QStringLiteral(OSTRIN_ICON_DIR "/48x48/apps/%1.png").arg(keys.value("Icon"))));
    const QStringList categories = keys.value("Categories").split(QLatin1Char(';'), Qt::SkipEmptyParts);
    EXPECT_TRUE(categories.contains("Settings"));
    EXPECT_TRUE(categories.contains("HardwareSettings"));
    EXPECT_TRUE(categories.contains("Printing"));
}

// Each size shows the drawing: clear corners, the white sheet above the press's blue body.
TEST(DesktopIcon, EverySizeIsDrawnFromTheSource) {
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
        const QImage icon(iconFile(size));
        ASSERT_FALSE(icon.isNull()) << size;
        EXPECT_EQ(icon.size(), QSize(size, size));
        EXPECT_EQ(qAlpha(icon.pixel(0, 0)), 0) << size;
        const QColor sheet = icon.pixelColor(size / 2, size * 20 / 128);
        EXPECT_GT(sheet.lightness(), 220) << size;
        const QColor body = icon.pixelColor(size * 20 / 128, size * 70 / 128);
        EXPECT_GT(body.blue(), body.red() + 40) << size;
    }
}

TEST(DesktopIcon, TheRendererRefusesWhatItCannotDraw) {
    OstrinTest::TemporaryDirectory folder;
    const std::string svg = folder.file("text.svg");
    OstrinTest::writeFile(svg, "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 8 8\">"
                               "<text x=\"1\" y=\"7\">A</text></svg>");
    const auto refused = OstrinTest::runShell(renderCommand(svg, folder.file("text.png")));
    EXPECT_EQ(refused.exitCode, 3);
    EXPECT_NE(refused.output.find("unknown element text"), std::string::npos) << refused.output;
    EXPECT_FALSE(std::filesystem::exists(folder.file("text.png")));
    const auto missing = OstrinTest::runShell(renderCommand(folder.file("none.svg"), folder.file("none.png")));
    EXPECT_EQ(missing.exitCode, 3);
    const auto badPath = std::string(OSTRIN_ICON_RENDER) + " '" + svg + "' big x.png";
    EXPECT_EQ(OstrinTest::runShell(badPath).exitCode, 2);
}
