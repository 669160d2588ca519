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

// The dialog opened for the first time in the process: every pane bundle loaded, every
// control built from the UI description and registered, the job's ticket restored, the
// panel built and every pane's panel laid out.
void OpenTheDialog(benchmark::State& state) {
    AnswerEveryQuestion answers;
    auto ticket = hostWithSavedTicket();
    std::size_t settings = 0;
    for (auto _ : state) {
        DialogSession dialog(*ticket);
        settings = dialog.manager().vornMgr().getControlsDictionary().size();
    }
    state.counters["settings"] = static_cast<double>(settings);
}
BENCHMARK(OpenTheDialog)->Unit(benchmark::kMillisecond);

// The dialog opened again and again in one application, as operators do all day: the
// panes stay loaded, and a new panel must not leave more behind each time.
void OpenTheDialogAgain(benchmark::State& state) {
    AnswerEveryQuestion answers;
    auto ticket = hostWithSavedTicket();
    std::size_t first = 0;
    std::size_t settings = 0;
    for (auto _ : state) {
        DialogSession dialog(*ticket, DialogSession::Opening::Later);
        settings = dialog.manager().vornMgr().getControlsDictionary().size();
        if (first == 0) first = settings;
    }
    state.counters["settings"] = static_cast<double>(settings);
    state.counters["settings_first"] = static_cast<double>(first);
}
BENCHMARK(OpenTheDialogAgain)->Unit(benchmark::kMillisecond);

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

// The user staples the job on the saddle and then in the top left corner: each change runs
// the rules (the output tray follows the finisher), posts the notifications, and the
// panel's model follows.
void OneUserChange(benchmark::State& state) {
    AnswerEveryQuestion answers;
    auto ticket = hostWithSavedTicket();
    DialogSession dialog(*ticket);
    VORNMgr& rules = dialog.manager().vornMgr();
    const std::string keyword = "StapleMode";
    choose(rules, keyword, "TopLeftCorner");
    const PlistDictionary corner = rules.getAllValueDictionary();
    choose(rules, keyword, "Saddle");
    state.counters["settings_changed"] = static_cast<double>(differences(corner, rules.getAllValueDictionary()));
    const std::string choices[] = {"TopLeftCorner", "Saddle"};
    std::size_t turn = 0;
    for (auto _ : state) choose(rules, keyword, choices[turn++ % 2]);
}
BENCHMARK(OneUserChange)->Unit(benchmark::kMicrosecond);

// The panel's save: gathered from the panel and the panes, the duplex question, converted
// to PPD keywords and written into the job's print settings as marked PPD choices and
// custom ticket entries.
void SaveTheSettings(benchmark::State& state) {
    AnswerEveryQuestion answers;
    auto ticket = hostWithSavedTicket();
    DialogSession dialog(*ticket);
    std::size_t written = 0;
    for (auto _ : state) written = dialog.saveToTicket();
    state.counters["entries"] = static_cast<double>(written);
}
BENCHMARK(SaveTheSettings)->Unit(benchmark::kMicrosecond);

}  // namespace
