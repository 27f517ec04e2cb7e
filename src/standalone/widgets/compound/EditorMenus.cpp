// The context menus of the compound editor. They act on what they were opened for: when that goes,
// or something else is selected, the menu closes.

#include "standalone/widgets/compound/CompoundEditorWidget.h"
#include "standalone/widgets/compound/edits/PortEdits.h"

namespace orvuilib {

using orvlib::NodeState;
using orvlib::PortObject;
using orvlib::PortRef;

/// Fills a menu with what can be done with one thing.
class CompoundEditorWidget::MenuMaker {
 public:
  MenuMaker(CompoundEditorWidget& editor, QMenu& menu)
      : editor_(editor), menu_(menu), editable_(editor.canStillEdit()) {}

  void addPort(PortObject& port);
  void addWire(const Wire& wire);
  void addBox(const BoxItem& box);
  void addNodes();
  void addNotes();

 private:
  /// What a key does with the selection.
  QAction* key(Action action, const QString& text, bool enabled = true);

  /// An edit that no key does with the selection. `like` is the key that does it otherwise.
  template <class Edit>
  QAction* edit(const QString& text, bool enabled, Edit edit, Action like = Action::SelectNone);

  void addPortEdits(PortObject& port);
  void addHiddenPorts(const BoxItem& box);
  void addStates();
  void addCompound(const BoxItem& box);
  void addClipboard();

  template <class Fits>
  bool anySelected(Fits fits) const {
    return std::ranges::any_of(editor_.scene_.selectedBoxes(), fits);
  }

  CompoundEditorWidget& editor_;
  QMenu& menu_;
  bool editable_;
};

QAction* CompoundEditorWidget::MenuMaker::key(Action action, const QString& text, bool enabled) {
  QAction* made = menu_.addAction(text + QLatin1Char('\t') + keyTextOf(action), &editor_,
                                  [&editor = editor_, action] { editor.perform(action); });
  made->setEnabled(enabled);
  return made;
}

template <class Edit>
QAction* CompoundEditorWidget::MenuMaker::edit(const QString& text, bool enabled, Edit edit,
                                               Action like) {
  const QString keys = like == Action::SelectNone ? QString() : QLatin1Char('\t') + keyTextOf(like);
  QAction* made = menu_.addAction(text + keys, &editor_, [&editor = editor_, edit] {
    if (editor.bench_->canEdit()) edit(editor);
    editor.selectionMayHaveChanged();
  });
  made->setEnabled(enabled && editable_);
  return made;
}

void CompoundEditorWidget::MenuMaker::addPort(PortObject& port) {
  const PortRef kept(&port);
  menu_.addSection(QStringLiteral("Port ") + QString::fromStdString(port.name()));
  QAction* watch = edit(
      QStringLiteral("Watch"), true,
      [kept](CompoundEditorWidget& editor) { edits::toggleWatchPoint(editor.session_, *kept); },
      Action::ToggleWatch);
  watch->setCheckable(true);
  watch->setChecked(edits::watchedFace(port).watchPoint());
  edit(
      QStringLiteral("Disconnect port"), port.hasPeers(),
      [kept](CompoundEditorWidget& editor) { edits::disconnectPort(editor.session_, *kept); },
      Action::DisconnectPort);
  edit(
      QStringLiteral("Hide port"), !port.above(),
      [kept](CompoundEditorWidget& editor) { edits::setPortHidden(editor.session_, *kept, true); },
      Action::HidePort);
  if (edits::compoundOfPort(port)) addPortEdits(port);
  menu_.addSeparator();
}

void CompoundEditorWidget::MenuMaker::addPortEdits(PortObject& port) {
  const PortRef kept(&port);
  PortObject& outer = port.isInner() && port.twin() ? *port.twin() : port;
  const auto& list = outer.node()->list(outer.direction());
  const unsigned int at = list.indexOf(&outer);
  edit(
      QStringLiteral("Rename port"), true,
      [kept](CompoundEditorWidget& editor) { editor.renamePort(*kept); }, Action::RenamePort);
  edit(
      QStringLiteral("Type..."), true,
      [kept](CompoundEditorWidget& editor) { editor.choosePortType(*kept); }, Action::SetPortType);
  edit(
      QStringLiteral("Move port up"), at > 0,
      [kept](CompoundEditorWidget& editor) { edits::movePort(editor.session_, *kept, -1); },
      Action::MovePortUp);
  edit(
      QStringLiteral("Move port down"), at + 1 < list.count(),
      [kept](CompoundEditorWidget& editor) { edits::movePort(editor.session_, *kept, 1); },
      Action::MovePortDown);
  edit(
      QStringLiteral("Delete port"), true,
      [kept](CompoundEditorWidget& editor) { edits::deletePort(editor.session_, *kept); },
      Action::DeletePort);
}

/// Of the wire alone; its ports have their own menus.
void CompoundEditorWidget::MenuMaker::addWire(const Wire& wire) {
  const edits::Joint joint{wire.source, wire.target};
  const QPointF middle = (wire.start + wire.end) / 2;
  const QString source = QString::fromStdString(joint.source->fullName());
  menu_.addSection(QStringLiteral("Wire from %1").arg(source));
  edit(QStringLiteral("Remove wire"), true,
       [joint](CompoundEditorWidget& editor) { edits::removeWires(editor.session_, {joint}); });
  edit(QStringLiteral("Put a node into it..."), true,
       [joint, middle](CompoundEditorWidget& editor) { editor.openNodeMenuFor(joint, middle); });
  QAction* watch =
      edit(QStringLiteral("Watch %1").arg(source), true, [joint](CompoundEditorWidget& editor) {
        edits::toggleWatchPoint(editor.session_, *joint.source);
      });
  watch->setCheckable(true);
  watch->setChecked(edits::watchedFace(*joint.source).watchPoint());
}

/// What a compound, or a side of the level's boundary, has beside its ports.
void CompoundEditorWidget::MenuMaker::addBox(const BoxItem& box) {
  addHiddenPorts(box);
  addCompound(box);
  menu_.addSeparator();
}

void CompoundEditorWidget::MenuMaker::addCompound(const BoxItem& box) {
  const bool whole = box.kind == BoxKind::Node && box.node->compound();
  orvlib::CompoundObject* compound = whole ? box.node->compound() : compoundOf(box);
  if (!compound) return;
  const orvlib::CompoundRef kept(compound);
  const bool outputs =
      box.kind == BoxKind::Outputs || box.node->nodeKind() == orvlib::NodeKind::Output;
  for (const bool output : {false, true}) {
    if (!whole && output != outputs) continue;
    const QPointF at = output ? box.bounds.topRight() : box.bounds.topLeft();
    edit(
        output ? QStringLiteral("Add output...") : QStringLiteral("Add input..."), true,
        [kept, output, at](CompoundEditorWidget& editor) { editor.addPort(*kept, output, at); },
        output ? Action::AddOutput : Action::AddInput);
  }
  if (whole) key(Action::DiveIn, QStringLiteral("Go in"));
}

void CompoundEditorWidget::MenuMaker::addHiddenPorts(const BoxItem& box) {
  std::vector<PortRef> hidden;
  for (const PortSlot& slot : box.portSlots) {
    if (slot.row < 0) hidden.push_back(slot.port);
  }
  if (hidden.empty()) return;
  QMenu* ports = menu_.addMenu(QStringLiteral("Show port"));
  editor_.dress(*ports);
  ports->setEnabled(editable_);
  const auto add = [this, ports](const QString& text, const std::vector<PortRef>& shown) {
    ports->addAction(text, &editor_, [&editor = editor_, shown] {
      if (editor.bench_->canEdit()) editor.showPorts(shown);
    });
  };
  for (const PortRef& port : hidden) add(QString::fromStdString(port->name()), {port});
  ports->addSeparator();
  add(QStringLiteral("All of them"), hidden);
}

void CompoundEditorWidget::MenuMaker::addNodes() {
  const auto& boxes = editor_.scene_.selectedBoxes();
  const bool wired = anySelected(
      [](const BoxItem* box) { return !box->arriving.empty() || !box->leaving.empty(); });
  const bool compounds = anySelected([](const BoxItem* box) { return box->node->compound(); });
  key(Action::Rename, QStringLiteral("Rename"), editable_ && boxes.size() == 1);
  key(Action::Remove, QStringLiteral("Remove"), editable_);
  key(Action::RemoveAndHeal, QStringLiteral("Remove and heal"), editable_ && wired);
  key(Action::Disconnect, QStringLiteral("Disconnect"), editable_ && wired);
  menu_.addSeparator();
  addClipboard();
  menu_.addSeparator();
  key(Action::Group, QStringLiteral("Group"), editable_);
  key(Action::Explode, QStringLiteral("Explode"), editable_ && compounds);
  key(Action::AddBackdrop, QStringLiteral("Backdrop"), editable_);
  key(Action::AutoLayout, QStringLiteral("Lay out"), editable_);
  menu_.addSeparator();
  addStates();
}

void CompoundEditorWidget::MenuMaker::addClipboard() {
  key(Action::Cut, QStringLiteral("Cut"), editable_);
  key(Action::Copy, QStringLiteral("Copy"), editor_.session_.hasHook());
  key(Action::CopyAsScript, QStringLiteral("Copy as script lines"));
  key(Action::Duplicate, QStringLiteral("Duplicate"), editable_);
}

/// They are set as the first of the selected nodes has them not.
void CompoundEditorWidget::MenuMaker::addStates() {
  const orvlib::NodeObject& first = *editor_.scene_.selectedBoxes().front()->node;
  const auto add = [this, &first](Action action, const QString& text, NodeState state) {
    QAction* made = key(action, text, editable_);
    made->setCheckable(true);
    made->setChecked(first.is(state));
  };
  add(Action::ToggleEnabled, QStringLiteral("Enabled"), NodeState::Enabled);
  add(Action::ToggleFrozen, QStringLiteral("Frozen"), NodeState::Frozen);
  add(Action::ToggleBypassed, QStringLiteral("Bypassed"), NodeState::Bypassed);
}

void CompoundEditorWidget::MenuMaker::addNotes() {
  const bool alone = editor_.scene_.selectedNotes().size() == 1;
  edit(
      QStringLiteral("Change text"), alone,
      [](CompoundEditorWidget& editor) {
        editor.changeText(*editor.scene_.selectedNotes().front());
      },
      Action::Rename);
  edit(QStringLiteral("Colour..."), true,
       [](CompoundEditorWidget& editor) { editor.chooseColour(); });
  key(Action::Remove, QStringLiteral("Remove"), editable_);
  menu_.addSeparator();
  addClipboard();
}

void CompoundEditorWidget::selectFor(const Hit& hit) {
  const bool other = (hit.box && hit.box->kind == BoxKind::Node && !hit.box->selected) ||
                     (hit.note && !hit.note->selected);
  if (!other) return;
  scene_.clearSelection();
  if (hit.box) scene_.select(*hit.box);
  if (hit.note) scene_.select(*hit.note);
  canvas_->update();
  selectionMayHaveChanged();
}

void CompoundEditorWidget::openContextMenu(const Hit& hit, const QPoint& globalPosition) {
  if (hit.part == Hit::Part::Nothing) {
    const QPointF at = canvas_->toScene(canvas_->mapFromGlobal(globalPosition));
    return openNodeMenu({at, nullptr}, {Action::Paste, Action::SelectAll, Action::FitAll});
  }
  selectFor(hit);
  auto* menu = new QMenu(canvas_);
  MenuMaker maker(*this, *menu);
  std::function<bool()> isThere = [] { return true; };
  if (hit.wire) {
    maker.addWire(*hit.wire);
    isThere = [source = hit.wire->source, target = hit.wire->target] {
      return target->peers().contains(source.get());
    };
  }
  if (hit.slot) {
    maker.addPort(*hit.port());
    isThere = [this, port = hit.slot->port] { return scene_.find(*port).box != nullptr; };
  }
  if (hit.box) maker.addBox(*hit.box);
  if (hit.note) maker.addNotes();
  if (hit.box && hit.box->kind == BoxKind::Node) maker.addNodes();
  popUp(*menu, globalPosition, isThere);
}

void CompoundEditorWidget::dress(QMenu& menu) const {
  menu.setFont(theme_.widgetFont());
  menu.setPalette(theme_.widgetPalette());
}

void CompoundEditorWidget::popUp(QMenu& menu, const QPoint& globalPosition,
                                 std::function<bool()> isFor) {
  menu.setAttribute(Qt::WA_DeleteOnClose);
  dress(menu);
  overlays_.open(&menu, [this, isFor = std::move(isFor), round = scene_.selectionRound(),
                         refusal = session_.refusal()] {
    return scene_.selectionRound() == round && session_.refusal() == refusal && isFor();
  });
  menu.popup(globalPosition);
}

/// Of the current port or wire, or else of what is selected.
void CompoundEditorWidget::openMenuByKey() {
  const PortCursor& cursor = interaction_->cursor();
  Hit hit;
  QPointF at = interaction_->pointer();
  if (cursor.place()) {
    at = *cursor.place();
    hit.wire = cursor.wire();
    hit.part = hit.wire ? Hit::Part::Wire : Hit::Part::Port;
    if (cursor.port()) {
      const auto shown = scene_.find(*cursor.port());
      hit.box = shown.box;
      hit.slot = shown.slot;
    }
  } else if (!scene_.selectedBoxes().empty()) {
    hit.part = Hit::Part::Title;
    hit.box = scene_.selectedBoxes().front();
    at = hit.box->bounds.center();
  } else if (!scene_.selectedNotes().empty()) {
    hit.part = Hit::Part::Note;
    hit.note = scene_.selectedNotes().front();
    at = hit.note->bounds.center();
  }
  openContextMenu(hit, canvas_->mapToGlobal(canvas_->toWidget(at).toPoint()));
}

}  // namespace orvuilib
