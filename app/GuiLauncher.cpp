// The panel window is a program of its own, so that the headless commands never load Qt:
// `gui` hands it the whole command line, and it runs as if it had been started itself.
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "CommandError.h"
#include "Commands.h"

namespace OstrinFlowCommand {
namespace {

namespace fs = std::filesystem;

// The command line the process was started with, as the kernel keeps it.
std::vector<std::string> ownCommandLine() {
    std::ifstream file("/proc/self/cmdline", std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    std::vector<std::string> arguments;
    for (std::size_t start = 0; start < text.size();) {
        std::size_t end = text.find('\0', start);
        if (end == std::string::npos) end = text.size();
        arguments.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return arguments;
}

// The installed program wins over the build tree's, as the installed bundle does.
std::string guiProgramPath() {
    std::error_code error;
    const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
    if (error) return "";
    for (const fs::path& candidate : {folder / OSTRIN_INSTALL_GUI_RELATIVE, folder / "ostrin-flow-gui"})
        if (::access(candidate.c_str(), X_OK) == 0) return candidate.lexically_normal().string();
    return "";
}

}  // namespace

int guiCommand(const GlobalOptions&, ArgumentList&) {
    const std::string program = guiProgramPath();
    if (program.empty())
        throw CommandError(ExitInput, "gui: the panel window's program ostrin-flow-gui is not installed with the command");
    std::vector<std::string> arguments = ownCommandLine();
    if (arguments.empty()) throw CommandError(ExitInput, "gui: the command line cannot be read from /proc");
    arguments.front() = program;
    std::vector<char*> argv;
    for (std::string& argument : arguments) argv.push_back(argument.data());
    argv.push_back(nullptr);
    std::fflush(nullptr);
    ::execv(program.c_str(), argv.data());
    throw CommandError(ExitInput, "gui: " + program + " cannot be started: " + std::strerror(errno));
}

}  // namespace OstrinFlowCommand
