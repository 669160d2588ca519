// What the pane manager costs when the dialog opens (loading every pane of the product
// and taking the defaults) and when a job is checked, beside the reference of reading
// the product's UI description, which loading the panes does once.
#include <benchmark/benchmark.h>

#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "core/PlistIO.h"
#include "panes/PanePlugInMgr.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

std::shared_ptr<Bundle> productBundle() {
    static auto bundle = [] {
        auto product = Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR);
        SetNSBundleForPrincipalBundle(product);
        return product;
    }();
    return bundle;
}

void ReadUIDescription(benchmark::State& state) {
    const std::string path = std::string(OSTRIN_BUILD_BUNDLE_DIR) + "/Contents/Resources/OstrinFlowUI.plist";
    for (auto _ : state) benchmark::DoNotOptimize(PlistIO::readFile(path));
}
BENCHMARK(ReadUIDescription)->Unit(benchmark::kMillisecond);

void LoadEveryPaneAndTakeTheDefaults(benchmark::State& state) {
    auto bundle = productBundle();
    std::size_t settings = 0;
    for (auto _ : state) {
        PanePlugInMgr manager(bundle);
        manager.loadPlugIns();
        settings = manager.defaultSettings().size();
    }
    state.counters["settings"] = static_cast<double>(settings);
}
BENCHMARK(LoadEveryPaneAndTakeTheDefaults)->Unit(benchmark::kMillisecond);

void CheckARealisticJob(benchmark::State& state) {
    const PlistDictionary job =
        *PlistIO::readFile(std::string(OSTRIN_TEST_DATA_DIR) + "/ppd/InternalPrintOption.plist")->dictionary();
    for (auto _ : state) benchmark::DoNotOptimize(PanePlugInMgr::failedConsistencyChecks(job));
}
BENCHMARK(CheckARealisticJob)->Unit(benchmark::kMicrosecond);

}  // namespace
