#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "core/PreferredLanguages.h"
#include "print_service/LoopbackHttpServer.h"
#include "print_service/PrintService.h"
#include "print_service/PrintServiceRequests.h"
#include "print_service/PrintServiceSoap.h"
#include "print_service/PrintServiceSoapOperations.h"
#include "print_service/PrintServiceSoap_envelope.h"
#include "print_service/PrintService_PropKeyValue.h"
#include "print_service/SOAPFault.h"

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

const std::string kEnvelopeOpen =
    R"(<s:Envelope xmlns:s="http://schemas.xmlsoap.org/soap/envelope/" )"
    R"(xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance" xmlns:xsd="http://www.w3.org/2001/XMLSchema" )"
    R"(xmlns:PrintService="qv:vorn">)";

std::shared_ptr<PrintService_PropKeyValue> item(std::string key, PrintServiceValue value) {
    auto keyValue = std::make_shared<PrintService_PropKeyValue>();
    keyValue->key = std::move(key);
    keyValue->val = std::move(value);
    return keyValue;
}

std::string bodyOf(const std::string& envelope) {
    const std::size_t start = envelope.find("<s:Body>");
    const std::size_t end = envelope.find("</s:Body>");
    return start == std::string::npos || end == std::string::npos ? envelope
                                                                  : envelope.substr(start + 8, end - start - 8);
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

TEST(PrintServiceSerialization, EnvelopeHasHeaderAndBodyOnlyWhenGiven) {
    auto& envelope = PrintServiceSoap_envelope::sharedInstance();
    EXPECT_EQ(envelope.serializedFormUsingHeaderElements({}, {}),
              "<?xml version=\"1.0\"?>\n" + kEnvelopeOpen.substr(0, kEnvelopeOpen.size() - 1) + "/>\n");
    PrintService_getFontList fonts;
    fonts.lang = "en-US";
    EXPECT_EQ(envelope.serializedFormUsingHeaderElements({}, {{"getFontList", &fonts}}),
              "<?xml version=\"1.0\"?>\n" + kEnvelopeOpen +
                  "<s:Body><PrintService:getFontList><PrintService:lang>en-US</PrintService:lang>"
                  "</PrintService:getFontList></s:Body></s:Envelope>\n");
    const std::string both = envelope.serializedFormUsingHeaderElements({{"h", &fonts}}, {{"b", &fonts}});
    EXPECT_NE(both.find("<s:Header><PrintService:h>"), std::string::npos);
    EXPECT_NE(both.find("</s:Header><s:Body><PrintService:b>"), std::string::npos);
}

TEST(PrintServiceSerialization, ValueTypesWriteTypeKeyCountAndItemsInOrder) {
    auto nested = std::make_shared<PrintService_PropArray>();
    nested->addItem(PrintServiceValue("x < y"));
    nested->addItem(std::nullopt);
    nested->addItem(std::shared_ptr<PrintService_PropDict>());
    PrintService_getCalibFileList request;
    request.initDict = std::make_shared<PrintService_PropDict>();
    request.initDict->d = 2;
    request.initDict->addItem(item("IotId", "1"));
    request.initDict->addItem(item("List", nested));
    EXPECT_EQ(request.initDict->item.size(), 2u);
    EXPECT_EQ(nested->item.size(), 1u);
    const std::string body = bodyOf(PrintServiceSoap_envelope::sharedInstance().serializedFormUsingHeaderElements(
        {}, {{"getCalibFileList", &request}}));
    EXPECT_EQ(
        body,
        R"(<PrintService:getCalibFileList><PrintService:initDict xsi:type="PrintService:PropDict" d="2">)"
        R"(<PrintService:item xsi:type="PrintService:PropKeyValue" key="IotId"><PrintService:val>1</PrintService:val>)"
        R"(</PrintService:item><PrintService:item xsi:type="PrintService:PropKeyValue" key="List">)"
        R"(<PrintService:val xsi:type="PrintService:PropArray"><PrintService:item>x &lt; y</PrintService:item>)"
        R"(</PrintService:val></PrintService:item></PrintService:initDict></PrintService:getCalibFileList>)");
}

// The transport tests read a single exception name and its stack; a repeated name stays.
TEST(PrintServiceSerialization, SimpleFaultStringDropsOnlyTheFirstExceptionNameAndTheStack) {
    SOAPFault fault;
    fault.faultstring =
        "System.Web.Services.Protocols.SoapException: System.Web.Services.Protocols.SoapException: "
        "twice\nno trace";
    EXPECT_EQ(fault.simpleFaultString(), "twice\nno trace");
}
