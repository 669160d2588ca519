#include "DialogSession.h"

#include "core/Alert.h"
#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "panes/PanePlugInMgr.h"
#include "pde/PrintSettingsTicket.h"
#include "pde/TicketValueEscaping.h"
#include "ppd/PrintOptionConverter.h"

using namespace ComQuorvantVelmar_Plugin;

namespace OstrinBench {
namespace {

std::shared_ptr<Bundle> productBundle() {
    static auto bundle = [] {
        auto product = Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR);
        SetNSBundleForPrincipalBundle(product);
        SetNSBundleForLocalizedString(product);
        return product;
    }();
    return bundle;
}

std::string textOf(const PlistValue& value) {
    if (const std::string* text = value.string()) return *text;
    if (const bool* flag = value.boolean()) return *flag ? "True" : "False";
    if (const std::int64_t* number = value.integer()) return std::to_string(*number);
    return {};
}

// A booklet on coated paper, stapled on the saddle, in grey, with special toner: the
// finishing, media and imposition rules all have a say in it.
const PlistDictionary& bookletJob() {
    static const PlistDictionary job{{"StapleMode", "Saddle"},
                                     {"OutputTray", "D3finishertray"},
                                     {"ColorMode", "Grayscale"},
                                     {"ImpositionMode_ImpositionCustomMode", "Booklet"},
                                     {"ChgPrintPaperSizeType", "A3"},
                                     {"UseSpToner", "True"},
                                     {"PaperTypeD", "Coated"},
                                     {"DuplexMode", "DuplexNoTumble"}};
    return job;
}

}  // namespace

std::string productBundlePath() {
    productBundle();
    return OSTRIN_BUILD_BUNDLE_DIR;
}

std::string samplePpdPath() { return productBundlePath() + "/Contents/Resources/OstrinFlow.ppd"; }

AnswerEveryQuestion::AnswerEveryQuestion() {
    Alerts::setPresenter(std::make_shared<ScriptedAlertPresenter>(std::deque<int>{}, AlertFirstButtonReturn));
}

AnswerEveryQuestion::~AnswerEveryQuestion() { Alerts::setPresenter(nullptr); }

std::unique_ptr<InMemoryPdeHost> hostWithSavedTicket() {
    auto host = std::make_unique<InMemoryPdeHost>(InMemoryPdeHost::Flavour::WithPpdChangeHook,
                                                  PpdFileExt::initWithContentsOfFile(samplePpdPath()));
    DialogSession dialog(*host);
    dialog.manager().restorePrintOptionValues(&bookletJob());
    dialog.saveToTicket();
    return host;
}

DialogSession::DialogSession(InMemoryPdeHost& host) : _host(host) {
    _manager = std::make_shared<PanePlugInMgr>(productBundle());
    PanePlugInMgr::setSharedInstance(_manager);
    _manager->setPpdFile(std::make_shared<PpdFileExt>(host.ppdFile()));
    _manager->loadPlugIns();
    _manager->defaultSettings();
    while (_manager->loadPanelView()) {
    }
}

DialogSession::~DialogSession() { PanePlugInMgr::setSharedInstance(nullptr); }

void DialogSession::restoreFromTicket() {
    PlistDictionary printOption;
    const std::string_view prefix = PrintSettingsTicket::customKeyPrefix;
    PpdFileExt* ppd = _manager->ppdFile();
    for (const auto& [key, value] : _host.printSettings()->values()) {
        if (key.rfind(prefix, 0) == 0)
            printOption.set(key.substr(prefix.size()), TicketValueEscaping::unescape(textOf(value)));
        else if (ppd && ppd->isExists(key))
            printOption.set(key, textOf(value));
    }
    PrintOptionConverter::convertToInternalPpdKeyword(printOption);
    _manager->restorePrintOptionValues(&printOption);
}

std::size_t DialogSession::saveToTicket() {
    auto gathered = _manager->gatherPrintOptionValues(nullptr, std::nullopt, false, false, false);
    if (!gathered) return 0;
    if (auto conflict = _manager->resloveConflictAlertDuplex(gathered->stringFor("DuplexMode"),
                                                               gathered->stringFor("PaperTypeD"), 0))
        Alerts::runModal(conflict->alert);
    PrintOptionConverter::convertToCanonicalPpdKeyword(*gathered, 1);
    PrintSettingsTicket ticket(_host);
    PpdFileExt* ppd = _manager->ppdFile();
    std::size_t written = 0;
    for (const auto& [key, value] : *gathered) {
        const std::string text = textOf(value);
        if (ppd && ppd->isExists(key, text) ? _host.willChangePPDOptionKeyValue(key, text)
                                             : ticket._customTicketSetString(key, text) == PrintSettingsTicket::noErr)
            ++written;
    }
    return written;
}

}  // namespace OstrinBench
