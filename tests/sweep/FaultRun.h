#pragma once

#include <string>
#include <vector>

#include "tests/sweep/TranscriptRun.h"

/// How a transcript runs when nothing fails.
struct Reference {
  std::vector<LineOutcome> outcomes;
  unsigned faultPoints = 0;  ///< that the run passed
  bool repeats = false;      ///< undone and redone, its scene is as it was
  bool usable = false;       ///< graphs can be built afterwards
};

/// Runs the whole transcript and counts its fault points.
Reference runReference(TranscriptRun& run);

/// Runs it with the `nth` fault point failing, from 1, and looks at what is left. What is wrong;
/// empty when all is well.
std::string runWithFault(TranscriptRun& run, unsigned nth, const Reference& reference);
