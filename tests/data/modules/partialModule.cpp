// A library that lacks what a module of this host must have. It must never be started.

#include <cstdlib>

#include "platform/Foundation/KObject.h"
#include "platform/OpenVesk/KStatus.h"
#include "tests/data/modules/ModuleCommand.h"

#ifdef API_VERSION
MODULE_ENTRY const char KApiVersion[16];
const char KApiVersion[16] = API_VERSION;
#endif

MODULE_ENTRY KStatus initializePlugin(KObject) { std::abort(); }

#ifdef HAS_UNINITIALIZE
MODULE_ENTRY KStatus uninitializePlugin(KObject) { std::abort(); }
#endif
