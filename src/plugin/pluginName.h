#pragma once

#include "platform/OpenVesk/KString.h"

/// The name under which the host loaded the plug-in; empty before `initializePlugin`.
extern KString pluginName;
