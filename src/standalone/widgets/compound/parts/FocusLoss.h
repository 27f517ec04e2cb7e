#pragma once

#include <QFocusEvent>

namespace orvuilib {

/// Whether the user has left a field for another one; not when a menu of the field opens, or
/// another window comes to the front, from which the focus returns.
inline bool leaves(const QFocusEvent& event) {
  return event.reason() != Qt::PopupFocusReason && event.reason() != Qt::ActiveWindowFocusReason;
}

}  // namespace orvuilib
