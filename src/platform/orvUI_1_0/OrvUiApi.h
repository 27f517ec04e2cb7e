#pragma once

/// What every header of the editor library shares.

#define ORVUI_EXPORT __attribute__((visibility("default")))
