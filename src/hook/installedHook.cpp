#include "hook/orvVeskCommandHook.h"

namespace {

/// There before the module's entry points run, until the module is unloaded.
orvVeskCommandHook theHook;

}  // namespace
