#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "print_service/PrintServiceSerializable.h"
#include "print_service/PrintServiceValue.h"

/// The service's array: values (strings, or typed dictionaries, arrays and items) in order.
class PrintService_PropArray final : public PrintServiceSerializable {
public:
    std::vector<PrintServiceValue> item;
    /// The optional "d" attribute.
    std::optional<std::int32_t> d;

    /// Appends value; an absent value is ignored.
    void addItem(std::optional<PrintServiceValue> value);

    /// A new array read from node.
    static std::shared_ptr<PrintService_PropArray> deserializeNode(_xmlNode* node);

    std::string_view typeName() const override { return "PrintService_PropArray"; }
    void addAttributesToNode(_xmlNode* node) const override;
    void addElementsToNode(_xmlNode* node) const override;
    void deserializeAttributesFromNode(_xmlNode* node) override;
    void deserializeElementsFromNode(_xmlNode* node) override;
};
