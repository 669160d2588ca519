#pragma once

#include <string>
#include <utility>
#include <vector>

namespace OstrinTest {

/// What one run of the command printed and answered.
struct CommandResult {
    int exitCode = -1;
    std::string out;
    std::string err;
};

/// Runs the built ostrin-flow with arguments, standard input text and extra environment
/// variables ("NAME=value"), and waits for it.
CommandResult runCommand(const std::vector<std::string>& arguments, const std::string& input = {},
                         const std::vector<std::string>& environment = {});

}  // namespace OstrinTest
