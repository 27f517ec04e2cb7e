#pragma once

#include "platform/OpenVesk/KStringResourceId.h"

VESK_API_OPEN

/// The host's translated texts.
class VESK_EXPORT KStringResource {
 public:
  /// `StatusBadArgument` for an id without plug-in id or key. Registering again replaces the
  /// default.
  static KStatus registerString(const KStringResourceId& id);

  /// The text in the user's language, else the default text. `StatusFailure` for an id that was not
  /// registered; its own default text is returned then.
  static KString getString(const KStringResourceId& id, KStatus& status);
};

VESK_API_CLOSE
