#include "qt/PanelWindow.h"

#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <filesystem>

#include "core/Alert.h"
#include "core/FileChooser.h"
#include "core/LocalizedString.h"
#include "panes/PanePlugInMgr.h"
#include "pde/PdeHost.h"
#include "pde/TarnPDEByCocoa.h"
#include "qt/PanelViews.h"
#include "qt/QtDialogs.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

QString localized(const char* key, const std::string& filling = {}) {
    std::string text = BSLocalizedString(key);
    if (const auto position = text.find("%@"); position != std::string::npos) text.replace(position, 2, filling);
    return QString::fromStdString(text);
}

QPushButton* addButton(QHBoxLayout* row, const char* key) {
    auto* button = new QPushButton(localized(key));
    row->addWidget(button);
    return button;
}

}  // namespace

PanelWindow::PanelWindow(TarnPDEByCocoa& panel, PdeHost& host, std::optional<std::string> queue,
                         const std::string& ppdPath, QWidget* parent)
    : QDialog(parent), _panel(panel), _host(host), _queue(std::move(queue)) {
    const std::string shown = _queue ? *_queue : std::filesystem::path(ppdPath).filename().string();
    setWindowTitle(QString::fromStdString(TarnPDEByCocoa::panelName() + " \u2014 " + shown));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(PanelViews::createPanelWidget(_panel, this));
    _note = new QLabel(_queue ? QString() : localized("PanelWindow_NoQueue", ppdPath));
    _note->setWordWrap(true);
    layout->addWidget(_note);
    auto* row = new QHBoxLayout;
    row->addStretch();
    _saveDefaultsButton = addButton(row, "Save as defaults");
    QPushButton* cancel = addButton(row, "Cancel");
    _printButton = addButton(row, "Print...");
    _printButton->setDefault(true);
    _printButton->setEnabled(_queue.has_value());
    _saveDefaultsButton->setEnabled(_queue.has_value());
    layout->addLayout(row);
    connect(_printButton, &QPushButton::clicked, this, &PanelWindow::print);
    connect(_saveDefaultsButton, &QPushButton::clicked, this, &PanelWindow::saveDefaults);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    _dialogs = PanelViews::installPanelDialogs(_panel, this);
}

PanelWindow::~PanelWindow() = default;

QString PanelWindow::noteText() const { return _note->text(); }

void PanelWindow::print() {
    const std::optional<std::string> file =
        FileChoosers::runModal({FileChooserRequest::Kind::Open, QDir::homePath().toStdString(), {}, {}});
    if (!file || !saveSettings()) return;
    const HostOutcome outcome = _host.printFile(*file, jobTitle(*file));
    if (outcome.status != HostOutcome::Status::Done) return reportFailure("PanelWindow_PrintFailed", outcome);
    _printedJobId = outcome.jobId;
    accept();
}

void PanelWindow::saveDefaults() {
    if (!saveSettings()) return;
    const HostOutcome outcome = _host.saveDefaults();
    if (outcome.status != HostOutcome::Status::Done) return reportFailure("PanelWindow_SaveFailed", outcome);
    _note->setText(localized("PanelWindow_SavedDefaults", *_queue));
}

// As the print command does: the whole set passes the consistency check, then the panel's
// save, which may put the duplex against media type conflict to the user.
bool PanelWindow::saveSettings() {
    if (!PanePlugInMgr::sharedInstance()->isPrintOptionConsistencyCheck(_panel.printOption())) return false;
    return _panel.saveValuesAndReturnError();
}

// The job is named after the job name the user typed, else after the file.
std::string PanelWindow::jobTitle(const std::string& path) const {
    if (_panel.specificJobNameValue() == "Input" && !_panel.jobNameValue().empty()) return _panel.jobNameValue();
    return std::filesystem::path(path).filename().string();
}

void PanelWindow::reportFailure(const std::string& messageKey, const HostOutcome& outcome) {
    Alerts::runModal({BSLocalizedString(messageKey), outcome.message, {BSLocalizedString("OK")}, AlertRequest::Style::Critical});
}

}  // namespace ComQuorvantVelmar_Plugin
