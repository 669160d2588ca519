#include <gtest/gtest.h>

#include "CommandRunner.h"

using OstrinTest::runCommand;

TEST(CommandLine, HelpListsGlobalOptionsAndExitsZero) {
    auto result = runCommand({"--help"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_NE(result.out.find("--queue NAME"), std::string::npos);
    EXPECT_NE(result.out.find("Exit codes"), std::string::npos);
}

TEST(CommandLine, UsageErrorsExitTwoWithOneLine) {
    auto none = runCommand({});
    EXPECT_EQ(none.exitCode, 2);
    EXPECT_NE(none.err.find("no command given"), std::string::npos);
    auto unknown = runCommand({"frobnicate"});
    EXPECT_EQ(unknown.exitCode, 2);
    EXPECT_NE(unknown.err.find("unknown command \"frobnicate\""), std::string::npos);
    auto both = runCommand({"--queue", "q", "--ppd", "f.ppd", "ppd"});
    EXPECT_EQ(both.exitCode, 2);
    auto answer = runCommand({"--answer", "maybe", "ppd"});
    EXPECT_EQ(answer.exitCode, 2);
    EXPECT_NE(answer.err.find("--answer takes yes or no"), std::string::npos);
    auto missingValue = runCommand({"--lang"});
    EXPECT_EQ(missingValue.exitCode, 2);
}
