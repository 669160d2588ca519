#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "QtTestSupport.h"
#include "TestSupport.h"
#include "qt/QtControlHelpers.h"
#include "qt/QtIcons.h"

using namespace QtWidgetTest;
using namespace ComQuorvantVelmar_Plugin::QtControlHelpers;

TEST(QtControlHelpers, PopupsSelectByTitleAndAnswerTheirItemsData) {
    QComboBox popup;
    popup.addItem("Tray 1", "Tray1");
    popup.addItem("Bypass Tray", QVariantMap{{"choice", "TrayMSI"}, {"size", "A4"}});
    EXPECT_TRUE(selectWithTitle(popup, "Bypass Tray"));
    EXPECT_EQ(popup.currentIndex(), 1);
    EXPECT_EQ(representedObjectForKey(popup, "size").toString(), "A4");
    EXPECT_FALSE(representedObjectForKey(popup, "weight").isValid());
    EXPECT_FALSE(selectWithTitle(popup, "Tray 9"));
    EXPECT_EQ(popup.currentIndex(), 1);
    EXPECT_TRUE(selectWithTitle(popup, "Tray 1"));
    EXPECT_EQ(representedObjectOfSelectedItem(popup).toString(), "Tray1");
    EXPECT_FALSE(representedObjectForKey(popup, "size").isValid());
    popup.setCurrentIndex(-1);
    EXPECT_FALSE(representedObjectOfSelectedItem(popup).isValid());
}

TEST(QtControlHelpers, CheckBoxesEnableTheirControls) {
    QWidget dialog;
    auto* box = new QCheckBox("Secure Print", &dialog);
    auto* field = new QLineEdit(&dialog);
    auto* label = new QLabel("Password", &dialog);
    EXPECT_FALSE(isOnAndEnabled(*box));
    box->setChecked(true);
    EXPECT_TRUE(isOnAndEnabled(*box));
    setEnabledConrtolsByCheckBox(*box, {field, label, nullptr});
    EXPECT_TRUE(field->isEnabled());
    box->setChecked(false);
    setEnabledConrtolsByCheckBox(*box, {field, label});
    EXPECT_FALSE(field->isEnabled());
    EXPECT_FALSE(label->isEnabled());
    setEnabledWithColor(*field, label, true);
    EXPECT_TRUE(label->isEnabled());
    box->setChecked(true);
    box->setEnabled(false);
    EXPECT_FALSE(isOnAndEnabled(*box));
}

TEST(QtControlHelpers, TitlesOfEveryKindOfControl) {
    QPushButton button("Save");
    QLabel label("Name:");
    QGroupBox group("Finisher");
    QLineEdit field;
    QWidget plain;
    for (QWidget* control : std::initializer_list<QWidget*>{&button, &label, &group, &field, &plain})
        setTitleString(*control, "Job Name");
    EXPECT_EQ(controlTitleString(button), "Job Name");
    EXPECT_EQ(controlTitleString(label), "Job Name");
    EXPECT_EQ(controlTitleString(group), "Job Name");
    EXPECT_EQ(controlTitleString(field), "Job Name");
    EXPECT_EQ(controlTitleString(plain), "");
    setPlaceholderStringAndToolTip(field, "name@example.com");
    EXPECT_EQ(field.placeholderText(), "name@example.com");
    EXPECT_EQ(field.toolTip(), "name@example.com");
}

TEST(QtIcons, BundleImagesFitTheirPlaceAndFilesGetTheirTypesIcon) {
    const std::string productIcon = productBundle()->pathForResource("UseSpToner_True", "png");
    EXPECT_EQ(QtIcons::pixmapFromResource(productIcon, 16).size(), QSize(16, 16));
    EXPECT_EQ(QtIcons::pixmapFromResource(productIcon, 32).size(), QSize(24, 24));
    EXPECT_TRUE(QtIcons::pixmapFromResource(productBundle()->resourcePath() + "/missing.png", 16).isNull());
    EXPECT_TRUE(QtIcons::pixmapFromResource("", 16).isNull());

    EXPECT_STREQ(QtIcons::themeName(QtIcons::Kind::Folder), "folder");
    ASSERT_FALSE(QtIcons::icon(QtIcons::Kind::Folder).isNull());
    EXPECT_EQ(QtIcons::forFile(QDir::tempPath().toStdString()).name(), "folder");
    OstrinTest::TemporaryDirectory folder;
    OstrinTest::writeFile(folder.file("notes.txt"), "plain text");
    const QString textIcon = QtIcons::forFile(folder.file("notes.txt")).name();
    EXPECT_TRUE(textIcon == "text-plain" || textIcon == "text-x-generic") << textIcon.toStdString();
    EXPECT_EQ(QtIcons::fromThemeName("").name(), "");
}
