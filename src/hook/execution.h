#pragma once

#include "hook/CommandLine.h"
#include "platform/ORV_1_0/AddRefWrapper.h"
#include "platform/ORV_1_0/Node.h"
#include "platform/OpenVesk/KCommandResult.h"

/// Whether the edits enter the host's undo queue.
extern bool hookUndoEnabled;

/// Runs an edit as a script would: shown, and kept for undo.
KStatus runLine(const CommandLine& line);

/// The same for an edit that tells how it went: true when the line ran well, and also when it
/// failed but gave the integer 1. A line that ran well and gave 0 is true all the same.
bool runLineForSuccess(const CommandLine& line);

/// The same for an edit that makes a node of the compound and gives its name, alone or as the first
/// of a list. A null handle when it gives no name, or one that the compound lacks; what the status
/// is does not matter.
ORV_v1::AddRefWrapper<ORV_v1::Node> runLineForNode(
    const CommandLine& line, const ORV_v1::AddRefWrapper<ORV_v1::Compound>& compound);

/// Kept for undo like an edit, but not shown.
void runBracketLine(const CommandLine& line);

/// For lines that drive the host itself: neither shown nor kept for undo.
void runSilently(const KString& line);
KStatus runSilently(const KString& line, KCommandResult& result);
