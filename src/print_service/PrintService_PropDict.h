#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "print_service/PrintServiceSerializable.h"
#include "print_service/PrintServiceValue.h"

/// The service's dictionary: key/value items in the order the server sent them.
class PrintService_PropDict final : public PrintServiceSerializable {
public:
    /// The items; PrintService_PropKeyValue unless a reply typed an item otherwise.
    std::vector<PrintServiceValue> item;
    /// The optional "d" attribute.
    std::optional<std::int32_t> d;

    /// Appends value; an absent value is ignored.
    void addItem(std::optional<PrintServiceValue> value);

    /// A new dictionary read from node.
    static std::shared_ptr<PrintService_PropDict> deserializeNode(_xmlNode* node);

    std::string_view typeName() const override { return "PrintService_PropDict"; }
    void addAttributesToNode(_xmlNode* node) const override;
    void addElementsToNode(_xmlNode* node) const override;
    void deserializeAttributesFromNode(_xmlNode* node) override;
    void deserializeElementsFromNode(_xmlNode* node) override;
};
