#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QPaintEngine>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintEngine>
#include <QPrinter>
#include <QPushButton>

#include <cups/cups.h>

#include <map>
#include <optional>

#include "QtTestSupport.h"
#include "TestSupport.h"
#include "core/FileChooser.h"
#include "core/LocalizedString.h"
#include "panes/PanePlugInMgr.h"
#include "pde/CupsClient.h"
#include "pde/CupsQueueHost.h"
#include "pde/PpdFileHost.h"
#include "pde/PrintSettingsTicket.h"
#include "pde/TarnPDEByCocoa.h"
#include "qt/OstrinFlowPrintDialogTab.h"
#include "qt/PanelWindow.h"
#include "qt/QtPrintDialogHost.h"
#include "settings_ui/NotifyUnit.h"
#include "support/CupsTestServer.h"

using namespace QtWidgetTest;
using Options = std::map<std::string, std::string>;

// libcups 2.4 loses a few strings of the PPD cache that Qt's CUPS support makes for each
// printer it opens; the sanitizer build would report them as this program's leaks.
extern "C" const char* __lsan_default_suppressions() { return "leak:_ppdCacheCreateWithPPD\n"; }

namespace {

const std::string SamplePpd = std::string(OSTRIN_BUILD_BUNDLE_DIR) + "/Contents/Resources/OstrinFlow.ppd";
const auto CupsOptionsKey = QPrintEngine::PrintEnginePropertyKey(QtPrintDialogHost::cupsOptionsProperty);

// Keeps every property it is given, as Qt's CUPS engine keeps its job options, so that a
// dialog can run without any printer installed.
class RecordingPrintEngine : public QPaintEngine, public QPrintEngine {
public:
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    Type type() const override { return User; }

    RecordingPrintEngine() {
        _properties[PPK_CopyCount] = 1;
        _properties[PPK_CollateCopies] = true;
        _properties[PPK_Duplex] = int(QPrinter::DuplexNone);
    }
    void setProperty(PrintEnginePropertyKey key, const QVariant& value) override { _properties[key] = value; }
    QVariant property(PrintEnginePropertyKey key) const override { return _properties.value(key); }
    bool newPage() override { return true; }
    bool abort() override { return false; }
    int metric(QPaintDevice::PaintDeviceMetric) const override { return 1; }
    QPrinter::PrinterState printerState() const override { return QPrinter::Idle; }

private:
    QHash<int, QVariant> _properties;
};

class RecordingPrinter : public QPrinter {
public:
    RecordingPrinter(const std::string& outputFile, const QStringList& cupsOptions) {
        setOutputFormat(PdfFormat);
        setEngines(&_engine, &_engine);
        setOutputFileName(QString::fromStdString(outputFile));
        _engine.setProperty(CupsOptionsKey, cupsOptions);
    }

private:
    RecordingPrintEngine _engine;
};

Options optionsOf(const QPrinter& printer) {
    Options options;
    for (const auto& [name, value] : QtPrintDialogHost::cupsOptions(printer)) options[name] = value;
    return options;
}

void userChanges(const std::string& key, const std::string& value) {
    NotifyUnit::postNotificationName(key, PlistDictionary{{"Paramater", value}});
}

void click(QPrintDialog& dialog, QDialogButtonBox::StandardButton which) {
    dialog.findChild<QDialogButtonBox*>(QString(), Qt::FindDirectChildrenOnly)->button(which)->click();
}

// A print dialog with the tab over the sample PPD; questions answered from a script.
class PrintDialogTab : public ::testing::Test {
protected:
    void SetUp() override { PanePlugInMgr::setSharedInstance(nullptr); }
    void TearDown() override {
        PanePlugInMgr::setSharedInstance(nullptr);
        Alerts::setPresenter(nullptr);
        FileChoosers::setPresenter(nullptr);
        SetNSBundleForPrincipalBundle(nullptr);
        SetNSBundleForLocalizedString(nullptr);
    }

    OstrinFlowPrintDialogTab* addTab(QPrintDialog& dialog, std::unique_ptr<QtPrintDialogHost> host = nullptr) {
        QString error;
        auto* tab = host ? OstrinFlowPrintDialogTab::addTo(dialog, std::move(host), &error, OSTRIN_BUILD_BUNDLE_DIR)
                         : OstrinFlowPrintDialogTab::addTo(dialog, &error, OSTRIN_BUILD_BUNDLE_DIR);
        EXPECT_TRUE(tab) << error.toStdString();
        Alerts::setPresenter(alerts);
        return tab;
    }
    std::unique_ptr<QtPrintDialogHost> sampleHost(const QPrinter& printer) {
        return std::make_unique<QtPrintDialogHost>(PpdFileHost::open(SamplePpd), printer);
    }

    std::shared_ptr<ScriptedAlertPresenter> alerts = std::make_shared<ScriptedAlertPresenter>();
    OstrinTest::TemporaryDirectory folder;
    const std::string output = folder.file("out.pdf");
};

// The gui command's window over a panel of the product bundle.
class PanelWindowTest : public PrintDialogTab {
protected:
    std::shared_ptr<TarnPDEByCocoa> panelOver(PdeHost& host) {
        auto panel = std::make_shared<TarnPDEByCocoa>(host, productBundle());
        panel->restoreValuesAndReturnError();
        return panel;
    }
};

}  // namespace

TEST_F(PrintDialogTab, AcceptedDialogGivesThePrinterThePanelsOptionsBesideQtsOwn) {
    RecordingPrinter printer(output, {"job-priority", "40", "StapleMode", "TopLeftCorner"});
    QPrintDialog dialog(&printer);
    Options leftByQt;
    QObject::connect(&dialog, qOverload<QPrinter*>(&QPrintDialog::accepted),
                     [&](QPrinter* accepted) { leftByQt = optionsOf(*accepted); });
    OstrinFlowPrintDialogTab* tab = addTab(dialog, sampleHost(printer));
    ASSERT_TRUE(tab);
    // The options of the dialog's last run come back into the panel.
    EXPECT_EQ(tab->panel().printOption().stringFor("StapleMode"), "TopLeftCorner");
    dialog.show();
    userChanges("StapleMode", "Saddle");
    userChanges("ColorMode", "Grayscale");
    // Nothing reaches the printer while the dialog is open.
    EXPECT_EQ(optionsOf(printer)["StapleMode"], "TopLeftCorner");

    click(dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    Options options = optionsOf(printer);
    EXPECT_EQ(options["StapleMode"], "Saddle");
    EXPECT_EQ(options["ColorMode"], "Grayscale");
    EXPECT_EQ(options[PrintSettingsTicket::customKey("QZSpecificJobName")], "Auto");
    ASSERT_TRUE(leftByQt.count("job-priority"));
    leftByQt.erase("StapleMode");
    for (const auto& [name, value] : leftByQt) EXPECT_EQ(options[name], value) << name;
    // Qt sends copies, collate and duplex from the printer's own settings.
    EXPECT_EQ(options.count("copies") + options.count("collate") + options.count("sides"), 0u);
    EXPECT_EQ(printer.copyCount(), 1);
}

TEST_F(PrintDialogTab, CancelledDialogAndAKeptConflictWriteNothing) {
    RecordingPrinter printer(output, {"QZMediaType", "Transparency"});
    printer.setDuplex(QPrinter::DuplexLongSide);
    const Options before = optionsOf(printer);
    {
        QPrintDialog dialog(&printer);
        ASSERT_TRUE(addTab(dialog, sampleHost(printer)));
        dialog.show();
        userChanges("StapleMode", "Saddle");
        click(dialog, QDialogButtonBox::Cancel);
        EXPECT_EQ(dialog.result(), QDialog::Rejected);
    }
    EXPECT_EQ(optionsOf(printer), before);

    QPrintDialog dialog(&printer);
    ASSERT_TRUE(addTab(dialog, sampleHost(printer)));
    dialog.show();
    alerts->queue(AlertSecondButtonReturn);
    click(dialog, QDialogButtonBox::Ok);
    // Two-sided on transparencies: the user keeps the conflict to resolve it himself.
    ASSERT_EQ(alerts->asked().size(), 1u);
    EXPECT_EQ(alerts->asked().front().buttons.back(), "Self Resolve Conflict");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(optionsOf(printer), before);
}

// Qt prints through its own CUPS engine: the job that reaches cupsd carries the panel's
// choices.
TEST_F(PrintDialogTab, JobPrintedThroughTheDialogCarriesThePanelsChoices) {
    OstrinTest::CupsTestServer cupsd;
    if (!cupsd.unavailableReason().empty()) GTEST_SKIP() << "no private cupsd for this test: " << cupsd.unavailableReason();
    ASSERT_TRUE(cupsd.addQueue("press", SamplePpd));
    OstrinTest::CupsClient client(cupsd);
    cupsSetServer(cupsd.serverName().c_str());
    QPrinter printer;
    printer.setPrinterName(QStringLiteral("press"));
    ASSERT_EQ(printer.printerName(), "press") << "Qt's CUPS support does not list the queue";
    QPrintDialog dialog(&printer);
    ASSERT_TRUE(addTab(dialog));
    dialog.show();
    userChanges("StapleMode", "TopRightCorner");
    click(dialog, QDialogButtonBox::Ok);
    ASSERT_EQ(dialog.result(), QDialog::Accepted);
    QPainter painter(&printer);
    painter.drawText(100, 100, QStringLiteral("Ostrin Flow test page"));
    ASSERT_TRUE(painter.end());

    cups_job_t* jobs = nullptr;
    const int count = cupsGetJobs(&jobs, "press", 0, CUPS_WHICHJOBS_ALL);
    ASSERT_EQ(count, 1);
    auto attributes = client.jobAttributes(jobs[0].id);
    cupsFreeJobs(count, jobs);
    cupsSetServer(nullptr);
    EXPECT_EQ(attributes["StapleMode"], "TopRightCorner");
    EXPECT_EQ(attributes[PrintSettingsTicket::customKey("QZSpecificJobName")], "Auto");
}

TEST_F(PanelWindowTest, WithoutAQueuePrintAndSaveAreUnavailableAndTheNoteSaysWhy) {
    auto host = PpdFileHost::open(SamplePpd);
    auto panel = panelOver(*host);
    PanelWindow window(*panel, *host, std::nullopt, SamplePpd);
    EXPECT_FALSE(window.printButton()->isEnabled());
    EXPECT_FALSE(window.saveDefaultsButton()->isEnabled());
    EXPECT_TRUE(window.noteText().contains(QStringLiteral("--queue NAME")));
    EXPECT_TRUE(window.noteText().contains(QString::fromStdString(SamplePpd)));
}

TEST_F(PanelWindowTest, PrintSubmitsTheChosenFileWithThePanelsSettings) {
    OstrinTest::CupsTestServer cupsd;
    if (!cupsd.unavailableReason().empty()) GTEST_SKIP() << "no private cupsd for this test: " << cupsd.unavailableReason();
    ASSERT_TRUE(cupsd.addQueue("press", SamplePpd));
    OstrinTest::CupsClient client(cupsd);
    cupsSetServer(cupsd.serverName().c_str());
    CupsQueueHost::Opening opening = CupsQueueHost::open("press");
    ASSERT_TRUE(opening.host) << opening.outcome.message;
    auto panel = panelOver(*opening.host);
    PanelWindow window(*panel, *opening.host, "press", SamplePpd);
    auto files = std::make_shared<ScriptedFileChooserPresenter>();
    FileChoosers::setPresenter(files);
    Alerts::setPresenter(alerts);
    OstrinTest::writeFile(folder.file("page.txt"), "Ostrin Flow test page\n");
    files->queue(folder.file("page.txt"));
    window.show();
    userChanges("StapleMode", "BottomEdge");

    window.printButton()->click();
    cupsSetServer(nullptr);
    ASSERT_TRUE(window.printedJobId()) << (alerts->asked().empty() ? "" : alerts->asked().front().informativeText);
    EXPECT_EQ(window.result(), QDialog::Accepted);
    auto attributes = client.jobAttributes(*window.printedJobId());
    EXPECT_EQ(attributes["StapleMode"], "BottomEdge");
    EXPECT_EQ(attributes["job-name"], "page.txt");
}
