// The context menus of the compound editor, and renaming in place.

#include <QMenu>

#include "standalone/widgets/compound/CompoundEditorWidget.h"
#include "standalone/widgets/compound/edits/PortEdits.h"
#include "standalone/widgets/compound/edits/WireEdits.h"
#include "standalone/widgets/compound/paint/NotePainter.h"

namespace orvuilib {

using orvlib::PortObject;
using orvlib::PortRef;

void CompoundEditorWidget::openContextMenu(const Hit& hit, const QPoint& globalPosition) {
  if (hit.part == Hit::Part::Nothing) {
    return openNodeMenu({canvas_->toScene(canvas_->mapFromGlobal(globalPosition)), nullptr});
  }
  if (hit.box && hit.box->kind == BoxKind::Node && !hit.box->selected) {
    scene_.clearSelection();
    scene_.select(*hit.box);
  }
  if (hit.note && !hit.note->selected) {
    scene_.clearSelection();
    scene_.select(*hit.note);
  }
  selectionMayHaveChanged();
  auto* menu = new QMenu(canvas_);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->setFont(theme_.widgetFont());
  if (hit.slot) addPortActions(*menu, *hit.port());
  if (hit.wire) {
    addPortActions(*menu, *hit.wire->source);
    const edits::Joint joint{hit.wire->source, hit.wire->target};
    menu->addAction(QStringLiteral("Remove wire"), this, [this, joint] {
      if (bench_->canEdit()) edits::removeWires(session_, {joint});
    });
  }
  if (hit.box) addCompoundActions(*menu, hit);
  if (!hit.wire && (!hit.box || hit.box->kind == BoxKind::Node)) addNodeActions(*menu);
  menu->popup(globalPosition);
}

void CompoundEditorWidget::addAction(QMenu& menu, Action action, const QString& text) {
  menu.addAction(text + QLatin1Char('\t') + keyTextOf(action), this,
                 [this, action] { perform(action); });
}

void CompoundEditorWidget::addNodeActions(QMenu& menu) {
  addAction(menu, Action::Rename, QStringLiteral("Rename"));
  addAction(menu, Action::Remove, QStringLiteral("Remove"));
  addAction(menu, Action::RemoveAndHeal, QStringLiteral("Remove and heal"));
  addAction(menu, Action::Disconnect, QStringLiteral("Disconnect"));
  menu.addSeparator();
  addAction(menu, Action::Cut, QStringLiteral("Cut"));
  addAction(menu, Action::Copy, QStringLiteral("Copy"));
  addAction(menu, Action::CopyAsScript, QStringLiteral("Copy as script lines"));
  addAction(menu, Action::Duplicate, QStringLiteral("Duplicate"));
  menu.addSeparator();
  addAction(menu, Action::Group, QStringLiteral("Group"));
  addAction(menu, Action::Explode, QStringLiteral("Explode"));
  addAction(menu, Action::AddBackdrop, QStringLiteral("Backdrop"));
  addAction(menu, Action::AutoLayout, QStringLiteral("Lay out"));
  menu.addSeparator();
  addAction(menu, Action::ToggleEnabled, QStringLiteral("Enable or disable"));
  addAction(menu, Action::ToggleFrozen, QStringLiteral("Freeze or thaw"));
  addAction(menu, Action::ToggleBypassed, QStringLiteral("Bypass, or do not"));
}

void CompoundEditorWidget::addPortActions(QMenu& menu, PortObject& port) {
  const PortRef kept(&port);
  const auto add = [this, &menu](const QString& text, auto edit) {
    menu.addAction(text, this, [this, edit] {
      if (bench_->canEdit()) edit();
    });
  };
  const bool watched = edits::watchedFace(port).watchPoint();
  add(watched ? QStringLiteral("Stop watching") : QStringLiteral("Watch"),
      [this, kept] { edits::toggleWatchPoint(session_, *kept); });
  if (port.hasPeers()) {
    add(QStringLiteral("Disconnect port"),
        [this, kept] { edits::disconnectPort(session_, *kept); });
  }
  if (!port.above()) {
    add(QStringLiteral("Hide port"), [this, kept] { edits::setPortHidden(session_, *kept, true); });
  }
  if (edits::compoundOfPort(port)) {
    add(QStringLiteral("Rename port"), [this, kept] {
      const auto shown = scene_.find(*kept);
      if (shown.box) renamePort(*shown.box, *shown.slot);
    });
    add(QStringLiteral("Move port up"), [this, kept] { edits::movePort(session_, *kept, -1); });
    add(QStringLiteral("Move port down"), [this, kept] { edits::movePort(session_, *kept, 1); });
    add(QStringLiteral("Delete port"), [this, kept] { edits::deletePort(session_, *kept); });
  }
  menu.addSeparator();
}

void CompoundEditorWidget::addCompoundActions(QMenu& menu, const Hit& hit) {
  addHiddenPorts(menu, *hit.box);
  orvlib::CompoundObject* compound =
      hit.box->kind == BoxKind::Node ? hit.box->node->compound() : nullptr;
  if (!compound) return;
  const orvlib::CompoundRef kept(compound);
  for (const bool output : {false, true}) {
    const QString what = output ? QStringLiteral("output") : QStringLiteral("input");
    menu.addAction(QStringLiteral("Add %1").arg(what), this, [this, kept, output, what] {
      if (!bench_->canEdit()) return;
      edits::createPort(session_, *kept, output, what, QStringLiteral("float"));
    });
  }
  addAction(menu, Action::DiveIn, QStringLiteral("Go in"));
  menu.addSeparator();
}

void CompoundEditorWidget::addHiddenPorts(QMenu& menu, const BoxItem& box) {
  for (const PortSlot& slot : box.portSlots) {
    if (slot.row >= 0) continue;
    const PortRef kept = slot.port;
    menu.addAction(QStringLiteral("Show port %1").arg(labelOf(slot)), this, [this, kept] {
      if (bench_->canEdit()) edits::setPortHidden(session_, *kept, false);
    });
  }
}

void CompoundEditorWidget::renameInPlace(const Hit& hit) {
  if (!bench_->canEdit()) return;
  if (hit.note) return changeText(*hit.note);
  if (hit.slot) return renamePort(*hit.box, *hit.slot);
  if (hit.box->kind == BoxKind::Node) renameNode(*hit.box);
}

void CompoundEditorWidget::renameNode(BoxItem& box) {
  const orvlib::NodeRef node = box.node;
  const QRectF title(box.bounds.topLeft(), QSizeF(box.bounds.width(), box::kTitle));
  inlineEditor_->edit(canvas_->toWidget(title).toRect(), titleOf(box), false,
                      [this, node](const QString& name) {
                        if (node->parent() && bench_->canEdit())
                          edits::rename(session_, *node, name);
                      });
}

void CompoundEditorWidget::renamePort(BoxItem& box, const PortSlot& slot) {
  const PortRef port = slot.port;
  inlineEditor_->edit(canvas_->toWidget(rowOf(box, slot)).toRect(), labelOf(slot), false,
                      [this, port](const QString& name) {
                        if (port->node() && bench_->canEdit()) {
                          edits::renamePort(session_, *port, name);
                        }
                      });
}

void CompoundEditorWidget::changeText(NoteItem& note) {
  const orvlib::AnnotationRef annotation = note.annotation;
  inlineEditor_->edit(canvas_->toWidget(headOf(note)).toRect(), note.text, true,
                      [this, annotation](const QString& text) {
                        NoteItem* changed = scene_.find(annotation.get());
                        if (changed && bench_->canEdit()) edits::setText(session_, *changed, text);
                      });
}

}  // namespace orvuilib
