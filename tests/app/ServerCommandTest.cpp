#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <string>

#include "CommandRunner.h"
#include "print_service/LoopbackHttpServer.h"
#include "print_service/SoapReplies.h"

using namespace OstrinTest;

namespace {

std::string hostOf(const LoopbackHttpServer& server) { return "127.0.0.1:" + std::to_string(server.port()); }

// Exit 4 and one line naming the print server at host.
void expectUnreachable(const CommandResult& result, const std::string& host) {
    EXPECT_EQ(result.exitCode, 4) << result.err;
    EXPECT_TRUE(result.out.empty());
    EXPECT_EQ(result.err.find('\n'), result.err.size() - 1) << result.err;
    EXPECT_EQ(result.err.rfind("ostrin-flow: cannot reach the print server " + host + ": ", 0), 0u) << result.err;
}

}  // namespace

TEST(ServerCommand, FontsArePrintedAsTsvOrJsonRows) {
    const std::string fonts = replyFixture("fonts.xml");
    LoopbackHttpServer server({CannedReply::soap(fonts), CannedReply::soap(fonts)});
    auto tsv = runCommand({"server", "fonts", "--host", hostOf(server)});
    EXPECT_EQ(tsv.exitCode, 0) << tsv.err;
    EXPECT_EQ(tsv.out, "Courier\tCourier\nHelvetica-Bold\tHelvetica Bold\nMincho\tRyumin-Light-83pv-RKSJ-H\n");

    auto json = runCommand({"--format", "json", "server", "fonts", "--host", hostOf(server)});
    EXPECT_EQ(json.exitCode, 0) << json.err;
    EXPECT_EQ(nlohmann::json::parse(json.out),
              nlohmann::json::parse(R"([["Courier","Courier"],["Helvetica-Bold","Helvetica Bold"],)"
                                    R"(["Mincho","Ryumin-Light-83pv-RKSJ-H"]])"));
    ASSERT_EQ(server.requests().size(), 2u);
    EXPECT_EQ(server.requests()[0].header("Host"), "127.0.0.1");
}

TEST(ServerCommand, OptionsReachTheRequestAndTheLanguageTheSharedFolder) {
    LoopbackHttpServer server({CannedReply::soap(replyFixture("job_resources.xml")),
                               CannedReply::soap(replyFixture("job_folders.xml")),
                               CannedReply::soap(replyFixture("output_profiles.xml"))});
    auto resources = runCommand(
        {"server", "job-resources", "--host", hostOf(server), "--type", "4", "--resource-set", "Coated"});
    EXPECT_EQ(resources.exitCode, 0) << resources.err;
    EXPECT_EQ(resources.out, "Booklet A4\tsaddle stitch\t2023/06/01 10:00:00\nFlyer\t2023/06/02 11:30:00\n");
    auto folders = runCommand({"--lang", "de", "server", "job-folders", "--host", hostOf(server)});
    EXPECT_EQ(folders.out, "Gemeinsam\t\nHot Folder A\tHot Folder A\nProofs\tProofs\n");
    auto profiles = runCommand({"server", "output-profiles", "--kind", "1", "--host", hostOf(server)});
    EXPECT_EQ(profiles.out,
              "Coated FOGRA39\tISO coated\t2022/11/30 12:00:00\nUncoated FOGRA29\t\t2022/11/30 12:00:00\n");
    ASSERT_EQ(server.requests().size(), 3u);
    EXPECT_NE(server.requests()[0].body.find("<type>4</type><select>Coated</select>"), std::string::npos);
}

TEST(ServerCommand, TsvWritesTabsAndLineBreaksOfValuesAsEscapes) {
    LoopbackHttpServer server({CannedReply::soap(soapReply(
        R"(<getDeviceLinkFileListResponse xmlns="qv:vorn"><arry><item xsi:type="q:PropDict" xmlns:q="qv:vorn">)"
        "<item key=\"Name\"><val>a\tb</val></item><item key=\"Comment\"><val>line\none \\ two</val></item>"
        R"(</item></arry><status>OK</status></getDeviceLinkFileListResponse>)"))});
    auto result = runCommand({"server", "device-link-files", "--host", hostOf(server)});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.out, "a\\tb\tline\\none \\\\ two\n");
}

TEST(ServerCommand, MalformedReplyExitsThree) {
    LoopbackHttpServer server({CannedReply::soap("<getFontListResponse>")});
    auto result = runCommand({"server", "fonts", "--host", hostOf(server)});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_NE(result.err.find("sent a reply that is not well-formed XML"), std::string::npos) << result.err;
}

TEST(ServerCommand, PrintServerAbsentResettingOrFloodingMidReplyExitsFour) {
    const std::string absent = "127.0.0.1:" + std::to_string(LoopbackHttpServer::unusedPort());
    expectUnreachable(runCommand({"server", "stackers", "--host", absent}), absent);
    LoopbackHttpServer server({CannedReply::resetHalfWay(4096), CannedReply::endless()});
    expectUnreachable(runCommand({"server", "fonts", "--host", hostOf(server)}), hostOf(server));
    expectUnreachable(runCommand({"server", "fonts", "--host", hostOf(server)}), hostOf(server));
}

TEST(ServerCommand, BadListOptionOrMissingHostExitsTwo) {
    for (const auto& [arguments, says] : std::vector<std::pair<std::vector<std::string>, std::string>>{
             {{"server", "printers", "--host", "press"}, "unknown server list \"printers\""},
             {{"server", "--host", "press"}, "server needs a LIST"},
             {{"server", "fonts"}, "server needs --host HOST"},
             {{"server", "fonts", "--host", "press", "--kind", "1"}, ""},
             {{"server", "job-resources", "--host", "press", "--type", "x"}, ""},
             {{"server", "fonts", "--host", "press:99999"}, ""},
             {{"server", "fonts", "--host", "[fe80::1"}, ""},
             {{"server", "fonts", "--host", "press/other"}, ""},
             {{"server", "fonts", "extra", "--host", "press"}, ""},
             {{"--format", "lp", "server", "fonts", "--host", "press"}, ""}}) {
        const auto result = runCommand(arguments);
        EXPECT_EQ(result.exitCode, 2) << arguments[1] << " " << arguments.back();
        EXPECT_NE(result.err.find(says), std::string::npos) << result.err;
    }
}
