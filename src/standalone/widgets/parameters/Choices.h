#pragma once

#include <QString>
#include <vector>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/PortObject.h"

namespace orvuilib {

/// One value that a user may choose.
struct Choice {
  QString value;
  QString label;
};

/// What the metadata key "choices" of a port with a single text or number offers: its values, or
/// the elements of its one value when that is a list as text. Each is VALUE or VALUE=LABEL. What is
/// no value of the port's type is left out.
ORVUI_EXPORT std::vector<Choice> readChoices(const orvlib::PortObject& port);

}  // namespace orvuilib
