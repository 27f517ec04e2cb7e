#pragma once

#include <map>
#include <span>
#include <string>

#include "tests/hook/road/RandomObjects.h"
#include "tests/hook/road/Road.h"

/// Makes calls of the hook as editors do, with what the graph holds at the time.
struct Caller {
  Caller(Road& where, unsigned seed) : road(where), any(where.graph(), seed) {}

  orvUI_v1::CommandHook& edits() { return road.edits(); }
  orvUI_v1::AppServicesHook& services() { return road.services(); }

  Road& road;
  RandomObjects any;

  /// The ports that calls made, also those that are gone, which an undo may bring back.
  RandomObjects::Ports madePorts;

  /// How often calls did what can easily fail.
  std::map<std::string, unsigned> worked;

  bool suspended = false;

  /// Leaves out what an operation does without a step in some cases: in a level that is locked or a
  /// reference, an annotation changes, and then the line fails because the level cannot be edited.
  bool onlyUndone = false;

  bool mayAnnotate(const RandomObjects::CompoundHandle& level) const {
    return !onlyUndone || level->isEditable();
  }

  /// So many of the steps must not be undone: a value that a drag set is not in the journal, and
  /// the step at its end would go back to it.
  std::size_t stepsToKeep = 0;
};

/// One operation of the interfaces.
struct Call {
  const char* name;
  void (*make)(Caller&);

  /// How often it is made, among the others.
  unsigned weight;

  /// Why an undo does not take it back; null when it does, or when there is nothing to take back.
  const char* notUndone = nullptr;
};

std::span<const Call> nodeCalls();
std::span<const Call> portCalls();
std::span<const Call> attachedCalls();
std::span<const Call> clipboardAndServiceCalls();

/// Of the tables above.
void addNode(Caller& caller);
void removeNode(Caller& caller);
