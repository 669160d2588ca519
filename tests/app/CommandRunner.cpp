#include "CommandRunner.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

namespace OstrinTest {
namespace {

void childExec(const std::vector<std::string>& arguments, const std::vector<std::string>& environment,
               int in, int out, int err) {
    ::dup2(in, 0);
    ::dup2(out, 1);
    ::dup2(err, 2);
    for (const auto& assignment : environment) ::putenv(const_cast<char*>(assignment.c_str()));
    std::vector<char*> argv{const_cast<char*>(OSTRIN_COMMAND_PATH)};
    for (const auto& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    ::execv(argv[0], argv.data());
    ::_exit(127);
}

// Feeds the input and drains both outputs together, so no pipe fills up and blocks.
void exchange(int in, int out, int err, const std::string& input, CommandResult& result) {
    std::size_t written = 0;
    if (input.empty()) ::close(in), in = -1;
    pollfd fds[3] = {{out, POLLIN, 0}, {err, POLLIN, 0}, {in, POLLOUT, 0}};
    while (fds[0].fd >= 0 || fds[1].fd >= 0) {
        if (::poll(fds, 3, -1) < 0) break;
        for (int i = 0; i < 2; ++i) {
            if (fds[i].fd < 0 || !fds[i].revents) continue;
            char buffer[4096];
            ssize_t count = ::read(fds[i].fd, buffer, sizeof buffer);
            if (count <= 0) {
                ::close(fds[i].fd);
                fds[i].fd = -1;
            } else {
                (i == 0 ? result.out : result.err).append(buffer, static_cast<std::size_t>(count));
            }
        }
        if (fds[2].fd >= 0 && fds[2].revents) {
            ssize_t count = ::write(in, input.data() + written, input.size() - written);
            if (count > 0) written += static_cast<std::size_t>(count);
            if (count <= 0 || written == input.size()) ::close(in), fds[2].fd = -1;
        }
    }
}

}  // namespace

CommandResult runCommand(const std::vector<std::string>& arguments, const std::string& input,
                         const std::vector<std::string>& environment) {
    int in[2], out[2], err[2];
    if (::pipe2(in, O_CLOEXEC) || ::pipe2(out, O_CLOEXEC) || ::pipe2(err, O_CLOEXEC)) return {};
    pid_t child = ::fork();
    if (child == 0) childExec(arguments, environment, in[0], out[1], err[1]);
    ::close(in[0]);
    ::close(out[1]);
    ::close(err[1]);
    CommandResult result;
    exchange(in[1], out[0], err[0], input, result);
    int status = 0;
    ::waitpid(child, &status, 0);
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return result;
}

}  // namespace OstrinTest
