#include <gtest/gtest.h>

#include <string>

#include "print_service/PrintServiceResultCodes.h"
#include "print_service/PrintServiceSoap.h"
#include "print_service/PrintServiceSoapOperations.h"
#include "print_service/PrintServiceSoap_envelope.h"
#include "print_service/PrintService_PropKeyValue.h"
#include "print_service/SOAPFault.h"
#include "print_service/SoapReplies.h"

using namespace OstrinTest;

namespace {

// Feeds reply to an operation as its connection would, and answers what it decoded.
template <class Operation>
PrintServiceSoapResponse decoded(const std::string& reply) {
    PrintServiceSoap binding("http://127.0.0.1:9");
    Operation operation(binding, &binding, {});
    operation.connectionDidReceiveData(reply);
    operation.connectionDidFinishLoading();
    return operation.response();
}

// The dictionary of a pre/post device reply whose dict holds items.
std::shared_ptr<const PrintService_PropDict> dictionaryOf(const std::string& items,
                                                          const std::string& dictAttributes = "") {
    auto response = decoded<PrintServiceSoap_getPrePostDeviceList>(
        soapReply(R"(<getPrePostDeviceResponse xmlns="qv:vorn" xmlns:q="qv:vorn"><dict)" + dictAttributes + ">" +
                  items + "</dict><status>OK</status></getPrePostDeviceResponse>"));
    auto parts = response.bodyPartsOfType<PrintService_getPrePostDeviceResponse>();
    return parts.size() == 1 ? parts[0]->dict : nullptr;
}

const PrintService_PropKeyValue& keyValue(const PrintService_PropDict& dictionary, std::size_t index) {
    return *PrintServiceValueObject<PrintService_PropKeyValue>(dictionary.item.at(index));
}

std::string text(const PrintService_PropKeyValue& item) {
    return item.val && PrintServiceValueString(*item.val) ? *PrintServiceValueString(*item.val) : "<none>";
}

}  // namespace

TEST(PrintServiceReplyDecoding, ScalarValuesArriveAsTheirTextWhateverTheirSchemaType) {
    auto dictionary = dictionaryOf(R"(<item key="a"><val xsi:type="xsd:string">ABC</val></item>)"
                                   R"(<item key="b"><val xsi:type="xsd:int">3</val></item>)"
                                   R"(<item key="c"><val>plain &amp; simple</val></item>)"
                                   R"(<item key="d"><val/></item>)"
                                   R"(<item key="e"><val xsi:type="undeclared:int">7</val></item>)"
                                   R"(<item key="f"><val xsi:type="xsd:boolean">true</val></item>)");
    ASSERT_TRUE(dictionary);
    ASSERT_EQ(dictionary->item.size(), 6u);
    EXPECT_EQ(text(keyValue(*dictionary, 0)), "ABC");
    EXPECT_EQ(text(keyValue(*dictionary, 1)), "3");
    EXPECT_EQ(text(keyValue(*dictionary, 2)), "plain & simple");
    EXPECT_FALSE(keyValue(*dictionary, 3).val);
    EXPECT_EQ(keyValue(*dictionary, 3).key, "d");
    EXPECT_EQ(text(keyValue(*dictionary, 4)), "7");
    EXPECT_EQ(text(keyValue(*dictionary, 5)), "true");
}

TEST(PrintServiceReplyDecoding, TypesOfThePrintServiceNamespaceNestValues) {
    auto dictionary = dictionaryOf(
        R"(<item key="dict"><val xsi:type="q:PropDict"><item key="x"><val>1</val></item></val></item>)"
        R"(<item key="array"><val xsi:type="alias:PropArray" xmlns:alias="qv:vorn"><item>s</item>)"
        R"(<item xsi:type="xsd:string">typed</item><item/><item xsi:type="q:PropKeyValue" key="k"/></val></item>)"
        R"(<item key="foreign"><val xsi:type="f:PropDict" xmlns:f="urn:other"><item>in</item></val></item>)"
        R"(<item key="named"><val xsi:type="PrintService_PropDict"/></item>)"
        R"(<item key="bare"><val xsi:type="PropDict">bare text</val></item>)");
    ASSERT_TRUE(dictionary);
    ASSERT_EQ(dictionary->item.size(), 5u);
    const auto* nested = PrintServiceValueObject<PrintService_PropDict>(*keyValue(*dictionary, 0).val);
    ASSERT_TRUE(nested);
    EXPECT_EQ(text(keyValue(*nested, 0)), "1");
    const auto* array = PrintServiceValueObject<PrintService_PropArray>(*keyValue(*dictionary, 1).val);
    ASSERT_TRUE(array);
    ASSERT_EQ(array->item.size(), 2u);
    EXPECT_EQ(*PrintServiceValueString(array->item[0]), "s");
    EXPECT_EQ(PrintServiceValueObject<PrintService_PropKeyValue>(array->item[1])->key, "k");
    EXPECT_EQ(text(keyValue(*dictionary, 2)), "in");
    EXPECT_TRUE(PrintServiceValueObject<PrintService_PropDict>(*keyValue(*dictionary, 3).val));
    EXPECT_EQ(text(keyValue(*dictionary, 4)), "bare text");
}

TEST(PrintServiceReplyDecoding, KeyValueTakesTheTextOfAnyChildAndTheObjectOfVal) {
    auto dictionary = dictionaryOf(
        R"(<item key="note"><note>from a note</note></item>)"
        R"(<item key="later"><val xsi:type="q:PropArray"><item>x</item></val><note>after</note></item>)"
        R"(<item key="object"><note>before</note><val xsi:type="q:PropArray"/></item>)"
        R"(<item><val>no key</val></item>)");
    ASSERT_TRUE(dictionary);
    ASSERT_EQ(dictionary->item.size(), 4u);
    EXPECT_EQ(text(keyValue(*dictionary, 0)), "from a note");
    EXPECT_EQ(text(keyValue(*dictionary, 1)), "after");
    EXPECT_TRUE(PrintServiceValueObject<PrintService_PropArray>(*keyValue(*dictionary, 2).val));
    EXPECT_FALSE(keyValue(*dictionary, 3).key);
    EXPECT_EQ(keyValue(*dictionary, 3).attributes().size(), 0u);
    EXPECT_EQ(keyValue(*dictionary, 0).attributes().at("key"), "note");
}

TEST(PrintServiceReplyDecoding, DictionaryKeepsItemOrderAndItsCount) {
    auto dictionary = dictionaryOf(R"(<item key="1"><val>a</val></item><item xsi:type="q:PropDict"/>)"
                                   R"(<other key="2"/><item xsi:type="xsd:int">5</item>)",
                                   R"( d="12")");
    ASSERT_TRUE(dictionary);
    EXPECT_EQ(dictionary->d, 12);
    ASSERT_EQ(dictionary->item.size(), 2u);
    EXPECT_TRUE(PrintServiceValueObject<PrintService_PropKeyValue>(dictionary->item[0]));
    EXPECT_TRUE(PrintServiceValueObject<PrintService_PropDict>(dictionary->item[1]));
    EXPECT_FALSE(dictionaryOf("", R"( d="many")")->d);
}

TEST(PrintServiceReplyDecoding, ResultNamesAreMatchedExactly) {
    auto statusOf = [](const std::string& status) {
        auto response = decoded<PrintServiceSoap_getStackerInfoList>(
            soapReply(R"(<getStackerInfoListResponse xmlns="qv:vorn"><status>)" + status +
                      "</status></getStackerInfoListResponse>"));
        auto parts = response.bodyPartsOfType<PrintService_getStackerInfoListResponse>();
        return parts.empty() ? -1 : static_cast<int>(parts[0]->status);
    };
    EXPECT_EQ(statusOf("OK"), 1);
    EXPECT_EQ(statusOf("ok"), 0);
    EXPECT_EQ(statusOf(" OK"), 0);
    EXPECT_EQ(statusOf("Error"), 41);
    EXPECT_EQ(statusOf("RequestDuplicated"), 40);
}

TEST(PrintServiceReplyDecoding, JobResourceVerdictsAreBooleanAndNumber) {
    auto verdicts = [](const std::string& fields) {
        auto response = decoded<PrintServiceSoap_GetJobResourceList>(soapReply(
            R"(<GetJobResourceListResponse xmlns="qv:vorn">)" + fields + "</GetJobResourceListResponse>"));
        return response.bodyPartsOfType<PrintService_GetJobResourceListResponse>().at(0);
    };
    auto set = verdicts("<bResult>true</bResult><nDetail>2.5</nDetail>");
    EXPECT_EQ(set->bResult, USBoolean(true));
    EXPECT_EQ(set->nDetail, 2.5);
    auto odd = verdicts("<bResult>yes</bResult><nDetail>abc</nDetail>");
    EXPECT_FALSE(odd->bResult);
    EXPECT_EQ(odd->nDetail, 0.0);
    auto absent = verdicts("<bResult>false</bResult>");
    EXPECT_EQ(absent->bResult, USBoolean(false));
    EXPECT_FALSE(absent->nDetail);
    EXPECT_EQ(absent->status, PrintService_ServiceResult_none);
    EXPECT_FALSE(absent->resInfo);
}

TEST(PrintServiceReplyDecoding, ListFieldTypedAsAnotherValueIsLeftAbsent) {
    auto response = decoded<PrintServiceSoap_getStackerInfoList>(
        soapReply(R"(<getStackerInfoListResponse xmlns="qv:vorn" xmlns:q="qv:vorn"><ary xsi:type="q:PropDict"/>)"
                  R"(<status>OK</status></getStackerInfoListResponse>)"));
    auto parts = response.bodyPartsOfType<PrintService_getStackerInfoListResponse>();
    ASSERT_EQ(parts.size(), 1u);
    EXPECT_FALSE(parts[0]->ary);
    EXPECT_EQ(parts[0]->status, PrintService_ServiceResult_OK);
}

TEST(PrintServiceReplyDecoding, BodyPartsComeFromTheLastBodyInDocumentOrder) {
    const std::string font = R"(<getFontListResponse xmlns="qv:vorn"><result>OK</result></getFontListResponse>)";
    auto twoBodies = decoded<PrintServiceSoap_getFontList>(
        "<Reply><Body>" + font + font + "</Body><x:Body xmlns:x=\"urn:any\"><!-- c -->text<?pi data?>" + font +
        R"(<soap:Fault xmlns:soap="http://schemas.xmlsoap.org/soap/envelope/"><faultstring>f</faultstring></soap:Fault>)"
        "</x:Body></Reply>");
    EXPECT_FALSE(twoBodies.error);
    ASSERT_EQ(twoBodies.bodyParts.size(), 2u);
    EXPECT_TRUE(std::dynamic_pointer_cast<PrintService_getFontListResponse>(twoBodies.bodyParts[0]));
    EXPECT_TRUE(std::dynamic_pointer_cast<SOAPFault>(twoBodies.bodyParts[1]));

    auto unknown = decoded<PrintServiceSoap_getFontList>(soapReply("<getStackerInfoListResponse/>"));
    EXPECT_FALSE(unknown.error);
    EXPECT_TRUE(unknown.bodyParts.empty());
}

TEST(PrintServiceReplyDecoding, MalformedReplyIsReportedTwiceAndTolerated) {
    class Counting : public PrintServiceSoapResponseDelegate {
    public:
        void operationCompletedWithResponse(PrintServiceSoapOperation&, const PrintServiceSoapResponse&) override {
            ++calls;
        }
        int calls = 0;
    } delegate;
    PrintServiceSoap binding("http://127.0.0.1:9");
    PrintServiceSoap_getFontList operation(binding, &delegate, {});
    operation.connectionDidReceiveData("<broken");
    operation.connectionDidFinishLoading();
    EXPECT_EQ(delegate.calls, 2);
    EXPECT_TRUE(operation.response().error);

    PrintServiceSoap_getFontList silent(binding, &delegate, {});
    silent.connectionDidReceiveData("");
    silent.connectionDidFinishLoading();
    EXPECT_EQ(delegate.calls, 2);
    EXPECT_FALSE(silent.responseData());
}

TEST(PrintServiceReplyDecoding, ResponseWrittenBySerializationReadsBackAsItWas) {
    PrintService_GetJobResourceListResponse written;
    written.resInfo = std::make_shared<PrintService_PropArray>();
    auto record = std::make_shared<PrintService_PropDict>();
    auto name = std::make_shared<PrintService_PropKeyValue>();
    name->key = "JobRecListName";
    name->val = PrintServiceValue("Booklet");
    record->addItem(name);
    written.resInfo->addItem(record);
    written.status = PrintService_ServiceResult_enumFromString("JobNotFound");
    written.bResult = USBoolean(false);
    written.nDetail = 4.5;
    const std::string envelope = PrintServiceSoap_envelope::sharedInstance().serializedFormUsingHeaderElements(
        {}, {{"GetJobResourceListResponse", &written}});
    auto parts = decoded<PrintServiceSoap_GetJobResourceList>(envelope)
                     .bodyPartsOfType<PrintService_GetJobResourceListResponse>();
    ASSERT_EQ(parts.size(), 1u) << envelope;
    const auto& read = *parts[0];
    EXPECT_EQ(read.status, 7);
    EXPECT_EQ(read.bResult, USBoolean(false));
    EXPECT_EQ(read.nDetail, 4.5);
    ASSERT_TRUE(read.resInfo);
    ASSERT_EQ(read.resInfo->item.size(), 1u);
    const auto* readRecord = PrintServiceValueObject<PrintService_PropDict>(read.resInfo->item[0]);
    ASSERT_TRUE(readRecord);
    EXPECT_EQ(keyValue(*readRecord, 0).key, "JobRecListName");
    EXPECT_EQ(text(keyValue(*readRecord, 0)), "Booklet");
}
