#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>

#include "CommandRunner.h"
#include "TestSupport.h"
#include "pde/CupsClient.h"
#include "ppd/PpdFile.h"
#include "print_service/LoopbackHttpServer.h"
#include "support/CupsTestServer.h"

using OstrinTest::dataPath;
using OstrinTest::runCommand;
using Json = nlohmann::ordered_json;

namespace {

const std::string SamplePpdPath =
    std::string(OSTRIN_BUILD_BUNDLE_DIR) + "/Contents/Resources/OstrinFlow.ppd";

const Json& optionNamed(const Json& listing, const std::string& keyword) {
    static const Json none;
    for (const Json& option : listing["options"])
        if (option["keyword"] == keyword) return option;
    ADD_FAILURE() << "no option " << keyword;
    return none;
}

std::size_t lineCount(const std::string& text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

}  // namespace

TEST(PpdCommand, JsonListsEveryOptionOfTheSamplePpdWithChoicesAndDefaults) {
    auto result = runCommand({"ppd", "--format", "json"});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    const Json listing = Json::parse(result.out);
    EXPECT_EQ(listing["product"], "(Quorvant Ostrin Flow)");
    auto sample = ComQuorvantVelmar_Plugin::PpdFile::initWithContentsOfFile(SamplePpdPath);
    ASSERT_TRUE(sample);
    const std::vector<std::string> names = sample->optionNames();
    ASSERT_EQ(listing["options"].size(), names.size());
    for (std::size_t index = 0; index < names.size(); ++index) {
        const Json& option = listing["options"][index];
        EXPECT_EQ(option["keyword"], names[index]);
        EXPECT_FALSE(option["choices"].empty()) << names[index];
        EXPECT_EQ(option.size(), 6u);
    }
    const Json& media = optionNamed(listing, "QZMediaType");
    EXPECT_EQ(media["text"], "Media Type");
    EXPECT_EQ(media["uiType"], 1);
    EXPECT_EQ(media["default"], "SystemSetting");
    EXPECT_EQ(media["marked"], "SystemSetting");
    EXPECT_EQ(media["choices"][9], (Json{{"keyword", "Transparency"}, {"text", "Transparency"}}));
    const Json& secure = optionNamed(listing, "SecPrint");
    EXPECT_EQ(secure["uiType"], 0);
    EXPECT_EQ(secure["default"], false);
    EXPECT_EQ(secure["marked"], false);
    EXPECT_TRUE(optionNamed(listing, "PageRegion")["marked"].is_null());
}

TEST(PpdCommand, ListsAGivenPpdFileAsText) {
    auto result = runCommand({"--ppd", dataPath("ppd/options.ppd"), "ppd"});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.out.rfind("(Options Test Press)\n", 0), 0u);
    EXPECT_NE(result.out.find("\n*QZMediaType/Media Type  [PickOne]  default: Plain  marked: Plain\n"
                              "    Plain/Plain Paper\n    Transparency/Transparency\n"
                              "    Heavyweight1/Heavyweight 1\n"),
              std::string::npos)
        << result.out;
    EXPECT_NE(result.out.find("*PagePrintOnCenter/Print on Center  [Boolean]  default: False"),
              std::string::npos);
    EXPECT_NE(result.out.find("*StkName/Stock Name  [PickOne]  default: None  marked: -\n"),
              std::string::npos);
}

TEST(PpdCommand, ErrorsEndWithTheirCodeAndOneLine) {
    const std::string malformed = dataPath("ppd/malformed.ppd");
    auto result = runCommand({"--ppd", malformed, "ppd", "--format", "json"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_TRUE(result.out.empty());
    EXPECT_EQ(result.err,
              "ostrin-flow: " + malformed + ": Missing PPD-Adobe-4.x header on line 1\n");
    auto missing = runCommand({"--ppd", "/nonexistent/press.ppd", "ppd"});
    EXPECT_EQ(missing.exitCode, 3);
    EXPECT_EQ(missing.err, "ostrin-flow: /nonexistent/press.ppd: no such file\n");
    auto noBundle = runCommand({"--resources", "/nonexistent/OstrinFlow.bundle", "ppd"});
    EXPECT_EQ(noBundle.exitCode, 3);
    EXPECT_EQ(lineCount(noBundle.err), 1u);
    auto unreachable = runCommand({"--queue", "Ostrin", "ppd"}, {}, {"CUPS_SERVER=127.0.0.1:1"});
    EXPECT_EQ(unreachable.exitCode, 4);
    EXPECT_EQ(unreachable.err, "ostrin-flow: queue Ostrin: cupsd at 127.0.0.1:1 cannot be reached\n");
    auto lp = runCommand({"ppd", "--format", "lp"});
    EXPECT_EQ(lp.exitCode, 2);
    EXPECT_NE(lp.err.find("--format lp is not offered here (text, json)"), std::string::npos);
    EXPECT_EQ(runCommand({"ppd", "extra"}).exitCode, 2);
}

TEST(PpdCommand, ReadsTheQueuePpdFromCupsdWithTheSavedOptionsMarked) {
    OstrinTest::CupsTestServer cupsd;
    if (!cupsd.unavailableReason().empty()) GTEST_SKIP() << cupsd.unavailableReason();
    ASSERT_TRUE(cupsd.addQueue("Ostrin", SamplePpdPath));
    OstrinTest::CupsClient client(cupsd);
    OstrinTest::TemporaryDirectory temporary;
    const std::vector<std::string> environment = {"TMPDIR=" + temporary.path()};
    auto saved = OstrinTest::runShell("lpoptions -p Ostrin -o QZMediaType=Coated");
    ASSERT_EQ(saved.exitCode, 0) << saved.output;

    auto result = runCommand({"--queue", "Ostrin", "ppd", "--format", "json"}, {}, environment);
    ASSERT_EQ(result.exitCode, 0) << result.err;
    const Json listing = Json::parse(result.out);
    EXPECT_EQ(listing["product"], "(Quorvant Ostrin Flow)");
    EXPECT_EQ(optionNamed(listing, "QZMediaType")["default"], "SystemSetting");
    EXPECT_EQ(optionNamed(listing, "QZMediaType")["marked"], "Coated");
    // The copy of the PPD that cupsd handed out is gone.
    EXPECT_TRUE(std::filesystem::is_empty(temporary.path()));

    auto unknown = runCommand({"--queue", "NoSuchQueue", "ppd"}, {}, environment);
    EXPECT_EQ(unknown.exitCode, 3);
    EXPECT_EQ(unknown.err, "ostrin-flow: queue NoSuchQueue: no such queue\n");
}

TEST(PpdCommand, CupsdBreakingOffExitsFourNotUnknownQueue) {
    OstrinTest::LoopbackHttpServer cupsd(
        {OstrinTest::CannedReply::closing(), OstrinTest::CannedReply::closing(), OstrinTest::CannedReply::closing()});
    const std::string host = "127.0.0.1:" + std::to_string(cupsd.port());
    auto result = runCommand({"--queue", "Ostrin", "ppd"}, {}, {"CUPS_SERVER=" + host});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_TRUE(result.out.empty());
    EXPECT_EQ(result.err, "ostrin-flow: queue Ostrin: cupsd at " + host + " cannot be reached\n");
}
