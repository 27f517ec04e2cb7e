// Backdrops and sticky notes.

#include <QColor>

#include "standalone/widgets/compound/edits/NodeEdits.h"
#include "standalone/widgets/compound/scene/Placement.h"

namespace orvuilib::edits {

using orvUI_v1::CommandHook;

namespace {

void setValue(EditSession& session, const char* name, const char* key, const QString& value) {
  session.hook().editAnnotation(CommandHook::kSetAnnotationMetaDataValue, session.levelHandle(),
                                name, key, value.toUtf8().constData());
}

/// Adds one and gives it a place and a size.
void add(EditSession& session, CommandHook::AnnotationEdit kind, const char* name,
         const QRectF& bounds) {
  const unsigned int before = session.level().annotations().count();
  session.hook().editAnnotation(kind, session.levelHandle(), name, nullptr, nullptr);
  const auto& all = session.level().annotations();
  if (all.count() == before) return;
  const orvlib::AnnotationRef made(all.at(all.count() - 1));
  setValue(session, made->getName(), placement::kPosition, placement::toText(bounds.topLeft()));
  setValue(session, made->getName(), placement::kSize,
           placement::toText(QPointF(bounds.width(), bounds.height())));
}

}  // namespace

void addBackdrop(EditSession& session, const QRectF& bounds) {
  const EditStep step(session, QStringLiteral("Add backdrop"));
  add(session, CommandHook::kAddBackdrop, "backdrop", bounds);
}

void addStickyNote(EditSession& session, const QPointF& at) {
  const EditStep step(session, QStringLiteral("Add note"));
  add(session, CommandHook::kAddStickyNote, "note", QRectF(at, QSizeF(180, 90)));
}

void setText(EditSession& session, NoteItem& note, const QString& text) {
  setValue(session, note.annotation->getName(), placement::kText, text);
}

void setColour(EditSession& session, NoteItem& note, const QColor& colour) {
  setValue(session, note.annotation->getName(), placement::kColour, colour.name());
}

void setBounds(EditSession& session, NoteItem& note, const QRectF& bounds) {
  const EditStep step(session, QStringLiteral("Resize"));
  setValue(session, note.annotation->getName(), placement::kPosition,
           placement::toText(bounds.topLeft()));
  setValue(session, note.annotation->getName(), placement::kSize,
           placement::toText(QPointF(bounds.width(), bounds.height())));
}

}  // namespace orvuilib::edits
