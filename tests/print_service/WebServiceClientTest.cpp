#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <functional>
#include <string>
#include <vector>

#include "core/Bundle.h"
#include "core/Diagnostics.h"
#include "core/LocalizedString.h"
#include "core/PreferredLanguages.h"
#include "print_service/LoopbackHttpServer.h"
#include "print_service/SoapReplies.h"
#include "print_service/WebServiceClient.h"

using namespace OstrinTest;
using ComQuorvantVelmar_Plugin::ServerRowList;
using ComQuorvantVelmar_Plugin::WebServiceClient;

namespace {

using Rows = ServerRowList;

WebServiceClient clientFor(const LoopbackHttpServer& server) {
    WebServiceClient client;
    client.setPort(server.port());
    client.setTimeout(5);
    return client;
}

// Serves each reply in turn and answers what the list method made of it.
template <class Method>
std::optional<Rows> rowsFor(const std::string& reply, Method method) {
    LoopbackHttpServer server({CannedReply::soap(reply)});
    WebServiceClient client = clientFor(server);
    return method(client, "127.0.0.1");
}

class LogLines {
public:
    LogLines() {
        ComQuorvantVelmar_Plugin::Diagnostics::setObserver(
            [this](std::string_view line) { lines.emplace_back(line); });
    }
    ~LogLines() { ComQuorvantVelmar_Plugin::Diagnostics::setObserver({}); }
    bool contains(std::string_view line) const {
        for (const std::string& logged : lines)
            if (logged == line) return true;
        return false;
    }
    std::vector<std::string> lines;
};

std::string withStatus(std::string reply, std::string_view status) {
    reply.replace(reply.find("<status>OK</status>"), 19, "<status>" + std::string(status) + "</status>");
    return reply;
}

std::string jobResourceReply(std::string_view statusAndDetail) {
    return soapReply(R"(<GetJobResourceListResponse xmlns="qv:vorn"><resInfo>)"
                     R"(<item xsi:type="q1:PropDict" xmlns:q1="qv:vorn"><item key="JobRecListName">)"
                     R"(<val>Booklet</val></item></item></resInfo>)" +
                     std::string(statusAndDetail) + "</GetJobResourceListResponse>");
}

}  // namespace

TEST(WebServiceClient, JobFoldersStartWithTheLocalizedSharedFolder) {
    using namespace ComQuorvantVelmar_Plugin;
    SetNSBundleForLocalizedString(Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR));
    PreferredLanguages::setFirst("de");
    auto rows = rowsFor(replyFixture("job_folders.xml"), [](auto& c, auto a) { return c.getJobFolderList(a); });
    EXPECT_EQ(rows, (Rows{{"Gemeinsam", ""}, {"Hot Folder A", "Hot Folder A"}, {"Proofs", "Proofs"}}));

    PreferredLanguages::setFirst("en");
    const std::string empty =
        soapReply(R"(<GetJobFolderListResponse xmlns="qv:vorn"><dict>)"
                  R"(<item key="FolderArray"><val xsi:type="q:PropArray" xmlns:q="qv:vorn"/>)"
                  R"(</item></dict><status>OK</status></GetJobFolderListResponse>)");
    EXPECT_EQ(rowsFor(empty, [](auto& c, auto a) { return c.getJobFolderList(a); }), (Rows{{"Shared", ""}}));
    SetNSBundleForLocalizedString(nullptr);
    PreferredLanguages::setFirst("");
}

TEST(WebServiceClient, EveryListReadsTheRowsOfItsReply) {
    using Method = std::function<std::optional<Rows>(WebServiceClient&, const std::string&)>;
    struct Case {
        const char* why;
        const char* fixture;
        Method method;
        Rows expected;
    };
    const Case cases[] = {
        {"stackers take the plain items of their key value first", "stackers.xml",
         [](auto& c, auto a) { return c.getStackerInfoList(a); },
         {{"StackerA", "Type"}, {"LargeCapacity", "Type"}, {"3", "Type"}}},
        {"feeders likewise", "feeders.xml", [](auto& c, auto a) { return c.getFeederInfoList(a); },
         {{"1", "Number"}, {"3", "Number"}}},
        {"devices are every plain item of the dictionary", "prepost_devices.xml",
         [](auto& c, auto a) { return c.getDeviceList(a); }, {{"PU-501", "Puncher"}, {"FD-503", "Folder"}, {"2", "Stacker"}}},
        {"custom paper rows use the last index seen", "prepost_devices.xml",
         [](auto& c, auto a) { return c.getPrePostDeviceList(a); },
         {{"3-Thick", "Custom_Off_Uncoated_Off_None_3"},
          {"7-Coated Gloss", "Custom_Off_Uncoated_Off_None_7"},
          {"7-Late", "Custom_Off_Uncoated_Off_None_7"}}},
        {"spot colours leave out records without their keys", "cms_spot.xml",
         [](auto& c, auto a) { return c.getCmsSpotGetAllListData(a); },
         {{"Rubine Red", "PANTONE", "0", "45.2", "71.5", "4.1", "0", "100", "15", "4"},
          {"Custom", "Brand Blue", "1", "30", "10", "-60", "100", "70", "0", "0"}}},
        {"spot colour information likewise", "spot_color_info.xml",
         [](auto& c, auto a) { return c.getSpotColorAllInfoListData(a); },
         {{"Rubine Red", "Pantone"}, {"Custom", "Brand Blue"}}},
        {"columns follow the server's order, empty for missing values", "color_subst.xml",
         [](auto& c, auto a) { return c.getColorSubstList(a); },
         {{"Office RGB", "Logo greens", "2023/04/11 09:12:44"}, {"Proof", "", "2023/05/02 17:00:00"}, {}}},
        {"density profiles", "density_profiles.xml", [](auto& c, auto a) { return c.getDensityAdjustProfileList(a); },
         {{"Default", "as shipped", "2023/01/01 00:00:00"}, {"2023/05/05 05:05:05", "Light", "minus 5%"}}},
        {"tone curves", "trc_profiles.xml", [](auto& c, auto a) { return c.getUserTrcProfileList(a); },
         {{"Linear", "identity", "2023/01/01 00:00:00"}}},
        {"RGB input profiles", "rgb_input_profiles.xml", [](auto& c, auto a) { return c.getRGBInputProfileFileList(a); },
         {{"sRGB IEC61966-2.1", "default", "2022/01/01 00:00:00"}, {"Adobe RGB (1998)", "2022/01/01 00:00:00"}}},
        {"device links", "device_links.xml", [](auto& c, auto a) { return c.getDeviceLinkFileList(a); },
         {{"FOGRA39 to press", "link", "2023/02/02 02:02:02"}, {"second", "GRACoL to press", "2023/02/03 03:03:03"}}},
        {"the toner target is always the last column", "job_resource_sets.xml",
         [](auto& c, auto a) { return c.getJobResourceSetList(a); },
         {{"SYSTEM_DEFAULT", "factory", "2023/01/01 00:00:00", "CMYK"},
          {"Coated", "gloss stock", "2023/02/03 08:15:00", "CMYK+Clear"}}},
        {"calibrations likewise", "calib_files.xml", [](auto& c, auto a) { return c.getCalibFileList(a); },
         {{"calib_0601.cal", "Standard"}, {"calib_0602.cal", "after service", "2023/06/02 07:45:10", "High"}}},
        {"standard fonts come before optional fonts", "fonts.xml", [](auto& c, auto a) { return c.getFontList(a); },
         {{"Courier", "Courier"}, {"Helvetica-Bold", "Helvetica Bold"}, {"Mincho", "Ryumin-Light-83pv-RKSJ-H"}}},
        {"output profiles of kind 0 keep colorimetry records", "output_profiles.xml",
         [](auto& c, auto a) { return c.getOutputProfileFileList(a, 0); },
         {{"Press native", "measured", "2023/03/14 15:09:26"}}},
        {"of kind 1 ICC records", "output_profiles.xml", [](auto& c, auto a) { return c.getOutputProfileFileList(a, 1); },
         {{"Coated FOGRA39", "ISO coated", "2022/11/30 12:00:00"}, {"Uncoated FOGRA29", "", "2022/11/30 12:00:00"}}},
        {"of another kind none", "output_profiles.xml", [](auto& c, auto a) { return c.getOutputProfileFileList(a, 2); },
         {}},
        {"CMYK input profiles likewise", "cmyk_input_profiles.xml",
         [](auto& c, auto a) { return c.getCMYKInputProfileFileList(a, 0); },
         {{"Press native", "measured", "2023/03/14 15:09:26"}}},
    };
    for (const Case& each : cases) EXPECT_EQ(rowsFor(replyFixture(each.fixture), each.method), each.expected) << each.why;
}

TEST(WebServiceClient, JobResourcesAskForTheTypeAndSetAndReadTheRows) {
    LoopbackHttpServer server({CannedReply::soap(replyFixture("job_resources.xml")),
                               CannedReply::soap(replyFixture("job_resources.xml"))});
    WebServiceClient client = clientFor(server);
    const Rows expected{{"Booklet A4", "saddle stitch", "2023/06/01 10:00:00"}, {"Flyer", "2023/06/02 11:30:00"}};
    EXPECT_EQ(client.GetJobResourceList("127.0.0.1", 3), expected);
    EXPECT_EQ(client.GetJobResourceListWithResourceSet("127.0.0.1", 5, "Coated"), expected);
    auto requests = server.requests();
    ASSERT_EQ(requests.size(), 2u);
    EXPECT_NE(requests[0].body.find("<type>3</type><select>SYSTEM_DEFAULT</select>"), std::string::npos);
    EXPECT_NE(requests[1].body.find("<type>5</type><select>Coated</select>"), std::string::npos);
}

TEST(WebServiceClient, JobResourceStatusAndDetailDecideTogether) {
    auto jobResources = [](auto& c, auto a) { return c.GetJobResourceList(a, 0); };
    const Rows booklet{{"Booklet"}};
    LogLines log;
    EXPECT_EQ(rowsFor(jobResourceReply("<status>Unknown</status><nDetail>0</nDetail>"), jobResources), booklet);
    EXPECT_EQ(rowsFor(jobResourceReply("<status>OK</status>"), jobResources), booklet);
    EXPECT_EQ(rowsFor(jobResourceReply("<status>Unknown</status>"), jobResources), Rows{});
    EXPECT_TRUE(log.contains("###Failed to get status."));
    EXPECT_EQ(rowsFor(jobResourceReply("<status>OK</status><nDetail>3</nDetail>"), jobResources), Rows{});
    EXPECT_TRUE(log.contains("###Detail is not 0."));
    EXPECT_EQ(rowsFor(jobResourceReply("<status>Error</status><nDetail>0</nDetail>"), jobResources), Rows{});
    EXPECT_TRUE(log.contains("###status is not OK."));
}

TEST(WebServiceClient, StatusOtherThanOKStopsTheListLoggedOrSilently) {
    const auto stackers = [](auto& c, auto a) { return c.getStackerInfoList(a); };
    LogLines log;
    EXPECT_EQ(rowsFor(withStatus(replyFixture("stackers.xml"), "Error"), stackers), Rows{});
    EXPECT_TRUE(log.contains("###PrintService error: 41"));
    EXPECT_EQ(rowsFor(withStatus(replyFixture("stackers.xml"), "ok"), stackers), Rows{});
    EXPECT_TRUE(log.contains("###PrintService error: 0"));
    log.lines.clear();
    EXPECT_EQ(rowsFor(withStatus(replyFixture("feeders.xml"), "Error"),
                      [](auto& c, auto a) { return c.getFeederInfoList(a); }),
              Rows{});
    EXPECT_TRUE(log.lines.empty());
    std::string fonts = replyFixture("fonts.xml");
    fonts.replace(fonts.find("<result>OK</result>"), 19, "<result>DiskFull</result>");
    EXPECT_EQ(rowsFor(fonts, [](auto& c, auto a) { return c.getFontList(a); }), Rows{});
    EXPECT_TRUE(log.contains("###PrintService error: 17"));
}

// A fault is no response error; an unreachable server is, logged twice, until the next
// call that gets a reply.
TEST(WebServiceClient, FaultOrUnreachableServerGivesAnEmptyList) {
    const std::string fault =
        soapReply(R"(<soap:Fault><faultcode>soap:Server</faultcode>)"
                  R"(<faultstring>Server was unable to process request.</faultstring></soap:Fault>)");
    LoopbackHttpServer server({CannedReply::http(500, fault)});
    WebServiceClient client = clientFor(server);
    LogLines log;
    client.setPort(LoopbackHttpServer::unusedPort());
    EXPECT_EQ(client.getFontList("127.0.0.1"), Rows{});
    ASSERT_TRUE(client.lastResponseError());
    EXPECT_EQ(client.lastResponseError()->domain, "HTTPTransport");
    ASSERT_EQ(log.lines.size(), 2u);
    EXPECT_EQ(log.lines[0].rfind("###ResponseError:\nError Domain=HTTPTransport Code=7 ", 0), 0u) << log.lines[0];
    EXPECT_EQ(log.lines[1].rfind("###Response: Error Domain=HTTPTransport Code=7 ", 0), 0u) << log.lines[1];

    client.setPort(server.port());
    EXPECT_EQ(client.getFontList("127.0.0.1"), Rows{});
    EXPECT_FALSE(client.lastResponseError());
}

TEST(WebServiceClient, NoAddressAnAddressThatIsNoHostOrAnExcludedProgramSendsNothing) {
    LoopbackHttpServer server({CannedReply::soap(replyFixture("stackers.xml"))});
    WebServiceClient client = clientFor(server);
    EXPECT_FALSE(client.getStackerInfoList(""));
    EXPECT_EQ(client.getFontList("127.0.0.1/elsewhere#"), Rows{});
    EXPECT_EQ(client.getFontList("user@127.0.0.1"), Rows{});
    ASSERT_TRUE(client.lastResponseError());
    EXPECT_EQ(client.lastResponseError()->domain, "HTTPTransport");
    EXPECT_TRUE(WebServiceClient::isCommunicationPossible());

    char name[17] = {};
    ::prctl(PR_GET_NAME, name);
    ::prctl(PR_SET_NAME, "Acrobat Pro");
    EXPECT_FALSE(WebServiceClient::isCommunicationPossible());
    EXPECT_FALSE(client.getStackerInfoList("127.0.0.1"));
    ::prctl(PR_SET_NAME, "Adobe Reader");
    EXPECT_FALSE(WebServiceClient::isCommunicationPossible());
    ::prctl(PR_SET_NAME, name);
    EXPECT_TRUE(server.requests().empty());
    EXPECT_EQ(client.getStackerInfoList("127.0.0.1")->size(), 3u);
}

TEST(WebServiceClient, ReachesAnIPv6HostInBracketsWithItsZoneEscaped) {
    EXPECT_EQ(WebServiceClient::convertUrlAddress("fe80::1%en0"), "[fe80::1%25en0]");
    EXPECT_EQ(WebServiceClient::convertUrlAddress("[fe80::2]"), "[fe80::2]");
    EXPECT_EQ(WebServiceClient::convertUrlAddress("[fe80::3%eth1]"), "[fe80::3%25eth1]");
    EXPECT_EQ(WebServiceClient::convertUrlAddress("192.168.10.20"), "192.168.10.20");
    EXPECT_EQ(WebServiceClient::convertUrlAddress("press-01.local"), "press-01.local");
    LoopbackHttpServer server({CannedReply::soap(replyFixture("fonts.xml"))}, std::chrono::seconds(15),
                              LoopbackFamily::IPv6);
    if (!server.port()) GTEST_SKIP() << "this machine has no IPv6 loopback";
    WebServiceClient client = clientFor(server);
    EXPECT_EQ(client.getFontList("::1")->size(), 3u);
    ASSERT_EQ(server.requests().size(), 1u);
    EXPECT_EQ(server.requests()[0].header("Host"), "[::1]");
}
