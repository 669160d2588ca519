#pragma once

#include <QDialog>
#include <QPointer>

#include <memory>
#include <optional>
#include <string>

#include "pde/HostOutcome.h"

class QLabel;
class QPushButton;

namespace ComQuorvantVelmar_Plugin {

class PdeHost;
class QtDialogs;
class TarnPDEByCocoa;

/// The panel in a window of its own, with Print..., Save as defaults and Cancel. Print...
/// asks for the file to print and submits it to the queue with the panel's settings;
/// Save as defaults writes them as the user's saved options of the queue. Both first pass
/// the consistency check and the panel's save, whose alerts say what stopped them. Without
/// a queue both buttons are unavailable and a note under the panel says so. While the
/// window lives, the panel's dialogs and the engine's messages are its sheets.
class PanelWindow : public QDialog {
    Q_OBJECT
public:
    /// The window over panel and its host (both outlive it), for queue, or for the PPD file
    /// ppdPath when there is no queue.
    PanelWindow(TarnPDEByCocoa& panel, PdeHost& host, std::optional<std::string> queue, const std::string& ppdPath,
                QWidget* parent = nullptr);
    ~PanelWindow() override;

    /// The id of the job Print... submitted; nothing until then.
    std::optional<int> printedJobId() const { return _printedJobId; }
    QPushButton* printButton() const { return _printButton; }
    QPushButton* saveDefaultsButton() const { return _saveDefaultsButton; }
    /// The line under the panel: why the buttons are unavailable, or what was saved.
    QString noteText() const;

private:
    void print();
    void saveDefaults();
    bool saveSettings();
    std::string jobTitle(const std::string& path) const;
    void reportFailure(const std::string& messageKey, const HostOutcome& outcome);

    TarnPDEByCocoa& _panel;
    PdeHost& _host;
    std::optional<std::string> _queue;
    std::optional<int> _printedJobId;
    std::unique_ptr<QtDialogs> _dialogs;
    QLabel* _note = nullptr;
    QPushButton* _printButton = nullptr;
    QPushButton* _saveDefaultsButton = nullptr;
};

}  // namespace ComQuorvantVelmar_Plugin
