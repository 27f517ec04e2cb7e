#include "standalone/widgets/compound/CompoundEditorWidget.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "platform/ORV_1_0/AnnotationList.h"
#include "platform/ORV_1_0/Host.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/widgets/look/Scale.h"
#include "standalone/widgets/preferences/Preferences.h"
#include "standalone/widgets/selection/SelectionModel.h"

namespace orvuilib {

using orvlib::NodeObject;

CompoundEditorWidget::CompoundEditorWidget(QWidget* parent)
    : CompoundEditor(parent),
      theme_(currentScale()),
      breadcrumb_(new Breadcrumb(theme_, this)),
      canvas_(new Canvas(scene_, preferences_, this)),
      overlays_(theme_, canvas_),
      bench_(new Workbench{scene_, *canvas_, session_, preferences_,
                           [this](const edits::NodePlace& place) { openNodeMenu(place); }}),
      interaction_(new Interaction(*bench_, *this)) {
  readPreferences();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(breadcrumb_);
  layout->addWidget(canvas_, 1);
  canvas_->setInput(interaction_.get());
  session_.setNotice([this](const QString& text) { canvas_->setNotice(text); });
  setFocusProxy(canvas_);
  connect(breadcrumb_, &Breadcrumb::back, this, [this] { perform(Action::Back); });
  connect(breadcrumb_, &Breadcrumb::forward, this, [this] { perform(Action::Forward); });
  connect(breadcrumb_, &Breadcrumb::levelChosen, this, [this](NodeObject* level) {
    if (level->compound()) diveInto(*level);
  });
  connectOverlays();
  connect(&Preferences::instance(), &Preferences::changed, this,
          &CompoundEditorWidget::readPreferences);
  auto& selection = SelectionModel::instance();
  connect(&selection, &SelectionModel::changed, this, &CompoundEditorWidget::followSelection);
  connect(&selection, &SelectionModel::revealAsked, this,
          [this](const auto& node, bool mayLeaveLevel, bool& revealed) {
            revealIfAsked(EditSession::object(node), mayLeaveLevel, revealed);
          });
}

/// The children go first: they look at what this owns.
CompoundEditorWidget::~CompoundEditorWidget() {
  listenTo(nullptr);
  canvas_->setInput(nullptr);
  Preferences::instance().disconnect(this);
  SelectionModel::instance().disconnect(this);
  delete canvas_;
  delete breadcrumb_;
}

void CompoundEditorWidget::readPreferences() {
  preferences_ = EditorPreferences::load();
  canvas_->update();
}

void CompoundEditorWidget::setRuntimeNameHint(const char* name) {
  if (ORV_v1::Host().getRuntimeByName(name)) runtimeHint_ = QString::fromUtf8(name);
}

ORV_v1::AddRefWrapper<ORV_v1::Compound> CompoundEditorWidget::currentCompound() const {
  return ORV_v1::AddRefWrapper<ORV_v1::Compound>(scene_.level());
}

void CompoundEditorWidget::editCompound(const ORV_v1::AddRefWrapper<ORV_v1::Node>& topNode) {
  auto* node = static_cast<NodeObject*>(topNode.get());
  const bool shows = node && node->container() && node->compound();
  keepView();
  overlays_.findList().forget();
  listenTo(shows ? node->container() : nullptr);
  navigator_.open(shows ? node : nullptr);
  showCurrentLevel();
}

bool CompoundEditorWidget::diveInCompound(const ORV_v1::AddRefWrapper<ORV_v1::Compound>& compound) {
  const auto* level = static_cast<const orvlib::CompoundObject*>(compound.get());
  NodeObject* node = level ? level->node() : nullptr;
  if (!node || !container_ || node->container() != container_) return false;
  diveInto(*node);
  return true;
}

void CompoundEditorWidget::diveInto(NodeObject& node) {
  keepView();
  navigator_.go(node);
  showCurrentLevel();
}

/// A key for the menu, the search or a field that is open goes there.
void CompoundEditorWidget::sendKeyEvent(int key, QFlags<Qt::KeyboardModifier> modifiers) {
  QWidget* target = overlays_.keyTarget();
  if (!target) target = canvas_;
  const bool plain = !(modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
  const bool printable = plain && key >= Qt::Key_Space && key <= 0xff;
  QChar typed(static_cast<char16_t>(printable ? key : 0));
  if (!(modifiers & Qt::ShiftModifier)) typed = typed.toLower();
  const QString text = printable ? QString(typed) : QString();
  QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
  QCoreApplication::sendEvent(target, &press);
  QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
  QCoreApplication::sendEvent(target, &release);
}

bool CompoundEditorWidget::getSelectedNodes(ORV_v1::AddRefWrapper<ORV_v1::NodeList>& nodes) const {
  if (!scene_.levelNode()) return false;
  nodes = edits::selectedNodeList(scene_);
  return true;
}

bool CompoundEditorWidget::getSelectedAnnotations(
    ORV_v1::AddRefWrapper<ORV_v1::AnnotationList>& annotations) const {
  if (!scene_.levelNode()) return false;
  annotations = edits::selectedAnnotationList(scene_);
  return true;
}

void CompoundEditorWidget::setSelectedNodes(const ORV_v1::AddRefWrapper<ORV_v1::NodeList>& nodes) {
  scene_.clearSelection();
  for (unsigned int i = 0; nodes && i < nodes->size(); ++i) {
    BoxItem* box = scene_.find(EditSession::object((*nodes)[i]));
    if (box) scene_.select(*box);
  }
  canvas_->update();
  selectionMayHaveChanged();
}

void CompoundEditorWidget::listenTo(orvlib::ContainerObject* container) {
  if (container == container_) return;
  if (container_) container_->removeListener(*this);
  container_ = container;
  if (container_) container_->addListener(*this);
}

void CompoundEditorWidget::keepView() {
  NodeObject* level = navigator_.current();
  if (level) navigator_.viewOf(*level) = {canvas_->zoom(), canvas_->centre()};
}

void CompoundEditorWidget::leaveLevel() {
  interaction_->cancel();
  interaction_->cursor().clear();
  canvas_->setHovered(nullptr, nullptr);
  overlays_.leaveLevel();
}

void CompoundEditorWidget::showCurrentLevel() {
  leaveLevel();
  NodeObject* level = navigator_.current();
  if (!level) overlays_.findList().forget();
  scene_.show(level);
  canvas_->setNotice({});
  canvas_->setReadOnly(level ? session_.refusal() : QString());
  breadcrumb_->display(
      navigator_, container_ ? QString::fromStdString(container_->containerName()) : QString());
  if (level) {
    const Navigator::View& view = navigator_.viewOf(*level);
    fitted_.reset();
    if (view.zoom == 0) {
      fitAll();
    } else {
      canvas_->setZoom(view.zoom, {});
      canvas_->centreOn(view.centre);
    }
  }
  canvas_->update();
  selectionMayHaveChanged();
}

void CompoundEditorWidget::fitAll() {
  fit(scene_.bounds());
  fitted_->area.reset();
}

void CompoundEditorWidget::fit(const QRectF& area) {
  canvas_->fit(area);
  fitted_ = {area, canvas_->toScene(QPointF(0, 0)), canvas_->zoom()};
}

/// What was fitted into the view, and not moved since, is fitted into one of another size.
void CompoundEditorWidget::fitAgain() {
  if (!fitted_ || fitted_->zoom != canvas_->zoom()) return;
  if (fitted_->corner != canvas_->toScene(QPointF(0, 0))) return;
  if (fitted_->area) return fit(*fitted_->area);
  fitAll();
}

void CompoundEditorWidget::resizeEvent(QResizeEvent* event) {
  CompoundEditor::resizeEvent(event);
  layout()->activate();
  fitAgain();
}

void CompoundEditorWidget::hideEvent(QHideEvent* event) {
  CompoundEditor::hideEvent(event);
  overlays_.leaveLevel();
}

void CompoundEditorWidget::viewHasChanged() { overlays_.follow(); }

void CompoundEditorWidget::showEvent(QShowEvent* event) {
  CompoundEditor::showEvent(event);
  layout()->activate();
  fitAgain();
}

void CompoundEditorWidget::graphChanged(orvlib::ContainerObject& container,
                                        std::span<const orvlib::NodeChange> changes) {
  overlays_.findList().graphChanged();
  // Another top: the graph was read anew.
  if (&container.top() != navigator_.top()) {
    navigator_.open(&container.top());
    return showCurrentLevel();
  }
  if (navigator_.leaveWhatIsGone()) return showCurrentLevel();
  interaction_->graphChanges(changes);
  canvas_->setHovered(nullptr, nullptr);
  canvas_->repaintArea(scene_.follow(changes));
  canvas_->setReadOnly(session_.refusal());
  interaction_->graphFollowed();
  overlays_.follow();
  const bool renamed = std::ranges::any_of(changes, [](const orvlib::NodeChange& change) {
    return change.bits & orvlib::kIdentityChange && change.node->compound();
  });
  if (renamed) {
    breadcrumb_->display(navigator_, QString::fromStdString(container.containerName()));
  }
  selectionMayHaveChanged();
}

void CompoundEditorWidget::graphGoes(orvlib::ContainerObject&) {
  interaction_->cancel();
  listenTo(nullptr);
  navigator_.open(nullptr);
  showCurrentLevel();
}

void CompoundEditorWidget::selectionMayHaveChanged() {
  if (scene_.selectionRound() == toldSelection_) return;
  toldSelection_ = scene_.selectionRound();
  interaction_->cursor().check();
  overlays_.follow();
  SelectionModel::Nodes nodes;
  nodes.reserve(scene_.selectedBoxes().size());
  for (BoxItem* box : scene_.selectedBoxes()) nodes.push_back(EditSession::handle(*box->node));
  SelectionModel::instance().select(nodes);
}

void CompoundEditorWidget::reveal(NodeObject& node) {
  if (!node.parent() || node.container() != container_ || !container_) return;
  if (node.parent() != scene_.level()) diveInto(*node.parent()->node());
  BoxItem* box = scene_.find(&node);
  scene_.clearSelection();
  scene_.select(*box);
  if (canvas_->zoom() < 0.6) canvas_->setZoom(1, {});
  canvas_->centreOn(box->bounds.center());
  selectionMayHaveChanged();
}

/// The selection is one for the whole program; here it shows as far as it is on this level.
void CompoundEditorWidget::followSelection() {
  std::vector<BoxItem*> boxes;
  for (const auto& node : SelectionModel::instance().nodes()) {
    if (BoxItem* box = scene_.find(EditSession::object(node))) boxes.push_back(box);
  }
  if (boxes == scene_.selectedBoxes()) return;
  scene_.clearSelection();
  for (BoxItem* box : boxes) scene_.select(*box);
  toldSelection_ = scene_.selectionRound();
  canvas_->update();
}

void CompoundEditorWidget::revealIfAsked(NodeObject* node, bool mayLeaveLevel, bool& revealed) {
  if (!container_ || node->container() != container_ || !node->parent()) return;
  const bool isHere = node->parent() == scene_.level();
  if (!isHere && (!mayLeaveLevel || revealed)) return;
  reveal(*node);
  revealed = true;
}

}  // namespace orvuilib
