#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "SettingsTestSupport.h"
#include "ppd/PpdData.h"
#include "ppd/PpdFile.h"
#include "settings_ui/IOTOptionUpdater.h"

using namespace SettingsTest;

namespace {

std::shared_ptr<Bundle> productBundle() { return Bundle::bundleWithPath(productBundlePath()); }

const PlistDictionary& productDescriptions() {
    static const PlistDictionary descriptions = [] {
        VORNUI probe;
        probe.setControlDictionary(nullptr, productBundle());
        auto path = probe.getUIFilePath();
        auto value = path ? PlistIO::readFile(*path) : std::nullopt;
        return value && value->dictionary() ? *value->dictionary() : PlistDictionary{};
    }();
    return descriptions;
}

std::shared_ptr<VORNUI> buildProductControl(const std::string& keyword) {
    auto control = std::make_shared<VORNUI>();
    control->setControlDictionary(productDescriptions().find(keyword)->dictionary(), productBundle());
    control->updateControl();
    return control;
}

std::set<std::string> choicesOf(const std::string& keyword) {
    std::set<std::string> choices;
    const PlistValue* description = productDescriptions().find(keyword);
    const PlistValue* list = description && description->dictionary() ? description->dictionary()->find("choices") : nullptr;
    if (list && list->array())
        for (const PlistValue& entry : *list->array())
            if (entry.dictionary()) choices.insert(entry.dictionary()->stringFor("choice", ""));
    return choices;
}

bool hasChoices(const std::string& keyword) { return !choicesOf(keyword).empty(); }

bool isThreshold(const std::string& pattern) {
    return pattern == "__ALL__" || pattern.rfind("__LESS__:", 0) == 0 || pattern.rfind("__GREATER__:", 0) == 0;
}

// Collects every fault of the rules as one readable line each.
class RuleChecker {
public:
    std::vector<std::string> faults;

    void checkControl(const std::string& keyword, const PlistDictionary& description) {
        _owner = keyword;
        for (const std::string rule : {"conflict", "unrestorable_conflict", "condition", "logical_sum_condition", "hide",
                                       "cooperation"}) {
            const PlistValue* rules = description.find(rule);
            if (rules && !rules->dictionary()) fault(rule + " is not a dictionary");
            if (!rules || !rules->dictionary()) continue;
            for (const auto& [pattern, entry] : *rules->dictionary()) {
                if (pattern == "title" || pattern == "message") continue;
                if (!isThreshold(pattern)) requireChoice(keyword, pattern);
                if (rule == "cooperation") cooperationEntry(entry);
                else if (rule.find("conflict") != std::string::npos) conflictLevel(entry, rule == "unrestorable_conflict");
                else enablingEntry(entry, rule == "condition");
            }
        }
        for (const char* list : {"other_controls", "other_controls_ww"})
            if (const PlistValue* children = description.find(list))
                for (const PlistValue& child : *children->array()) requireKeyword(child.stringOr(""));
        if (const PlistValue* disabled = description.find("disableForPDE"))
            for (const PlistValue& value : *disabled->array()) requireChoice(keyword, value.stringOr(""));
    }

private:
    void conflictLevel(const PlistValue& level, bool unresolvable) {
        if (!level.dictionary()) return fault("conflict level is not a dictionary");
        for (const auto& [other, patterns] : *level.dictionary()) {
            if (other == "title" || other == "message") continue;
            if (!requireKeyword(other) || !patterns.dictionary()) continue;
            for (const auto& [pattern, entry] : *patterns.dictionary()) {
                if (pattern == "title" || pattern == "message") continue;
                if (!isThreshold(pattern)) requireChoice(other, pattern);
                const PlistDictionary* leaf = entry.dictionary();
                if (!leaf) {
                    fault("entry of " + other + " is not a dictionary");
                } else if (const PlistValue* restore = leaf->find("restore")) {
                    if (unresolvable) fault("unresolvable conflict with a restore value");
                    if (restore->string()) requireChoice(other, *restore->string());
                    if (restore->dictionary())
                        for (const auto& [target, value] : *restore->dictionary()) requireChoice(target, value.stringOr("?"));
                } else if (!unresolvable || leaf->size() > static_cast<std::size_t>(leaf->contains("title") + leaf->contains("message"))) {
                    conflictLevel(entry, unresolvable);
                }
            }
        }
    }

    void enablingEntry(const PlistValue& entry, bool itemsAllowed) {
        if (!entry.dictionary()) return fault("rule entry is not a dictionary");
        for (const auto& [other, setting] : *entry.dictionary()) {
            if (!requireKeyword(other)) continue;
            if (setting.isBoolean()) continue;
            if (!itemsAllowed || !setting.dictionary()) {
                fault("setting for " + other + " is neither a Boolean nor items");
                continue;
            }
            for (const auto& [choice, flag] : *setting.dictionary()) {
                requireChoice(other, choice);
                if (!flag.isBoolean()) fault("item flag of " + other + " is not a Boolean");
            }
        }
    }

    void cooperationEntry(const PlistValue& entry) {
        if (!entry.dictionary()) return fault("cooperation entry is not a dictionary");
        for (const auto& [other, value] : *entry.dictionary())
            if (requireKeyword(other) && hasChoices(other)) requireChoice(other, value.stringOr("?"));
    }

    bool requireKeyword(const std::string& keyword) {
        if (productDescriptions().contains(keyword)) return true;
        fault("unknown keyword " + keyword);
        return false;
    }

    void requireChoice(const std::string& keyword, const std::string& choice) {
        if (!requireKeyword(keyword)) return;
        if (!choicesOf(keyword).count(choice)) fault(keyword + " has no choice \"" + choice + "\"");
    }

    void fault(const std::string& text) { faults.push_back(_owner + ": " + text); }

    std::string _owner;
};

// The msgid entries of a catalogue source (every key is on one line), still escaped.
std::set<std::string> catalogueKeys(const std::string& language) {
    std::ifstream stream(std::string(OSTRIN_TEST_DATA_DIR) + "/../../resources/po/UI/" + language + ".po");
    std::set<std::string> keys;
    for (std::string line; std::getline(stream, line);)
        if (line.rfind("msgid \"", 0) == 0 && line.size() > 8) keys.insert(line.substr(7, line.size() - 8));
    return keys;
}

// text as a catalogue source writes it between quotes.
std::string poEscaped(const std::string& text) {
    std::string escaped;
    for (char c : text)
        escaped += c == '\r' ? "\\r" : c == '\n' ? "\\n" : c == '\t' ? "\\t" : c == '"' ? "\\\"" : c == '\\' ? "\\\\" : std::string(1, c);
    return escaped;
}

void collectTexts(const PlistDictionary& description, std::set<std::string>& texts) {
    for (const auto& [key, value] : description) {
        const bool textKey = key.rfind("text", 0) == 0 && key != "text_type";
        if ((textKey || key == "head_text" || key == "desc_text" || key == "button_text" || key == "groupTitle" ||
             key == "min_icon_text" || key == "max_icon_text" || key == "head_title_text") &&
            value.string() && !value.string()->empty())
            texts.insert(*value.string());
    }
    if (const PlistValue* list = description.find("choices"))
        for (const PlistValue& entry : *list->array())
            if (auto text = entry.dictionary()->stringFor("text"); text && !text->empty()) texts.insert(*text);
    for (const char* rule : {"unrestorable_conflict"})
        if (const PlistValue* rules = description.find(rule))
            for (const char* key : {"title", "message"})
                if (auto text = rules->dictionary()->stringFor(key)) texts.insert(*text);
}

}  // namespace

TEST(ProductDescription, EveryControlBuildsWithItsDefault) {
    ASSERT_GT(productDescriptions().size(), 150u);
    for (const auto& [keyword, value] : productDescriptions()) {
        SCOPED_TRACE(keyword);
        ASSERT_TRUE(value.dictionary());
        auto control = buildProductControl(keyword);
        EXPECT_EQ(control->mainKeyword(), keyword);
        EXPECT_NE(control->controlType(), VORNUI::Type::Unknown);
        EXPECT_FALSE(control->mainKeywordText().empty());
        const auto defaultValue = control->getDefault();
        // Lists filled from the print server start on their empty "not selected" choice.
        if (hasChoices(keyword)) {
            EXPECT_TRUE(choicesOf(keyword).count(defaultValue.value_or("")));
            EXPECT_EQ(control->getStringValue(), defaultValue.value_or(""));
        }
        if (control->textField() && control->textField()->isNum()) {
            ASSERT_TRUE(defaultValue);
            EXPECT_TRUE(control->textField()->isNumFormat(*defaultValue));
            EXPECT_TRUE(control->textField()->isInRange());
        }
    }
}

TEST(ProductDescription, EveryRuleNamesExistingKeywordsAndChoices) {
    RuleChecker checker;
    for (const auto& [keyword, value] : productDescriptions()) checker.checkControl(keyword, *value.dictionary());
    EXPECT_TRUE(checker.faults.empty()) << checker.faults.size() << " faults, first: " << checker.faults.front();
}

TEST(ProductDescription, EveryTextHasEnglishGermanAndJapanese) {
    std::set<std::string> texts;
    for (const auto& [keyword, value] : productDescriptions()) collectTexts(*value.dictionary(), texts);
    for (const char* language : {"en", "de", "ja"}) {
        const std::set<std::string> keys = catalogueKeys(language);
        std::vector<std::string> missing;
        for (const std::string& text : texts)
            if (!keys.count(poEscaped(text))) missing.push_back(text);
        EXPECT_TRUE(missing.empty()) << language << " lacks " << missing.size() << ", first: " << missing.front();
    }
}

TEST(ProductDescription, DefaultsAreConsistentAndAskNothing) {
    AlertScript alerts;
    auto manager = std::make_unique<VORNMgr>();
    manager->setPdeResourcePath(productBundlePath() + "/Contents/Resources");
    for (const auto& [keyword, value] : productDescriptions()) {
        auto control = buildProductControl(keyword);
        manager->addControl(control);
        NotifyUnit::postNotificationName(keyword);
    }
    manager->setDefaults();
    EXPECT_TRUE(alerts.asked().empty());
    const PlistDictionary values = manager->getAllValueDictionary();
    EXPECT_EQ(values.stringFor("OutputTray", ""), "Auto");
    EXPECT_EQ(values.stringFor("ImpositionMode_ImpositionCustomMode", ""), "Off");
    EXPECT_FALSE(manager->controlsOf("SecPrintPassword")->front()->isEnabled());
    EXPECT_TRUE(manager->controlsOf("ImpositionNup_NumOfPages")->front()->isHidden());
}

TEST(ProductDescription, FinishingMovesOutputToTheFinisher) {
    Language english("en");
    AlertScript alerts({AlertFirstButtonReturn, AlertFirstButtonReturn});
    auto manager = managerWith({});
    for (const char* keyword : {"StapleMode", "OutputTray", "PaperTypeD", "Fold", "Punch_PunchHoles", "DuplexMode", "OffsetMode"}) {
        auto control = buildProductControl(keyword);
        registerLikeAPane(*manager, control);
    }
    manager->setStringValue("OutputTray", "Toptray");
    NotifyUnit::postNotificationName("OutputTray");
    manager->setStringValue("StapleMode", "TopLeftCorner");
    NotifyUnit::postNotificationName("StapleMode");
    ASSERT_EQ(alerts.asked().size(), 1u);
    EXPECT_EQ(alerts.lastMessage(),
              "The following properties cannot be set at the same time.\r[Staple]:[1 Staple, Top Left]\r"
              "[Output Tray]:[Top Tray]\r"
              "\rDo you want to change to the following settings to enable the selection?\r[Output Tray]:[Finisher Tray]\r");
    EXPECT_EQ(manager->getStringValue("OutputTray"), "D3finishertray");
    EXPECT_TRUE(manager->controlsOf("OffsetMode")->front()->isEnabled());
    manager->setStringValue("PaperTypeD", "Labels");
    NotifyUnit::postNotificationName("PaperTypeD");
    EXPECT_EQ(manager->getStringValue("StapleMode"), "None");
}

namespace {

std::unique_ptr<PpdFile> samplePpd() {
    return PpdFile::initWithContentsOfFile(productBundlePath() + "/Contents/Resources/OstrinFlow.ppd");
}

}  // namespace

// Values the PPD does not list ride in custom ticket entries: custom sizes, profiles and
// crease positions, and the empty "not selected" entry of server lists.
TEST(ProductDescription, PpdOptionsOfferOnlyPpdChoicesOrCustomEntries) {
    auto ppd = samplePpd();
    ASSERT_TRUE(ppd);
    std::vector<std::string> faults;
    std::size_t checked = 0;
    for (const auto& [keyword, value] : productDescriptions()) {
        if (!ppd->isExists(keyword)) continue;
        ++checked;
        for (const std::string& choice : choicesOf(keyword))
            if (!choice.empty() && choice != "Custom" && !ppd->isExists(keyword, choice))
                faults.push_back(keyword + " " + choice);
    }
    EXPECT_GT(checked, 100u);
    EXPECT_TRUE(faults.empty()) << faults.front();
}

TEST(ProductDescription, SamplePrinterDataKeepsEveryPanelPopupUsable) {
    Language english("en");
    auto ppd = samplePpd();
    ASSERT_TRUE(ppd);
    const auto devices = PpdData::propertyListForCommand(ppd->ppdFile(), "DeviceList");
    const auto stackers = PpdData::propertyListForCommand(ppd->ppdFile(), "StackerInfoList");
    const auto feeders = PpdData::propertyListForCommand(ppd->ppdFile(), "FeederInfoList");
    ASSERT_TRUE(devices && stackers && feeders);
    const PlistDictionary device = IOTOptionUpdater::convertArrayToDict(*devices);
    IOTOptionUpdater::Groups keyDevices, keyOptions;
    using Getter = void (*)(IOTOptionUpdater::Groups&, IOTOptionUpdater::Groups&);
    const std::pair<const char*, Getter> finishing[] = {
        {"StapleMode", IOTOptionUpdater::getStapleOptionsWithKeyDevices},
        {"Punch_PunchHoles", IOTOptionUpdater::getPunchOptionsWithKeyDevices},
        {"Fold", IOTOptionUpdater::getFoldOptionsWithKeyDevices},
        {"CreaseMode", IOTOptionUpdater::getCreaseModeOptionsWithKeyDevices}};
    for (const auto& [keyword, getter] : finishing) {
        SCOPED_TRACE(keyword);
        auto control = buildProductControl(keyword);
        getter(keyDevices, keyOptions);
        EXPECT_TRUE(IOTOptionUpdater::updatePopupButtonComponent(control.get(), &device, &keyDevices, &keyOptions));
        EXPECT_GT(control->popupItems().size(), 1u);
        EXPECT_EQ(control->getStringValue(), control->getDefault());
    }
    PlistArray trays;
    IOTOptionUpdater::getOutputTrayArray(trays, *stackers);
    auto output = buildProductControl("OutputTray");
    output->setPopupButtonArray(trays);
    ASSERT_FALSE(output->popupItems().empty());
    for (const auto& item : output->popupItems()) EXPECT_EQ(item.title, output->getOptionText(item.choice)) << item.choice;
    IOTOptionUpdater::getInputSlotArray(trays, *feeders, {"0"}, {"25"}, true, false);
    auto input = buildProductControl("QVInputSlot");
    IOTOptionUpdater::updateInputSlotVORNUI(*input, trays);
    EXPECT_EQ(input->popupItems().front().choice, "AutoSelect");
    EXPECT_EQ(input->popupItems().back().title, "Stock Name");
    for (const auto& item : input->popupItems()) EXPECT_TRUE(choicesOf("QVInputSlot").count(item.choice)) << item.choice;
}
