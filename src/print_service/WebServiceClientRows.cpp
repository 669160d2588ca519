#include "print_service/WebServiceClientRows_p.h"

#include "core/Diagnostics.h"
#include "core/LocalizedString.h"
#include "print_service/PrintService_PropArray.h"
#include "print_service/PrintService_PropDict.h"
#include "print_service/PrintService_PropKeyValue.h"

namespace ComQuorvantVelmar_Plugin::WebServiceClientRows {
namespace {

// The item as a key/value item, when it is one with a key; nullptr for anything else.
const PrintService_PropKeyValue* keyedItem(const PrintServiceValue& item) {
    const auto* keyValue = PrintServiceValueObject<PrintService_PropKeyValue>(item);
    return keyValue && keyValue->key ? keyValue : nullptr;
}

const std::string* stringValue(const PrintService_PropKeyValue& item) {
    return item.val ? PrintServiceValueString(*item.val) : nullptr;
}

std::string valueText(const PrintService_PropKeyValue& item) {
    const std::string* text = stringValue(item);
    return text ? *text : std::string();
}

bool isOneOf(const std::string& key, const std::vector<std::string_view>& keys) {
    for (std::string_view wanted : keys)
        if (key == wanted) return true;
    return false;
}

const PrintService_PropKeyValue* itemKeyed(const PrintService_PropDict& dictionary, std::string_view key) {
    for (const PrintServiceValue& item : dictionary.item)
        if (const auto* keyValue = keyedItem(item); keyValue && *keyValue->key == key && keyValue->val)
            return keyValue;
    return nullptr;
}

void appendFolderRows(const PrintServiceValue& folder, ServerRowList& rows) {
    if (const std::string* name = PrintServiceValueString(folder)) {
        rows.push_back({*name, *name});
        return;
    }
    const auto* record = PrintServiceValueObject<PrintService_PropDict>(folder);
    if (!record) return;
    for (const PrintServiceValue& item : record->item)
        if (const auto* keyValue = keyedItem(item); keyValue && *keyValue->key == "Name")
            if (const std::string* name = stringValue(*keyValue)) rows.push_back({*name, *name});
}

}  // namespace

bool statusIsOK(PrintService_ServiceResult status, bool logFailure) {
    if (status == PrintService_ServiceResult_OK) return true;
    if (logFailure) Diagnostics::logf("###PrintService error: %d", static_cast<int>(status));
    return false;
}

// Status 0 is accepted when the server's detail code says 0: the list is then complete.
bool jobResourceStatusIsUsable(PrintService_ServiceResult status, const std::optional<double>& detail) {
    if (status != PrintService_ServiceResult_none && status != PrintService_ServiceResult_OK) {
        Diagnostics::log("###status is not OK.");
        return false;
    }
    if (detail) {
        const bool isZero = *detail > -1.0 && *detail < 1.0;
        if (!isZero) Diagnostics::log("###Detail is not 0.");
        return isZero;
    }
    if (status == PrintService_ServiceResult_none) {
        Diagnostics::log("###Failed to get status.");
        return false;
    }
    return true;
}

std::shared_ptr<PrintService_PropDict> dictionaryWithItem(const std::string& key, const std::string& value) {
    auto item = std::make_shared<PrintService_PropKeyValue>();
    item->key = key;
    item->val = value;
    auto dictionary = std::make_shared<PrintService_PropDict>();
    dictionary->addItem(std::move(item));
    return dictionary;
}

void forEachRecord(const std::shared_ptr<PrintService_PropArray>& array,
                   const std::function<void(const PrintService_PropDict&)>& action) {
    if (!array) return;
    for (const PrintServiceValue& element : array->item)
        if (const auto* record = PrintServiceValueObject<PrintService_PropDict>(element)) action(*record);
}

void appendKeyValueRows(const PrintService_PropDict& dictionary, std::optional<std::string_view> wantedKey,
                        ServerRowList& rows) {
    for (const PrintServiceValue& item : dictionary.item) {
        const auto* keyValue = keyedItem(item);
        const std::string* value = keyValue ? stringValue(*keyValue) : nullptr;
        if (value && (!wantedKey || *keyValue->key == *wantedKey)) rows.push_back({*value, *keyValue->key});
    }
}

ServerRow columns(const PrintService_PropDict& record, const std::vector<std::string_view>& keys) {
    ServerRow row;
    for (const PrintServiceValue& item : record.item)
        if (const auto* keyValue = keyedItem(item); keyValue && isOneOf(*keyValue->key, keys))
            row.push_back(valueText(*keyValue));
    return row;
}

void appendTonerTargets(const PrintService_PropDict& record, ServerRow& row) {
    for (const PrintServiceValue& item : record.item)
        if (const auto* keyValue = keyedItem(item); keyValue && *keyValue->key == "TonerTarget")
            row.push_back(valueText(*keyValue));
}

bool isProfileOfKind(const PrintService_PropDict& record, int kind) {
    std::string type;
    for (const PrintServiceValue& item : record.item)
        if (const auto* keyValue = keyedItem(item); keyValue && *keyValue->key == "Type")
            type = valueText(*keyValue);
    return (kind == 0 && type == "Colorimetry") || (kind == 1 && type == "ICC");
}

// The index and paper identifier carry over from record to record: a record whose "Name"
// comes before its "Index" is named with the index seen last. Clients rely on that order.
void appendCustomPaperRows(const PrintService_PropDict& dictionary, ServerRowList& rows) {
    const PrintService_PropKeyValue* papers = itemKeyed(dictionary, "CustomPaperArray");
    if (!papers) return;
    const auto* records = PrintServiceValueObject<PrintService_PropArray>(*papers->val);
    if (!records) return;
    std::string index;
    std::string paperIdentifier;
    for (const PrintServiceValue& element : records->item) {
        const auto* record = PrintServiceValueObject<PrintService_PropDict>(element);
        if (!record) continue;
        for (const PrintServiceValue& item : record->item) {
            const auto* keyValue = keyedItem(item);
            const std::string* value = keyValue ? stringValue(*keyValue) : nullptr;
            if (!value) continue;
            if (*keyValue->key == "Index") {
                paperIdentifier = "Custom_Off_Uncoated_Off_None_" + *value;
                index = *value;
            } else if (*keyValue->key == "Name") {
                rows.push_back({index + "-" + *value, paperIdentifier});
            }
        }
    }
}

void appendJobFolderRows(const PrintService_PropDict& dictionary, ServerRowList& rows) {
    for (const PrintServiceValue& item : dictionary.item) {
        const auto* keyValue = keyedItem(item);
        if (!keyValue || *keyValue->key != "FolderArray") continue;
        rows.push_back({BSLocalizedString("#共通"), ""});
        const auto* folders =
            keyValue->val ? PrintServiceValueObject<PrintService_PropArray>(*keyValue->val) : nullptr;
        if (!folders) continue;
        for (const PrintServiceValue& folder : folders->item) appendFolderRows(folder, rows);
    }
}

}  // namespace ComQuorvantVelmar_Plugin::WebServiceClientRows
