// What opens over the canvas of the compound editor: menus that search, and fields.

#include "standalone/widgets/colour/ColourDialog.h"
#include "standalone/widgets/colour/ColourPicker.h"
#include "standalone/widgets/colour/ManagedColour.h"
#include "standalone/widgets/compound/CompoundEditorWidget.h"
#include "standalone/widgets/compound/edits/PortEdits.h"
#include "standalone/widgets/compound/paint/NotePainter.h"

namespace orvuilib {

using orvlib::NodeObject;
using orvlib::PortObject;
using orvlib::PortRef;

namespace {

/// How far from a port a node comes to stand that is connected to it by key.
constexpr QPointF kBesidePort(70, -33);

}  // namespace

void CompoundEditorWidget::connectOverlays() {
  connect(&overlays_.nodeMenu(), &NodeMenu::picked, this, &CompoundEditorWidget::addPicked);
  connect(&overlays_.nodeMenu(), &NodeMenu::actionPicked, this, [this](Action action) {
    canvas_->setFocus();
    performAt(action, overlays_.nodeMenu().place().position);
    selectionMayHaveChanged();
  });
  connect(&overlays_.findList(), &FindList::found, this,
          [this](NodeObject* node) { reveal(*node); });
}

SearchList::Place CompoundEditorWidget::placeAt(const QPointF& scenePoint) const {
  return [this, scenePoint]() -> std::optional<QPoint> {
    if (!canStillEdit()) return {};
    return canvas_->toWidget(scenePoint).toPoint();
  };
}

void CompoundEditorWidget::openNodeMenu(const edits::NodePlace& place,
                                        const std::vector<Action>& actions) {
  if (!bench_->canEdit()) return;
  const PortRef port(place.connectTo);
  const PortRef wireTo(place.wireTo);
  overlays_.nodeMenu().offer(
      scene_.levelNode()->core(), place,
      [this, port, wireTo, at = placeAt(place.position)]() -> std::optional<QPoint> {
        if (port && !scene_.find(*port).box) return {};
        if (wireTo && !wireTo->peers().contains(port.get())) return {};
        return at();
      },
      actions);
}

void CompoundEditorWidget::openNodeMenuFor(const edits::Joint& wire, const QPointF& at) {
  openNodeMenu({at, wire.source.get(), wire.target.get()});
}

/// Where a wire was begun by key it goes on with the new node; into a current wire it is put.
void CompoundEditorWidget::addByKey() {
  const PortCursor& cursor = interaction_->cursor();
  if (const Wire* wire = cursor.wire()) {
    return openNodeMenuFor({wire->source, wire->target}, *cursor.place());
  }
  PortObject* begun = cursor.begun();
  if (!begun) return openNodeMenu({interaction_->pointer(), nullptr});
  const auto shown = scene_.find(*begun);
  const QPointF beside =
      shown.slot->left ? QPointF(-kBesidePort.x(), kBesidePort.y()) : kBesidePort;
  openNodeMenu({anchorOf(*shown.box, *shown.slot) + beside, begun});
}

void CompoundEditorWidget::addPicked(const edits::NewNode& what) {
  canvas_->setFocus();
  const edits::NodePlace place = overlays_.nodeMenu().place();
  if (!bench_->canEdit()) return;
  interaction_->cursor().dropWire();
  const bool isNote =
      what.kind == edits::NewNode::Kind::Backdrop || what.kind == edits::NewNode::Kind::StickyNote;
  if (isNote) return addNote([&] { edits::addNode(session_, what, place); });
  const NodeObject* node = edits::addNode(session_, what, place);
  BoxItem* box = node ? scene_.find(node) : nullptr;
  if (!box) return;
  scene_.clearSelection();
  scene_.select(*box);
  canvas_->update();
  selectionMayHaveChanged();
}

void CompoundEditorWidget::performAt(Action action, const QPointF& place) {
  if (action == Action::Paste) {
    if (bench_->canEdit()) pasteAt(place);
  } else if (action == Action::AddNote) {
    if (bench_->canEdit()) addNote([&] { edits::addStickyNote(session_, place); });
  } else {
    perform(action);
  }
}

void CompoundEditorWidget::openFind() {
  overlays_.findList().openFor(*navigator_.top(), [this] { return QPoint(canvas_->width(), 0); });
}

/// The new one waits for its text.
void CompoundEditorWidget::addNote(const std::function<void()>& add) {
  const auto& all = scene_.level()->annotations();
  const unsigned int before = all.count();
  add();
  NoteItem* note = all.count() > before ? scene_.find(all.at(all.count() - 1)) : nullptr;
  if (!note) return;
  scene_.clearSelection();
  scene_.select(*note);
  canvas_->update();
  selectionMayHaveChanged();
  changeText(*note);
}

void CompoundEditorWidget::renameInPlace(const Hit& hit) {
  if (!bench_->canEdit()) return;
  if (hit.note) return changeText(*hit.note);
  if (hit.slot) return renamePort(*hit.port());
  if (hit.box->kind == BoxKind::Node) renameNode(*hit.box);
}

void CompoundEditorWidget::renameNode(BoxItem& box) {
  const orvlib::NodeRef node = box.node;
  overlays_.inlineEditor().edit(
      [this, node]() -> std::optional<QRect> {
        const BoxItem* shown = canStillEdit() ? scene_.find(node.get()) : nullptr;
        if (!shown) return {};
        const QSizeF title(shown->bounds.width(), box::kTitle);
        return canvas_->toWidget(QRectF(shown->bounds.topLeft(), title)).toRect();
      },
      titleOf(box), false,
      [this, node](const QString& name) {
        if (node->parent() && bench_->canEdit()) edits::rename(session_, *node, name);
      });
}

void CompoundEditorWidget::renamePort(PortObject& renamed) {
  const PortRef port(&renamed);
  overlays_.inlineEditor().edit(
      [this, port]() -> std::optional<QRect> {
        const auto shown = canStillEdit() ? scene_.find(*port) : LevelScene::Shown();
        if (!shown.slot || shown.slot->port.get() != port.get()) return {};
        return canvas_->toWidget(rowOf(*shown.box, *shown.slot)).toRect();
      },
      QString::fromStdString(port->name()), false,
      [this, port](const QString& name) {
        if (port->node() && bench_->canEdit()) edits::renamePort(session_, *port, name);
      });
}

void CompoundEditorWidget::changeText(NoteItem& note) {
  const orvlib::AnnotationRef annotation = note.annotation;
  overlays_.inlineEditor().edit(
      [this, annotation]() -> std::optional<QRect> {
        const NoteItem* shown = canStillEdit() ? scene_.find(annotation.get()) : nullptr;
        if (!shown) return {};
        return canvas_->toWidget(headOf(*shown)).toRect();
      },
      note.text, true,
      [this, annotation](const QString& text) {
        NoteItem* changed = scene_.find(annotation.get());
        if (changed && bench_->canEdit()) edits::setText(session_, *changed, text);
      });
}

/// Of all selected notes and backdrops, as long as they are selected.
void CompoundEditorWidget::chooseColour() {
  if (!bench_->canEdit() || scene_.selectedNotes().empty()) return;
  const QColor before(scene_.selectedNotes().front()->colour);
  auto* dialog = new ColourDialog(fromScreen(before), this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setObjectName(QStringLiteral("noteColour"));
  dialog->picker().setAlphaShown(false);
  dialog->setModal(true);
  connect(dialog, &ColourDialog::chosen, this, [this](const orvUI_v1::HIGColor& colour) {
    if (!bench_->canEdit()) return;
    const QColor chosen = toScreen(colour);
    std::vector<NoteItem*> notes = scene_.selectedNotes();
    std::erase_if(notes, [&chosen](const NoteItem* note) { return note->colour == chosen.rgb(); });
    if (notes.empty()) return;
    const EditStep step(session_, QStringLiteral("Colour"));
    for (NoteItem* note : notes) edits::setColour(session_, *note, chosen);
  });
  const auto round = scene_.selectionRound();
  overlays_.open(dialog,
                 [this, round] { return scene_.selectionRound() == round && canStillEdit(); });
  dialog->open();
}

}  // namespace orvuilib
