#include "plugin/pluginName.h"

KString pluginName;
