#include "qt/OstrinFlowPrintDialogTab.h"

#include <QDialogButtonBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QScrollArea>

#include <dlfcn.h>

#include <filesystem>

#include "core/Bundle.h"
#include "core/ClassRegistry.h"
#include "core/Diagnostics.h"
#include "pde/TarnPDEByCocoa.h"
#include "pde/TarnPDEPlugIn.h"
#include "qt/PanelViews.h"
#include "qt/QtDialogs.h"
#include "qt/QtPrintDialogHost.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

void setError(QString* error, const QString& text) {
    if (error) *error = text;
}

// The print dialog's way in: the bundle's principal object answers the panel.
std::shared_ptr<TarnPDEByCocoa> openPanel(const QString& bundlePath, PdeHost& host, QString* error) {
    std::shared_ptr<Bundle> bundle = Bundle::bundleWithPath(bundlePath.toStdString());
    auto entry = bundle ? ClassRegistry::sharedInstance().createAs<TarnPDEPlugIn>(bundle->principalClassName()) : nullptr;
    if (!entry || !entry->initWithBundle(bundle)) {
        setError(error, bundlePath + QStringLiteral(": no extension bundle with a panel"));
        return nullptr;
    }
    auto panels = entry->PDEPanelsForType(TarnPDEPlugIn::printDialogPanelType, host);
    if (!panels || panels->empty()) {
        setError(error, bundlePath + QStringLiteral(": the extension offers no panel"));
        return nullptr;
    }
    return panels->front();
}

std::string libraryFolder() {
    Dl_info info{};
    if (!::dladdr(reinterpret_cast<void*>(&OstrinFlowPrintDialogTab::defaultBundlePath), &info) || !info.dli_fname)
        return {};
    return std::filesystem::path(info.dli_fname).parent_path().string();
}

}  // namespace

OstrinFlowPrintDialogTab* OstrinFlowPrintDialogTab::addTo(QPrintDialog& dialog, QString* error, const QString& bundlePath) {
    QtPrintDialogHost::Opening opening = QtPrintDialogHost::open(*dialog.printer());
    if (!opening.host) {
        setError(error, QString::fromStdString(opening.outcome.message));
        return nullptr;
    }
    return addTo(dialog, std::move(opening.host), error, bundlePath);
}

OstrinFlowPrintDialogTab* OstrinFlowPrintDialogTab::addTo(QPrintDialog& dialog, std::unique_ptr<QtPrintDialogHost> host,
                                                          QString* error, const QString& bundlePath) {
    std::shared_ptr<TarnPDEByCocoa> panel = openPanel(bundlePath.isEmpty() ? defaultBundlePath() : bundlePath, *host, error);
    if (!panel) return nullptr;
    return new OstrinFlowPrintDialogTab(dialog, std::move(host), std::move(panel));
}

// An installed library finds the bundle installed with it, never the tree it was built in.
QString OstrinFlowPrintDialogTab::defaultBundlePath() {
    const std::filesystem::path installed = std::filesystem::path(libraryFolder()) / OSTRIN_BUNDLE_FROM_LIBDIR;
    std::error_code failure;
    if (std::filesystem::is_directory(installed, failure))
        return QString::fromStdString(std::filesystem::weakly_canonical(installed, failure).string());
    return QStringLiteral(OSTRIN_BUILD_BUNDLE_DIR);
}

OstrinFlowPrintDialogTab::OstrinFlowPrintDialogTab(QPrintDialog& dialog, std::unique_ptr<QtPrintDialogHost> host,
                                                   std::shared_ptr<TarnPDEByCocoa> panel)
    : QObject(&dialog), _dialog(&dialog), _host(std::move(host)), _panel(std::move(panel)) {
    _dialogs = PanelViews::installPanelDialogs(*_panel, &dialog);
    _panel->restoreValuesAndReturnError();
    // The dialog's options area is low; the panel scrolls in it rather than being cut off.
    auto* page = new QScrollArea;
    page->setFrameShape(QFrame::NoFrame);
    page->setWidget(PanelViews::createPanelWidget(*_panel, nullptr));
    page->setMinimumSize(page->widget()->sizeHint().boundedTo(QSize(480, 360)));
    _widget = page;
    _widget->setWindowTitle(QString::fromStdString(TarnPDEByCocoa::panelName()));
    dialog.setOptionTabs({_widget});
    interceptPrintButton();
    connect(&dialog, qOverload<QPrinter*>(&QPrintDialog::accepted), this, &OstrinFlowPrintDialogTab::dialogAccepted);
}

// The page showing the panel's controls goes first (unless the dialog deleted it), then
// the panel, then the host it reads.
OstrinFlowPrintDialogTab::~OstrinFlowPrintDialogTab() {
    delete _widget.data();
    _dialogs.reset();
    _panel.reset();
}

// The panel saves before the dialog checks its own fields, so that a conflict the user
// keeps leaves the dialog open, as a print dialog does. Qt's own connection is replaced
// only where it is exactly the one expected.
void OstrinFlowPrintDialogTab::interceptPrintButton() {
    const auto boxes = _dialog->findChildren<QDialogButtonBox*>(Qt::FindDirectChildrenOnly);
    for (QDialogButtonBox* buttons : boxes)
        if (QObject::disconnect(buttons, SIGNAL(accepted()), _dialog, SLOT(_q_checkFields()))) {
            connect(buttons, &QDialogButtonBox::accepted, this, &OstrinFlowPrintDialogTab::printRequested);
            return;
        }
    Diagnostics::log("### the print dialog's Print button was not found: the panel saves once the dialog is accepted");
}

void OstrinFlowPrintDialogTab::printRequested() {
    _saved = _panel->saveValuesAndReturnError();
    if (_saved) QMetaObject::invokeMethod(_dialog, "_q_checkFields");
}

// A dialog accepted without its Print button (by the application) saves now.
void OstrinFlowPrintDialogTab::dialogAccepted(QPrinter* printer) {
    if (!_saved) _panel->saveValuesAndReturnError();
    _saved = false;
    if (!_host->applyTo(*printer))
        Diagnostics::log("### the print dialog now prints elsewhere than " + _host->printerName().toStdString() +
                         ": the panel's settings are not written");
}

}  // namespace ComQuorvantVelmar_Plugin
