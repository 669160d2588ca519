#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The service's three result-code vocabularies. Each maps an exact wire name (case and
// spelling as the server writes them) to a number from 1; a name not in the table reads as
// 0, and 0 or an unknown number writes as "".

/// The service result of every response ("status", and "result" of the font list).
enum PrintService_ServiceResult : std::int32_t {
    PrintService_ServiceResult_none = 0,
    PrintService_ServiceResult_OK = 1,
};
/// The resource result codes.
enum PrintService_ResourceResult : std::int32_t {
    PrintService_ResourceResult_none = 0,
    PrintService_ResourceResult_OK = 1,
};
/// The colour-management resource result codes.
enum PrintService_CmsResResult : std::int32_t {
    PrintService_CmsResResult_none = 0,
    PrintService_CmsResResult_OK = 1,
};

/// The service result named name; 0 for a name not in the table.
PrintService_ServiceResult PrintService_ServiceResult_enumFromString(std::string_view name);
/// The wire name of value; "" for 0 or an unknown number.
std::string PrintService_ServiceResult_stringFromEnum(PrintService_ServiceResult value);

/// The resource result named name; 0 for a name not in the table.
PrintService_ResourceResult PrintService_ResourceResult_enumFromString(std::string_view name);
/// The wire name of value; "" for 0 or an unknown number.
std::string PrintService_ResourceResult_stringFromEnum(PrintService_ResourceResult value);

/// The colour-management resource result named name; 0 for a name not in the table.
PrintService_CmsResResult PrintService_CmsResResult_enumFromString(std::string_view name);
/// The wire name of value; "" for 0 or an unknown number.
std::string PrintService_CmsResResult_stringFromEnum(PrintService_CmsResResult value);
