#pragma once

#include <optional>
#include <string>
#include <string_view>

struct _xmlDoc;
struct _xmlNode;

/// A boolean as the service writes it: "true" or "false".
class USBoolean {
public:
    explicit USBoolean(bool value) : _value(value) {}

    /// The boolean of text "true" or "false"; nothing for any other text.
    static std::optional<USBoolean> fromString(std::string_view text);
    /// The boolean of node's text; nothing unless it is "true" or "false".
    static std::optional<USBoolean> deserializeNode(_xmlNode* node);

    bool boolValue() const { return _value; }
    /// "true" or "false".
    std::string stringValue() const { return _value ? "true" : "false"; }
    /// A new element elementName holding stringValue.
    _xmlNode* xmlNodeForDoc(_xmlDoc* document, std::string_view elementName) const;

    bool operator==(const USBoolean& other) const = default;

private:
    bool _value;
};
