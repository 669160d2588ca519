#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <map>
#include <optional>

#include "CommandRunner.h"
#include "TestSupport.h"
#include "pde/CupsClient.h"
#include "pde/TicketValueEscaping.h"
#include "support/CupsTestServer.h"

namespace TicketValueEscaping = ComQuorvantVelmar_Plugin::TicketValueEscaping;
using OstrinTest::runCommand;
using Json = nlohmann::ordered_json;

namespace {

const std::string SamplePpdPath = std::string(OSTRIN_BUILD_BUNDLE_DIR) + "/Contents/Resources/OstrinFlow.ppd";
const std::string CustomPrefix = "com.quorvant.velmar.print.PrintSettingsTicket.";
const std::string Queue = "press";
// Spaces, both quotes, "%" and ",": every character lp and the ticket treat specially.
const std::string PaperName = "Gloss 'A', \"B\" 50%";
const std::string JobName = "Q3 report, \"final\" 50% O'Neil";

std::string textOf(const Json& value) {
    if (value.is_boolean()) return value.get<bool>() ? "True" : "False";
    if (value.is_string()) return value.get<std::string>();
    return value.dump();
}

bool equalsIgnoringCase(const std::string& left, const std::string& right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) ==
                                                  std::tolower(static_cast<unsigned char>(b)); });
}

// Equal texts, or equal numbers written with other decimals ("25.0" and "25.00").
bool sameSetting(const std::string& restored, const std::string& saved) {
    if (restored == saved) return true;
    char* restoredEnd = nullptr;
    char* savedEnd = nullptr;
    const double restoredNumber = std::strtod(restored.c_str(), &restoredEnd);
    const double savedNumber = std::strtod(saved.c_str(), &savedEnd);
    return !saved.empty() && !restored.empty() && *restoredEnd == '\0' && *savedEnd == '\0' &&
           restoredNumber == savedNumber;
}

// A private cupsd with the sample press queue; its private HOME keeps the saved options, for
// the command and for lp alike.
class PanelCommands : public ::testing::Test {
protected:
    void SetUp() override {
        if (!cupsd.unavailableReason().empty())
            GTEST_SKIP() << "no private cupsd for this test: " << cupsd.unavailableReason();
        ASSERT_TRUE(cupsd.addQueue(Queue, SamplePpdPath));
        client.emplace(cupsd);
        OstrinTest::writeFile(document, "Ostrin Flow test page\n");
    }

    OstrinTest::CommandResult run(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"--queue", Queue});
        return runCommand(arguments, {}, {"TMPDIR=" + folder.path()});
    }
    int printedJob(const OstrinTest::CommandResult& result) {
        EXPECT_EQ(result.exitCode, 0) << result.err;
        return result.exitCode == 0 ? std::stoi(result.out) : 0;
    }
    std::string lpArguments() const { return "-d " + Queue + " '" + document + "' "; }

    OstrinTest::CupsTestServer cupsd;
    std::optional<OstrinTest::CupsClient> client;
    OstrinTest::TemporaryDirectory folder;
    const std::string document = folder.file("page.txt");
};

const std::vector<std::string> Settings = {"-o", "StapleMode=TopLeftCorner", "-o", "DuplexMode=DuplexNoTumble",
                                           "-o", "MediaTypeSequence=7",      "-o", "PaperTypeCustomName=" + PaperName,
                                           "-o", "NumCopies=2"};

std::vector<std::string> with(std::vector<std::string> first, const std::vector<std::string>& rest) {
    first.insert(first.end(), rest.begin(), rest.end());
    return first;
}

}  // namespace

TEST_F(PanelCommands, PrintedJobHoldsTheSettingsAndTheLpFormatGivesTheSameJob) {
    const int printed = printedJob(run(with({"print", document, "--job-name", JobName}, Settings)));
    ASSERT_GT(printed, 0);
    auto byPrint = client->jobAttributes(printed);
    EXPECT_EQ(byPrint["job-name"], JobName);
    EXPECT_EQ(byPrint["StapleMode"], "TopLeftCorner");
    EXPECT_EQ(byPrint["DuplexMode"], "DuplexNoTumble");
    EXPECT_EQ(byPrint["copies"], "2");
    // Not a choice of the PPD: the PPD keeps its default, the value rides in the custom entry.
    EXPECT_EQ(byPrint["MediaTypeSequence"], "0");
    EXPECT_EQ(byPrint[CustomPrefix + "MediaTypeSequence"], "7");
    EXPECT_EQ(byPrint[CustomPrefix + "PaperTypeCustomName"], "Gloss %x27A%x27%x2C \"B\" 50%x25");
    EXPECT_EQ(byPrint[CustomPrefix + "QZSpecificJobName"], "Input");
    EXPECT_EQ(TicketValueEscaping::unescape(byPrint[CustomPrefix + "JobName"]), JobName);

    const auto listing = run(with({"options", "--job-name", JobName, "--format", "json"}, Settings));
    const auto arguments = run(with({"options", "--job-name", JobName, "--format", "lp"}, Settings));
    ASSERT_EQ(arguments.exitCode, 0) << arguments.err;
    const int submitted = client->lp(lpArguments() + arguments.out);
    ASSERT_GT(submitted, 0);
    auto byLp = client->jobAttributes(submitted);
    const Json settings = Json::parse(listing.out);
    std::size_t compared = 0;
    for (const auto& [name, value] : settings["ppd"].items()) {
        EXPECT_EQ(byLp[name], byPrint[name]) << name;
        // cupsd holds "True" and "False" as IPP booleans.
        EXPECT_TRUE(equalsIgnoringCase(byPrint[name], value.get<std::string>())) << name << "=" << byPrint[name];
        ++compared;
    }
    for (const auto& [name, value] : settings["custom"].items()) {
        EXPECT_EQ(byLp[CustomPrefix + name], byPrint[CustomPrefix + name]) << name;
        const std::string stored = TicketValueEscaping::unescape(byPrint[CustomPrefix + name]);
        EXPECT_TRUE(equalsIgnoringCase(stored, value.get<std::string>())) << name;
        ++compared;
    }
    EXPECT_EQ(byLp["copies"], "2");
    EXPECT_GT(compared, 100u);
    EXPECT_EQ(settings["custom"]["PaperTypeCustomName"], PaperName);
}

// Every value comes back as it was saved, empty ones too (lpoptions holds no empty value).
TEST_F(PanelCommands, SaveDefaultsThenRestoreGivesBackEverySavedValue) {
    const auto defaults = runCommand({"defaults"});
    ASSERT_EQ(defaults.exitCode, 0) << defaults.err;
    const auto saved = run(with({"save-defaults"}, Settings));
    ASSERT_EQ(saved.exitCode, 0) << saved.err;
    EXPECT_EQ(saved.out, "");
    const auto restored = run({"restore"});
    ASSERT_EQ(restored.exitCode, 0) << restored.err;

    Json expected = Json::parse(defaults.out);
    for (const auto& [key, value] :
         {std::pair<std::string, std::string>{"StapleMode", "TopLeftCorner"}, {"DuplexMode", "DuplexNoTumble"},
          {"MediaTypeSequence", "7"}, {"PaperTypeCustomName", PaperName}})
        expected[key] = value;
    const Json dictionary = Json::parse(restored.out);
    std::size_t compared = 0;
    for (const auto& [key, value] : expected.items()) {
        // The keyword conversion folds these into other keys: the fitting of the imposition
        // modes other than the current one, the user id type of an empty user id.
        if (!dictionary.contains(key)) {
            EXPECT_TRUE(key == "ImpositionNup_Fitting" || key == "ImpositionBooklet_Fitting" ||
                        key == "AuthJobUserIdType")
                << key;
            continue;
        }
        EXPECT_TRUE(sameSetting(textOf(dictionary[key]), textOf(value))) << key << ": " << dictionary[key];
        ++compared;
    }
    EXPECT_GT(compared, 100u);
}

TEST_F(PanelCommands, ConflictKeptAtSaveTimeSubmitsNoJob) {
    const auto saved = OstrinTest::runShell("lpoptions -p " + Queue +
                                            " -o sides=two-sided-long-edge -o QZMediaType=Transparency");
    ASSERT_EQ(saved.exitCode, 0) << saved.output;
    const auto refused = run({"print", document});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_NE(refused.err.find("(answered \"Self Resolve Conflict\" by --answer no)"), std::string::npos) << refused.err;
    EXPECT_EQ(refused.out, "");
    const int job = printedJob(run({"--answer", "yes", "print", document}));
    EXPECT_EQ(client->jobAttributes(job)["QZMediaType"], "Plain");
}

TEST_F(PanelCommands, UnknownQueueIsAnInputErrorAndAMissingCupsdIsUnreachable) {
    EXPECT_EQ(runCommand({"--queue", "nowhere", "print", document}).exitCode, 3);
    const auto unreachable = runCommand({"--queue", Queue, "restore"}, {}, {"CUPS_SERVER=127.0.0.1:1"});
    EXPECT_EQ(unreachable.exitCode, 4);
    EXPECT_NE(unreachable.err.find("cannot be reached"), std::string::npos) << unreachable.err;
}

TEST(PanelCommandsWithoutQueue, OptionsOfTheSamplePpdAsJson) {
    const auto result = runCommand(with({"options", "--format", "json"}, Settings));
    ASSERT_EQ(result.exitCode, 0) << result.err;
    const Json settings = Json::parse(result.out);
    EXPECT_EQ(settings["ppd"]["StapleMode"], "TopLeftCorner");
    EXPECT_EQ(settings["ppd"]["MediaTypeSequence"], "0");
    EXPECT_EQ(settings["custom"]["MediaTypeSequence"], "7");
    EXPECT_EQ(settings["custom"]["PaperTypeCustomName"], PaperName);
    EXPECT_EQ(settings["custom"]["QZSpecificJobName"], "Auto");
    EXPECT_EQ(settings["standard"], (Json{{"copies", "2"}, {"collate", "True"}, {"duplex", "None"}}));
}

TEST(PanelCommandsWithoutQueue, RefusedSettingsAndBadArgumentsEndWithTheirCodes) {
    const auto conflict = runCommand({"options", "-o", "PaperTypeD=Transparency", "-o", "DuplexMode=DuplexNoTumble"});
    EXPECT_EQ(conflict.exitCode, 1);
    EXPECT_NE(conflict.err.find("-o DuplexMode=DuplexNoTumble: refused"), std::string::npos) << conflict.err;
    const auto inconsistent = runCommand({"--lang", "en", "options", "-o", "MailNotifyJobEnd=True"});
    EXPECT_EQ(inconsistent.exitCode, 1);
    EXPECT_NE(inconsistent.err.find("mail address"), std::string::npos) << inconsistent.err;
    EXPECT_EQ(runCommand({"options", "-o", "StapleMode=Bogus"}).exitCode, 3);
    EXPECT_EQ(runCommand({"options", "-o", "NoSuchKey=1"}).exitCode, 3);
    EXPECT_EQ(runCommand({"options", "-o", "StapleMode"}).exitCode, 2);
    EXPECT_EQ(runCommand({"options", "--job-name", ""}).exitCode, 3);
    EXPECT_EQ(runCommand({"print", "page.txt"}).exitCode, 2);
    EXPECT_EQ(runCommand({"save-defaults"}).exitCode, 2);
    EXPECT_EQ(runCommand({"options", "--format", "tsv"}).exitCode, 2);
}

TEST(PanelCommandsWithoutQueue, RestoreOfTheSamplePpdShowsItsDefaultsOverThePanes) {
    const auto result = runCommand({"restore"});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    const Json dictionary = Json::parse(result.out);
    EXPECT_EQ(dictionary["DuplexMode"], "None");
    EXPECT_EQ(dictionary["PagePrintOnCenter"], false);
    EXPECT_EQ(dictionary["QVInputSlot"], "AutoSelect");
}
