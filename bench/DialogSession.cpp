#include "DialogSession.h"

#include "core/Alert.h"
#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "panes/PanePlugInMgr.h"
#include "pde/TarnPDEByCocoa.h"
#include "pde/TarnPDEPlugIn.h"

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

// The print dialog's way in: the bundle's principal object answers the panel.
std::shared_ptr<TarnPDEByCocoa> openPanel(InMemoryPdeHost& host) {
    TarnPDEPlugIn entry;
    entry.initWithBundle(productBundle());
    auto panels = entry.PDEPanelsForType(TarnPDEPlugIn::printDialogPanelType, host);
    return panels && !panels->empty() ? panels->front() : nullptr;
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
    for (const auto& [key, value] : bookletJob()) {
        dialog.manager().setStringValue(*value.string(), key);
        dialog.panel().printOption().set(key, value);
    }
    dialog.saveToTicket();
    return host;
}

DialogSession::DialogSession(InMemoryPdeHost& host, Opening opening) : _host(host) {
    productBundle();
    if (opening == Opening::First) PanePlugInMgr::setSharedInstance(nullptr);
    _panel = openPanel(host);
    _panel->restoreValuesAndReturnError();
    _panel->willShow();
    while (manager().loadPanelView()) {
    }
}

DialogSession::~DialogSession() { _panel.reset(); }

PanePlugInMgr& DialogSession::manager() { return *PanePlugInMgr::sharedInstance(); }

std::size_t DialogSession::saveToTicket() {
    _panel->saveValuesAndReturnError();
    return _host.printSettings()->values().size();
}

}  // namespace OstrinBench
