#include "print_service/PrintServiceResultCodes.h"

#include <array>
#include <span>

namespace {

// Names in number order from 1. Misspellings ("Unsupperted", "UnknError", "InifileError"
// beside "IniFileError") are the server's own: it matches them exactly.
constexpr std::array<std::string_view, 41> kServiceResultNames = {"OK",
                                                                  "InitializeError",
                                                                  "OutOfMemory",
                                                                  "ExceedClientCount",
                                                                  "DuplicateClientUniqueId",
                                                                  "HostNotAllowed",
                                                                  "JobNotFound",
                                                                  "JobOperationNotAllowed",
                                                                  "AlreadyRipped",
                                                                  "InvalidJobStatus",
                                                                  "ScheduleOperationError",
                                                                  "ScheduleColorManagementError",
                                                                  "ScheduleFontDownloadError",
                                                                  "FileNotFound",
                                                                  "FileLockError",
                                                                  "IniFileError",
                                                                  "DiskFull",
                                                                  "UnknownUserName",
                                                                  "UserAlreadyExist",
                                                                  "BadUserName",
                                                                  "BadPassword",
                                                                  "PasswordMismatch",
                                                                  "ExceedUserCount",
                                                                  "TooLongUserName",
                                                                  "TooLongPassword",
                                                                  "BadUserComment",
                                                                  "PatliteDefAccess",
                                                                  "UnknownPatlite",
                                                                  "PatliteAlreadyExist",
                                                                  "PatliteBadHost",
                                                                  "StopScheduling",
                                                                  "CategoryExisted",
                                                                  "CategorySelected",
                                                                  "AppleTalkNeedRebootAfp",
                                                                  "AppleTalkNeedRebootDriver",
                                                                  "CollectLogDuplicated",
                                                                  "JobProcError",
                                                                  "TagAlreadyExist",
                                                                  "ExceedTagCount",
                                                                  "RequestDuplicated",
                                                                  "Error"};

constexpr std::array<std::string_view, 51> kResourceResultNames = {"OK",
                                                                   "Error",
                                                                   "RscSetMaxEntry",
                                                                   "RscMaxEntry",
                                                                   "RscSetNotExist",
                                                                   "RscExist",
                                                                   "RscNotExist",
                                                                   "RscModifyNG",
                                                                   "RscUsing",
                                                                   "DiskFull",
                                                                   "IllegalData",
                                                                   "RscLocked",
                                                                   "PatternNotExist",
                                                                   "UnmatchPatch",
                                                                   "UnknError",
                                                                   "Unsupperted",
                                                                   "Aborted",
                                                                   "AllocateError",
                                                                   "InifileError",
                                                                   "PressCovNonR",
                                                                   "PressCovNonG",
                                                                   "PressCovNonB",
                                                                   "PressCovNonW",
                                                                   "PressCovNonC",
                                                                   "PressCovNonM",
                                                                   "PressCovNonY",
                                                                   "PressCovNonK",
                                                                   "PrinterCovNonW",
                                                                   "PrinterCovNonC",
                                                                   "PrinterCovNonM",
                                                                   "PrinterCovNonY",
                                                                   "PrinterCovNonK",
                                                                   "PressNumberDifferent",
                                                                   "PrinterNumberDifferent",
                                                                   "IllegalParam",
                                                                   "IllegalProfile",
                                                                   "ReadError",
                                                                   "WriteError",
                                                                   "DataError",
                                                                   "IllegalDataFormat",
                                                                   "AdditionalCMYK",
                                                                   "InndevDataError",
                                                                   "OutdevDataError",
                                                                   "RetryError",
                                                                   "RetryErrorDetail",
                                                                   "IccMwpError",
                                                                   "FileCannotFeedBack",
                                                                   "MesfileError",
                                                                   "FbdeltaeToomuch",
                                                                   "FbprofFormatError",
                                                                   "IccVersionError"};

constexpr std::array<std::string_view, 6> kCmsResResultNames = {
    "OK", "Error", "RscExist", "CalibTrayAssignError", "CalibStkAssignError", "CalibPrtPapsizeTooSmall"};

std::int32_t numberOf(std::span<const std::string_view> names, std::string_view name) {
    for (std::size_t index = 0; index < names.size(); ++index)
        if (names[index] == name) return static_cast<std::int32_t>(index + 1);
    return 0;
}

std::string nameOf(std::span<const std::string_view> names, std::int32_t value) {
    if (value < 1 || static_cast<std::size_t>(value) > names.size()) return {};
    return std::string(names[static_cast<std::size_t>(value) - 1]);
}

}  // namespace

PrintService_ServiceResult PrintService_ServiceResult_enumFromString(std::string_view name) {
    return static_cast<PrintService_ServiceResult>(numberOf(kServiceResultNames, name));
}

std::string PrintService_ServiceResult_stringFromEnum(PrintService_ServiceResult value) {
    return nameOf(kServiceResultNames, value);
}

PrintService_ResourceResult PrintService_ResourceResult_enumFromString(std::string_view name) {
    return static_cast<PrintService_ResourceResult>(numberOf(kResourceResultNames, name));
}

std::string PrintService_ResourceResult_stringFromEnum(PrintService_ResourceResult value) {
    return nameOf(kResourceResultNames, value);
}

PrintService_CmsResResult PrintService_CmsResResult_enumFromString(std::string_view name) {
    return static_cast<PrintService_CmsResResult>(numberOf(kCmsResResultNames, name));
}

std::string PrintService_CmsResResult_stringFromEnum(PrintService_CmsResResult value) {
    return nameOf(kCmsResResultNames, value);
}
