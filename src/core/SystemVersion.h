#pragma once

namespace ComQuorvantVelmar_Plugin {

/// Whether the running system is at least version 10.2 of the platform the layouts were
/// drawn for; this platform counts as a current system, so every such test answers true.
bool isOSVer_After10_2();
/// Whether the running system is at least 10.3; true here.
bool isOSVer_After10_3();
/// Whether the running system is at least 10.4; true here.
bool isOSVer_After10_4();
/// Whether the running system is at least 10.7 (the preference folders' boundary); true here.
bool isOSVer_After10_7();
/// Whether the running system is at least 10.9; true here.
bool isOSVer_After10_9();
/// Whether the running system is at least 10.10; true here.
bool isOSVer_After10_10();

}  // namespace ComQuorvantVelmar_Plugin
