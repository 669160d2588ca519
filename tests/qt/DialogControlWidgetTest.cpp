#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <deque>
#include <map>
#include <set>

#include "QtTestSupport.h"
#include "TestSupport.h"
#include "core/ListModel.h"
#include "core/MaxBytesFormatter.h"
#include "core/OutlineViewModel.h"
#include "core/RadioGroupModel.h"
#include "core/TextFieldModel.h"
#include "qt/ListModelWidget.h"
#include "qt/OutlineItemModel.h"
#include "qt/OutlineViewWidget.h"
#include "qt/QtControlHelpers.h"
#include "qt/QtIcons.h"
#include "qt/RadioGroupModelWidget.h"
#include "qt/TextFieldModelEdit.h"

using namespace QtWidgetTest;
using namespace ComQuorvantVelmar_Plugin::QtControlHelpers;

namespace {

// A tree of labelled items; items added as unselectable refuse the selection.
class LabelTree : public OutlineDataSource {
public:
    OutlineItem add(OutlineItem parent, const std::string& label, bool selectable = true) {
        const OutlineItem item = &_nodes.emplace_back(PlistDictionary{{"label", label}});
        _children[parent].push_back(item);
        if (!selectable) _unselectable.insert(item);
        return item;
    }
    std::size_t numberOfChildrenOfItem(OutlineItem item) override { return _children[item].size(); }
    OutlineItem child(std::size_t index, OutlineItem item) override {
        return index < _children[item].size() ? _children[item][index] : nullptr;
    }
    bool isItemExpandable(OutlineItem item) override { return !_children[item].empty(); }
    OutlineCell objectValueForItem(OutlineItem item) override { return {item->stringFor("label", ""), false, "folder"}; }
    bool shouldSelectItem(OutlineItem item) override { return !_unselectable.contains(item); }

private:
    std::deque<PlistDictionary> _nodes;
    std::map<OutlineItem, std::vector<OutlineItem>> _children;
    std::set<OutlineItem> _unselectable;
};

class OutlineViewWidgetTest : public ::testing::Test {
protected:
    void SetUp() override {
        press = tree.add(nullptr, "Press");
        trays = tree.add(press, "Trays");
        tree.add(trays, "Tray 1");
        finisher = tree.add(nullptr, "Finisher (not installed)", false);
        outline.setDataSource(&tree);
    }
    QModelIndex indexOf(OutlineItem item) const { return view->itemModel().indexForItem(item); }

    LabelTree tree;
    OutlineViewModel outline;
    OutlineItem press = nullptr;
    OutlineItem trays = nullptr;
    OutlineItem finisher = nullptr;
    std::unique_ptr<OutlineViewWidget> view;
};

}  // namespace

TEST_F(OutlineViewWidgetTest, OpensAndClosesAsTheControlSays) {
    outline.expandItem(press);
    view = std::make_unique<OutlineViewWidget>(outline);
    EXPECT_TRUE(view->isExpanded(indexOf(press)));
    EXPECT_FALSE(view->isExpanded(indexOf(trays)));
    view->expand(indexOf(trays));
    EXPECT_TRUE(outline.isItemExpanded(trays));
    outline.collapseItem(press, true);
    view->refresh();
    EXPECT_FALSE(view->isExpanded(indexOf(press)));
    view->expand(indexOf(press));
    EXPECT_FALSE(view->isExpanded(indexOf(trays)));
    EXPECT_EQ(indexOf(press).data().toString(), "Press");
}

TEST_F(OutlineViewWidgetTest, AnItemTheControlRefusesStaysUnselected) {
    view = std::make_unique<OutlineViewWidget>(outline);
    view->setCurrentIndex(indexOf(finisher));
    EXPECT_EQ(outline.selectedItem(), nullptr);
    EXPECT_TRUE(view->selectionModel()->selectedIndexes().isEmpty());
    view->setCurrentIndex(indexOf(press));
    EXPECT_EQ(outline.selectedItem(), press);
    EXPECT_EQ(view->selectionModel()->selectedIndexes().value(0), indexOf(press));
}

TEST_F(OutlineViewWidgetTest, IndexesFromBeforeAReloadAnswerNothingUntilTheViewRefreshes) {
    outline.expandItem(press);
    view = std::make_unique<OutlineViewWidget>(outline);
    const QModelIndex stale = indexOf(press);
    outline.reloadData();
    const OutlineItemModel& model = view->itemModel();
    EXPECT_EQ(model.itemForIndex(stale), nullptr);
    EXPECT_EQ(model.rowCount(stale), 0);
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_FALSE(model.data(stale, Qt::DisplayRole).isValid());
    view->refresh();
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_FALSE(view->isExpanded(indexOf(press)));
}

// The control measures labels in the view's font and says how wide the column is; the view
// adds its arrows and the icon, and is never narrower than itself.
TEST_F(OutlineViewWidgetTest, TheColumnIsAsWideAsTheControlSays) {
    view = std::make_unique<OutlineViewWidget>(outline);
    EXPECT_EQ(outline.widthOfLabel("Finisher (not installed)"),
              view->fontMetrics().horizontalAdvance("Finisher (not installed)"));
    EXPECT_EQ(outline.indentationPerLevel(), view->indentation());
    view->resize(120, 200);
    outline.setColumnWidth(400);
    view->refresh();
    EXPECT_GE(view->header()->sectionSize(0), 400 + view->indentation() + 16);
    outline.setColumnWidth(10);
    view->refresh();
    EXPECT_EQ(view->header()->sectionSize(0), view->viewport()->width());
}

TEST(ListModelWidget, AClickOrAKeyAsksAndSelectsNothingByItself) {
    ListModel list;
    list.setRows({"Current", "Default", "Alpha"});
    list.selectRow(0);
    ListModelWidget view(list);
    view.show();
    QSignalSpy clicked(&view, &ListModelWidget::rowClicked);
    QSignalSpy keyed(&view, &ListModelWidget::rowChosenWithKeyboard);
    QTest::mouseClick(view.viewport(), Qt::RightButton, {}, view.visualItemRect(view.item(1)).center());
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualItemRect(view.item(2)).center());
    ASSERT_EQ(clicked.count(), 1);
    EXPECT_EQ(clicked.front().front().value<std::int64_t>(), 2);
    EXPECT_EQ(view.currentRow(), 0);
    QTest::keyClick(&view, Qt::Key_Down);
    ASSERT_EQ(keyed.count(), 1);
    EXPECT_EQ(keyed.front().front().value<std::int64_t>(), 1);
    EXPECT_EQ(view.currentRow(), 0);
    list.selectRow(1);
    list.setRows({"Current", "Default"});
    view.refresh();
    EXPECT_EQ(view.count(), 2);
    EXPECT_EQ(view.currentRow(), 1);
}

TEST(RadioGroupModelWidget, AClickSelectsTheRowAndNothingSelectedShowsNothingChecked) {
    RadioGroupModel group;
    group.addRow({"Auto", "Auto", 0});
    group.addRow({"Enter a name", "Input", 1});
    RadioGroupModelWidget view(group);
    view.show();
    EXPECT_FALSE(view.buttons()[0]->isChecked());
    EXPECT_FALSE(view.buttons()[1]->isChecked());
    QSignalSpy selected(&view, &RadioGroupModelWidget::rowSelected);
    QTest::mouseClick(view.buttons()[1], Qt::LeftButton);
    EXPECT_EQ(group.selectedRow(), 1);
    EXPECT_EQ(selected.count(), 1);
    group.setEnabled(false);
    group.selectRow(-1);
    view.refresh();
    EXPECT_FALSE(view.buttons()[1]->isChecked());
    EXPECT_FALSE(view.isEnabled());
}

// A refused keystroke puts back the text and the caret of the last accepted edit, however
// often it is refused.
TEST(TextFieldModelEdit, EditsGoThroughTheFormatterAndKeepTheCaret) {
    TextFieldModel field;
    field.setFormatter(MaxBytesFormatter::setMaxBytesFormatter(4));
    QWidget window;
    auto* edit = new TextFieldModelEdit(field, &window);
    (new QVBoxLayout(&window))->addWidget(edit);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    edit->setFocus();
    typeText(edit, "ab");
    edit->setCursorPosition(1);
    typeText(edit, "xyz");
    EXPECT_EQ(edit->text(), "axyb");
    EXPECT_EQ(field.stringValue(), "axyb");
    EXPECT_EQ(edit->cursorPosition(), 3);
    typeText(edit, "q");
    EXPECT_EQ(edit->cursorPosition(), 3);
    field.setStringValue("set");
    field.setEnabled(false);
    edit->refresh();
    EXPECT_EQ(edit->text(), "set");
    EXPECT_FALSE(edit->isEnabled());
}

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
    for (QWidget* control : std::initializer_list<QWidget*>{&button, &label, &group, &field, &plain}) {
        setTitleString(*control, "Job Name");
        EXPECT_EQ(controlTitleString(*control), control == &plain ? "" : "Job Name");
    }
    EXPECT_EQ((QStringList{button.text(), label.text(), group.title(), field.placeholderText()}),
              QStringList(4, "Job Name"));
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

    ASSERT_FALSE(QtIcons::icon(QtIcons::Kind::Folder).isNull());
    EXPECT_EQ(QtIcons::forFile(QDir::tempPath().toStdString()).name(), "folder");
    OstrinTest::TemporaryDirectory folder;
    OstrinTest::writeFile(folder.file("notes.txt"), "plain text");
    const QString textIcon = QtIcons::forFile(folder.file("notes.txt")).name();
    EXPECT_TRUE(textIcon == "text-plain" || textIcon == "text-x-generic") << textIcon.toStdString();
    EXPECT_EQ(QtIcons::fromThemeName("").name(), "");
}
