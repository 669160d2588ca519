// The cost of the settings engine when the panel opens and when a favorite is applied,
// beside the reference of reading the product's UI description itself.
#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include "core/Alert.h"
#include "core/Bundle.h"
#include "core/PlistIO.h"
#include "settings_ui/NotifyUnit.h"
#include "settings_ui/VORNMgr.h"
#include "settings_ui/VORNUI.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

std::shared_ptr<Bundle> productBundle() {
    static auto bundle = Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR);
    return bundle;
}

std::string descriptionPath() { return std::string(OSTRIN_BUILD_BUNDLE_DIR) + "/Contents/Resources/OstrinFlowUI.plist"; }

// Builds every control of the product and registers it as the panes do.
std::unique_ptr<VORNMgr> openPanel(const PlistDictionary& descriptions) {
    auto manager = std::make_unique<VORNMgr>();
    manager->setPdeResourcePath(std::string(OSTRIN_BUILD_BUNDLE_DIR) + "/Contents/Resources");
    for (const auto& [keyword, description] : descriptions) {
        auto control = std::make_shared<VORNUI>();
        control->setControlDictionary(description.dictionary(), productBundle());
        control->updateControl();
        manager->addControl(control);
        NotifyUnit::postNotificationName(keyword);
    }
    return manager;
}

void ReadUIDescription(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(PlistIO::readFile(descriptionPath()));
}
BENCHMARK(ReadUIDescription)->Unit(benchmark::kMillisecond);

void BuildAndRegisterEveryControl(benchmark::State& state) {
    const PlistDictionary descriptions = *PlistIO::readFile(descriptionPath())->dictionary();
    for (auto _ : state) benchmark::DoNotOptimize(openPanel(descriptions));
    state.counters["controls"] = static_cast<double>(descriptions.size());
}
BENCHMARK(BuildAndRegisterEveryControl)->Unit(benchmark::kMillisecond);

// A favorite that changes the finishing, media and imposition settings at once.
void ApplyAFavorite(benchmark::State& state) {
    Alerts::setPresenter(std::make_shared<ScriptedAlertPresenter>());
    const PlistDictionary descriptions = *PlistIO::readFile(descriptionPath())->dictionary();
    auto manager = openPanel(descriptions);
    const PlistDictionary favorite{{"StapleMode", "Saddle"}, {"OutputTray", "D3finishertray"}, {"ColorMode", "Grayscale"},
                                   {"ImpositionMode_ImpositionCustomMode", "Booklet"}, {"ChgPrintPaperSizeType", "A3"},
                                   {"UseSpToner", "True"}, {"SecPrint", "True"}, {"PaperTypeD", "Coated"}};
    const PlistDictionary defaults = manager->getAllValueDictionary();
    for (auto _ : state) {
        manager->setSettings(favorite);
        manager->setSettings(defaults);
    }
    Alerts::setPresenter(nullptr);
}
BENCHMARK(ApplyAFavorite)->Unit(benchmark::kMillisecond);

}  // namespace
