#pragma once

#include <QPointF>
#include <QString>
#include <optional>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/edits/EditSession.h"

namespace orvuilib {

/// The edits of nodes and notes that a gesture makes. Each is one step of undo, made by the hook;
/// none is called while the session has a refusal, and none without anything to do.
namespace edits {

/// What the menu of nodes offers.
struct NewNode {
  enum class Kind { Definition, Compound, Input, Output, Backdrop, StickyNote };
  Kind kind = Kind::Definition;
  QString type;  ///< of a definition
};

/// Where a new node comes to be.
struct NodePlace {
  QPointF position;

  /// A port that the new node's first fitting port is connected to; null for none.
  orvlib::PortObject* connectTo = nullptr;

  /// The other end of the wire from `connectTo` that the new node is put into, with its middle at
  /// the position; null for none.
  orvlib::PortObject* wireTo = nullptr;
};

/// Null when no node was made, or a note.
ORVUI_EXPORT orvlib::NodeObject* addNode(EditSession& session, const NewNode& what,
                                         const NodePlace& place);

struct Moved {
  BoxItem* box = nullptr;    ///< or else
  NoteItem* note = nullptr;  ///< this
  QPointF position;
  std::optional<QSizeF> size = {};  ///< of a note, when it is to be another one
};

/// `insertInto` is a wire that the only box is put into; null for none.
ORVUI_EXPORT void move(EditSession& session, const std::vector<Moved>& moved,
                       const Wire* insertInto = nullptr);

void rename(EditSession& session, orvlib::NodeObject& node, const QString& name);

/// Removes what is selected. `heal` connects what was before each node to what was behind it.
void removeSelection(EditSession& session, bool heal);

/// Sets the state flag of that letter of all selected nodes to what the first does not have.
void toggleState(EditSession& session, char flag);

/// Moves the selection into a new compound; gives its node, or null.
orvlib::NodeObject* group(EditSession& session);

/// Explodes the selected compounds; what they held stands where they were, as it stood in them.
/// Gives what came out. Compounds that cannot be exploded stay, and the user is told.
std::vector<orvlib::NodeRef> explode(EditSession& session);

// The clipboard. A paste gives what it made; how it stood where it was copied it stands again.
void copySelection(EditSession& session);
void cutSelection(EditSession& session);
std::vector<orvlib::NodeRef> paste(EditSession& session, const QPointF& at);

/// What the user copied stays on the clipboard.
std::vector<orvlib::NodeRef> duplicateSelection(EditSession& session);

// Notes.

/// The bounds of a backdrop for what shall lie on it.
QRectF backdropAround(const QRectF& content);
void addBackdrop(EditSession& session, const QRectF& bounds);
void addStickyNote(EditSession& session, const QPointF& at);
void setText(EditSession& session, NoteItem& note, const QString& text);
void setColour(EditSession& session, NoteItem& note, const QColor& colour);
void setBounds(EditSession& session, NoteItem& note, const QRectF& bounds);

// Below, parts of the edits above for those that are made of several; they open no step. True when
// the graph is as it was asked for.
bool setPosition(EditSession& session, orvlib::NodeObject& node, const QPointF& position);
bool setNoteValue(EditSession& session, const orvlib::AnnotationObject& note, const char* key,
                  const QString& value);
bool setNoteBounds(EditSession& session, const orvlib::AnnotationObject& note,
                   const QRectF& bounds);
ORV_v1::AddRefWrapper<ORV_v1::NodeList> selectedNodeList(const LevelScene& scene);
ORV_v1::AddRefWrapper<ORV_v1::AnnotationList> selectedAnnotationList(const LevelScene& scene);

}  // namespace edits
}  // namespace orvuilib
