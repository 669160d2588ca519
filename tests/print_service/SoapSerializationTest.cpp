#include <gtest/gtest.h>

#include <string>

#include "print_service/PrintServiceRequests.h"
#include "print_service/PrintServiceResultCodes.h"
#include "print_service/PrintServiceSoap.h"
#include "print_service/PrintServiceSoapOperations.h"
#include "print_service/PrintServiceSoap_envelope.h"
#include "print_service/PrintService_PropKeyValue.h"
#include "print_service/SOAPFault.h"

namespace {

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

TEST(PrintServiceSerialization, WrittenResponseReadsBackAsItWas) {
    PrintService_GetJobResourceListResponse written;
    written.resInfo = std::make_shared<PrintService_PropArray>();
    auto record = std::make_shared<PrintService_PropDict>();
    record->addItem(item("JobRecListName", "Booklet"));
    written.resInfo->addItem(record);
    written.status = PrintService_ServiceResult_enumFromString("JobNotFound");
    written.bResult = USBoolean(false);
    written.nDetail = 4.5;
    const std::string envelope = PrintServiceSoap_envelope::sharedInstance().serializedFormUsingHeaderElements(
        {}, {{"GetJobResourceListResponse", &written}});

    PrintServiceSoap binding("http://127.0.0.1:9");
    PrintServiceSoap_GetJobResourceList operation(binding, &binding, {});
    operation.connectionDidReceiveData(envelope);
    operation.connectionDidFinishLoading();
    auto parts = operation.response().bodyPartsOfType<PrintService_GetJobResourceListResponse>();
    ASSERT_EQ(parts.size(), 1u) << envelope;
    const auto& read = *parts[0];
    EXPECT_EQ(read.status, 7);
    EXPECT_EQ(read.bResult, USBoolean(false));
    EXPECT_EQ(read.nDetail, 4.5);
    ASSERT_TRUE(read.resInfo);
    ASSERT_EQ(read.resInfo->item.size(), 1u);
    const auto* readRecord = PrintServiceValueObject<PrintService_PropDict>(read.resInfo->item[0]);
    ASSERT_TRUE(readRecord);
    const auto* readItem = PrintServiceValueObject<PrintService_PropKeyValue>(readRecord->item.at(0));
    EXPECT_EQ(readItem->key, "JobRecListName");
    EXPECT_EQ(*PrintServiceValueString(*readItem->val), "Booklet");
}

TEST(PrintServiceSerialization, SimpleFaultStringDropsExceptionNameAndStack) {
    SOAPFault fault;
    fault.faultstring = "System.Web.Services.Protocols.SoapException: Queue held\n   at Press.Queue()\n   at X";
    EXPECT_EQ(fault.simpleFaultString(), "Queue held");
    fault.faultstring =
        "System.Web.Services.Protocols.SoapException: System.Web.Services.Protocols.SoapException: "
        "twice\nno trace";
    EXPECT_EQ(fault.simpleFaultString(), "twice\nno trace");
}
