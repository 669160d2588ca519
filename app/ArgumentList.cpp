#include "ArgumentList.h"

namespace OstrinFlowCommand {
namespace {

bool matches(const std::string& argument, const std::string& name, const std::string& shortName) {
    return argument == "--" + name || (!shortName.empty() && argument == "-" + shortName);
}

}  // namespace

std::vector<std::string> ArgumentList::takeAll(const std::string& name, const std::string& shortName) {
    std::vector<std::string> values;
    std::vector<std::string> rest;
    const std::string prefix = "--" + name + "=";
    for (std::size_t i = 0; i < _arguments.size(); ++i) {
        const std::string& argument = _arguments[i];
        if (argument == "--") {
            rest.insert(rest.end(), _arguments.begin() + static_cast<std::ptrdiff_t>(i), _arguments.end());
            break;
        }
        if (argument.rfind(prefix, 0) == 0) {
            values.push_back(argument.substr(prefix.size()));
        } else if (matches(argument, name, shortName)) {
            if (i + 1 >= _arguments.size()) throw UsageError("option " + argument + " needs a value");
            values.push_back(_arguments[++i]);
        } else {
            rest.push_back(argument);
        }
    }
    _arguments = std::move(rest);
    return values;
}

std::optional<std::string> ArgumentList::take(const std::string& name, const std::string& shortName) {
    std::vector<std::string> values = takeAll(name, shortName);
    if (values.empty()) return std::nullopt;
    return values.back();
}

bool ArgumentList::takeFlag(const std::string& name, const std::string& shortName) {
    bool found = false;
    std::vector<std::string> rest;
    bool literal = false;
    for (const std::string& argument : _arguments) {
        literal = literal || argument == "--";
        if (!literal && matches(argument, name, shortName)) {
            found = true;
        } else {
            rest.push_back(argument);
        }
    }
    _arguments = std::move(rest);
    return found;
}

std::string ArgumentList::takeFirstPositional() {
    for (auto it = _arguments.begin(); it != _arguments.end(); ++it) {
        if (*it == "--") break;
        if (it->empty() || (*it)[0] != '-' || *it == "-") {
            std::string word = *it;
            _arguments.erase(it);
            return word;
        }
    }
    return {};
}

std::vector<std::string> ArgumentList::positionals(std::size_t minimum, std::size_t maximum) const {
    std::vector<std::string> result;
    bool literal = false;
    for (const std::string& argument : _arguments) {
        if (!literal && argument == "--") {
            literal = true;
            continue;
        }
        if (!literal && argument.size() > 1 && argument[0] == '-')
            throw UsageError("unknown option " + argument);
        result.push_back(argument);
    }
    if (result.size() < minimum) throw UsageError("missing argument");
    if (result.size() > maximum) throw UsageError("unexpected argument " + result[maximum]);
    return result;
}

}  // namespace OstrinFlowCommand
