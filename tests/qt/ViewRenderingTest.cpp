#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QSet>
#include <QSlider>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <map>

#include "QtTestSupport.h"
#include "core/Diagnostics.h"
#include "core/LocalizedString.h"
#include "panes/PanePlugInMgr.h"
#include "qt/CheckBoxControlWidget.h"
#include "qt/PopupControlWidget.h"
#include "qt/QtScreenshot.h"
#include "qt/RadioGroupControlWidget.h"
#include "qt/SliderControlWidget.h"
#include "qt/TextFieldControlWidget.h"
#include "qt/ViewTreeWidget.h"
#include "settings_ui/LayoutUtil.h"
#include "settings_ui/TabViewNode.h"
#include "settings_ui/VORNTextField.h"

using namespace QtWidgetTest;

namespace {

// The name of the type whose widget view shows for control, showing the control's value;
// "" when the widget is of another type.
std::string renderedType(const VORNUIWidget& view, VORNUI& control) {
    switch (control.controlType()) {
        case VORNUI::Type::CheckBox:
            if (auto* body = qobject_cast<CheckBoxControlWidget*>(view.body())) {
                EXPECT_EQ(body->checkBox()->isChecked(), control.checkBoxShownState() != 0);
                return "CheckBox";
            }
            break;
        case VORNUI::Type::PopupButton:
            if (auto* body = qobject_cast<PopupControlWidget*>(view.body())) {
                EXPECT_EQ(body->comboBox()->count(), static_cast<int>(control.popupItems().size()));
                EXPECT_EQ(body->comboBox()->currentIndex(), control.selectedItemIndex());
                return "PopupButton";
            }
            break;
        case VORNUI::Type::RadioButton:
        case VORNUI::Type::HRadioButton:
            if (auto* body = qobject_cast<RadioGroupControlWidget*>(view.body())) {
                EXPECT_EQ(body->buttons().size(), control.radioCells().size());
                return "RadioButton";
            }
            break;
        case VORNUI::Type::Slider:
            if (auto* body = qobject_cast<SliderControlWidget*>(view.body())) {
                EXPECT_EQ(body->slider()->value(), static_cast<int>(control.slider().position));
                return "Slider";
            }
            break;
        case VORNUI::Type::TextFieldNumber:
        case VORNUI::Type::TextFieldText:
        case VORNUI::Type::SecureTextFieldText:
            if (auto* body = qobject_cast<TextFieldControlWidget*>(view.body())) {
                EXPECT_EQ(body->lineEdit()->text().toStdString(), control.textField()->stringValue());
                EXPECT_EQ(body->stepper() != nullptr, control.stepper().has_value());
                return control.controlClass();
            }
            break;
        default: break;
    }
    return "";
}

// A picture shows something: more than the background and one more colour.
int coloursOf(const QImage& image) {
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 2)
        for (int x = 0; x < image.width(); x += 2) colours.insert(image.pixel(x, y));
    return static_cast<int>(colours.size());
}


std::shared_ptr<ViewNode> viewAt(ViewFrame frame) {
    auto view = std::make_shared<ViewNode>();
    view->setFrame(frame);
    return view;
}

std::shared_ptr<VORNUI> controlAt(const std::string& keyword, ViewFrame frame) {
    auto control = buildControl(keyword);
    control->setFrame(frame);
    return control;
}

// A pane: a tab container with two pages of controls, and a note below it.
struct Pane {
    std::shared_ptr<ViewNode> root = viewAt({0, 0, 520, 400});
    std::shared_ptr<TabViewNode> tabs = std::make_shared<TabViewNode>();
    std::shared_ptr<VORNUI> staple = controlAt("StapleMode", {12, 8, 480, 48});
    std::shared_ptr<VORNUI> zoom = controlAt("Zoom", {12, 60, 480, 48});
    std::shared_ptr<VORNUI> order = controlAt("OutputOrder", {12, 8, 480, 84});
    std::shared_ptr<VORNUI> note = controlAt("PrintBlankPages", {0, 330, 480, 24});

    Pane() {
        tabs->setFrame({0, 0, 520, 320});
        auto finishing = viewAt({0, 0, 500, 280});
        finishing->addSubview(staple);
        finishing->addSubview(zoom);
        auto output = viewAt({0, 0, 500, 280});
        output->addSubview(order);
        tabs->addTab({"Finishing", "finishing", finishing});
        tabs->addTab({"Output", "output", output});
        root->addSubview(tabs);
        root->addSubview(note);
    }
};

}  // namespace

TEST(ProductUI, EveryControlRendersInEnglishAndGerman) {
    for (const char* language : {"en", "de"}) {
        Language chosen(language);
        std::vector<std::string> diagnostics;
        Diagnostics::setObserver([&diagnostics](std::string_view line) { diagnostics.emplace_back(line); });
        std::map<std::string, int> rendered;
        for (const std::string& keyword : descriptionsOf(*productBundle()).keys()) {
            SCOPED_TRACE(std::string(language) + " " + keyword);
            auto control = buildControl(keyword, productBundle());
            VORNUIWidget view(control);
            const std::string type = renderedType(view, *control);
            EXPECT_NE(type, "");
            ++rendered[type];
            EXPECT_EQ(view.childWidgets().size(), control->childControls().size());
            if (view.titleLabel()) {
                EXPECT_EQ(view.titleLabel()->text().toStdString(), control->texts().title);
            }
            EXPECT_GE(view.sizeHint().height(), static_cast<int>(control->getControlHeight()));
        }
        Diagnostics::setObserver(nullptr);
        EXPECT_EQ(diagnostics, std::vector<std::string>{});
        EXPECT_EQ(rendered.size(), 7u);
        EXPECT_GT(rendered["SecureTextField_text"], 0);
    }
}

// Each setting of every pane becomes a control widget where the engine laid it out; a
// picture of each pane goes to screenshots/pane-<name>-<language>.png.
TEST(PaneScreenshot, EveryProductPaneRendersItsSettingsInEnglishAndGerman) {
    SetNSBundleForPrincipalBundle(productBundle());
    for (const std::string language : {"en", "de"}) {
        Language chosen(language);
        PanePlugInMgr manager(productBundle());
        ASSERT_TRUE(manager.loadPlugIns());
        for (const auto& [name, entry] : *manager.plugInTable()) {
            SCOPED_TRACE(language + " " + name);
            auto panel = manager.panelViewOfBundleName(name);
            ASSERT_TRUE(panel);
            ViewTreeWidget tree(panel);
            auto controls = entry.paneConroller->getListVORNUI();
            ASSERT_TRUE(controls && !controls->empty());
            for (const auto& control : *controls) {
                auto* widget = qobject_cast<VORNUIWidget*>(tree.widgetFor(control.get()));
                ASSERT_TRUE(widget) << control->mainKeyword();
                EXPECT_EQ(widget->geometry().y(), static_cast<int>(control->frame().y)) << control->mainKeyword();
            }
            tree.resize(tree.sizeHint());
            const std::string path = std::string(OSTRIN_SCREENSHOT_DIR) + "/pane-" + name + "-" + language + ".png";
            ASSERT_TRUE(QtScreenshot::saveWidget(tree, path));
            const QImage picture(QString::fromStdString(path));
            EXPECT_EQ(picture.size(), tree.size());
            EXPECT_GT(coloursOf(picture), 20);
        }
    }
    SetNSBundleForPrincipalBundle(nullptr);
}

TEST(Screenshot, UnwritablePlaceFails) {
    QWidget widget;
    widget.resize(40, 20);
    EXPECT_FALSE(QtScreenshot::saveWidget(widget, "/proc/ostrin-flow/picture.png"));
    EXPECT_FALSE(widget.isVisible());
}

TEST(ViewTreeWidget, ControlsSitAtTheirFramesInsideTheirPages) {
    Pane pane;
    ViewTreeWidget tree(pane.root);
    auto* staple = qobject_cast<VORNUIWidget*>(tree.widgetFor(pane.staple.get()));
    ASSERT_TRUE(staple);
    EXPECT_EQ(staple->control(), pane.staple);
    EXPECT_EQ(staple->geometry().topLeft(), QPoint(12, 8));
    EXPECT_EQ(tree.widgetFor(pane.zoom.get())->geometry().topLeft(), QPoint(12, 60));
    EXPECT_EQ(tree.widgetFor(pane.note.get())->geometry().topLeft(), QPoint(0, 330));
    EXPECT_EQ(tree.sizeHint(), QSize(520, 400));
    EXPECT_FALSE(tree.widgetFor(buildControl("Zoom").get()));
}

TEST(ViewTreeWidget, TabContainersBecomeTabWidgetsThatSelectInBothDirections) {
    Pane pane;
    ViewTreeWidget tree(pane.root);
    tree.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&tree));
    auto* tabs = qobject_cast<QTabWidget*>(tree.widgetFor(pane.tabs.get()));
    ASSERT_TRUE(tabs);
    ASSERT_EQ(tabs->count(), 2);
    EXPECT_EQ(tabs->tabText(1), "Output");
    EXPECT_EQ(tabs->widget(1), tree.widgetFor(pane.order->superview()));
    EXPECT_EQ(tabs->currentIndex(), 0);

    QTabBar* bar = tabs->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
    EXPECT_EQ(pane.tabs->selectedIndex(), 1);
    EXPECT_TRUE(tree.widgetFor(pane.order.get())->isVisible());
    pane.tabs->selectTabWithLabel("Finishing");
    tree.refresh();
    EXPECT_EQ(tabs->currentIndex(), 0);
    EXPECT_TRUE(tree.widgetFor(pane.staple.get())->isVisible());
}

TEST(ViewTreeWidget, TablessContainersStackTheirPages) {
    Pane pane;
    pane.tabs->setTabless(true);
    pane.tabs->selectTabAtIndex(1);
    ViewTreeWidget tree(pane.root);
    auto* stack = qobject_cast<QStackedWidget*>(tree.widgetFor(pane.tabs.get()));
    ASSERT_TRUE(stack);
    EXPECT_EQ(stack->count(), 2);
    EXPECT_EQ(stack->currentIndex(), 1);
    stack->setCurrentIndex(0);
    EXPECT_EQ(pane.tabs->selectedIndex(), 0);
}

TEST(ViewTreeWidget, RefreshShowsViewsTheEngineClosedUp) {
    Pane pane;
    ViewTreeWidget tree(pane.root);
    tree.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&tree));
    pane.staple->setHidden(true);
    EXPECT_FALSE(tree.widgetFor(pane.staple.get())->isVisible());
    const ViewNode* page = pane.staple->superview();
    LayoutUtil::closeViewsToView(LayoutUtil::visibleSubViews(page), viewAt({0, 0, 0, 8}).get(), 0);
    tree.refresh();
    EXPECT_EQ(tree.widgetFor(pane.zoom.get())->geometry().topLeft(), QPoint(12, 8));
    pane.note->setHiddenView(true);
    tree.refresh();
    EXPECT_FALSE(tree.widgetFor(pane.note.get())->isVisible());
}

TEST(ViewTreeWidget, NothingToRenderGivesAnEmptyWidget) {
    ViewTreeWidget tree(nullptr);
    EXPECT_EQ(tree.sizeHint(), QSize(0, 0));
    tree.refresh();
    EXPECT_FALSE(tree.widgetFor(nullptr));
}
