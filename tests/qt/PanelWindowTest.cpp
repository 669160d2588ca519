#include <gtest/gtest.h>

#include <QPushButton>

#include <cups/cups.h>

#include "QtTestSupport.h"
#include "TestSupport.h"
#include "core/FileChooser.h"
#include "core/LocalizedString.h"
#include "panes/PanePlugInMgr.h"
#include "pde/CupsClient.h"
#include "pde/CupsQueueHost.h"
#include "pde/PpdFileHost.h"
#include "pde/TarnPDEByCocoa.h"
#include "qt/PanelWindow.h"
#include "settings_ui/NotifyUnit.h"
#include "support/CupsTestServer.h"

using namespace QtWidgetTest;

namespace {

const std::string SamplePpd = std::string(OSTRIN_BUILD_BUNDLE_DIR) + "/Contents/Resources/OstrinFlow.ppd";

// A panel of the product bundle over host, as the gui command opens it.
class PanelOver {
public:
    explicit PanelOver(PdeHost& host) {
        PanePlugInMgr::setSharedInstance(nullptr);
        _panel = std::make_shared<TarnPDEByCocoa>(host, productBundle());
        _panel->restoreValuesAndReturnError();
    }
    ~PanelOver() {
        _panel.reset();
        PanePlugInMgr::setSharedInstance(nullptr);
        SetNSBundleForPrincipalBundle(nullptr);
        SetNSBundleForLocalizedString(nullptr);
    }
    TarnPDEByCocoa& operator*() const { return *_panel; }

private:
    std::shared_ptr<TarnPDEByCocoa> _panel;
};

}  // namespace

TEST(PanelWindow, WithoutAQueuePrintAndSaveAreUnavailableAndTheNoteSaysWhy) {
    auto host = PpdFileHost::open(SamplePpd);
    PanelOver panel(*host);
    PanelWindow window(*panel, *host, std::nullopt, SamplePpd);
    EXPECT_FALSE(window.printButton()->isEnabled());
    EXPECT_FALSE(window.saveDefaultsButton()->isEnabled());
    EXPECT_TRUE(window.noteText().contains(QStringLiteral("--queue NAME")));
    EXPECT_TRUE(window.noteText().contains(QString::fromStdString(SamplePpd)));
}

TEST(PanelWindow, PrintSubmitsTheChosenFileWithThePanelsSettings) {
    OstrinTest::CupsTestServer cupsd;
    if (!cupsd.unavailableReason().empty()) GTEST_SKIP() << "no private cupsd for this test: " << cupsd.unavailableReason();
    ASSERT_TRUE(cupsd.addQueue("press", SamplePpd));
    OstrinTest::CupsClient client(cupsd);
    cupsSetServer(cupsd.serverName().c_str());
    CupsQueueHost::Opening opening = CupsQueueHost::open("press");
    ASSERT_TRUE(opening.host) << opening.outcome.message;
    PanelOver panel(*opening.host);
    PanelWindow window(*panel, *opening.host, "press", SamplePpd);
    auto files = std::make_shared<ScriptedFileChooserPresenter>();
    FileChoosers::setPresenter(files);
    AlertScript alerts;
    OstrinTest::TemporaryDirectory folder;
    OstrinTest::writeFile(folder.file("page.txt"), "Ostrin Flow test page\n");
    files->queue(folder.file("page.txt"));
    window.show();
    NotifyUnit::postNotificationName("StapleMode", PlistDictionary{{"Paramater", "BottomEdge"}});

    window.printButton()->click();
    cupsSetServer(nullptr);
    ASSERT_TRUE(window.printedJobId()) << (alerts.asked().empty() ? "" : alerts.asked().front().informativeText);
    EXPECT_EQ(window.result(), QDialog::Accepted);
    auto attributes = client.jobAttributes(*window.printedJobId());
    EXPECT_EQ(attributes["StapleMode"], "BottomEdge");
    EXPECT_EQ(attributes["job-name"], "page.txt");
}
