#pragma once

#include "platform/OpenVesk/KString.h"

/// Runs a line that manages a panel: the format with its arguments. It is neither shown nor kept
/// for undo, and how it ends is not looked at: what a panel holds is seen by the widgets that are
/// there.
void runPanelLine(const KString& format, const KString& arg1 = KString::argUnused,
                  const KString& arg2 = KString::argUnused,
                  const KString& arg3 = KString::argUnused);

/// Passes the scale of the host's interface on to the editors that are made from now on.
void passInterfaceScale();
