#pragma once

/// What every header of the host interface shares: the versioned namespace and the export mark.

/// Opens the one namespace of the host interface. It is inline, so code writes plain `KString`; the
/// version shows in the linkage alone, and a module built for another version does not link.
#define VESK_API_OPEN inline namespace Vesk20250000 {
#define VESK_API_CLOSE }

#define VESK_EXPORT __attribute__((visibility("default")))

VESK_API_OPEN
/// The host's own key to hidden representations; a module has no use for it.
struct HostAccess;
VESK_API_CLOSE
