#pragma once

#include "plugin/pluginMessages.h"

/// Tells the user why what was asked for is not done; false.
template <class... Arguments>
bool refuse(MessageId message, const Arguments&... arguments) {
  displayError(message, arguments...);
  return false;
}
