#pragma once

#include <QString>
#include <vector>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/CompoundObject.h"

namespace orvuilib {

/// A node that was found, and why.
struct Found {
  orvlib::NodeRef node;
  QString reason;  ///< "type core::math::add", "a = 0.5"; empty for a name
};

/// Nodes at and below a level whose name, type or one of whose values contains the text, whatever
/// its case: names first, then types, then values. "name:", "type:" and "value:" before it ask for
/// one of them. At most `most`; none for an empty text.
ORVUI_EXPORT std::vector<Found> findInGraph(orvlib::CompoundObject& level, const QString& typed,
                                            std::size_t most);

}  // namespace orvuilib
