#include "JsonIO.h"

#include <cstdio>
#include <iostream>
#include <iterator>

#include "CommandError.h"
#include "core/FileUtil.h"

namespace OstrinFlowCommand {

namespace {

// Print option dictionaries are flat; far deeper nesting is refused before it is turned
// into values, whose conversion goes one level of the call stack per level of nesting.
constexpr int LargestNesting = 64;

}  // namespace

using ComQuorvantVelmar_Plugin::PlistArray;
using ComQuorvantVelmar_Plugin::PlistDictionary;
using ComQuorvantVelmar_Plugin::PlistValue;

Json toJson(const PlistValue& value) {
    switch (value.type()) {
    case PlistValue::Type::Boolean: return *value.boolean();
    case PlistValue::Type::Integer: return *value.integer();
    case PlistValue::Type::Real: return *value.real();
    case PlistValue::Type::String: return *value.string();
    case PlistValue::Type::Array: {
        Json array = Json::array();
        for (const auto& item : *value.array()) array.push_back(toJson(item));
        return array;
    }
    case PlistValue::Type::Dictionary: {
        Json object = Json::object();
        for (const auto& [key, item] : *value.dictionary()) object[key] = toJson(item);
        return object;
    }
    case PlistValue::Type::Null: break;
    }
    return nullptr;
}

PlistValue fromJson(const Json& json) {
    if (json.is_boolean()) return json.get<bool>();
    if (json.is_number_integer()) return json.get<std::int64_t>();
    if (json.is_number()) return json.get<double>();
    if (json.is_string()) return json.get<std::string>();
    if (json.is_array()) {
        PlistArray array;
        for (const auto& item : json) array.push_back(fromJson(item));
        return array;
    }
    if (json.is_object()) {
        PlistDictionary dictionary;
        for (const auto& [key, item] : json.items()) dictionary.set(key, fromJson(item));
        return dictionary;
    }
    return {};
}

PlistDictionary readJsonObject(const std::string& path) {
    const std::string name = path == "-" ? "standard input" : path;
    std::optional<std::string> text;
    if (path == "-") {
        text = std::string(std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>());
    } else {
        text = ComQuorvantVelmar_Plugin::FileUtil::readAll(path);
    }
    if (!text) throw CommandError(ExitInput, "cannot read " + name);
    bool tooDeep = false;
    Json json = Json::parse(
        *text,
        [&tooDeep](int depth, Json::parse_event_t, Json&) {
            if (depth > LargestNesting) tooDeep = true;
            return !tooDeep;
        },
        false);
    if (json.is_discarded()) throw CommandError(ExitInput, name + " is not valid JSON");
    if (tooDeep)
        throw CommandError(ExitInput, name + " nests deeper than " + std::to_string(LargestNesting) + " levels");
    if (!json.is_object()) throw CommandError(ExitInput, name + " does not hold a JSON object");
    return *fromJson(json).dictionary();
}

void printJson(const Json& json) {
    std::string text = json.dump(2, ' ', false, Json::error_handler_t::replace);
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fputc('\n', stdout);
}

}  // namespace OstrinFlowCommand
