#pragma once

#include <string>
#include <vector>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin {

class VORNUI;

/// Adapts the finishing and tray pop-ups to what the connected printer reports as
/// installed. A device dictionary maps capability names to text; only the exact text
/// "true" counts as installed. A finishing feature is two parallel lists of groups:
/// group i of the choices is available when any capability of group i is installed.
class IOTOptionUpdater {
public:
    using Groups = std::vector<std::vector<std::string>>;

    /// Empty and fill keyDevices and keyOptions with the feature's groups.
    static void getStapleOptionsWithKeyDevices(Groups& keyDevices, Groups& keyOptions);
    static void getPunchOptionsWithKeyDevices(Groups& keyDevices, Groups& keyOptions);
    static void getFoldOptionsWithKeyDevices(Groups& keyDevices, Groups& keyOptions);
    static void getCreaseModeOptionsWithKeyDevices(Groups& keyDevices, Groups& keyOptions);

    /// Whether any of keyArray is installed; false when either is missing or empty.
    static bool isEnableWithDict(const PlistDictionary* deviceDict, const std::vector<std::string>& keyArray);
    /// Hides the pop-up when no group is available, else shows it and removes the choices
    /// of the unavailable groups; false when hidden or nothing could be decided.
    static bool updatePopupButtonComponent(VORNUI* control, const PlistDictionary* deviceDict,
                                           const Groups* keyDevices, const Groups* keyOptions);
    /// Removes the items with these choices from the pop-up.
    static void updatePopupButtonComponent(VORNUI& control, const std::vector<std::string>& removeItems);

    /// Whether the finisher staples at the saddle ("saddleFoldStaple").
    static bool hasStapleForTCBMWithDevice(const PlistDictionary& deviceDict);
    /// Whether the finisher folds without stapling ("saddleFoldNoStaple").
    static bool isFoldForTCBM(const PlistDictionary& deviceDict);
    /// Whether the output tray is the external document finisher.
    static bool isDocumentfinishing(const std::string& outputTray);

    /// Fills dict with tray code -> [label, tray name] of the output trays.
    static void getOutputTrayDict(PlistDictionary& dict);
    /// Fills array with [label, tray name] for each stacker the printer reports (rows
    /// [code, "Type"], dictionaries with "Type", or plain codes); unknown codes are left out.
    static void getOutputTrayArray(PlistArray& array, const PlistValue& input);
    /// Fills dict with tray code -> tray name of the input trays. Code "0" is the automatic
    /// entry ("AutoSelect" for the input slot setting, "TrayAuto" otherwise); "9", the
    /// interposer, only when the printer has one.
    static void getInputSlotDict(PlistDictionary& dict, bool isInputSlot, bool hasTrayInterposer);
    /// Fills array with [tray name, tray name] for the codes of preKey, then each feeder the
    /// printer reports (rows [code, "Number"], dictionaries with "Number", or plain codes),
    /// then the codes of suffKey; unknown codes are left out.
    static void getInputSlotArray(PlistArray& array, const PlistValue& input, const std::vector<std::string>& preKey,
                                  const std::vector<std::string>& suffKey, bool isInputSlot, bool hasTrayInterposer);
    /// The same for a tray setting other than the input slot.
    static void getInputSlotArray(PlistArray& array, const PlistValue& input, const std::vector<std::string>& preKey,
                                  const std::vector<std::string>& suffKey, bool hasTrayInterposer);
    /// Gives the pop-up the tray entries, each titled with the pop-up's own text for that
    /// tray when it has one.
    static void updateInputSlotVORNUI(VORNUI& control, const PlistArray& array);
    /// Fills map with output destination code -> output tray name.
    static void getDstTypeMap(PlistDictionary& map);
    /// Device dictionary of a device list: rows [value, capability] become
    /// capability -> value; a dictionary is taken as it is.
    static PlistDictionary convertArrayToDict(const PlistValue& array);
};

}  // namespace ComQuorvantVelmar_Plugin
