// Encodes a property-list file into the PPD attributes in which the press publishes its
// data (trays, stackers, devices, server resources), and prints them as PPD lines.
#include <cstdio>
#include <cstring>
#include <string>

#include "core/FileUtil.h"
#include "core/PlistIO.h"
#include "ppd/PpdDataEncoder.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

int usage(std::FILE* stream, int exitCode) {
    std::fprintf(stream,
                 "Usage: ostrin-ppd-data-encode NAME FILE\n"
                 "Prints the PPD attributes NAME0000, NAME0001, ... that carry the property\n"
                 "list in FILE (XML or binary) deflated and in base64, one line each.\n"
                 "NAME is the command name the panes ask for, e.g. FeederInfoList.\n");
    return exitCode;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 2 && (std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0))
        return usage(stdout, 0);
    if (argc != 3) return usage(stderr, 2);
    const std::string name = argv[1];
    const std::string path = argv[2];
    std::optional<std::string> bytes = FileUtil::readAll(path);
    if (!bytes) {
        std::fprintf(stderr, "ostrin-ppd-data-encode: %s: cannot be read\n", path.c_str());
        return 3;
    }
    if (!PlistIO::parse(*bytes)) {
        std::fprintf(stderr, "ostrin-ppd-data-encode: %s: not a property list\n", path.c_str());
        return 3;
    }
    std::string error;
    std::optional<std::vector<PpdDataEncoder::Attribute>> attributes =
        PpdDataEncoder::encode(name, *bytes, &error);
    if (!attributes) {
        std::fprintf(stderr, "ostrin-ppd-data-encode: %s: %s\n", path.c_str(), error.c_str());
        return 3;
    }
    std::fputs(PpdDataEncoder::ppdLines(*attributes).c_str(), stdout);
    return 0;
}
