#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <variant>
#include <vector>

namespace ComQuorvantVelmar_Plugin {

class PlistValue;

/// An array of property-list values.
using PlistArray = std::vector<PlistValue>;

/// A dictionary that keeps its keys in insertion order; replacing a value keeps its place.
class PlistDictionary {
public:
    using Entry = std::pair<std::string, PlistValue>;
    using const_iterator = std::vector<Entry>::const_iterator;
    using iterator = std::vector<Entry>::iterator;

    PlistDictionary() = default;
    PlistDictionary(std::initializer_list<Entry> entries);

    /// The value under key, or nullptr.
    const PlistValue* find(std::string_view key) const;
    PlistValue* find(std::string_view key);
    bool contains(std::string_view key) const;
    /// The string under key, or nothing when absent or not a string.
    std::optional<std::string> stringFor(std::string_view key) const;
    /// The string under key, or fallback when absent or not a string.
    std::string stringFor(std::string_view key, std::string_view fallback) const;

    /// Sets key to value, appending a new key at the end.
    void set(std::string key, PlistValue value);
    /// Removes key; false when it was absent.
    bool erase(std::string_view key);
    void clear();

    std::size_t size() const;
    bool empty() const;
    std::vector<std::string> keys() const;

    const_iterator begin() const;
    const_iterator end() const;
    iterator begin();
    iterator end();

    bool operator==(const PlistDictionary& other) const;

private:
    void reindexFrom(std::size_t position);

    std::vector<Entry> _entries;
    std::unordered_map<std::string, std::size_t> _index;
};

/// One property-list value: null, boolean, integer, real, string, array or ordered dictionary.
class PlistValue {
public:
    enum class Type { Null, Boolean, Integer, Real, String, Array, Dictionary };

    PlistValue() = default;
    PlistValue(std::nullptr_t) {}
    PlistValue(bool value) : _value(value) {}
    template <std::integral T>
        requires(!std::same_as<T, bool>)
    PlistValue(T value) : _value(static_cast<std::int64_t>(value)) {}
    PlistValue(double value) : _value(value) {}
    PlistValue(const char* value) : _value(std::string(value)) {}
    PlistValue(std::string value) : _value(std::move(value)) {}
    PlistValue(std::string_view value) : _value(std::string(value)) {}
    PlistValue(PlistArray value) : _value(std::move(value)) {}
    PlistValue(PlistDictionary value) : _value(std::move(value)) {}

    Type type() const { return static_cast<Type>(_value.index()); }
    bool isNull() const { return type() == Type::Null; }
    bool isBoolean() const { return type() == Type::Boolean; }
    bool isInteger() const { return type() == Type::Integer; }
    bool isReal() const { return type() == Type::Real; }
    bool isNumber() const { return isInteger() || isReal(); }
    bool isString() const { return type() == Type::String; }
    bool isArray() const { return type() == Type::Array; }
    bool isDictionary() const { return type() == Type::Dictionary; }

    /// Typed views: nullptr when the value is of another type.
    const bool* boolean() const { return std::get_if<bool>(&_value); }
    const std::int64_t* integer() const { return std::get_if<std::int64_t>(&_value); }
    const double* real() const { return std::get_if<double>(&_value); }
    const std::string* string() const { return std::get_if<std::string>(&_value); }
    const PlistArray* array() const { return std::get_if<PlistArray>(&_value); }
    PlistArray* array() { return std::get_if<PlistArray>(&_value); }
    const PlistDictionary* dictionary() const { return std::get_if<PlistDictionary>(&_value); }
    PlistDictionary* dictionary() { return std::get_if<PlistDictionary>(&_value); }

    /// The string, or fallback when the value is not a string.
    std::string stringOr(std::string_view fallback) const;
    /// A number as double (booleans count 0/1), or nothing for other types.
    std::optional<double> number() const;

    bool operator==(const PlistValue& other) const { return _value == other._value; }

private:
    std::variant<std::monostate, bool, std::int64_t, double, std::string, PlistArray,
                 PlistDictionary>
        _value;
};

// Defined here, where PlistValue is complete: some compilers instantiate the entry type
// as soon as a member function body names it.
inline bool PlistDictionary::contains(std::string_view key) const { return find(key) != nullptr; }
inline std::size_t PlistDictionary::size() const { return _entries.size(); }
inline bool PlistDictionary::empty() const { return _entries.empty(); }
inline PlistDictionary::const_iterator PlistDictionary::begin() const { return _entries.begin(); }
inline PlistDictionary::const_iterator PlistDictionary::end() const { return _entries.end(); }
inline PlistDictionary::iterator PlistDictionary::begin() { return _entries.begin(); }
inline PlistDictionary::iterator PlistDictionary::end() { return _entries.end(); }

}  // namespace ComQuorvantVelmar_Plugin
