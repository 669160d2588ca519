#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "print_service/PrintServiceRecord.h"
#include "print_service/PrintService_PropArray.h"
#include "print_service/PrintService_PropDict.h"

// The response objects of the seventeen operations. elementName is the child of the reply's
// Body that each is read from; list fields start absent, "status" starts at 0.

/// Fields of the responses with an array "ary".
struct PrintServiceAryFields {
    std::shared_ptr<PrintService_PropArray> ary;
    PrintService_ServiceResult status = PrintService_ServiceResult_none;
    template <class Self, class Visitor>
    static void visitFields(Self& self, Visitor& visitor) {
        visitor("ary", self.ary);
        visitor("status", self.status);
    }
};

/// Fields of the responses with an array "arry".
struct PrintServiceArryFields {
    std::shared_ptr<PrintService_PropArray> arry;
    PrintService_ServiceResult status = PrintService_ServiceResult_none;
    template <class Self, class Visitor>
    static void visitFields(Self& self, Visitor& visitor) {
        visitor("arry", self.arry);
        visitor("status", self.status);
    }
};

/// Fields of the responses with a dictionary "dict".
struct PrintServiceDictResponseFields {
    std::shared_ptr<PrintService_PropDict> dict;
    PrintService_ServiceResult status = PrintService_ServiceResult_none;
    template <class Self, class Visitor>
    static void visitFields(Self& self, Visitor& visitor) {
        visitor("dict", self.dict);
        visitor("status", self.status);
    }
};

/// Fields of the responses with an array "resInfo".
struct PrintServiceResInfoFields {
    std::shared_ptr<PrintService_PropArray> resInfo;
    PrintService_ServiceResult status = PrintService_ServiceResult_none;
    template <class Self, class Visitor>
    static void visitFields(Self& self, Visitor& visitor) {
        visitor("resInfo", self.resInfo);
        visitor("status", self.status);
    }
};

// Each response class below is read from the Body child named ElementName.
#define PRINT_SERVICE_RESPONSE(Name, ElementName, Fields)               \
    class Name final : public PrintServiceRecord<Name>, public Fields { \
    public:                                                             \
        static constexpr std::string_view className = #Name;            \
        static constexpr std::string_view elementName = ElementName;    \
        using Fields::visitFields;                                      \
    }

PRINT_SERVICE_RESPONSE(PrintService_getStackerInfoListResponse, "getStackerInfoListResponse",
                       PrintServiceAryFields);
PRINT_SERVICE_RESPONSE(PrintService_getFeederInfoListResponse, "getFeederInfoListResponse", PrintServiceAryFields);
PRINT_SERVICE_RESPONSE(PrintService_GetJobFolderListResponse, "GetJobFolderListResponse",
                       PrintServiceDictResponseFields);
PRINT_SERVICE_RESPONSE(PrintService_getPrePostDeviceResponse, "getPrePostDeviceResponse",
                       PrintServiceDictResponseFields);
PRINT_SERVICE_RESPONSE(PrintService_getCmsSpotGetAllListDataResponse, "getCmsSpotGetAllListDataResponse",
                       PrintServiceResInfoFields);
PRINT_SERVICE_RESPONSE(PrintService_getSpotColorAllInfoListDataResponse, "getSpotColorAllInfoListDataResponse",
                       PrintServiceResInfoFields);
PRINT_SERVICE_RESPONSE(PrintService_getColorSubstListDataResponse, "getColorSubstListDataResponse",
                       PrintServiceResInfoFields);
PRINT_SERVICE_RESPONSE(PrintService_GetJobResourceSetListResponse, "GetJobResourceSetListResponse",
                       PrintServiceResInfoFields);
PRINT_SERVICE_RESPONSE(PrintService_getCalibFileListResponse, "getCalibFileListResponse", PrintServiceArryFields);
PRINT_SERVICE_RESPONSE(PrintService_getDensityAdjustProfileListResponse, "getDensityAdjustProfileListResponse",
                       PrintServiceResInfoFields);
PRINT_SERVICE_RESPONSE(PrintService_getUserTrcProfileListResponse, "getUserTrcProfileListResponse",
                       PrintServiceResInfoFields);
PRINT_SERVICE_RESPONSE(PrintService_getOutputProfileListResponse, "getOutputProfileListResponse",
                       PrintServiceResInfoFields);
PRINT_SERVICE_RESPONSE(PrintService_getRGBInputProfileListResponse, "getRGBInputProfileListResponse",
                       PrintServiceResInfoFields);
PRINT_SERVICE_RESPONSE(PrintService_getCMYKInputProfileListResponse, "getCMYKInputProfileListResponse",
                       PrintServiceResInfoFields);
PRINT_SERVICE_RESPONSE(PrintService_getDeviceLinkFileListResponse, "getDeviceLinkFileListResponse",
                       PrintServiceArryFields);

#undef PRINT_SERVICE_RESPONSE

/// Response of the job resource list: the list, its status, and the server's own verdicts.
class PrintService_GetJobResourceListResponse final
    : public PrintServiceRecord<PrintService_GetJobResourceListResponse> {
public:
    static constexpr std::string_view className = "PrintService_GetJobResourceListResponse";
    static constexpr std::string_view elementName = "GetJobResourceListResponse";
    std::shared_ptr<PrintService_PropArray> resInfo;
    PrintService_ServiceResult status = PrintService_ServiceResult_none;
    std::optional<USBoolean> bResult;
    std::optional<double> nDetail;

    template <class Self, class Visitor>
    static void visitFields(Self& self, Visitor& visitor) {
        visitor("resInfo", self.resInfo);
        visitor("status", self.status);
        visitor("bResult", self.bResult);
        visitor("nDetail", self.nDetail);
    }
};

/// Response of the font list: its result code, standard fonts, then optional fonts.
class PrintService_getFontListResponse final : public PrintServiceRecord<PrintService_getFontListResponse> {
public:
    static constexpr std::string_view className = "PrintService_getFontListResponse";
    static constexpr std::string_view elementName = "getFontListResponse";
    PrintService_ServiceResult result = PrintService_ServiceResult_none;
    std::shared_ptr<PrintService_PropArray> stdFontList;
    std::shared_ptr<PrintService_PropArray> optFontList;

    template <class Self, class Visitor>
    static void visitFields(Self& self, Visitor& visitor) {
        visitor("result", self.result);
        visitor("stdFontList", self.stdFontList);
        visitor("optFontList", self.optFontList);
    }
};
