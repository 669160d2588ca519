#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "CupsClient.h"
#include "pde/CupsConnection_p.h"
#include "pde/CupsQueueHost.h"
#include "pde/LpOptionQuoting.h"
#include "pde/PrintSettingsTicket.h"
#include "pde/StandardPrintSettings.h"
#include "pde/TicketValueEscaping.h"
#include "print_service/LoopbackHttpServer.h"

using namespace ComQuorvantVelmar_Plugin;
using OstrinTest::CannedReply;
using OstrinTest::CupsClient;

namespace {

const std::string SamplePpdPath =
    std::string(OSTRIN_BUILD_BUNDLE_DIR) + "/Contents/Resources/OstrinFlow.ppd";
const std::string Queue = "press";
const std::string JobName = "Q3 report, \"final\" 50% O'Neil";
const std::string ProfilePath = "/home/ana/My Profiles/coated,glossy.cps";

class CupsQueueHostTest : public ::testing::Test {
protected:
    void SetUp() override {
        if (!server.unavailableReason().empty())
            GTEST_SKIP() << "no private cupsd for this test: " << server.unavailableReason();
        ASSERT_TRUE(server.addQueue(Queue, SamplePpdPath));
        client.emplace(server);
        OstrinTest::writeFile(document, "Ostrin Flow test page\n");
    }

    std::unique_ptr<CupsQueueHost> open(const std::string& queue = Queue) {
        CupsQueueHost::Opening opening;
        CupsClient::run([&] { opening = CupsQueueHost::open(queue); });
        EXPECT_TRUE(opening.host) << opening.outcome.message;
        return std::move(opening.host);
    }

    HostOutcome print(CupsQueueHost& host, const std::string& path) {
        HostOutcome outcome;
        CupsClient::run([&] { outcome = host.printFile(path, "Q3"); });
        return outcome;
    }

    HostOutcome save(CupsQueueHost& host) {
        HostOutcome outcome;
        CupsClient::run([&] { outcome = host.saveDefaults(); });
        return outcome;
    }

    std::string lpoptionsPath() const { return server.clientHome() + "/.cups/lpoptions"; }

    OstrinTest::CupsTestServer server;
    std::optional<CupsClient> client;
    OstrinTest::TemporaryDirectory folder;
    const std::string document = folder.file("page.txt");
};

void setPanelChoices(CupsQueueHost& host) {
    PrintSettingsTicket ticket(host);
    StandardPrintSettings standard(host);
    ASSERT_TRUE(host.willChangePPDOptionKeyValue("QZMediaType", "Coated"));
    ASSERT_TRUE(host.willChangePPDOptionKeyValue("StapleMode", "TopLeftCorner"));
    ticket._customTicketSetString("JobName", JobName);
    ticket._customTicketSetString("ProfilePath", ProfilePath);
    standard.setCopies("2");
    standard.setCollate(false);
    host.printSettings()->setValue("sides", "two-sided-long-edge");
}

}  // namespace

TEST_F(CupsQueueHostTest, OpensWithThePpdTheDeviceUriAndTheSavedOptions) {
    const auto saved = LpOptionQuoting::lpArguments(
        {{"QZMediaType", "Recycled"}, {PrintSettingsTicket::customKey("JobName"), "Q3 report"}});
    ASSERT_EQ(OstrinTest::runShell("lpoptions -p press " + *saved).exitCode, 0);

    std::unique_ptr<CupsQueueHost> host = open();
    ASSERT_TRUE(host);
    EXPECT_EQ(host->deviceUri(), "file:///dev/null");
    EXPECT_EQ(host->ppd().findMarkedChoice("QZMediaType"), PlistValue("Recycled"));
    EXPECT_EQ(host->printSettings()->text("QZMediaType"), "Recycled");
    EXPECT_EQ(host->printSettings()->text(PrintSettingsTicket::customKey("JobName")), "Q3 report");
    for (const auto& [name, value] : host->printSettings()->cupsOptions()) {
        EXPECT_NE(name.rfind("printer-", 0), 0u) << name;
        EXPECT_NE(name, "device-uri");
    }
}

TEST_F(CupsQueueHostTest, JobHoldsThePanelsChoicesAndLpArgumentsGiveTheSameJob) {
    std::unique_ptr<CupsQueueHost> host = open();
    ASSERT_TRUE(host);
    setPanelChoices(*host);
    PrintSettings& settings = *host->printSettings();
    const std::vector<std::pair<std::string, std::string>> rawValues{
        {"QVNote", "  two  spaces\tand a tab "}, {"QVQuotes", "'single' and \"double\""},
        {"QVBackslash", "C:\\Jobs\\"},        {"QVMixed", "Grüße, 日本 100% a=b"},
        {"QVLines", "first\nsecond"},          {"QVEmpty", ""}};
    for (const auto& [name, value] : rawValues) settings.setValue(name, value);

    const HostOutcome direct = print(*host, document);
    ASSERT_EQ(direct.status, HostOutcome::Status::Done) << direct.message;
    auto directAttributes = client->jobAttributes(direct.jobId);
    EXPECT_EQ(directAttributes["job-name"], "Q3");
    EXPECT_EQ(directAttributes["QZMediaType"], "Coated");
    EXPECT_EQ(directAttributes["StapleMode"], "TopLeftCorner");
    const std::string storedJobName = directAttributes[PrintSettingsTicket::customKey("JobName")];
    EXPECT_EQ(storedJobName, "Q3 report%x2C \"final\" 50%x25 O%x27Neil");
    EXPECT_EQ(TicketValueEscaping::unescape(storedJobName), JobName);
    EXPECT_EQ(TicketValueEscaping::unescape(directAttributes[PrintSettingsTicket::customKey("ProfilePath")]),
              ProfilePath);
    EXPECT_EQ(directAttributes["copies"], "2");
    EXPECT_EQ(directAttributes["collate"], "false");
    EXPECT_EQ(directAttributes["sides"], "two-sided-long-edge");
    for (const auto& [name, value] : rawValues) EXPECT_EQ(directAttributes[name], value) << name;

    const auto arguments = LpOptionQuoting::lpArguments(settings.cupsOptions());
    ASSERT_TRUE(arguments);
    const int throughLp = client->lp("-d press " + *arguments + " " + LpOptionQuoting::shellQuote(document));
    ASSERT_GT(throughLp, 0);
    auto lpAttributes = client->jobAttributes(throughLp);
    for (const auto& [name, value] : settings.cupsOptions()) {
        ASSERT_TRUE(directAttributes.count(name)) << name;
        EXPECT_EQ(lpAttributes[name], directAttributes[name]) << name;
    }
}

TEST_F(CupsQueueHostTest, SavedOptionsAreWrittenAndReadBack) {
    std::unique_ptr<CupsQueueHost> host = open();
    ASSERT_TRUE(host);
    setPanelChoices(*host);
    const HostOutcome saved = save(*host);
    ASSERT_EQ(saved.status, HostOutcome::Status::Done) << saved.message;
    EXPECT_TRUE(std::filesystem::exists(lpoptionsPath()));

    std::unique_ptr<CupsQueueHost> reopened = open();
    ASSERT_TRUE(reopened);
    EXPECT_EQ(reopened->ppd().findMarkedChoice("QZMediaType"), PlistValue("Coated"));
    for (const auto& [name, value] : host->printSettings()->cupsOptions())
        EXPECT_EQ(reopened->printSettings()->text(name), value) << name;

    // lp starts every job from the saved options.
    const int jobId = client->lp("-d press " + LpOptionQuoting::shellQuote(document));
    ASSERT_GT(jobId, 0);
    auto attributes = client->jobAttributes(jobId);
    EXPECT_EQ(attributes["StapleMode"], "TopLeftCorner");
    EXPECT_EQ(TicketValueEscaping::unescape(attributes[PrintSettingsTicket::customKey("JobName")]), JobName);
}

TEST_F(CupsQueueHostTest, RemovedSettingsAreNotSavedAndEmptyOnesComeBackEmpty) {
    std::unique_ptr<CupsQueueHost> host = open();
    ASSERT_TRUE(host);
    PrintSettingsTicket ticket(*host);
    ticket._customTicketSetString("JobName", JobName);
    ticket._customTicketSetString("QZSpecificJobName", "Input");
    ASSERT_EQ(save(*host).status, HostOutcome::Status::Done);

    ticket._customTicketSetString("JobName", std::nullopt);
    ticket._customTicketSetString("ProfilePath", std::string());
    ticket._customTicketSetString("QZSpecificJobName", std::string());
    ASSERT_EQ(save(*host).status, HostOutcome::Status::Done);

    std::unique_ptr<CupsQueueHost> reopened = open();
    ASSERT_TRUE(reopened);
    const PrintSettings& settings = *reopened->printSettings();
    EXPECT_EQ(settings.value(PrintSettingsTicket::customKey("JobName")), nullptr);
    EXPECT_EQ(settings.text(PrintSettingsTicket::customKey("ProfilePath")), "");
    EXPECT_EQ(settings.text(PrintSettingsTicket::customKey("QZSpecificJobName")), "");
}

TEST_F(CupsQueueHostTest, AWriteThatStopsHalfWayPutsThePreviousSavedOptionsBack) {
    std::unique_ptr<CupsQueueHost> host = open();
    ASSERT_TRUE(host);
    ASSERT_TRUE(host->willChangePPDOptionKeyValue("QZMediaType", "Bond"));
    ASSERT_EQ(save(*host).status, HostOutcome::Status::Done);
    const std::string previous = OstrinTest::readFile(lpoptionsPath());
    ASSERT_NE(previous.find("QZMediaType=Bond"), std::string::npos) << previous;

    PrintSettingsTicket(*host)._customTicketSetString("JobName", std::string(4000, 'x'));
    std::optional<OstrinTest::FileSizeLimit> limit(std::in_place, previous.size() + 64);
    const HostOutcome saved = save(*host);
    limit.reset();

    EXPECT_EQ(saved.status, HostOutcome::Status::Failed);
    EXPECT_EQ(saved.message, "saving the options of press: " + lpoptionsPath() + " could not be written");
    EXPECT_EQ(OstrinTest::readFile(lpoptionsPath()), previous);
}

TEST_F(CupsQueueHostTest, AHomeWithoutRoomForSavedOptionsIsReported) {
    std::unique_ptr<CupsQueueHost> host = open();
    ASSERT_TRUE(host);
    std::filesystem::create_directories(server.clientHome());
    OstrinTest::writeFile(server.clientHome() + "/.cups", "a file where the folder belongs");
    const HostOutcome saved = save(*host);
    EXPECT_EQ(saved.status, HostOutcome::Status::Failed);
    EXPECT_NE(saved.message.find(lpoptionsPath()), std::string::npos) << saved.message;
    EXPECT_EQ(OstrinTest::readFile(server.clientHome() + "/.cups"), "a file where the folder belongs");
}

TEST_F(CupsQueueHostTest, UnknownQueuesAndUnreadableFilesAreInputErrors) {
    CupsQueueHost::Opening opening;
    CupsClient::run([&] { opening = CupsQueueHost::open("nosuch"); });
    EXPECT_EQ(opening.host, nullptr);
    EXPECT_EQ(opening.outcome.status, HostOutcome::Status::InputError);
    EXPECT_EQ(opening.outcome.message, "queue nosuch: no such queue");

    std::unique_ptr<CupsQueueHost> host = open();
    ASSERT_TRUE(host);
    const HostOutcome unreadable = print(*host, folder.file("missing.pdf"));
    EXPECT_EQ(unreadable.status, HostOutcome::Status::InputError);
    EXPECT_EQ(unreadable.message, "printing " + folder.file("missing.pdf") + " on press: the file cannot be read");

    ASSERT_EQ(OstrinTest::runShell("lpadmin -x press").exitCode, 0);
    const HostOutcome printed = print(*host, document);
    EXPECT_EQ(printed.status, HostOutcome::Status::InputError) << printed.message;
    EXPECT_EQ(printed.message, "printing " + document + " on press: no queue named press");
    const HostOutcome saved = save(*host);
    EXPECT_EQ(saved.status, HostOutcome::Status::InputError) << saved.message;
    EXPECT_EQ(saved.message, "saving the options of press: no queue named press");
    EXPECT_FALSE(std::filesystem::exists(lpoptionsPath()));
}

TEST_F(CupsQueueHostTest, AStoppedCupsdIsUnreachable) {
    std::unique_ptr<CupsQueueHost> host = open();
    ASSERT_TRUE(host);
    server.stop();
    const HostOutcome printed = print(*host, document);
    EXPECT_EQ(printed.status, HostOutcome::Status::Unreachable) << printed.message;
    EXPECT_NE(printed.message.find("cannot be reached"), std::string::npos) << printed.message;
    const HostOutcome saved = save(*host);
    EXPECT_EQ(saved.status, HostOutcome::Status::Unreachable) << saved.message;
    EXPECT_FALSE(std::filesystem::exists(lpoptionsPath()));

    CupsQueueHost::Opening opening;
    CupsClient::run([&] { opening = CupsQueueHost::open(Queue); });
    EXPECT_EQ(opening.outcome.status, HostOutcome::Status::Unreachable);
}

// A cupsd that breaks off, or falls silent past the reply timeout, while the queue opens.
TEST(CupsFailure, CupsdClosingOrSilentIsUnreachableNotAnUnknownQueue) {
    CannedReply silent = CannedReply::closing();
    silent.delay = std::chrono::seconds(20);
    for (const CannedReply& reply : {CannedReply::closing(), silent}) {
        OstrinTest::LoopbackHttpServer cupsd({reply, reply, reply});
        const std::string name = "127.0.0.1:" + std::to_string(cupsd.port());
        OstrinTest::EnvironmentOverride server("CUPS_SERVER", name);
        CupsConnection::setReplyTimeout(0.5);
        const auto start = std::chrono::steady_clock::now();
        CupsQueueHost::Opening opening;
        CupsClient::run([&] { opening = CupsQueueHost::open("press"); });
        CupsConnection::setReplyTimeout(CupsConnection::DefaultReplyTimeout);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
        EXPECT_FALSE(opening.host);
        EXPECT_EQ(opening.outcome.status, HostOutcome::Status::Unreachable) << opening.outcome.message;
        EXPECT_EQ(opening.outcome.message, "queue press: cupsd at " + name + " cannot be reached");
    }
}
