#include "qt/QtPrintDialogHost.h"

#include <QPrintEngine>
#include <QPrinter>
#include <QStringList>

#include <strings.h>

#include "pde/CupsQueueHost.h"
#include "ppd/PpdFileExt.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

const auto cupsOptionsKey = QPrintEngine::PrintEnginePropertyKey(QtPrintDialogHost::cupsOptionsProperty);

// Qt's print engine sends these from the printer's own settings and page layout; a job
// option of the same name beside them would reach cupsd twice.
bool isQtOwnOption(const std::string& name) {
    for (const char* own : {"copies", "collate", "sides", "media", "landscape"})
        if (::strcasecmp(name.c_str(), own) == 0) return true;
    return false;
}

std::optional<std::string> sidesOf(QPrinter::DuplexMode duplex) {
    switch (duplex) {
        case QPrinter::DuplexNone: return "one-sided";
        case QPrinter::DuplexLongSide: return "two-sided-long-edge";
        case QPrinter::DuplexShortSide: return "two-sided-short-edge";
        case QPrinter::DuplexAuto: break;
    }
    return std::nullopt;
}

QStringList flatList(const std::vector<CupsOptionText>& options) {
    QStringList list;
    for (const auto& [name, value] : options) list << QString::fromStdString(name) << QString::fromStdString(value);
    return list;
}

void replaceOrAppend(std::vector<CupsOptionText>& options, const CupsOptionText& option) {
    for (CupsOptionText& present : options)
        if (present.first == option.first) {
            present.second = option.second;
            return;
        }
    options.push_back(option);
}

}  // namespace

QtPrintDialogHost::Opening QtPrintDialogHost::open(const QPrinter& printer) {
    const QString name = printer.printerName();
    if (printer.outputFormat() != QPrinter::NativeFormat || name.isEmpty())
        return {nullptr, HostOutcome::failure(HostOutcome::Status::NoQueue, "the printer prints to a file, not to a CUPS queue")};
    CupsQueueHost::Opening queue = CupsQueueHost::open(name.section(QLatin1Char('/'), 0, 0).toStdString());
    if (!queue.host) return {nullptr, queue.outcome};
    return {std::make_unique<QtPrintDialogHost>(std::move(queue.host), printer), HostOutcome::done()};
}

QtPrintDialogHost::QtPrintDialogHost(std::unique_ptr<PdeHost> inner, const QPrinter& printer)
    : _inner(std::move(inner)), _printerName(printer.printerName()) {
    takePrinterSettings(printer);
}

// PPD choices among the printer's options are marked, so that the panel restores them.
void QtPrintDialogHost::takePrinterSettings(const QPrinter& printer) {
    PrintSettings& settings = *printSettings();
    for (const auto& [name, value] : cupsOptions(printer))
        if (!willChangePPDOptionKeyValue(name, value)) settings.setValue(name, value);
    settings.setValue("copies", std::to_string(printer.copyCount()));
    settings.setValue("collate", printer.collateCopies() ? "true" : "false");
    if (auto sides = sidesOf(printer.duplex())) settings.setValue("sides", *sides);
    _seeded = settings;
}

std::vector<CupsOptionText> QtPrintDialogHost::cupsOptions(const QPrinter& printer) {
    const QStringList list = printer.printEngine()->property(cupsOptionsKey).toStringList();
    std::vector<CupsOptionText> options;
    for (qsizetype index = 0; index + 1 < list.size(); index += 2)
        options.emplace_back(list[index].toStdString(), list[index + 1].toStdString());
    return options;
}

bool QtPrintDialogHost::applyTo(QPrinter& printer) const {
    if (printer.printerName() != _printerName) return false;
    std::vector<CupsOptionText> options = cupsOptions(printer);
    for (const CupsOptionText& option : _inner->printSettings()->cupsOptions())
        if (isWrittenAsJobOption(option)) replaceOrAppend(options, option);
    printer.printEngine()->setProperty(cupsOptionsKey, flatList(options));
    applyStandardSettings(printer);
    return true;
}

// cupsd applies no saved option to a job that Qt submits, so every PPD option goes, even
// one the panel left as the user had saved it; other settings only when they are new.
bool QtPrintDialogHost::isWrittenAsJobOption(const CupsOptionText& option) const {
    if (isQtOwnOption(option.first)) return false;
    ppd_file_t* ppd = _inner->ppdFile();
    if (ppd && PpdFileExt(ppd).isExists(option.first)) return true;
    return _seeded.text(option.first) != option.second;
}

// The panel changes copies and collate only through a favorite or its defaults; then
// its choice wins over the dialog's.
void QtPrintDialogHost::applyStandardSettings(QPrinter& printer) const {
    const PrintSettings& settings = *_inner->printSettings();
    const std::optional<std::string> copies = settings.text("copies");
    if (copies && copies != _seeded.text("copies")) {
        const int count = QString::fromStdString(*copies).toInt();
        if (count > 0) printer.setCopyCount(count);
    }
    const std::optional<std::string> collate = settings.text("collate");
    if (collate && collate != _seeded.text("collate")) printer.setCollateCopies(::strcasecmp(collate->c_str(), "false") != 0);
}

}  // namespace ComQuorvantVelmar_Plugin
