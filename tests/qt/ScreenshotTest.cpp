#include <gtest/gtest.h>

#include <QImage>
#include <QSet>

#include <map>

#include "QtTestSupport.h"
#include "qt/QtScreenshot.h"
#include "qt/ViewTreeWidget.h"
#include "settings_ui/NotifyUnit.h"
#include "settings_ui/TabViewNode.h"
#include "settings_ui/VORNMgr.h"

using namespace QtWidgetTest;

namespace {

constexpr double margin = 16;
constexpr double spacing = 6;

struct Page {
    const char* label;
    std::vector<std::string> keywords;
};

// Three pages of the product's controls, as a pane shows them.
const std::vector<Page>& productPages() {
    static const std::vector<Page> pages = {
        {"Paper", {"QVInputSlot", "PaperTypeD", "DuplexMode", "Magnification", "SamplePrintMode", "PagePrintOnCenter"}},
        {"Finishing",
         {"StapleMode", "Punch_PunchHoles", "CreasePosition1", "CreasePressureLevel1", "TopAndTailTrim", "UseSpToner"}},
        {"Security", {"SecPrint", "AuthJob", "MailNotifyJobEnd", "PhysicalPageRangeMode", "PhysicalPageRange"}},
    };
    return pages;
}

// Page labels come from the pane's layout file, which is not part of these views.
std::string pageLabel(const std::string& label, const std::string& language) {
    static const std::map<std::string, std::string> german = {
        {"Paper", "Papier"}, {"Finishing", "Endverarbeitung"}, {"Security", "Sicherheit"}, {"Controls", "Elemente"}};
    return language == "de" ? german.at(label) : label;
}

// Registers control as a pane does, so that the rules grey out what they disable.
void registerControl(VORNMgr& manager, const std::shared_ptr<VORNUI>& control) {
    manager.addControl(control);
    NotifyUnit::postNotificationName(control->mainKeyword());
    for (const auto& child : control->childControls()) NotifyUnit::postNotificationName(child->mainKeyword());
}

// Stacks the controls of keywords from the top of page, each as high as its control says.
std::shared_ptr<ViewNode> stackedPage(const std::vector<std::string>& keywords, const std::shared_ptr<Bundle>& bundle,
                                      VORNMgr& manager) {
    auto page = std::make_shared<ViewNode>();
    double y = margin;
    for (const std::string& keyword : keywords) {
        auto control = buildControl(keyword, bundle);
        registerControl(manager, control);
        const double height = std::max(control->maxHeight(), VORNUIWidget(control).sizeHint().height() * 1.0);
        control->setFrame({margin, y, VORNUI::defaultWidth, height});
        page->addSubview(control);
        y += height + spacing;
    }
    page->setFrame({0, 0, VORNUI::defaultWidth + 2 * margin, y + margin});
    return page;
}

std::shared_ptr<TabViewNode> tabbed(const std::vector<std::pair<std::string, std::shared_ptr<ViewNode>>>& pages) {
    auto tabs = std::make_shared<TabViewNode>();
    for (const auto& [label, page] : pages) tabs->addTab({label, label, page});
    return tabs;
}

// A picture shows something: more than the background and one more colour.
int coloursOf(const QImage& image) {
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 2)
        for (int x = 0; x < image.width(); x += 2) colours.insert(image.pixel(x, y));
    return static_cast<int>(colours.size());
}

std::string screenshotPath(const std::string& name) { return std::string(OSTRIN_SCREENSHOT_DIR) + "/" + name + ".png"; }

void saveEveryTab(const std::shared_ptr<TabViewNode>& tabs, const std::string& name) {
    ViewTreeWidget tree(tabs);
    for (std::size_t index = 0; index < tabs->tabs().size(); ++index) {
        tabs->selectTabAtIndex(static_cast<int>(index));
        tree.refresh();
        tree.resize(tree.sizeHint());
        const std::string path = screenshotPath(name + "-" + std::to_string(index + 1));
        ASSERT_TRUE(QtScreenshot::saveWidget(tree, path)) << path;
        const QImage picture(QString::fromStdString(path));
        EXPECT_EQ(picture.size(), tree.size()) << path;
        EXPECT_GT(coloursOf(picture), 20) << path;
    }
}

void saveSamples(const std::string& language) {
    Language chosen(language);
    VORNMgr manager;
    manager.setPdeResourcePath(productBundle()->resourcePath());
    std::vector<std::pair<std::string, std::shared_ptr<ViewNode>>> pages;
    for (const Page& page : productPages())
        pages.emplace_back(pageLabel(page.label, language), stackedPage(page.keywords, productBundle(), manager));
    saveEveryTab(tabbed(pages), "controls-" + language);
    const std::vector<std::string> fixtureKeywords = {"GroupFinishing", "Density", "FeedDirection",
                                                      "HoldUntil",      "Copies",  "Password"};
    VORNMgr fixtureManager;
    saveEveryTab(tabbed({{pageLabel("Controls", language), stackedPage(fixtureKeywords, widgetsBundle(), fixtureManager)}}),
                 "widgets-" + language);
}

}  // namespace

TEST(Screenshot, SampleControlsInEnglishAndGerman) {
    saveSamples("en");
    saveSamples("de");
}

TEST(Screenshot, UnwritablePlaceFails) {
    QWidget widget;
    widget.resize(40, 20);
    EXPECT_FALSE(QtScreenshot::saveWidget(widget, "/proc/ostrin-flow/picture.png"));
    EXPECT_FALSE(widget.isVisible());
}
