#include "panes/PanePlugInMgr.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// The value the UI description's "conflict" rule of ownKey at ownValue restores otherKey to
// when otherKey holds otherValue; nothing when the rule names no such conflict.
std::optional<std::string> restoreValue(const PlistDictionary& descriptions, const char* ownKey,
                                        const std::string& ownValue, const char* otherKey,
                                        const std::string& otherValue) {
    const PlistValue* node = descriptions.find(ownKey);
    for (const std::string& step : {std::string("conflict"), ownValue, std::string(otherKey), otherValue}) {
        if (!node || !node->dictionary()) return std::nullopt;
        node = node->dictionary()->find(step);
    }
    if (!node || !node->dictionary()) return std::nullopt;
    return node->dictionary()->stringFor("restore");
}

std::string withArgument(const std::string& format, const std::string& argument) {
    const std::size_t directive = format.find("%@");
    if (directive == std::string::npos) return format;
    return format.substr(0, directive) + argument + format.substr(directive + 2);
}

}  // namespace

// Which media the press cannot print on both sides is not the PPD's to say but the UI
// description's: the "DuplexMode" control's conflicts name, for each two-sided choice, the
// paper types ("PaperTypeD") that cannot go with it and the paper type to change to, and
// the paper type control's conflicts name the duplex setting to change to. The PPD's media
// type shares its choice names with the paper type (Transparency, Labels).
//
// order 1: the duplex setting stands and the media type gives way ("QZMediaType", and
// "PaperTypeD" where the PPD has that choice); any other order: the media type stands and
// the duplex setting gives way ("DuplexMode", and "Duplex" where the PPD has that choice).
// When the chosen side's rule gives no value to change to, the other side gives way.
std::optional<DuplexMediaTypeConflict> PanePlugInMgr::resloveConflictAlertDuplex(
    const std::optional<std::string>& duplex, const std::optional<std::string>& mediaType, int order) {
    const PlistDictionary* descriptions = uiDescriptions();
    if (!duplex || !mediaType || !descriptions) return std::nullopt;
    const auto mediaRestore = restoreValue(*descriptions, "DuplexMode", *duplex, "PaperTypeD", *mediaType);
    const auto duplexRestore = restoreValue(*descriptions, "PaperTypeD", *mediaType, "DuplexMode", *duplex);
    if (!mediaRestore && !duplexRestore) return std::nullopt;
    const bool mediaGivesWay = mediaRestore && (order == 1 || !duplexRestore);

    DuplexMediaTypeConflict conflict;
    std::string mainAlias;
    std::string mediaAlias = *mediaType;
    getAlias(mainAlias, mediaAlias, "QZMediaType", *mediaType);
    conflict.alert.messageText = withArgument(_localized("Alert_DuplexMediaType"), mediaAlias);
    conflict.alert.buttons = {_localized("Change Setting")};
    if (mediaGivesWay) {
        conflict.mainKeyword = "QZMediaType";
        conflict.defaultValue = *mediaRestore;
        if (isExistsInPpd("PaperTypeD", *mediaRestore)) {
            conflict.anotherMainKeyword = "PaperTypeD";
            conflict.anotherDefaultValue = *mediaRestore;
        }
        std::string newAlias = *mediaRestore;
        getAlias(mainAlias, newAlias, "QZMediaType", *mediaRestore);
        conflict.alert.informativeText = withArgument(_localized("Alert_DuplexMediaType_ChangeMediaType"), newAlias);
    } else {
        conflict.mainKeyword = "DuplexMode";
        conflict.defaultValue = *duplexRestore;
        if (isExistsInPpd("Duplex", *duplexRestore)) {
            conflict.anotherMainKeyword = "Duplex";
            conflict.anotherDefaultValue = *duplexRestore;
        }
        std::string newAlias = *duplexRestore;
        getAlias(mainAlias, newAlias, "DuplexMode", *duplexRestore);
        conflict.alert.informativeText = withArgument(_localized("Alert_DuplexMediaType_ChangeDuplex"), newAlias);
    }
    // The panel shows the informative text up to its first line feed as the alert's text.
    if (conflict.alert.informativeText.find('\n') == std::string::npos) conflict.alert.informativeText += "\n";
    return conflict;
}

}  // namespace ComQuorvantVelmar_Plugin
