// Feeds arbitrary bytes to what the pane manager reads from outside: the bytes are a
// special toner page range, and when they are a JSON object, a print option dictionary to
// check and a pane layout to build and lay out. The input arrives as JSON of the property
// lists' shape, so that the fuzzer explores the panes rather than the property-list reader.
#include <cstddef>
#include <cstdint>
#include <string>

#include <nlohmann/json.hpp>

#include "panes/PaneLayout.h"
#include "panes/PanePlugInMgr.h"
#include "settings_ui/ViewNode.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

// Nesting deeper than any layout or dictionary of the product is cut off here, so that the
// harness's own recursion stays bounded.
PlistValue valueOf(const nlohmann::ordered_json& json, int depth = 0) {
    if (depth > 64) return PlistValue();
    if (json.is_boolean()) return json.get<bool>();
    if (json.is_number_integer()) return json.get<std::int64_t>();
    if (json.is_number()) return json.get<double>();
    if (json.is_string()) return json.get<std::string>();
    if (json.is_array()) {
        PlistArray array;
        for (const auto& element : json) array.push_back(valueOf(element, depth + 1));
        return array;
    }
    if (json.is_object()) {
        PlistDictionary dictionary;
        for (const auto& [key, element] : json.items()) dictionary.set(key, valueOf(element, depth + 1));
        return dictionary;
    }
    return PlistValue();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const int verdict = PanePlugInMgr::checkPageRangeForSpecialToner(text);
    if (verdict < 0 || verdict > 2) __builtin_trap();
    const auto json = nlohmann::ordered_json::parse(text, nullptr, false);
    if (json.is_discarded() || !json.is_object()) return 0;
    const PlistValue value = valueOf(json);
    (void)PanePlugInMgr::failedConsistencyChecks(*value.dictionary());
    auto view = PaneLayout::viewOfDescription(value, std::string("Front"),
                                              [](const std::string& label) { return label; });
    if (view) PaneLayout::layOut(*view);
    return 0;
}
