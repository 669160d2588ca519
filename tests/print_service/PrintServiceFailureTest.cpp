// A print server that fails while it answers: the call ends with a transport error, the
// panel's list stays empty, and the binding serves the next call as if nothing happened.
#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "print_service/LoopbackHttpServer.h"
#include "print_service/PrintService.h"
#include "print_service/PrintServiceResponses.h"
#include "print_service/PrintServiceSoap.h"
#include "print_service/SoapReplies.h"
#include "print_service/WebServiceClient.h"

using namespace OstrinTest;
using ComQuorvantVelmar_Plugin::ServerRowList;
using ComQuorvantVelmar_Plugin::WebServiceClient;

namespace {

const std::string kFontReply =
    soapReply(R"(<getFontListResponse xmlns="qv:vorn"><result>OK</result></getFontListResponse>)");

std::unique_ptr<PrintServiceSoap> bindingFor(const LoopbackHttpServer& server) {
    auto binding = PrintService::PrintServiceSoap(server.address());
    binding->setDefaultTimeout(5);
    return binding;
}

std::size_t fontResponses(const PrintServiceSoapResponse& response) {
    return response.bodyPartsOfType<PrintService_getFontListResponse>().size();
}

}  // namespace

TEST(PrintServiceFailure, ServerResettingHalfWayIsATransportErrorAndTheNextCallWorks) {
    LoopbackHttpServer server({CannedReply::resetHalfWay(4096), CannedReply::soap(kFontReply)});
    auto binding = bindingFor(server);
    auto reset = binding->getFontListUsingParameters({});
    ASSERT_TRUE(reset.error);
    EXPECT_EQ(reset.error->domain, "HTTPTransport");
    EXPECT_TRUE(reset.error->code == 56 || reset.error->code == 18) << reset.error->code;
    EXPECT_TRUE(reset.bodyParts.empty());
    EXPECT_EQ(fontResponses(binding->getFontListUsingParameters({})), 1u);
}

TEST(PrintServiceFailure, ServerStallingAfterTheHeadRunsIntoTheTimeout) {
    LoopbackHttpServer server({CannedReply::stallingAfterTheHead(std::chrono::seconds(10))});
    auto binding = bindingFor(server);
    binding->setDefaultTimeout(0.3);
    const auto start = std::chrono::steady_clock::now();
    auto response = binding->getFontListUsingParameters({});
    // The call ends at its own timeout, long before the server would close.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(8));
    ASSERT_TRUE(response.error);
    EXPECT_EQ(response.error->domain, "HTTPTransport");
    EXPECT_EQ(response.error->code, 28);
    EXPECT_TRUE(response.bodyParts.empty());
}

TEST(PrintServiceFailure, EndlessReplyStopsAtTheDefaultCapAndGivesAnEmptyList) {
    LoopbackHttpServer server({CannedReply::endless(), CannedReply::soap(replyFixture("fonts.xml"))});
    WebServiceClient client;
    client.setPort(server.port());
    client.setTimeout(20);
    EXPECT_EQ(client.getFontList("127.0.0.1"), ServerRowList{});
    ASSERT_TRUE(client.lastResponseError());
    EXPECT_EQ(client.lastResponseError()->localizedDescription,
              "The reply exceeds " + std::to_string(PrintServiceSoap::kDefaultMaximumReplySize) + " bytes");
    auto fonts = client.getFontList("127.0.0.1");
    ASSERT_TRUE(fonts);
    EXPECT_EQ(fonts->size(), 3u);
    EXPECT_FALSE(client.lastResponseError());
}
