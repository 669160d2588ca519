#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class QPrintDialog;
class QPrinter;
class QWidget;

namespace ComQuorvantVelmar_Plugin {

class QtDialogs;
class QtPrintDialogHost;
class TarnPDEByCocoa;

/// The "Ostrin Flow" panel as a tab of a Qt application's print dialog (in the dialog's
/// options area), for the CUPS queue its printer holds when the tab is added. The panel
/// restores its settings from the printer then; the dialog's Print button saves them (a
/// duplex conflict the user keeps leaves the dialog open), and once the dialog is accepted
/// they become the printer's CUPS job options. Nothing is written when the dialog is
/// cancelled or the user picked another printer. The tab belongs to the dialog.
class OstrinFlowPrintDialogTab : public QObject {
    Q_OBJECT
public:
    /// Adds the panel for the queue of dialog's printer; nullptr, the dialog as it was and
    /// error set, when the printer has no CUPS queue or the queue or the extension bundle
    /// (bundlePath, the installed one when empty) cannot be opened.
    static OstrinFlowPrintDialogTab* addTo(QPrintDialog& dialog, QString* error = nullptr, const QString& bundlePath = {});
    /// The same over a host the caller opened (a queue, or a PPD file for a preview).
    static OstrinFlowPrintDialogTab* addTo(QPrintDialog& dialog, std::unique_ptr<QtPrintDialogHost> host,
                                           QString* error = nullptr, const QString& bundlePath = {});
    /// The extension bundle installed beside this library, else the one of its build tree.
    static QString defaultBundlePath();

    ~OstrinFlowPrintDialogTab() override;

    TarnPDEByCocoa& panel() const { return *_panel; }
    QtPrintDialogHost& host() const { return *_host; }
    /// The tab's page; nullptr once the dialog deleted it.
    QWidget* widget() const { return _widget; }

private:
    OstrinFlowPrintDialogTab(QPrintDialog& dialog, std::unique_ptr<QtPrintDialogHost> host,
                             std::shared_ptr<TarnPDEByCocoa> panel);
    void interceptPrintButton();
    void printRequested();
    void dialogAccepted(QPrinter* printer);

    QPointer<QPrintDialog> _dialog;
    std::unique_ptr<QtPrintDialogHost> _host;
    std::shared_ptr<TarnPDEByCocoa> _panel;
    std::unique_ptr<QtDialogs> _dialogs;
    QPointer<QWidget> _widget;
    bool _saved = false;
};

}  // namespace ComQuorvantVelmar_Plugin
