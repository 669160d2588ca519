// The recording pane is a class the fixture bundles name; it is registered once, here.
#include "PaneTestSupport.h"

namespace PaneTest {
OSTRIN_REGISTER_CLASS("TestRecordingPane", TestRecordingPane)
}  // namespace PaneTest
