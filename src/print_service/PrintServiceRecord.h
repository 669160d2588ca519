#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "print_service/PrintServiceResultCodes.h"
#include "print_service/PrintServiceSerializable.h"
#include "print_service/USBoolean.h"

class PrintService_PropDict;
class PrintService_PropArray;

/// Reads one child element into the field of a request or response that it names.
class PrintServiceFieldReader {
public:
    explicit PrintServiceFieldReader(_xmlNode* child);

    /// Calls read with a reader for each element child of node, in document order.
    static void forEachChild(_xmlNode* node, const std::function<void(PrintServiceFieldReader&)>& read);

    void operator()(std::string_view name, std::optional<std::uint32_t>& field);
    void operator()(std::string_view name, std::optional<std::int32_t>& field);
    void operator()(std::string_view name, std::optional<double>& field);
    void operator()(std::string_view name, std::optional<std::string>& field);
    void operator()(std::string_view name, std::optional<USBoolean>& field);
    void operator()(std::string_view name, PrintService_ServiceResult& field);
    void operator()(std::string_view name, std::shared_ptr<PrintService_PropDict>& field);
    void operator()(std::string_view name, std::shared_ptr<PrintService_PropArray>& field);

private:
    _xmlNode* _child;
    std::string_view _name;
};

/// Writes the fields of a request or response as child elements of a node; absent fields
/// are left out.
class PrintServiceFieldWriter {
public:
    explicit PrintServiceFieldWriter(_xmlNode* node) : _node(node) {}

    void operator()(std::string_view name, const std::optional<std::uint32_t>& field);
    void operator()(std::string_view name, const std::optional<std::int32_t>& field);
    void operator()(std::string_view name, const std::optional<double>& field);
    void operator()(std::string_view name, const std::optional<std::string>& field);
    void operator()(std::string_view name, const std::optional<USBoolean>& field);
    void operator()(std::string_view name, const PrintService_ServiceResult& field);
    void operator()(std::string_view name, const std::shared_ptr<PrintService_PropDict>& field);
    void operator()(std::string_view name, const std::shared_ptr<PrintService_PropArray>& field);

private:
    void addText(std::string_view name, const std::string& text);

    _xmlNode* _node;
};

/// A request or response of the service: its fields, listed once by Derived::visitFields,
/// are written and read by name.
template <class Derived>
class PrintServiceRecord : public PrintServiceSerializable {
public:
    /// A new object read from node.
    static std::shared_ptr<Derived> deserializeNode(_xmlNode* node) { return deserializeNodeAs<Derived>(node); }

    std::string_view typeName() const override { return Derived::className; }

    void addElementsToNode(_xmlNode* node) const override {
        PrintServiceFieldWriter writer(node);
        Derived::visitFields(static_cast<const Derived&>(*this), writer);
    }

    void deserializeElementsFromNode(_xmlNode* node) override {
        PrintServiceFieldReader::forEachChild(node, [this](PrintServiceFieldReader& reader) {
            Derived::visitFields(static_cast<Derived&>(*this), reader);
        });
    }
};
