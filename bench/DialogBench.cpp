// What an operator waits for each time the dialog opens, each time a setting changes and
// each time the settings are saved, beside libcups reading the same PPD, which every print
// dialog does before the extension is asked for anything.
#include <benchmark/benchmark.h>

#include <cups/ppd.h>

#include <memory>
#include <string>

#include "DialogSession.h"
#include "core/Alert.h"
#include "panes/PanePlugInMgr.h"
#include "settings_ui/VORNMgr.h"
#include "settings_ui/VORNUI.h"

using namespace ComQuorvantVelmar_Plugin;
using namespace OstrinBench;

namespace {

void PpdOpenFileOfTheSamplePpd(benchmark::State& state) {
    const std::string path = samplePpdPath();
    for (auto _ : state) {
        ppd_file_t* ppd = ppdOpenFile(path.c_str());
        benchmark::DoNotOptimize(ppd);
        ppdClose(ppd);
    }
}
BENCHMARK(PpdOpenFileOfTheSamplePpd)->Unit(benchmark::kMillisecond);

// Every pane bundle loaded, every control built from the UI description and registered,
// every panel laid out, and the job's ticket restored into the controls.
void OpenTheDialog(benchmark::State& state) {
    AnswerEveryQuestion answers;
    auto ticket = hostWithSavedTicket();
    std::size_t settings = 0;
    for (auto _ : state) {
        DialogSession dialog(*ticket);
        dialog.restoreFromTicket();
        settings = dialog.manager().vornMgr().getControlsDictionary().size();
    }
    state.counters["settings"] = static_cast<double>(settings);
}
BENCHMARK(OpenTheDialog)->Unit(benchmark::kMillisecond);

// The user picks choice in the pop-up of keyword, as a click in the panel does.
void choose(VORNMgr& rules, const std::string& keyword, const std::string& choice) {
    auto control = rules.controlsOf(keyword)->front();
    const auto& items = control->popupItems();
    for (std::size_t index = 0; index < items.size(); ++index)
        if (items[index].choice == choice) control->selectItemAtIndex(static_cast<int>(index));
    control->popupButtonAction();
}

std::size_t differences(const PlistDictionary& before, const PlistDictionary& after) {
    std::size_t count = 0;
    for (const auto& [key, value] : after)
        if (!before.find(key) || *before.find(key) != value) ++count;
    return count;
}

// The user switches the imposition to a booklet and back: each change runs the rules of
// the setting (conflicts, enabled states, hidden settings) and posts the notifications.
void OneUserChange(benchmark::State& state) {
    AnswerEveryQuestion answers;
    auto ticket = hostWithSavedTicket();
    DialogSession dialog(*ticket);
    dialog.restoreFromTicket();
    VORNMgr& rules = dialog.manager().vornMgr();
    const std::string keyword = "ImpositionMode_ImpositionCustomMode";
    choose(rules, keyword, "Off");
    const PlistDictionary off = rules.getAllValueDictionary();
    choose(rules, keyword, "Booklet");
    state.counters["settings_changed"] = static_cast<double>(differences(off, rules.getAllValueDictionary()));
    const std::string choices[] = {"Off", "Booklet"};
    std::size_t turn = 0;
    for (auto _ : state) choose(rules, keyword, choices[turn++ % 2]);
}
BENCHMARK(OneUserChange)->Unit(benchmark::kMicrosecond);

// Gathered from the panes, converted to PPD keywords and written into the job's print
// settings: marked PPD choices and custom ticket entries.
void SaveTheSettings(benchmark::State& state) {
    AnswerEveryQuestion answers;
    auto ticket = hostWithSavedTicket();
    DialogSession dialog(*ticket);
    dialog.restoreFromTicket();
    std::size_t written = 0;
    for (auto _ : state) written = dialog.saveToTicket();
    state.counters["entries"] = static_cast<double>(written);
}
BENCHMARK(SaveTheSettings)->Unit(benchmark::kMicrosecond);

}  // namespace
