#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>

#include "print_service/PrintServiceSerializable.h"
#include "print_service/PrintServiceValue.h"

/// One key/value item of the service; its value is a string or a nested dictionary, array
/// or item.
class PrintService_PropKeyValue final : public PrintServiceSerializable {
public:
    std::optional<std::string> key;
    std::optional<PrintServiceValue> val;

    /// {"key": key}; empty when the key is absent.
    std::map<std::string, std::string> attributes() const;

    /// A new item read from node.
    static std::shared_ptr<PrintService_PropKeyValue> deserializeNode(_xmlNode* node);

    std::string_view typeName() const override { return "PrintService_PropKeyValue"; }
    void addAttributesToNode(_xmlNode* node) const override;
    void addElementsToNode(_xmlNode* node) const override;
    void deserializeAttributesFromNode(_xmlNode* node) override;
    void deserializeElementsFromNode(_xmlNode* node) override;
};
