#pragma once

#include <QString>
#include <vector>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/PortObject.h"

namespace orvuilib {

/// Where the value of a port arrives: the port itself when it is an input, of a compound's port the
/// face that takes. Null for a port that computes what it gives.
const orvlib::PortObject* takingFace(const orvlib::PortObject& port);

/// Whether the port, a member of it or the port above gets its value from elsewhere, so that a
/// value of its own has no effect. A component that does is no reason for the whole.
ORVUI_EXPORT bool isFed(const orvlib::PortObject& port);

/// What the port gets its value from, the first `most` of it; nothing when it is not fed.
std::vector<orvlib::PortObject*> feedersOf(const orvlib::PortObject& port, std::size_t most);

/// "add1.result" for a port.
QString sourceName(const orvlib::PortObject& source);

/// "← add1.result" for a port that is fed from there; of many sources the first.
QString feedersText(const orvlib::PortObject& port);

}  // namespace orvuilib
