// Calls for the clipboard and change brackets, and those of the services beside edits.

#include <QJsonObject>

#include "platform/ORV_1_0/AnnotationList.h"
#include "platform/ORV_1_0/NodeList.h"
#include "platform/orvUI_1_0/UserPrefs.h"
#include "tests/hook/road/Calls.h"

namespace {

using orvUI_v1::AppServicesHook;
using orvUI_v1::CommandHook;
using orvUI_v1::EditSelection;

template <class Operation>
void withSelection(Caller& caller, Operation operation) {
  const auto level = caller.any.compound();
  const auto nodes = caller.any.someNodes(level, false);
  const auto annotations = caller.any.someAnnotations(level);
  if (!caller.mayAnnotate(level)) return;
  operation(EditSelection{level, nodes.get(), annotations.get()});
}

void cutSelection(Caller& caller) {
  withSelection(caller, [&](const EditSelection& s) { caller.edits().cutSelection(s); });
}

void copySelection(Caller& caller) {
  withSelection(caller, [&](const EditSelection& s) { caller.edits().copySelection(s); });
}

void pasteClipboard(Caller& caller) {
  caller.edits().pasteClipboard({caller.any.compound(), caller.any.below(2) != 0});
}

void openChangeBracket(Caller& caller) { caller.edits().openChangeBracket(&caller.road.graph()); }

void closeChangeBracket(Caller& caller) { caller.edits().closeChangeBracket(&caller.road.graph()); }

void undo(Caller& caller) {
  if (caller.road.steps() <= caller.stepsToKeep) return;
  caller.services().undo();
  caller.road.runIdleLines();
}

/// Mostly of what was just undone.
void redo(Caller& caller) {
  for (unsigned left = caller.any.below(4); left > 0; --left) undo(caller);
  caller.services().redo();
  caller.road.runIdleLines();
}

void openUndoChunk(Caller& caller) { caller.services().openUndoChunk(caller.any.any()); }

void closeUndoChunk(Caller& caller) { caller.services().closeUndoChunk(); }

/// A chunk with some edits.
void abandonUndoChunk(Caller& caller) {
  caller.services().openUndoChunk(caller.any.brief());
  addNode(caller);
  removeNode(caller);
  caller.services().abandonUndoChunk();
  caller.road.runIdleLines();
}

void setUndoSuspended(Caller& caller) {
  caller.suspended = !caller.suspended && caller.any.below(4) == 0;
  caller.services().setUndoSuspended(caller.suspended);
}

void isUndoing(Caller& caller) { EXPECT_FALSE(caller.services().isUndoing()); }

void isRedoing(Caller& caller) { EXPECT_FALSE(caller.services().isRedoing()); }

void syncUserPrefs(Caller& caller) {
  if (caller.any.below(2)) {
    return caller.services().syncUserPrefs(AppServicesHook::kLoadPrefs);
  }
  orvUI_v1::setUserPrefs(QJsonDocument(QJsonObject{{caller.any.any(), caller.any.any()}}));
  caller.services().syncUserPrefs(AppServicesHook::kSavePrefs);
}

void showParameterEditor(Caller& caller) {
  caller.services().showParameterEditor(static_cast<int>(caller.any.below(3)));
}

constexpr const char* kWayBack = "it is the way back itself";
constexpr const char* kNotOfGraph = "it is no edit of the graph";

constexpr Call kCalls[] = {
    {"cutSelection", cutSelection, 4},
    {"copySelection", copySelection, 4, kNotOfGraph},
    {"pasteClipboard", pasteClipboard, 5},
    {"openChangeBracket", openChangeBracket, 3},
    {"closeChangeBracket", closeChangeBracket, 3},
    {"undo", undo, 8, kWayBack},
    {"redo", redo, 5, kWayBack},
    {"openUndoChunk", openUndoChunk, 1},
    {"closeUndoChunk", closeUndoChunk, 4},
    {"abandonUndoChunk", abandonUndoChunk, 2, kWayBack},
    {"setUndoSuspended", setUndoSuspended, 3, "edits without undo leave no step"},
    {"isUndoing", isUndoing, 1, kNotOfGraph},
    {"isRedoing", isRedoing, 1, kNotOfGraph},
    {"syncUserPrefs", syncUserPrefs, 2, kNotOfGraph},
    {"showParameterEditor", showParameterEditor, 1, kNotOfGraph},
};

}  // namespace

std::span<const Call> clipboardAndServiceCalls() { return kCalls; }
