#include "settings_ui/IOTOptionUpdater.h"

#include "settings_ui/SettingsText_p.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

struct FinishingGroup {
    std::vector<std::string> devices;
    std::vector<std::string> options;
};

const std::vector<FinishingGroup> stapleGroups = {
    {{"singleTop", "singleBottom"},
     {"TopLeftCorner", "TopRightCorner", "BottomLeftCorner", "BottomRightCorner", "MixSizeCorner"}},
    {{"doubleStitch"}, {"TopEdge", "BottomEdge", "LeftEdge", "RightEdge", "MixSizeEdge"}},
    {{"saddleFoldStaple"}, {"SaddleInside", "SaddleOutside", "Saddle"}},
    {{"singleStitch"}, {"TopCenter", "BottomCenter", "LeftCenter", "RightCenter"}},
    {{"quadStitch"}, {"TopEdge4", "BottomEdge4", "LeftEdge4", "RightEdge4"}},
};

const std::vector<FinishingGroup> punchGroups = {
    {{"doublePunch", "usDoublePunch"}, {"LeftHoles2", "RightHoles2", "TopHoles2", "BottomHoles2", "MixSizeHoles2"}},
    {{"triplePunch"}, {"LeftHoles3", "RightHoles3", "TopHoles3", "BottomHoles3", "MixSizeHoles3"}},
    {{"quadPunch"}, {"LeftHoles4", "RightHoles4", "TopHoles4", "BottomHoles4", "MixSizeHoles4"}},
    {{"a4CoilPunch", "letterPunch", "isoCoilPunch", "ansiCoilPunch"},
     {"LeftHolesMulti", "RightHolesMulti", "TopHolesMulti", "BottomHolesMulti"}},
};

// Fold and crease spell the Z-fold choices differently ("Zfold" and "ZFold"); each is the
// choice value of its own setting.
const std::vector<FinishingGroup> foldGroups = {
    {{"saddleFoldNoStaple"}, {"BifoldInside", "BifoldOutside", "Bifold"}},
    {{"zFold"}, {"ZfoldRightBind", "ZfoldLeftBind", "MixSizeZfold", ""}},
    {{"triFoldC"}, {"C_TrifoldInside", "C_TrifoldOutside"}},
    {{"triFoldZ"}, {"Z_TrifoldInside", "Z_TrifoldOutside"}},
};

const std::vector<FinishingGroup> creaseGroups = {
    {{"creaserFoldAbility"},
     {"SaddleFold", "CTriFold", "ZTriFold", "ZFoldRightBind", "ZFoldLeftBind", "DoubleGateFold", "ParallelFold",
      "3LineAccordionFold", "4LineAccordionFold", "5LineAccordionFold"}},
    {{"specifiedPositionCreaseAbility"}, {"Custom"}},
};

void fill(const std::vector<FinishingGroup>& groups, IOTOptionUpdater::Groups& keyDevices,
          IOTOptionUpdater::Groups& keyOptions) {
    keyDevices.clear();
    keyOptions.clear();
    for (const FinishingGroup& group : groups) {
        keyDevices.push_back(group.devices);
        keyOptions.push_back(group.options);
    }
}

const std::vector<std::pair<const char*, std::pair<const char*, const char*>>> outputTrays = {
    {"2", {"自動選択", "Auto"}},
    {"5", {"Top Tray", "Toptray"}},
    {"6", {"スタッカートレイ", "Stackertray"}},
    {"8", {"スタッカートレイ2", "Stackertray2"}},
    {"9", {"スタッカートレイ(自動切替え)", "Autochange"}},
    {"12", {"外部フィニッシャー", "Documentfinishing"}},
    {"13", {"スタッカー排出トレイ", "Stackertoptray"}},
    {"14", {"フィニッシャートレイ", "D3finishertray"}},
    {"15", {"フィニッシャー排出トレイ", "D3finishertoptray"}},
    {"16", {"スタッカー排出トレイ2", "Stackertoptray2"}},
    {"26", {"バイパストランスポート", "BypassTransport"}},
    {"24", {"BIN", "Bin"}},
    {"25", {"PDL設定に従う", "Pdl"}},
};

const std::vector<std::pair<const char*, const char*>> inputTrays = {
    {"5", "TrayMSI"},          {"1", "Tray1"},     {"2", "Tray2"},     {"3", "Tray3"},
    {"4", "Tray4"},            {"7", "Tray6"},     {"8", "Tray7"},     {"11", "Tray8"},
    {"12", "Tray9"},           {"14", "TrayA1_1"}, {"15", "TrayA1_2"}, {"16", "TrayA2_1"},
    {"17", "TrayA2_2"},        {"20", "TrayJobSameTray"},              {"25", "TrayStk"},
    {"27", "TraySystemSetting"}, {"6", "Manual"},
};

// The tray code of one entry of a printer list.
std::optional<std::string> codeOfRow(const PlistValue& row, std::string_view key) {
    if (const PlistArray* cells = row.array()) {
        if (cells->empty()) return std::nullopt;
        return SettingsText::textValue(&cells->front());
    }
    if (const PlistDictionary* entry = row.dictionary()) return SettingsText::textValue(entry->find(key));
    return SettingsText::textValue(&row);
}

void appendInputTray(PlistArray& array, const PlistDictionary& trays, const std::string& code) {
    if (auto name = trays.stringFor(code)) array.push_back(SettingsText::pairOf(*name, *name));
}

}  // namespace

void IOTOptionUpdater::getStapleOptionsWithKeyDevices(Groups& keyDevices, Groups& keyOptions) {
    fill(stapleGroups, keyDevices, keyOptions);
}

void IOTOptionUpdater::getPunchOptionsWithKeyDevices(Groups& keyDevices, Groups& keyOptions) {
    fill(punchGroups, keyDevices, keyOptions);
}

void IOTOptionUpdater::getFoldOptionsWithKeyDevices(Groups& keyDevices, Groups& keyOptions) {
    fill(foldGroups, keyDevices, keyOptions);
}

void IOTOptionUpdater::getCreaseModeOptionsWithKeyDevices(Groups& keyDevices, Groups& keyOptions) {
    fill(creaseGroups, keyDevices, keyOptions);
}

bool IOTOptionUpdater::isEnableWithDict(const PlistDictionary* deviceDict, const std::vector<std::string>& keyArray) {
    if (!deviceDict || deviceDict->empty() || keyArray.empty()) return false;
    for (const std::string& key : keyArray)
        if (deviceDict->stringFor(key) == std::optional<std::string>("true")) return true;
    return false;
}

bool IOTOptionUpdater::updatePopupButtonComponent(VORNUI* control, const PlistDictionary* deviceDict,
                                                  const Groups* keyDevices, const Groups* keyOptions) {
    if (!control) return false;
    if (!deviceDict || !keyDevices || !keyOptions) {
        control->setHidden(true);
        return false;
    }
    bool anyAvailable = false;
    std::vector<std::string> removed;
    removed.reserve(32);
    for (std::size_t group = 0; group < keyDevices->size(); ++group) {
        if (isEnableWithDict(deviceDict, (*keyDevices)[group])) {
            anyAvailable = true;
        } else if (group < keyOptions->size()) {
            removed.insert(removed.end(), (*keyOptions)[group].begin(), (*keyOptions)[group].end());
        }
    }
    if (!anyAvailable) {
        control->setHidden(true);
        return false;
    }
    control->setHidden(false);
    updatePopupButtonComponent(*control, removed);
    return true;
}

void IOTOptionUpdater::updatePopupButtonComponent(VORNUI& control, const std::vector<std::string>& removeItems) {
    PlistArray list;
    for (const std::string& choice : removeItems) list.push_back(choice);
    control.removePopupButtonArray(list);
}

bool IOTOptionUpdater::hasStapleForTCBMWithDevice(const PlistDictionary& deviceDict) {
    return deviceDict.stringFor("saddleFoldStaple") == std::optional<std::string>("true");
}

bool IOTOptionUpdater::isFoldForTCBM(const PlistDictionary& deviceDict) {
    return deviceDict.stringFor("saddleFoldNoStaple") == std::optional<std::string>("true");
}

bool IOTOptionUpdater::isDocumentfinishing(const std::string& outputTray) { return outputTray == "Documentfinishing"; }

void IOTOptionUpdater::getOutputTrayDict(PlistDictionary& dict) {
    dict.clear();
    for (const auto& [code, tray] : outputTrays) dict.set(code, SettingsText::pairOf(tray.first, tray.second));
}

void IOTOptionUpdater::getOutputTrayArray(PlistArray& array, const PlistValue& input) {
    array.clear();
    const PlistArray* rows = input.array();
    if (!rows) return;
    PlistDictionary trays;
    getOutputTrayDict(trays);
    for (const PlistValue& row : *rows) {
        auto code = codeOfRow(row, "Type");
        if (const PlistValue* tray = code ? trays.find(*code) : nullptr) array.push_back(*tray);
    }
}

void IOTOptionUpdater::getInputSlotDict(PlistDictionary& dict, bool isInputSlot, bool hasTrayInterposer) {
    dict.clear();
    dict.set("0", isInputSlot ? "AutoSelect" : "TrayAuto");
    for (const auto& [code, name] : inputTrays) dict.set(code, name);
    if (hasTrayInterposer) dict.set("9", "TrayInterposer");
}

void IOTOptionUpdater::getInputSlotArray(PlistArray& array, const PlistValue& input,
                                         const std::vector<std::string>& preKey,
                                         const std::vector<std::string>& suffKey, bool isInputSlot,
                                         bool hasTrayInterposer) {
    array.clear();
    PlistDictionary trays;
    getInputSlotDict(trays, isInputSlot, hasTrayInterposer);
    for (const std::string& code : preKey) appendInputTray(array, trays, code);
    if (const PlistArray* rows = input.array())
        for (const PlistValue& row : *rows)
            if (auto code = codeOfRow(row, "Number")) appendInputTray(array, trays, *code);
    for (const std::string& code : suffKey) appendInputTray(array, trays, code);
}

void IOTOptionUpdater::getInputSlotArray(PlistArray& array, const PlistValue& input,
                                         const std::vector<std::string>& preKey,
                                         const std::vector<std::string>& suffKey, bool hasTrayInterposer) {
    getInputSlotArray(array, input, preKey, suffKey, false, hasTrayInterposer);
}

void IOTOptionUpdater::updateInputSlotVORNUI(VORNUI& control, const PlistArray& array) {
    PlistArray entries;
    for (const PlistValue& entry : array) {
        const PlistArray* pair = entry.array();
        if (!pair || pair->size() < 2 || !(*pair)[1].string()) continue;
        const std::string& choice = *(*pair)[1].string();
        const std::string title = control.getOptionText(choice).value_or((*pair)[0].stringOr(choice));
        entries.push_back(SettingsText::pairOf(title, choice));
    }
    control.setPopupButtonArray(entries);
}

// Destination codes of the print server's job records; the codes shared with the output
// tray table name the same trays.
void IOTOptionUpdater::getDstTypeMap(PlistDictionary& map) {
    map.clear();
    const std::pair<const char*, const char*> destinations[] = {
        {"3", "FaceDownTray"},      {"4", "FaceUpTray"},        {"5", "Toptray"},
        {"6", "Stackertray"},       {"8", "Stackertray2"},      {"9", "Autochange"},
        {"10", "Samplertray"},      {"12", "Documentfinishing"}, {"13", "Stackertoptray"},
        {"14", "D3finishertray"},   {"15", "D3finishertoptray"}, {"16", "Stackertoptray2"},
        {"17", "D3finishertray2"},  {"26", "BypassTransport"},
    };
    for (const auto& [code, name] : destinations) map.set(code, name);
}

PlistDictionary IOTOptionUpdater::convertArrayToDict(const PlistValue& array) {
    if (const PlistDictionary* dictionary = array.dictionary()) return *dictionary;
    PlistDictionary result;
    const PlistArray* rows = array.array();
    if (!rows) return result;
    for (const PlistValue& row : *rows) {
        const PlistArray* cells = row.array();
        if (!cells || cells->size() < 2 || !(*cells)[1].string()) continue;
        if (auto value = SettingsText::textValue(&(*cells)[0])) result.set(*(*cells)[1].string(), *value);
    }
    return result;
}

}  // namespace ComQuorvantVelmar_Plugin
