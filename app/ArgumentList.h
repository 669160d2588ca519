#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace OstrinFlowCommand {

/// A bad command line; the message names the argument at fault.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The arguments of one command, consumed option by option.
class ArgumentList {
public:
    explicit ArgumentList(std::vector<std::string> arguments) : _arguments(std::move(arguments)) {}

    /// Removes every "--name VALUE" or "--name=VALUE" (and "-s VALUE" when short is given)
    /// and answers their values in order; a missing value is a usage error.
    std::vector<std::string> takeAll(const std::string& name, const std::string& shortName = {});
    /// The last value of takeAll, or nothing.
    std::optional<std::string> take(const std::string& name, const std::string& shortName = {});
    /// Removes the flag "--name" (or "-s"); true when it was present.
    bool takeFlag(const std::string& name, const std::string& shortName = {});
    /// Removes and answers the first argument that is not an option, or an empty string.
    std::string takeFirstPositional();
    /// The remaining arguments; an unknown option among them is a usage error.
    std::vector<std::string> positionals(std::size_t minimum, std::size_t maximum) const;

private:
    std::vector<std::string> _arguments;
};

}  // namespace OstrinFlowCommand
