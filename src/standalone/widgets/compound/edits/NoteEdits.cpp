// Backdrops and sticky notes.

#include <QColor>

#include "standalone/widgets/compound/edits/NodeEdits.h"
#include "standalone/widgets/compound/scene/Placement.h"

namespace orvuilib::edits {

using orvUI_v1::CommandHook;

namespace {

/// Adds one and gives it a place and a size.
bool add(EditSession& session, CommandHook::AnnotationEdit kind, const char* name,
         const QRectF& bounds) {
  const unsigned int before = session.level().annotations().count();
  session.hook().editAnnotation(kind, session.levelHandle(), name, nullptr, nullptr);
  const auto& all = session.level().annotations();
  if (all.count() == before) return false;
  const orvlib::AnnotationRef made(all.at(all.count() - 1));
  return setNoteBounds(session, *made, bounds);
}

}  // namespace

bool setNoteValue(EditSession& session, const orvlib::AnnotationObject& note, const char* key,
                  const QString& value) {
  if (placement::textIn(note.metadata(), key) == value) return true;
  session.hook().editAnnotation(CommandHook::kSetAnnotationMetaDataValue, session.levelHandle(),
                                note.getName(), key, value.toUtf8().constData());
  return placement::textIn(note.metadata(), key) == value;
}

bool setNoteBounds(EditSession& session, const orvlib::AnnotationObject& note,
                   const QRectF& bounds) {
  const QString size = placement::toText(QPointF(bounds.width(), bounds.height()));
  return setNoteValue(session, note, placement::kPosition, placement::toText(bounds.topLeft())) &&
         setNoteValue(session, note, placement::kSize, size);
}

/// With room for its title.
QRectF backdropAround(const QRectF& content) { return content.adjusted(-30, -56, 30, 30); }

void addBackdrop(EditSession& session, const QRectF& bounds) {
  EditStep step(session, QStringLiteral("Add backdrop"));
  step.require(add(session, CommandHook::kAddBackdrop, "backdrop", bounds));
}

void addStickyNote(EditSession& session, const QPointF& at) {
  EditStep step(session, QStringLiteral("Add note"));
  step.require(add(session, CommandHook::kAddStickyNote, "note", QRectF(at, QSizeF(180, 90))));
}

void setText(EditSession& session, NoteItem& note, const QString& text) {
  setNoteValue(session, *note.annotation, placement::kText, text);
}

void setColour(EditSession& session, NoteItem& note, const QColor& colour) {
  setNoteValue(session, *note.annotation, placement::kColour, colour.name());
}

void setBounds(EditSession& session, NoteItem& note, const QRectF& bounds) {
  EditStep step(session, QStringLiteral("Resize"));
  step.require(setNoteBounds(session, *note.annotation, bounds));
}

}  // namespace orvuilib::edits
