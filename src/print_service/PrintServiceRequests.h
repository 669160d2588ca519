#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "print_service/PrintServiceRecord.h"
#include "print_service/PrintService_PropDict.h"

// The request objects of the seventeen operations. Each names the element that travels in
// its envelope (requestElementText); only the job resource list and the font list take
// anything from their fields into it, the others are fixed because the server depends on
// exactly those values.

/// Fields of the requests that carry a device number.
struct PrintServiceIotIdFields {
    std::optional<std::uint32_t> iotId;
    template <class Self, class Visitor>
    static void visitFields(Self& self, Visitor& visitor) {
        visitor("iotId", self.iotId);
    }
};

/// Fields of the requests that carry a device number and a resource set.
struct PrintServiceIotIdResourceSetFields {
    std::optional<std::uint32_t> iotId;
    std::optional<std::string> resourceSet;
    template <class Self, class Visitor>
    static void visitFields(Self& self, Visitor& visitor) {
        visitor("iotId", self.iotId);
        visitor("resourceSet", self.resourceSet);
    }
};

/// Fields of the requests that carry a dictionary "dict".
struct PrintServiceDictFields {
    std::shared_ptr<PrintService_PropDict> dict;
    template <class Self, class Visitor>
    static void visitFields(Self& self, Visitor& visitor) {
        visitor("dict", self.dict);
    }
};

/// Fields of the requests that carry a dictionary "initDict".
struct PrintServiceInitDictFields {
    std::shared_ptr<PrintService_PropDict> initDict;
    template <class Self, class Visitor>
    static void visitFields(Self& self, Visitor& visitor) {
        visitor("initDict", self.initDict);
    }
};

/// Fields of the requests without any.
struct PrintServiceNoFields {
    template <class Self, class Visitor>
    static void visitFields(Self&, Visitor&) {}
};

// Each request class below answers its envelope's request element with requestElementText.
#define PRINT_SERVICE_REQUEST(Name, Fields)                             \
    class Name final : public PrintServiceRecord<Name>, public Fields { \
    public:                                                             \
        static constexpr std::string_view className = #Name;            \
        using Fields::visitFields;                                      \
        std::string requestElementText() const;                         \
    }

PRINT_SERVICE_REQUEST(PrintService_getStackerInfoList, PrintServiceIotIdFields);
PRINT_SERVICE_REQUEST(PrintService_getFeederInfoList, PrintServiceIotIdFields);
PRINT_SERVICE_REQUEST(PrintService_getJobFolderList, PrintServiceNoFields);
PRINT_SERVICE_REQUEST(PrintService_getPrePostDeviceList, PrintServiceIotIdFields);
PRINT_SERVICE_REQUEST(PrintService_getCmsSpotGetAllListData, PrintServiceDictFields);
PRINT_SERVICE_REQUEST(PrintService_getSpotColorAllInfoListData, PrintServiceDictFields);
PRINT_SERVICE_REQUEST(PrintService_getColorSubstListData, PrintServiceDictFields);
PRINT_SERVICE_REQUEST(PrintService_getJobResourceSetList, PrintServiceInitDictFields);
PRINT_SERVICE_REQUEST(PrintService_getCalibFileList, PrintServiceInitDictFields);
PRINT_SERVICE_REQUEST(PrintService_getDensityAdjustProfileList, PrintServiceIotIdResourceSetFields);
PRINT_SERVICE_REQUEST(PrintService_getUserTrcProfileList, PrintServiceIotIdResourceSetFields);
PRINT_SERVICE_REQUEST(PrintService_getOutputProfileList, PrintServiceIotIdFields);
PRINT_SERVICE_REQUEST(PrintService_getRGBInputProfileList, PrintServiceNoFields);
PRINT_SERVICE_REQUEST(PrintService_getCMYKInputProfileList, PrintServiceNoFields);
PRINT_SERVICE_REQUEST(PrintService_getDeviceLinkFileList, PrintServiceInitDictFields);

#undef PRINT_SERVICE_REQUEST

/// Request of the job resource list: resource type and resource set (or "SYSTEM_DEFAULT").
class PrintService_GetJobResourceList final : public PrintServiceRecord<PrintService_GetJobResourceList> {
public:
    static constexpr std::string_view className = "PrintService_GetJobResourceList";
    std::optional<std::int32_t> type;
    std::optional<std::string> select;

    /// The request element; type as a decimal number, select inserted as it is.
    std::string requestElementText() const;
    template <class Self, class Visitor>
    static void visitFields(Self& self, Visitor& visitor) {
        visitor("type", self.type);
        visitor("select", self.select);
    }
};

/// Request of the font list; the element sent names the user's language, not lang.
class PrintService_getFontList final : public PrintServiceRecord<PrintService_getFontList> {
public:
    static constexpr std::string_view className = "PrintService_getFontList";
    std::optional<std::string> lang;

    /// The request element: "ja-HJP" when the first preferred language contains "ja", else "en-US".
    std::string requestElementText() const;
    template <class Self, class Visitor>
    static void visitFields(Self& self, Visitor& visitor) {
        visitor("lang", self.lang);
    }
};
