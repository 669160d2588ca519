#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "print_service/PrintServiceResultCodes.h"
#include "print_service/PrintServiceValue.h"
#include "print_service/WebServiceClient.h"

class PrintService_PropArray;
class PrintService_PropDict;
class PrintService_PropKeyValue;

// Picking rows out of the service's generic dictionaries and arrays.
namespace ComQuorvantVelmar_Plugin::WebServiceClientRows {

/// Whether a status reads "OK"; otherwise "###PrintService error: <status>" is logged when asked.
bool statusIsOK(PrintService_ServiceResult status, bool logFailure);
/// Whether a job resource list's status and detail let its rows be used; logs why not.
bool jobResourceStatusIsUsable(PrintService_ServiceResult status, const std::optional<double>& detail);

/// A dictionary with the one item key = value.
std::shared_ptr<PrintService_PropDict> dictionaryWithItem(const std::string& key, const std::string& value);

/// Calls action for each dictionary record of array in order; other elements are skipped.
void forEachRecord(const std::shared_ptr<PrintService_PropArray>& array,
                   const std::function<void(const PrintService_PropDict&)>& action);
/// Appends [value, key] for each key/value item of dictionary whose key and value are both
/// strings (and whose key is wantedKey, when given).
void appendKeyValueRows(const PrintService_PropDict& dictionary, std::optional<std::string_view> wantedKey,
                        ServerRowList& rows);
/// The values of record's items keyed one of keys, in the record's order; "" for an item
/// without a string value.
ServerRow columns(const PrintService_PropDict& record, const std::vector<std::string_view>& keys);
/// Appends the value of each "TonerTarget" item of record ("" when absent).
void appendTonerTargets(const PrintService_PropDict& record, ServerRow& row);
/// Whether record's "Type" suits profile kind (0 "Colorimetry", 1 "ICC"; any other kind none).
bool isProfileOfKind(const PrintService_PropDict& record, int kind);
/// Appends the custom paper rows of the pre/post device dictionary.
void appendCustomPaperRows(const PrintService_PropDict& dictionary, ServerRowList& rows);
/// Appends the job folder rows of the job folder dictionary, the shared folder first.
void appendJobFolderRows(const PrintService_PropDict& dictionary, ServerRowList& rows);

}  // namespace ComQuorvantVelmar_Plugin::WebServiceClientRows
