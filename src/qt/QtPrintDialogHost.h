#pragma once

#include <QString>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "pde/PdeHost.h"
#include "pde/PrintSettings.h"

class QPrinter;

namespace ComQuorvantVelmar_Plugin {

/// The print dialog host of a Qt application: the CUPS queue a QPrinter prints to (its
/// PPD, device URI and the user's saved options, as the queue host has them). The print
/// settings also start from the CUPS job options the printer already carries, so that a
/// dialog opened again shows what was chosen last, and from the printer's own copies,
/// collate and duplex. Qt prints the job: after the dialog, applyTo hands the settings to
/// the printer.
class QtPrintDialogHost : public PdeHost {
public:
    /// The print engine property in which Qt keeps a printer's CUPS job options: a flat
    /// list of names and values.
    static constexpr int cupsOptionsProperty = 0xfe00;

    /// The answer of open: a host, or why there is none.
    struct Opening {
        std::unique_ptr<QtPrintDialogHost> host;
        /// Done with a host; NoQueue for a printer without a CUPS queue, else as the queue host.
        HostOutcome outcome;
    };

    /// Opens the queue of printer (an instance "queue/name" stands for its queue) on the
    /// cupsd that libcups reaches.
    static Opening open(const QPrinter& printer);
    /// A host over inner (a queue or a PPD file host, with print settings) for printer,
    /// whose name is kept.
    QtPrintDialogHost(std::unique_ptr<PdeHost> inner, const QPrinter& printer);

    PrintSettings* printSettings() override { return _inner->printSettings(); }
    LegacyTicket* legacyTicket() override { return _inner->legacyTicket(); }
    ppd_file_t* ppdFile() override { return _inner->ppdFile(); }
    std::optional<std::string> deviceUri() const override { return _inner->deviceUri(); }
    bool respondsToWillChangePPDOptionKeyValue() const override { return _inner->respondsToWillChangePPDOptionKeyValue(); }
    bool willChangePPDOptionKeyValue(const std::string& option, const std::string& choice) override {
        return _inner->willChangePPDOptionKeyValue(option, choice);
    }
    /// As the wrapped host prints; the application prints through its QPrinter instead.
    HostOutcome printFile(const std::string& path, const std::string& title) override {
        return _inner->printFile(path, title);
    }
    HostOutcome saveDefaults() override { return _inner->saveDefaults(); }

    /// The printer name the host was opened for.
    const QString& printerName() const { return _printerName; }
    /// Writes the print settings into printer, if it still prints where the host was
    /// opened for (false, nothing written, otherwise): copies and collate that the panel
    /// changed become the printer's own settings; every PPD option and every other setting
    /// that is new or changed replaces the printer's CUPS job option of that name. Page
    /// size, orientation and duplex stay Qt's.
    bool applyTo(QPrinter& printer) const;

    /// The CUPS job options printer carries, in order; empty for none.
    static std::vector<CupsOptionText> cupsOptions(const QPrinter& printer);

private:
    void takePrinterSettings(const QPrinter& printer);
    bool isWrittenAsJobOption(const CupsOptionText& option) const;
    void applyStandardSettings(QPrinter& printer) const;

    std::unique_ptr<PdeHost> _inner;
    QString _printerName;
    PrintSettings _seeded;
};

}  // namespace ComQuorvantVelmar_Plugin
