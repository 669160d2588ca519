#include "print_service/PrintServiceRecord.h"

#include <charconv>
#include <cmath>

#include "print_service/PrintServiceValueCoding_p.h"
#include "print_service/PrintServiceXml_p.h"
#include "print_service/PrintService_PropArray.h"
#include "print_service/PrintService_PropDict.h"

namespace {

using PrintServiceValueCoding::ValueType;
using PrintServiceXml::NodeText;

template <class Number>
std::optional<Number> parseNumber(std::string_view text) {
    Number value{};
    auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

// A number's text read as the server's clients read it: leading blanks skipped, the longest
// numeric prefix taken, 0 when there is none.
double leadingDouble(std::string_view text) {
    while (!text.empty() &&
           (text.front() == ' ' || text.front() == '\t' || text.front() == '\n' || text.front() == '\r'))
        text.remove_prefix(1);
    if (!text.empty() && text.front() == '+') text.remove_prefix(1);
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

template <class Object>
void decodeObjectField(xmlNode* child, ValueType declared, std::shared_ptr<Object>& field) {
    std::optional<PrintServiceValue> value = PrintServiceValueCoding::decodeObject(child, declared);
    if (!value) return;
    if (auto* object = std::get_if<std::shared_ptr<Object>>(&*value)) field = std::move(*object);
}

}  // namespace

PrintServiceFieldReader::PrintServiceFieldReader(xmlNode* child)
    : _child(child), _name(PrintServiceXml::nameOf(child)) {}

void PrintServiceFieldReader::forEachChild(xmlNode* node,
                                           const std::function<void(PrintServiceFieldReader&)>& read) {
    PrintServiceXml::forEachChildElement(node, [&](xmlNode* child) {
        PrintServiceFieldReader reader(child);
        read(reader);
    });
}

void PrintServiceFieldReader::operator()(std::string_view name, std::optional<std::uint32_t>& field) {
    if (name != _name) return;
    if (auto number = parseNumber<std::uint32_t>(PrintServiceXml::textContent(_child).view())) field = number;
}

void PrintServiceFieldReader::operator()(std::string_view name, std::optional<std::int32_t>& field) {
    if (name != _name) return;
    if (auto number = parseNumber<std::int32_t>(PrintServiceXml::textContent(_child).view())) field = number;
}

void PrintServiceFieldReader::operator()(std::string_view name, std::optional<double>& field) {
    if (name != _name) return;
    NodeText text = PrintServiceXml::textContent(_child);
    if (!text.empty()) field = leadingDouble(text.view());
}

void PrintServiceFieldReader::operator()(std::string_view name, std::optional<std::string>& field) {
    if (name != _name) return;
    NodeText text = PrintServiceXml::textContent(_child);
    if (!text.empty()) field = text.str();
}

void PrintServiceFieldReader::operator()(std::string_view name, std::optional<USBoolean>& field) {
    if (name == _name) field = USBoolean::deserializeNode(_child);
}

void PrintServiceFieldReader::operator()(std::string_view name, PrintService_ServiceResult& field) {
    if (name == _name)
        field = PrintService_ServiceResult_enumFromString(PrintServiceXml::textContent(_child).view());
}

void PrintServiceFieldReader::operator()(std::string_view name, std::shared_ptr<PrintService_PropDict>& field) {
    if (name == _name) decodeObjectField(_child, ValueType::PropDict, field);
}

void PrintServiceFieldReader::operator()(std::string_view name, std::shared_ptr<PrintService_PropArray>& field) {
    if (name == _name) decodeObjectField(_child, ValueType::PropArray, field);
}

void PrintServiceFieldWriter::addText(std::string_view name, const std::string& text) {
    xmlAddChild(_node, PrintServiceXml::textElement(_node->doc, name, text, "PrintService"));
}

void PrintServiceFieldWriter::operator()(std::string_view name, const std::optional<std::uint32_t>& field) {
    if (field) addText(name, std::to_string(*field));
}

void PrintServiceFieldWriter::operator()(std::string_view name, const std::optional<std::int32_t>& field) {
    if (field) addText(name, std::to_string(*field));
}

void PrintServiceFieldWriter::operator()(std::string_view name, const std::optional<double>& field) {
    if (!field || !std::isfinite(*field)) return;
    char buffer[32];
    auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, *field);
    if (error == std::errc()) addText(name, std::string(buffer, end));
}

void PrintServiceFieldWriter::operator()(std::string_view name, const std::optional<std::string>& field) {
    if (field) addText(name, *field);
}

void PrintServiceFieldWriter::operator()(std::string_view name, const std::optional<USBoolean>& field) {
    if (field) xmlAddChild(_node, field->xmlNodeForDoc(_node->doc, name));
}

void PrintServiceFieldWriter::operator()(std::string_view name, const PrintService_ServiceResult& field) {
    addText(name, PrintService_ServiceResult_stringFromEnum(field));
}

void PrintServiceFieldWriter::operator()(std::string_view name,
                                         const std::shared_ptr<PrintService_PropDict>& field) {
    if (field) xmlAddChild(_node, field->xmlNodeForDoc(_node->doc, name));
}

void PrintServiceFieldWriter::operator()(std::string_view name,
                                         const std::shared_ptr<PrintService_PropArray>& field) {
    if (field) xmlAddChild(_node, field->xmlNodeForDoc(_node->doc, name));
}
