#pragma once

#include <string>
#include <utility>
#include <vector>

#include "print_service/PrintServiceSerializable.h"

/// Renders objects of the service as a SOAP 1.1 envelope document. The operations send
/// fixed envelope texts instead; this renders request objects in the same element form.
class PrintServiceSoap_envelope {
public:
    /// Element name -> object, in the order they are written.
    using Elements = std::vector<std::pair<std::string, const PrintServiceSerializable*>>;

    static PrintServiceSoap_envelope& sharedInstance();

    /// The envelope as text: root "Envelope" with prefix "s", a "Header" only when there are
    /// header elements, a "Body" only when there are body elements, each element under its name.
    std::string serializedFormUsingHeaderElements(const Elements& headerElements,
                                                  const Elements& bodyElements) const;

private:
    PrintServiceSoap_envelope() = default;
};
