// A cupsd that breaks off or falls silent while the queue host talks to it: opening the
// queue ends with "cannot be reached", at the latest after the reply timeout, and no
// other libcups call is left waiting on it.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <string>

#include "CupsClient.h"
#include "pde/CupsConnection_p.h"
#include "pde/CupsQueueHost.h"
#include "print_service/LoopbackHttpServer.h"

using namespace ComQuorvantVelmar_Plugin;
using OstrinTest::CannedReply;
using OstrinTest::LoopbackHttpServer;

namespace {

// Points this process's libcups clients at a server on 127.0.0.1 and shortens the reply
// timeout, both until the object goes away.
class FailingCupsd {
public:
    explicit FailingCupsd(std::vector<CannedReply> script) : _server(std::move(script)) {
        if (const char* previous = std::getenv("CUPS_SERVER")) _previous = previous;
        ::setenv("CUPS_SERVER", ("127.0.0.1:" + std::to_string(_server.port())).c_str(), 1);
        CupsConnection::setReplyTimeout(0.5);
    }
    ~FailingCupsd() {
        CupsConnection::setReplyTimeout(CupsConnection::DefaultReplyTimeout);
        if (_previous) ::setenv("CUPS_SERVER", _previous->c_str(), 1);
        else ::unsetenv("CUPS_SERVER");
    }
    std::string name() const { return "127.0.0.1:" + std::to_string(_server.port()); }

private:
    LoopbackHttpServer _server;
    std::optional<std::string> _previous;
};

CupsQueueHost::Opening openPress() {
    CupsQueueHost::Opening opening;
    OstrinTest::CupsClient::run([&] { opening = CupsQueueHost::open("press"); });
    return opening;
}

}  // namespace

TEST(CupsFailure, CupsdClosingWithoutAReplyIsUnreachableNotAnUnknownQueue) {
    FailingCupsd cupsd({CannedReply::closing(), CannedReply::closing(), CannedReply::closing()});
    const CupsQueueHost::Opening opening = openPress();
    EXPECT_FALSE(opening.host);
    EXPECT_EQ(opening.outcome.status, HostOutcome::Status::Unreachable) << opening.outcome.message;
    EXPECT_EQ(opening.outcome.message, "queue press: cupsd at " + cupsd.name() + " cannot be reached");
}

TEST(CupsFailure, SilentCupsdIsUnreachableAfterTheReplyTimeout) {
    CannedReply silent = CannedReply::closing();
    silent.delay = std::chrono::seconds(20);
    FailingCupsd cupsd({silent, silent, silent});
    const auto start = std::chrono::steady_clock::now();
    const CupsQueueHost::Opening opening = openPress();
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
    EXPECT_FALSE(opening.host);
    EXPECT_EQ(opening.outcome.status, HostOutcome::Status::Unreachable) << opening.outcome.message;
    EXPECT_EQ(opening.outcome.message, "queue press: cupsd at " + cupsd.name() + " cannot be reached");
}
