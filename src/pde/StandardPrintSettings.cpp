#include "pde/StandardPrintSettings.h"

#include <strings.h>

#include "pde/Duplexing.h"
#include "pde/PdeHost.h"
#include "pde/PrintSettings.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// cupsd reads a boolean option as false for these words only.
bool isFalseWord(const std::string& text) {
    for (const char* word : {"false", "no", "off"})
        if (::strcasecmp(text.c_str(), word) == 0) return true;
    return false;
}

}  // namespace

StandardPrintSettings::StandardPrintSettings(PdeHost& host) : _host(host) {}

std::optional<std::string> StandardPrintSettings::cupsOptionForKey(std::string_view key) {
    if (key == "NumCopies") return "copies";
    if (key == "Collate") return "collate";
    if (key == "DuplexMode") return "sides";
    return std::nullopt;
}

void StandardPrintSettings::setHiddenFlags(bool isHiddenNumCopies, bool isHiddenDuplex,
                                           bool isHiddenCollate) {
    _isHiddenNumCopies = isHiddenNumCopies;
    _isHiddenDuplex = isHiddenDuplex;
    _isHiddenCollate = isHiddenCollate;
}

std::optional<std::string> StandardPrintSettings::getCopies() const {
    const PrintSettings* settings = _host.printSettings();
    if (_isHiddenNumCopies || !settings) return std::nullopt;
    return settings->text(*cupsOptionForKey("NumCopies")).value_or("1");
}

void StandardPrintSettings::setCopies(const std::string& copies) {
    PrintSettings* settings = _host.printSettings();
    if (_isHiddenNumCopies || !settings) return;
    settings->setValue(*cupsOptionForKey("NumCopies"), copies);
}

std::optional<std::string> StandardPrintSettings::getCollate() const {
    const PrintSettings* settings = _host.printSettings();
    if (_isHiddenCollate || !settings) return std::nullopt;
    const std::optional<std::string> collate = settings->text(*cupsOptionForKey("Collate"));
    return collate && isFalseWord(*collate) ? "False" : "True";
}

void StandardPrintSettings::setCollate(bool collate) {
    PrintSettings* settings = _host.printSettings();
    if (_isHiddenCollate || !settings) return;
    settings->setValue(*cupsOptionForKey("Collate"), collate ? "true" : "false");
}

std::optional<std::string> StandardPrintSettings::getDuplex() const {
    const PrintSettings* settings = _host.printSettings();
    if (_isHiddenDuplex || !settings) return std::nullopt;
    switch (Duplexing::fromSides(*settings).value_or(Duplexing::None)) {
        case Duplexing::DuplexNoTumble: return "DuplexNoTumble";
        case Duplexing::DuplexTumble: return "DuplexTumble";
        default: return "None";
    }
}

// The print system's duplex control is looked up under the key "Duplex", which names
// none of the standard settings (they answer to "DuplexMode"), so this never changes
// "sides". The duplex choice travels in the plug-in's own "DuplexMode" option instead;
// keep the mismatch, or the panel and the PPD option would set duplex twice.
void StandardPrintSettings::setDuplex(const std::optional<std::string>&) {}

void StandardPrintSettings::setQVInputSlot(const std::optional<std::string>& slot) {
    PrintSettings* settings = _host.printSettings();
    if (!slot || !settings) return;
    settings->setValue("QVInputSlot", *slot);
}

}  // namespace ComQuorvantVelmar_Plugin
