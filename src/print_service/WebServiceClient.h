#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "print_service/PrintServiceSoapError.h"

namespace ComQuorvantVelmar_Plugin {

/// One row of a print server list: its columns.
using ServerRow = std::vector<std::string>;
/// A print server list: rows in the server's order.
using ServerRowList = std::vector<ServerRow>;

/// Fetches the print server's resource lists as rows of strings. Each list method makes one
/// synchronous call to the printer's host (a host name, IPv4 or IPv6 literal) and answers
/// nothing when the call cannot be made (no address, a host application that must not
/// contact the server), an empty list when the reply cannot be used (or the address holds
/// characters no host has), else the rows.
class WebServiceClient {
public:
    /// The print server's port on the printer's host.
    static constexpr int kDefaultPort = 8888;

    /// The print server's port; 8888 unless set.
    int port() const { return _port; }
    void setPort(int port) { _port = port; }
    /// Request timeout in seconds; 30 unless set.
    double timeout() const { return _timeout; }
    void setTimeout(double seconds) { _timeout = seconds; }
    /// The error of the last call (transport, authentication, malformed reply); nothing when
    /// the last call had none.
    const std::optional<PrintServiceSoapError>& lastResponseError() const { return _lastResponseError; }

    /// [value, "Type"] for each stacker.
    std::optional<ServerRowList> getStackerInfoList(std::string_view address);
    /// [value, "Number"] for each feeder.
    std::optional<ServerRowList> getFeederInfoList(std::string_view address);
    /// [value, key] for each item of the finishing device dictionary.
    std::optional<ServerRowList> getDeviceList(std::string_view address);
    /// ["index-name", paper identifier] for each custom paper entry.
    std::optional<ServerRowList> getPrePostDeviceList(std::string_view address);
    /// The shared job folder first, then [name, name] for each job folder.
    std::optional<ServerRowList> getJobFolderList(std::string_view address);
    /// Spot colours: category, name, ink type, Lab and CMYK values.
    std::optional<ServerRowList> getCmsSpotGetAllListData(std::string_view address);
    /// Spot colours: name and spot type.
    std::optional<ServerRowList> getSpotColorAllInfoListData(std::string_view address);
    /// Colour substitution tables: name, comment, modification time.
    std::optional<ServerRowList> getColorSubstList(std::string_view address);
    /// Job resources of resourceType in the system's default set: name, comment, date.
    std::optional<ServerRowList> GetJobResourceList(std::string_view address, int resourceType);
    /// Job resources of resourceType in resourceset: name, comment, date.
    std::optional<ServerRowList> GetJobResourceListWithResourceSet(std::string_view address, int resourceType,
                                                                   const std::string& resourceset);
    /// Job resource sets: name, memo, date, toner target.
    std::optional<ServerRowList> getJobResourceSetList(std::string_view address);
    /// Calibration files: name, comment, date, toner target.
    std::optional<ServerRowList> getCalibFileList(std::string_view address);
    /// Density adjustment profiles: name, comment, date.
    std::optional<ServerRowList> getDensityAdjustProfileList(std::string_view address);
    /// Tone curve profiles: name, comment, date.
    std::optional<ServerRowList> getUserTrcProfileList(std::string_view address);
    /// Fonts: display name, font name; standard fonts, then optional fonts.
    std::optional<ServerRowList> getFontList(std::string_view address);
    /// Output profiles of kind type (0 colorimetry, 1 ICC; others none): name, comment, date.
    std::optional<ServerRowList> getOutputProfileFileList(std::string_view address, int type);
    /// RGB input profiles: name, comment, date.
    std::optional<ServerRowList> getRGBInputProfileFileList(std::string_view address);
    /// CMYK input profiles of kind type (0 colorimetry, 1 ICC; others none): name, comment, date.
    std::optional<ServerRowList> getCMYKInputProfileFileList(std::string_view address, int type);
    /// Device link files: name, comment, modification time.
    std::optional<ServerRowList> getDeviceLinkFileList(std::string_view address);

    /// Whether this program may contact the print server: false when its name contains
    /// "Adobe Reader" or "Acrobat", true otherwise (and when the name cannot be read).
    static bool isCommunicationPossible();
    /// Whether address holds only letters, digits and the marks of host names and IPv4 or
    /// IPv6 literals with a zone (".-_:%[]"); false for "".
    static bool isHostAddress(std::string_view address);
    /// address as the host of a URL: an IPv6 literal (it contains ":") in brackets with its
    /// zone's "%" written "%25"; a host name or IPv4 address unchanged.
    static std::string convertUrlAddress(std::string_view address);

private:
    template <class Response, class Call, class Request, class Accept, class Collect>
    std::optional<ServerRowList> _rows(std::string_view address, Call call, const Request& request, Accept accept,
                                       Collect collect, std::size_t capacity = 0);

    int _port = kDefaultPort;
    double _timeout = 30.0;
    std::optional<PrintServiceSoapError> _lastResponseError;
};

}  // namespace ComQuorvantVelmar_Plugin
