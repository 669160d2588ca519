#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "print_service/PrintServiceSerializable.h"
#include "print_service/PrintServiceSoapError.h"

/// What one call produced: the decoded body elements and the error, if any.
struct PrintServiceSoapResponse {
    /// Header elements of the reply; never filled.
    std::vector<std::shared_ptr<PrintServiceSerializable>> headers;
    /// The operation's response objects and SOAPFaults, in document order.
    std::vector<std::shared_ptr<PrintServiceSerializable>> bodyParts;
    /// Set when the transport failed or the reply was not XML.
    std::optional<PrintServiceSoapError> error;

    /// The body parts of type T, in order.
    template <class T>
    std::vector<std::shared_ptr<const T>> bodyPartsOfType() const {
        std::vector<std::shared_ptr<const T>> parts;
        for (const auto& part : bodyParts)
            if (auto typed = std::dynamic_pointer_cast<const T>(part)) parts.push_back(std::move(typed));
        return parts;
    }
};
