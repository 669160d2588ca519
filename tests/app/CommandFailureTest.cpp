// Servers that fail while the command talks to them: the print server breaking off or
// flooding its reply, cupsd not answering. The command ends with exit 4 and one line
// naming the server, and never waits longer than its own time limits.
#include <gtest/gtest.h>

#include <string>

#include "CommandRunner.h"
#include "print_service/LoopbackHttpServer.h"

using namespace OstrinTest;

namespace {

std::string hostOf(const LoopbackHttpServer& server) { return "127.0.0.1:" + std::to_string(server.port()); }

void expectUnreachable(const CommandResult& result, const std::string& prefix) {
    EXPECT_EQ(result.exitCode, 4) << result.err;
    EXPECT_TRUE(result.out.empty());
    EXPECT_EQ(result.err.find('\n'), result.err.size() - 1) << result.err;
    EXPECT_EQ(result.err.rfind(prefix, 0), 0u) << result.err;
}

}  // namespace

TEST(CommandFailure, PrintServerAbsentResettingOrFloodingMidReplyExitsFour) {
    const std::string absent = "127.0.0.1:" + std::to_string(LoopbackHttpServer::unusedPort());
    expectUnreachable(runCommand({"server", "stackers", "--host", absent}),
                      "ostrin-flow: cannot reach the print server " + absent + ": ");
    LoopbackHttpServer server({CannedReply::resetHalfWay(4096), CannedReply::endless()});
    const std::string prefix = "ostrin-flow: cannot reach the print server " + hostOf(server) + ": ";
    expectUnreachable(runCommand({"server", "fonts", "--host", hostOf(server)}), prefix);
    expectUnreachable(runCommand({"server", "fonts", "--host", hostOf(server)}), prefix);
}

TEST(CommandFailure, CupsdBreakingOffExitsFourNotUnknownQueue) {
    LoopbackHttpServer cupsd({CannedReply::closing(), CannedReply::closing(), CannedReply::closing()});
    auto result = runCommand({"--queue", "Ostrin", "ppd"}, {}, {"CUPS_SERVER=" + hostOf(cupsd)});
    expectUnreachable(result, "ostrin-flow: queue Ostrin: cupsd at " + hostOf(cupsd) + " cannot be reached\n");
    EXPECT_EQ(result.err, "ostrin-flow: queue Ostrin: cupsd at " + hostOf(cupsd) + " cannot be reached\n");
}
