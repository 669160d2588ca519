#include "panes/PDEObject.h"

namespace ComQuorvantVelmar_Plugin {

PDEObject::~PDEObject() = default;

PanePlugInMgrDelegate::~PanePlugInMgrDelegate() = default;

}  // namespace ComQuorvantVelmar_Plugin
