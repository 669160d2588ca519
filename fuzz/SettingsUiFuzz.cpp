// Feeds arbitrary bytes to the settings engine as a UI description: every entry becomes a
// control that is registered, given every value its description names, typed into and
// validated. A broken description must never crash or hang the panel. The description
// arrives as JSON of the same shape as the property list, so that the fuzzer explores the
// engine rather than the property-list reader.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "JsonIO.h"
#include "core/Alert.h"
#include "settings_ui/NotifyUnit.h"
#include "settings_ui/VORNMgr.h"
#include "settings_ui/VORNUI.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

// Answers Yes and No in turn, so that both ways out of every question are taken.
class AlternatingPresenter : public AlertPresenter {
public:
    int runModal(const AlertRequest&) override { return (_count++ % 2) ? AlertSecondButtonReturn : AlertFirstButtonReturn; }

private:
    int _count = 0;
};

std::vector<std::string> valuesNamedBy(const PlistDictionary& description) {
    std::vector<std::string> values;
    if (const PlistValue* choices = description.find("choices"); choices && choices->array())
        for (const PlistValue& entry : *choices->array())
            if (entry.dictionary()) values.push_back(entry.dictionary()->stringFor("choice", ""));
    for (const char* rule : {"conflict", "condition", "cooperation", "hide", "logical_sum_condition"})
        if (const PlistValue* rules = description.find(rule); rules && rules->dictionary())
            for (const auto& [pattern, entry] : *rules->dictionary()) values.push_back(pattern);
    values.push_back("__ALL__");
    values.push_back("");
    return values;
}

void exercise(VORNMgr& manager, VORNUI& control, const std::vector<std::string>& values) {
    for (const std::string& value : values) {
        manager.validateBeforeChange(control.mainKeyword(), value, std::nullopt);
        control.setStringValue(value);
        NotifyUnit::postNotificationName(control.mainKeyword(), PlistDictionary{{"Paramater", value}});
        control.getOptionText(value);
        if (VORNTextField* field = control.textField()) {
            field->textDidBeginEditing();
            if (field->shouldAcceptText(value)) field->setEditedText(value);
            field->textDidEndEditing();
        }
    }
    control.popupButtonAction();
    control.checkboxAction();
    control.stepperAction();
    control.sliderAction();
    control.radioButtonAction();
    control.disableForPDE();
    control.getSelectedOptionText();
    control.getControlHeight();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto json = nlohmann::ordered_json::parse(data, data + size, nullptr, false);
    if (json.is_discarded() || !json.is_object()) return 0;
    const PlistValue parsed = OstrinFlowCommand::fromJson(json);
    Alerts::setPresenter(std::make_shared<AlternatingPresenter>());
    VORNMgr::setNetworkDataProbe([] { return true; });
    {
        VORNMgr manager;
        std::vector<std::pair<std::shared_ptr<VORNUI>, std::vector<std::string>>> controls;
        for (const auto& [keyword, description] : *parsed.dictionary()) {
            if (!description.dictionary()) continue;
            auto control = std::make_shared<VORNUI>();
            control->setControlDictionary(description.dictionary(), nullptr);
            control->updateControl();
            manager.addControl(control);
            NotifyUnit::postNotificationName(control->mainKeyword());
            controls.emplace_back(control, valuesNamedBy(*description.dictionary()));
        }
        for (auto& [control, values] : controls) exercise(manager, *control, values);
        manager.setDefaults();
        manager.setSettings(manager.getAllValueDictionary());
        manager.restoreSettings(manager.backupSettings());
    }
    VORNMgr::setNetworkDataProbe(nullptr);
    Alerts::setPresenter(nullptr);
    return 0;
}
