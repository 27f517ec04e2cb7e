#pragma once

#include "platform/OpenVesk/KString.h"

/// The command that shows a parameter panel.
extern const KString kParameterEditorCommand;
