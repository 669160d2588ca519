#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "core/PreferredLanguages.h"
#include "print_service/LoopbackHttpServer.h"
#include "print_service/PrintService.h"
#include "print_service/PrintServiceSoap.h"

using namespace OstrinTest;

namespace {

const std::string kEnvelopeStart =
    R"(<s:Envelope xmlns:s="http://schemas.xmlsoap.org/soap/envelope/">)"
    R"(<s:Body xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" xmlns:xsd="http://www.w3.org/2001/XMLSchema">)";
const std::string kEnvelopeEnd = "</s:Body></s:Envelope>";

struct OperationCall {
    std::string name;
    std::function<PrintServiceSoapResponse(PrintServiceSoap&)> call;
    std::string requestElement;
};

std::vector<OperationCall> allOperations() {
    PrintService_GetJobResourceList jobResources;
    jobResources.type = 3;
    jobResources.select = "SYSTEM_DEFAULT";
    return {
        {"getStackerInfoList", [](auto& b) { return b.getStackerInfoListUsingParameters({}); },
         R"(<getStackerInfoList xmlns="qv:vorn"><iotId>1</iotId></getStackerInfoList>)"},
        {"getFeederInfoList", [](auto& b) { return b.getFeederInfoListUsingParameters({}); },
         R"(<getFeederInfoList xmlns="qv:vorn"><iotId>1</iotId></getFeederInfoList>)"},
        {"getJobFolderList", [](auto& b) { return b.getJobFolderListUsingParameters({}); },
         R"(<getJobFolderList xmlns="qv:vorn"/>)"},
        {"getPrePostDeviceList", [](auto& b) { return b.getPrePostDeviceListUsingParameters({}); },
         R"(<getPrePostDeviceList xmlns="qv:vorn"><iotId>1</iotId></getPrePostDeviceList>)"},
        {"getCmsSpotGetAllListData", [](auto& b) { return b.getCmsSpotGetAllListDataUsingParameters({}); },
         R"(<getCmsSpotGetAllListData xmlns="qv:vorn"><dict d="0"><item key="Print"><val xsi:type="xsd:string">1</val>)"
         R"(</item><item key="ColorMode"><val xsi:type="xsd:int">1</val></item><item key="ProfileType">)"
         R"(<val xsi:type="xsd:string"/></item><item key="ProfileName"><val xsi:type="xsd:string"/></item>)"
         R"(<item key="Intent"><val xsi:type="xsd:int">2</val></item><item key="iotId">)"
         R"(<val xsi:type="xsd:unsignedInt">1</val></item><item key="IsWithouDelete">)"
         R"(<val xsi:type="xsd:boolean">true</val></item></dict></getCmsSpotGetAllListData>)"},
        {"getSpotColorAllInfoListData", [](auto& b) { return b.getSpotColorAllInfoListDataUsingParameters({}); },
         R"(<getSpotColorAllInfoListData xmlns="qv:vorn"><dict d="0"><item key="iotId">)"
         R"(<val xsi:type="xsd:unsignedInt">1</val></item></dict></getSpotColorAllInfoListData>)"},
        {"getColorSubstListData", [](auto& b) { return b.getColorSubstListDataUsingParameters({}); },
         R"(<getColorSubstListData xmlns="qv:vorn"><dict d="0"><item key="IotId"><val xsi:type="xsd:int">1</val>)"
         R"(</item></dict></getColorSubstListData>)"},
        {"GetJobResourceList",
         [jobResources](auto& b) { return b.GetJobResourceListUsingParameters(jobResources); },
         R"(<GetJobResourceList xmlns="qv:vorn"><type>3</type><select>SYSTEM_DEFAULT</select></GetJobResourceList>)"},
        {"getJobResourceSetList", [](auto& b) { return b.getJobResourceSetListUsingParameters({}); },
         R"(<GetJobResourceSetList xmlns="qv:vorn"><type>0</type></GetJobResourceSetList>)"},
        {"getCalibFileList", [](auto& b) { return b.getCalibFileListUsingParameters({}); },
         R"(<getCalibFileList xmlns="qv:vorn"><initDict d="0"><item key="IotId">)"
         R"(<val xsi:type="xsd:unsignedInt">1</val></item></initDict></getCalibFileList>)"},
        {"getDensityAdjustProfileList", [](auto& b) { return b.getDensityAdjustProfileListUsingParameters({}); },
         R"(<getDensityAdjustProfileList xmlns="qv:vorn"><iotId>1</iotId><resourceSet>SYSTEM_DEFAULT</resourceSet>)"
         R"(</getDensityAdjustProfileList>)"},
        {"getUserTrcProfileList", [](auto& b) { return b.getUserTrcProfileListUsingParameters({}); },
         R"(<getUserTrcProfileList xmlns="qv:vorn"><iotId>1</iotId><resourceSet>SYSTEM_DEFAULT</resourceSet>)"
         R"(</getUserTrcProfileList>)"},
        {"getFontList", [](auto& b) { return b.getFontListUsingParameters({}); },
         R"(<getFontList xmlns="qv:vorn"><lang>en-US</lang></getFontList>)"},
        {"getOutputProfileList", [](auto& b) { return b.getOutputProfileListUsingParameters({}); },
         R"(<getOutputProfileList xmlns="qv:vorn"><iotId>1</iotId></getOutputProfileList>)"},
        {"getRGBInputProfileList", [](auto& b) { return b.getRGBInputProfileListUsingParameters({}); },
         R"(<getRGBInputProfileList xmlns="qv:vorn"/>)"},
        {"getCMYKInputProfileList", [](auto& b) { return b.getCMYKInputProfileListUsingParameters({}); },
         R"(<getCMYKInputProfileList xmlns="qv:vorn"/>)"},
        {"getDeviceLinkFileList", [](auto& b) { return b.getDeviceLinkFileListUsingParameters({}); },
         R"(<getDeviceLinkFileList xmlns="qv:vorn"><initDict d="0"><item key="IotId">)"
         R"(<val xsi:type="xsd:int">1</val></item></initDict></getDeviceLinkFileList>)"},
    };
}

// The font list request as sent with the preferred languages of the environment.
std::string fontListRequestWith(const char* languages) {
    ::setenv("LANGUAGE", languages, 1);
    ComQuorvantVelmar_Plugin::PreferredLanguages::setFirst("");
    LoopbackHttpServer server({CannedReply::soap("")});
    PrintService::PrintServiceSoap(server.address())->getFontListUsingParameters({});
    auto requests = server.requests();
    return requests.empty() ? std::string() : requests[0].body;
}

}  // namespace

TEST(PrintServiceRequest, EveryOperationSendsItsEnvelopeByteForByte) {
    ComQuorvantVelmar_Plugin::PreferredLanguages::setFirst("en-GB");
    const std::vector<OperationCall> operations = allOperations();
    ASSERT_EQ(operations.size(), 17u);
    std::vector<CannedReply> replies(operations.size(), CannedReply::soap(""));
    LoopbackHttpServer server(replies);
    auto binding = PrintService::PrintServiceSoap(server.address());
    for (const OperationCall& operation : operations) {
        PrintServiceSoapResponse response = operation.call(*binding);
        EXPECT_FALSE(response.error) << operation.name << ": " << response.error->description();
    }
    const std::vector<RecordedRequest> requests = server.requests();
    ASSERT_EQ(requests.size(), operations.size());
    for (std::size_t index = 0; index < operations.size(); ++index) {
        SCOPED_TRACE(operations[index].name);
        EXPECT_EQ(requests[index].requestLine, "POST / HTTP/1.1");
        EXPECT_EQ(requests[index].body, kEnvelopeStart + operations[index].requestElement + kEnvelopeEnd);
    }
    ComQuorvantVelmar_Plugin::PreferredLanguages::setFirst("");
}

TEST(PrintServiceRequest, HeaderFieldsComeInTheirOrderAndNothingElse) {
    LoopbackHttpServer server({CannedReply::soap("")});
    PrintService::PrintServiceSoap(server.address())->getJobFolderListUsingParameters({});
    ASSERT_EQ(server.requests().size(), 1u);
    const RecordedRequest request = server.requests()[0];
    EXPECT_EQ(request.headerNames(),
              (std::vector<std::string>{"User-Agent", "SOAPAction", "Content-Type", "Content-Length", "Host"}));
    EXPECT_EQ(request.header("User-Agent")->rfind("OstrinFlow/", 0), 0u);
    EXPECT_EQ(request.header("SOAPAction"), "");
    EXPECT_EQ(request.header("Content-Type"), "text/xml; charset=utf-8");
    EXPECT_EQ(request.header("Content-Length"), std::to_string(request.body.size()));
    EXPECT_EQ(request.header("Host"), "127.0.0.1");
}

TEST(PrintServiceRequest, FontListAsksInJapaneseOnlyWhenJapaneseComesFirst) {
    const char* saved = std::getenv("LANGUAGE");
    const std::string previous = saved ? saved : "";
    EXPECT_NE(fontListRequestWith("ja_JP").find("<lang>ja-HJP</lang>"), std::string::npos);
    EXPECT_NE(fontListRequestWith("en_GB").find("<lang>en-US</lang>"), std::string::npos);
    EXPECT_NE(fontListRequestWith("de_DE:ja_JP").find("<lang>en-US</lang>"), std::string::npos);
    ::setenv("LANGUAGE", previous.c_str(), 1);
    ComQuorvantVelmar_Plugin::PreferredLanguages::setFirst("");
}
