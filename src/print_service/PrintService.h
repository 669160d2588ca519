#pragma once

#include <memory>
#include <string_view>

class PrintServiceSoap;

/// The print service: its namespace table and the factory of its bindings.
class PrintService {
public:
    /// Fills USGlobals' namespace table once per process; later calls do nothing.
    static void initialize();
    /// A binding that sends to address ("http://host:8888").
    static std::unique_ptr<::PrintServiceSoap> PrintServiceSoap(std::string_view address);
};
