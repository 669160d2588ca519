#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QRadioButton>
#include <QSlider>
#include <QStandardItemModel>
#include <QTest>
#include <QToolButton>

#include "QtTestSupport.h"
#include "qt/CheckBoxControlWidget.h"
#include "qt/DatePickerControlWidget.h"
#include "qt/PopupControlWidget.h"
#include "qt/RadioGroupControlWidget.h"
#include "qt/SliderControlWidget.h"
#include "qt/SliderTickLabelsWidget.h"

using namespace QtWidgetTest;

namespace {

QColor centreColour(const QLabel& label) { return label.pixmap().toImage().pixelColor(10, 10); }

QStringList labelTexts(const QWidget& widget) {
    QStringList texts;
    for (const QLabel* label : widget.findChildren<QLabel*>()) texts.append(label->text());
    return texts;
}

bool itemEnabled(const QComboBox& combo, int index) {
    return qobject_cast<QStandardItemModel*>(combo.model())->item(index)->isEnabled();
}

}  // namespace

TEST(CheckBoxWidget, ShowsTheInvertedStateAndItsIconAndClicksReachTheControl) {
    ShownControl shown(buildControl("PrintBlankPages"));
    auto* body = shown.body<CheckBoxControlWidget>();
    ASSERT_TRUE(body);
    EXPECT_EQ(body->checkBox()->text(), "Skip Blank Pages");
    EXPECT_FALSE(body->checkBox()->isChecked());
    EXPECT_EQ(centreColour(*body->stateIcon()), QColor(80, 170, 80));

    NotificationRecorder recorder({"PrintBlankPages"});
    QTest::mouseClick(body->checkBox(), Qt::LeftButton);
    EXPECT_EQ(shown.control().getStringValue(), "False");
    EXPECT_EQ(recorder.names(), std::vector<std::string>{"PrintBlankPages"});
    EXPECT_EQ(recorder.lastParameter(), "False");
    EXPECT_EQ(centreColour(*body->stateIcon()), QColor(200, 200, 200));
    for (const VORNUIWidget* child : shown.view().childWidgets()) EXPECT_FALSE(child->ownPart()->isEnabled());

    shown.control().setCheckBoxState(1);
    EXPECT_FALSE(body->checkBox()->isChecked());
    shown.control().setCheckBoxState(0);
    EXPECT_TRUE(body->checkBox()->isChecked());
}

TEST(PopupWidget, ItemsSeparatorsIconsAndTextsFollowTheControl) {
    ShownControl shown(buildControl("StapleMode"));
    QComboBox* combo = shown.body<PopupControlWidget>()->comboBox();
    ASSERT_EQ(combo->count(), 5);
    EXPECT_EQ(combo->itemText(3), "Saddle Stitch");
    EXPECT_EQ(combo->itemData(2, Qt::AccessibleDescriptionRole).toString(), "separator");
    EXPECT_FALSE(combo->itemIcon(1).isNull());
    EXPECT_TRUE(combo->itemIcon(0).isNull());
    EXPECT_EQ(shown.view().titleLabel()->text(), "Staple");
    EXPECT_TRUE(labelTexts(*shown.view().body()).contains("Position"));
    EXPECT_TRUE(labelTexts(*shown.view().body()).contains("(finisher)"));
    EXPECT_EQ(combo->currentIndex(), 0);

    NotificationRecorder recorder({"StapleMode"});
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(shown.control().getStringValue(), "TopLeft");
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(shown.control().getStringValue(), "Saddle");
    EXPECT_EQ(recorder.names().size(), 2u);
    EXPECT_EQ(recorder.lastParameter(), "Saddle");

    shown.control().setStringValue("BottomRight");
    EXPECT_EQ(combo->currentIndex(), 4);
    shown.control().setEnabledByDictionary({{"None", true}, {"TopLeft", false}, {"Saddle", true}, {"BottomRight", false}});
    EXPECT_FALSE(itemEnabled(*combo, 1));
    EXPECT_FALSE(itemEnabled(*combo, 4));
    EXPECT_TRUE(itemEnabled(*combo, 3));
    EXPECT_EQ(combo->currentIndex(), 0);
    EXPECT_EQ(recorder.lastParameter(), "None");
}

TEST(RadioGroupWidget, CellsShowTheValueAndClicksReachTheControl) {
    ShownControl shown(buildControl("OutputOrder"));
    const auto& buttons = shown.body<RadioGroupControlWidget>()->buttons();
    ASSERT_EQ(buttons.size(), 3u);
    EXPECT_EQ(buttons[2]->text(), "Face Up, Reverse");
    EXPECT_FALSE(buttons[0]->icon().isNull());
    EXPECT_TRUE(buttons[2]->icon().isNull());
    EXPECT_TRUE(buttons[0]->isChecked());
    EXPECT_GT(buttons[1]->y(), buttons[0]->y());

    NotificationRecorder recorder({"OutputOrder"});
    QTest::mouseClick(buttons[1], Qt::LeftButton);
    EXPECT_EQ(shown.control().getStringValue(), "FaceUp");
    EXPECT_EQ(recorder.names(), std::vector<std::string>{"OutputOrder"});

    shown.control().setStringValue("FaceUpReverse");
    EXPECT_TRUE(buttons[2]->isChecked());
    EXPECT_FALSE(buttons[1]->isChecked());
    shown.control().disableForPDE();
    EXPECT_FALSE(buttons[2]->isEnabled());
    EXPECT_TRUE(buttons[0]->isEnabled());
    shown.control().setStringValue("Sideways");
    for (const QRadioButton* button : buttons) EXPECT_FALSE(button->isChecked());
}

TEST(RadioGroupWidget, HorizontalGroupsShareOneRow) {
    ShownControl shown(buildControl("FeedDirection"));
    const auto& buttons = shown.body<RadioGroupControlWidget>()->buttons();
    ASSERT_EQ(buttons.size(), 2u);
    EXPECT_EQ(buttons[0]->y(), buttons[1]->y());
    EXPECT_GT(buttons[1]->x(), buttons[0]->x() + buttons[0]->width() / 2);
    QTest::mouseClick(buttons[1], Qt::LeftButton);
    EXPECT_EQ(shown.control().getStringValue(), "SEF");
}

TEST(SliderWidget, TicksLabelsAndPositionFollowTheChoices) {
    ShownControl shown(buildControl("Density"));
    auto* body = shown.body<SliderControlWidget>();
    QSlider* slider = body->slider();
    EXPECT_EQ(slider->minimum(), 0);
    EXPECT_EQ(slider->maximum(), 4);
    EXPECT_EQ(slider->value(), 2);
    EXPECT_NE(slider->tickPosition(), QSlider::NoTicks);
    ASSERT_TRUE(body->tickLabels());
    EXPECT_EQ(body->tickLabels()->labels(), (QStringList{"Lighter", "", "Normal", "", "Darker"}));
    EXPECT_TRUE(labelTexts(*body).contains("Light"));
    EXPECT_TRUE(labelTexts(*body).contains("Dark"));

    NotificationRecorder recorder({"Density"});
    QTest::keyClick(slider, Qt::Key_Right);
    EXPECT_EQ(shown.control().getStringValue(), "1");
    EXPECT_EQ(recorder.names(), std::vector<std::string>{"Density"});
    shown.control().setStringValue("-2");
    EXPECT_EQ(slider->value(), 0);
}

TEST(SliderWidget, EndTicksLeaveTheirLabelToTheEndLabels) {
    Language english("en");
    ShownControl shown(buildControl("CreasePressureLevel1", productBundle()));
    auto* body = shown.body<SliderControlWidget>();
    ASSERT_TRUE(body->tickLabels());
    EXPECT_EQ(body->tickLabels()->labels(), (QStringList{"", "", "Normal", "", ""}));
    EXPECT_TRUE(labelTexts(*body).contains("Weak"));
    EXPECT_TRUE(labelTexts(*body).contains("Strong"));
}

TEST(SliderWidget, SliderWithoutChoicesMovesBetweenItsLimits) {
    ShownControl shown(buildControl("TrimRatio"));
    auto* body = shown.body<SliderControlWidget>();
    EXPECT_EQ(body->slider()->tickPosition(), QSlider::NoTicks);
    EXPECT_FALSE(body->tickLabels());
    QTest::keyClick(body->slider(), Qt::Key_PageUp);
    EXPECT_EQ(shown.control().getStringValue(), "5");
    shown.control().setStringValue("9.5");
    EXPECT_EQ(body->slider()->value(), body->slider()->maximum() - body->slider()->pageStep() / 2);
}

TEST(DatePickerWidget, FieldAndCalendarShowTheDateWithinItsLimits) {
    ShownControl shown(buildControl("HoldUntil"));
    auto* body = shown.body<DatePickerControlWidget>();
    const QDateTime may = QDateTime::fromSecsSinceEpoch(1714557600);
    EXPECT_EQ(body->dateTimeEdit()->dateTime(), may);
    EXPECT_EQ(body->calendar()->selectedDate(), may.date());
    EXPECT_EQ(body->dateTimeEdit()->minimumDateTime(), QDateTime::fromSecsSinceEpoch(1704067200));
    EXPECT_EQ(body->calendar()->maximumDate(), QDateTime::fromSecsSinceEpoch(1735603200).date());

    NotificationRecorder recorder({"HoldUntil"});
    QTest::keyClick(body->dateTimeEdit(), Qt::Key_Up);
    const qint64 picked = body->dateTimeEdit()->dateTime().toSecsSinceEpoch();
    EXPECT_GT(picked, may.toSecsSinceEpoch());
    EXPECT_EQ(shown.control().getStringValue(), std::to_string(picked));
    EXPECT_EQ(recorder.names(), std::vector<std::string>{"HoldUntil"});

    shown.control().setStringValue("2024-06-03T12:00:00Z");
    EXPECT_EQ(body->dateTimeEdit()->dateTime(), QDateTime::fromSecsSinceEpoch(1717416000));
    EXPECT_EQ(body->calendar()->selectedDate(), QDateTime::fromSecsSinceEpoch(1717416000).date());
}

TEST(DatePickerWidget, DatesAreWrittenInTheUsersLanguage) {
    Language german("de-DE");
    ShownControl shown(buildControl("HoldUntil"));
    auto* body = shown.body<DatePickerControlWidget>();
    const QLocale germany(QLocale::German, QLocale::Germany);
    EXPECT_EQ(body->dateTimeEdit()->text(),
              germany.toString(QDateTime::fromSecsSinceEpoch(1714557600), germany.dateTimeFormat(QLocale::ShortFormat)));
    EXPECT_EQ(body->calendar()->locale().language(), QLocale::German);
}

TEST(ControlWidget, DisablingGreysTheControlButNotItsChildren) {
    ShownControl shown(buildControl("PrintBlankPages"));
    VORNUIWidget* tray = shown.view().childWidgets()[0];
    const QImage enabledTitle = tray->titleLabel()->grab().toImage();
    tray->control()->setEnabled(false);
    EXPECT_FALSE(tray->ownPart()->isEnabled());
    EXPECT_NE(tray->titleLabel()->grab().toImage(), enabledTitle);
    shown.control().setEnabled(false);
    EXPECT_FALSE(shown.body<CheckBoxControlWidget>()->checkBox()->isEnabled());
    EXPECT_TRUE(shown.view().childWidgets()[1]->ownPart()->isEnabled());
    tray->control()->setEnabled(true);
    EXPECT_EQ(tray->titleLabel()->grab().toImage(), enabledTitle);
}

TEST(ControlWidget, HidingFollowsTheControl) {
    ShownControl shown(buildControl("Hidden"));
    EXPECT_FALSE(shown.view().isVisible());
    shown.control().setHidden(false);
    EXPECT_TRUE(shown.view().isVisible());
    ShownControl parent(buildControl("PrintBlankPages"));
    VORNUIWidget* tray = parent.view().childWidgets()[0];
    EXPECT_TRUE(tray->isVisible());
    tray->control()->setHidden(true);
    EXPECT_FALSE(tray->isVisible());
}

TEST(ControlWidget, ChildrenSitWhereTheControlPlacedThem) {
    ShownControl shown(buildControl("PrintBlankPages"));
    ASSERT_EQ(shown.view().childWidgets().size(), 2u);
    for (const VORNUIWidget* child : shown.view().childWidgets()) {
        const ViewFrame& frame = child->control()->frame();
        EXPECT_EQ(child->geometry().topLeft(), QPoint(static_cast<int>(frame.x), static_cast<int>(frame.y)));
        EXPECT_EQ(child->width(), static_cast<int>(frame.width));
    }
    EXPECT_EQ(shown.view().childWidgets()[1]->x(), 248);
    EXPECT_EQ(shown.view().ownPart()->geometry().bottom() + 1, 72);
    EXPECT_GE(shown.view().height(), 72 + 48);
    ShownControl single(buildControl("StapleMode"));
    EXPECT_EQ(single.view().ownPart()->y(), 0);
}

TEST(GroupWidget, HeadingAndDisclosureTriangleFoldTheChildren) {
    ShownControl shown(buildControl("GroupFinishing"));
    ASSERT_TRUE(shown.view().groupTitleLabel());
    EXPECT_EQ(shown.view().groupTitleLabel()->text(), "Finisher");
    EXPECT_TRUE(shown.view().groupTitleLabel()->font().bold());
    QToolButton* triangle = shown.view().disclosureButton();
    ASSERT_TRUE(triangle);
    EXPECT_EQ(triangle->arrowType(), Qt::DownArrow);
    QTest::mouseClick(triangle, Qt::LeftButton);
    EXPECT_TRUE(shown.control().isCollapsed());
    EXPECT_EQ(triangle->arrowType(), Qt::RightArrow);
    for (const VORNUIWidget* child : shown.view().childWidgets()) EXPECT_FALSE(child->isVisible());
    QTest::mouseClick(triangle, Qt::LeftButton);
    for (const VORNUIWidget* child : shown.view().childWidgets()) EXPECT_TRUE(child->isVisible());
    EXPECT_FALSE(ShownControl(buildControl("StapleMode")).view().disclosureButton());
}

TEST(ControlWidget, TitleOnlyControlsShowNoWidget) {
    ShownControl shown(buildControl("Caution"));
    EXPECT_FALSE(shown.view().body());
    ASSERT_TRUE(shown.view().titleLabel());
    EXPECT_EQ(shown.view().titleLabel()->text(), "Settings below apply to the whole job.");
}

TEST(ControlWidget, RebuildingTheControlReplacesItsWidgets) {
    ShownControl shown(buildControl("PrintBlankPages"));
    const QPointer<ControlBodyWidget> before = shown.view().body();
    shown.control().updateControl();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(before);
    ASSERT_TRUE(shown.body<CheckBoxControlWidget>());
    EXPECT_TRUE(shown.body<CheckBoxControlWidget>()->isVisible());
    EXPECT_EQ(shown.view().childWidgets().size(), 2u);
    EXPECT_EQ(shown.view().findChildren<VORNUIWidget*>(Qt::FindDirectChildrenOnly).size(), 2);
}
