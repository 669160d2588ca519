#include "PanelSession.h"

#include <algorithm>
#include <cctype>

#include "CommandError.h"
#include "PaneSession.h"
#include "core/Bundle.h"
#include "core/ClassRegistry.h"
#include "core/FormatterAttachment.h"
#include "core/LocalizedString.h"
#include "core/TextCharacters.h"
#include "favorites/FavoriteFile.h"
#include "favorites/PopUpMenuModel.h"
#include "panes/PanePlugInMgr.h"
#include "pde/CupsQueueHost.h"
#include "pde/PpdFileHost.h"
#include "pde/TarnPDEByCocoa.h"
#include "pde/TarnPDEPlugIn.h"
#include "settings_ui/NotifyUnit.h"
#include "settings_ui/VORNMgr.h"
#include "settings_ui/VORNUI.h"

using namespace ComQuorvantVelmar_Plugin;

namespace OstrinFlowCommand {
namespace {

std::unique_ptr<PdeHost> openPpdFileHost(const std::string& path) {
    std::string error;
    std::unique_ptr<PpdFileHost> host = PpdFileHost::open(path, &error);
    if (!host) throw CommandError(ExitInput, path + ": " + error);
    return host;
}

std::unique_ptr<PdeHost> openHost(const GlobalOptions& options) {
    if (options.queue) {
        CupsQueueHost::Opening opening = CupsQueueHost::open(*options.queue);
        requireDone(opening.outcome, "");
        return std::move(opening.host);
    }
    if (options.ppd) return openPpdFileHost(*options.ppd);
    std::shared_ptr<Bundle> bundle = BSPrincipalBundle();
    const std::string path = bundle ? bundle->pathForResource("OstrinFlow", "ppd") : "";
    if (path.empty()) throw CommandError(ExitInput, options.bundlePath + ": no extension bundle with OstrinFlow.ppd");
    return openPpdFileHost(path);
}

// The print dialog's way in: the bundle's principal object answers the panel.
std::shared_ptr<TarnPDEByCocoa> openPanel(const GlobalOptions& options, PdeHost& host) {
    std::shared_ptr<Bundle> bundle = BSPrincipalBundle();
    auto entry = ClassRegistry::sharedInstance().createAs<TarnPDEPlugIn>(bundle->principalClassName());
    if (!entry || !entry->initWithBundle(bundle))
        throw CommandError(ExitInput, options.bundlePath + ": the extension bundle names no panel class");
    auto panels = entry->PDEPanelsForType(TarnPDEPlugIn::printDialogPanelType, host);
    if (!panels || panels->empty()) throw CommandError(ExitInput, options.bundlePath + ": the extension offers no panel");
    return panels->front();
}

std::vector<std::string> choicesOf(const VORNUI& control) {
    std::vector<std::string> choices;
    switch (control.controlType()) {
        case VORNUI::Type::PopupButton:
            for (const auto& item : control.popupItems())
                if (!item.isSeparator) choices.push_back(item.choice);
            break;
        case VORNUI::Type::RadioButton:
        case VORNUI::Type::HRadioButton:
            for (const auto& cell : control.radioCells()) choices.push_back(cell.choice);
            break;
        case VORNUI::Type::CheckBox:
            if (const PlistDictionary* description = control.controlDictionary())
                if (const PlistValue* list = description->find("choices"); list && list->array())
                    for (const PlistValue& choice : *list->array())
                        if (auto text = choice.dictionary() ? choice.dictionary()->stringFor("choice") : std::nullopt)
                            choices.push_back(*text);
            break;
        default: break;
    }
    return choices;
}

std::string joined(const std::vector<std::string>& texts) {
    std::string result;
    for (const std::string& text : texts) result += (result.empty() ? "" : ", ") + text;
    return result;
}

}  // namespace

SettingsRequest SettingsRequest::take(ArgumentList& arguments) {
    SettingsRequest request;
    for (const std::string& option : arguments.takeAll("option", "o")) {
        const std::size_t equals = option.find('=');
        if (equals == std::string::npos || equals == 0)
            throw UsageError("-o " + option + ": expected KEY=VALUE");
        request.changes.emplace_back(option.substr(0, equals), option.substr(equals + 1));
    }
    request.favorite = arguments.take("favorite");
    request.jobName = arguments.take("job-name");
    return request;
}

void requireDone(const HostOutcome& outcome, const std::string& commandName) {
    switch (outcome.status) {
        case HostOutcome::Status::Done: return;
        case HostOutcome::Status::NoQueue:
            throw UsageError(commandName + " needs --queue: " + outcome.message);
        case HostOutcome::Status::InputError: throw CommandError(ExitInput, outcome.message);
        case HostOutcome::Status::Unreachable:
        case HostOutcome::Status::Failed: break;
    }
    throw CommandError(ExitUnreachable, outcome.message);
}

PanelSession::PanelSession(const GlobalOptions& options) {
    _manager = openPaneManager(options);
    _host = openHost(options);
    _panel = openPanel(options, *_host);
}

// The panel goes first: it stops observing and lets go of the host's PPD.
PanelSession::~PanelSession() { _panel.reset(); }

int PanelSession::applyAndSave(const SettingsRequest& request) {
    if (const int refused = apply(request)) return refused;
    return _panel->saveValuesAndReturnError() ? ExitSuccess : ExitRefused;
}

int PanelSession::apply(const SettingsRequest& request) {
    _panel->willShow();
    if (request.favorite) applyFavorite(*request.favorite);
    for (const auto& [key, value] : request.changes) applyChange(key, value);
    if (request.jobName) applyJobName(*request.jobName);
    // As the detailed settings window hands them over: every setting's value, then the
    // values that have no setting of their own.
    if (auto gathered = _manager->gatherPrintOptionValues(nullptr, std::nullopt, false, false, false))
        _panel->printOption() = std::move(*gathered);
    for (const auto& [key, value] : _plainValues) _panel->printOption().set(key, value);
    return _manager->isPrintOptionConsistencyCheck(_panel->printOption()) ? ExitSuccess : ExitRefused;
}

// The favorite is picked in the panel's favorite pop-up, which applies it to the model and
// the settings. Its values without a setting of their own join the model after the gather.
void PanelSession::applyFavorite(const std::string& name) {
    PopUpMenuModel& popup = _panel->favoritePopup();
    const std::int64_t index = popup.indexOfItemWithTitle(name);
    const PopUpMenuItem* item = popup.itemAtIndex(index);
    if (!item || item->representedObject.empty()) throw CommandError(ExitInput, "unknown favorite \"" + name + "\"");
    if (FavoriteFile(item->representedObject).version() == -1)
        throw CommandError(ExitInput, "favorite \"" + name + "\" is not a favorite file this printer can use");
    const PlistDictionary before = _panel->printOption();
    popup.selectItemAtIndex(index);
    _panel->selectFavorite();
    for (const auto& [key, value] : _panel->printOption()) {
        const VORNMgr::ControlList* controls = _manager->vornMgr().controlsOf(key);
        const PlistValue* old = before.find(key);
        if ((!controls || controls->empty()) && (!old || *old != value)) _plainValues.set(key, value);
    }
}

void PanelSession::applyChange(const std::string& key, const std::string& value) {
    const std::string argument = "-o " + key + "=" + value;
    if (key == "NumCopies") {
        if (value.empty() || !std::all_of(value.begin(), value.end(), [](char c) { return c >= '0' && c <= '9'; }) ||
            value.size() > 6 || std::stoi(value) < 1)
            throw CommandError(ExitInput, argument + ": the number of copies is a whole number from 1");
        _panel->setCopies(value);
        return;
    }
    if (key == "Collate") {
        std::string lowered = value;
        std::transform(lowered.begin(), lowered.end(), lowered.begin(),
                       [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        if (lowered != "true" && lowered != "false") throw CommandError(ExitInput, argument + ": Collate is True or False");
        _panel->setCollate(lowered == "true");
        return;
    }
    const VORNMgr::ControlList* controls = _manager->vornMgr().controlsOf(key);
    if (!controls || controls->empty()) {
        if (!_panel->printOption().contains(key))
            throw CommandError(ExitInput, argument + ": no setting of the panes or the panel is named " + key);
        _plainValues.set(key, value);
        return;
    }
    const std::vector<std::string> choices = choicesOf(*controls->front());
    const bool isChoice = std::find(choices.begin(), choices.end(), value) != choices.end();
    if (!choices.empty() && !isChoice)
        throw CommandError(ExitInput, argument + ": " + value + " is not a choice of " + key + " (" + joined(choices) + ")");
    NotifyUnit::postNotificationName(key, PlistDictionary{{"Paramater", value}});
    if (!choices.empty() && _manager->getStringValueFromKey(key) != value)
        throw CommandError(ExitRefused, argument + ": refused, it conflicts with other settings (see --answer)");
    // The panel's model follows every setting, as the detailed settings window hands them
    // over: a later change of the panel's own settings checks it against the favorite and
    // may put it back into the panes.
    if (auto gathered = _manager->gatherPrintOptionValues(nullptr, std::nullopt, false, false, false))
        for (auto& [name, gatheredValue] : *gathered) _panel->printOption().set(name, std::move(gatheredValue));
}

void PanelSession::applyJobName(const std::string& jobName) {
    const std::size_t length = TextCharacters::characterLength(jobName);
    if (length < 1 || length > 255) throw CommandError(ExitInput, "--job-name: a job name has 1 to 255 characters");
    StringEscapeConverter converter;
    attachEscapeRule(converter);
    _panel->setJobNameValues("Input", converter.escape(jobName), jobName);
}

}  // namespace OstrinFlowCommand
