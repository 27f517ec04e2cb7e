#pragma once

#include <QString>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/WatchPointObject.h"

namespace orvuilib {

/// The last value that the watch point has recorded, short enough to be shown beside a port: six
/// digits, the first components of many. Empty when there is none.
ORVUI_EXPORT QString lastValueOf(const orvlib::WatchPointObject& watchPoint);

/// The same of the watch point on either face of the port; empty without one.
ORVUI_EXPORT QString lastValueOf(const orvlib::PortObject& port);

}  // namespace orvuilib
