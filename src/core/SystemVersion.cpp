#include "core/SystemVersion.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

struct Version {
    int major;
    int minor;
};

// The version the layouts and folders compare against. Linux offers every feature those
// tests guard (no printer command round trip, preferences below the user's config folder),
// so it is taken as newer than any tested boundary.
constexpr Version runningVersion{10, 99};

constexpr bool isAtLeast(Version boundary) {
    return runningVersion.major > boundary.major ||
           (runningVersion.major == boundary.major && runningVersion.minor >= boundary.minor);
}

}  // namespace

bool isOSVer_After10_2() { return isAtLeast({10, 2}); }
bool isOSVer_After10_3() { return isAtLeast({10, 3}); }
bool isOSVer_After10_4() { return isAtLeast({10, 4}); }
bool isOSVer_After10_7() { return isAtLeast({10, 7}); }
bool isOSVer_After10_9() { return isAtLeast({10, 9}); }
bool isOSVer_After10_10() { return isAtLeast({10, 10}); }

}  // namespace ComQuorvantVelmar_Plugin
