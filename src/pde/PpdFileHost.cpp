#include "pde/PpdFileHost.h"

namespace ComQuorvantVelmar_Plugin {

PpdFileHost::PpdFileHost(std::unique_ptr<PpdFileExt> ppd, std::string path)
    : _ppd(std::move(ppd)), _path(std::move(path)) {
    _ppd->markDefaults();
}

std::unique_ptr<PpdFileHost> PpdFileHost::open(const std::string& path, std::string* error) {
    std::unique_ptr<PpdFileExt> ppd = PpdFileExt::initWithContentsOfFile(path, error);
    if (!ppd) return nullptr;
    return std::unique_ptr<PpdFileHost>(new PpdFileHost(std::move(ppd), path));
}

bool PpdFileHost::willChangePPDOptionKeyValue(const std::string& option, const std::string& choice) {
    return markPpdChoice(_ppd.get(), _printSettings, option, choice);
}

HostOutcome PpdFileHost::printFile(const std::string&, const std::string&) {
    return HostOutcome::failure(HostOutcome::Status::NoQueue,
                                "the PPD file " + _path + " has no queue to print to: name one with --queue");
}

HostOutcome PpdFileHost::saveDefaults() {
    return HostOutcome::failure(HostOutcome::Status::NoQueue,
                                "the PPD file " + _path + " has no queue to save defaults for: name one with --queue");
}

}  // namespace ComQuorvantVelmar_Plugin
