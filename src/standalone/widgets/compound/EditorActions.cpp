// What keys of the compound editor do that edit nothing.

#include "standalone/widgets/compound/CompoundEditorWidget.h"

namespace orvuilib {

using orvlib::NodeObject;

namespace {

constexpr qreal kZoomStep = 1.25;

}  // namespace

void CompoundEditorWidget::perform(Action action) {
  if (action == Action::Help) return overlays_.help().open();
  if (!scene_.levelNode()) return;
  const bool done = performView(action) || performSelection(action) || performPreference(action) ||
                    performWalk(action);
  if (done) {
    canvas_->update();
  } else if (!performPort(action)) {
    performEdit(action);
  }
  selectionMayHaveChanged();
}

bool CompoundEditorWidget::performView(Action action) {
  const QPointF middle = QPointF(canvas_->width(), canvas_->height()) / 2;
  switch (action) {
    case Action::FitAll:
      fitAll();
      return true;
    case Action::FitSelection:
      fitSelection();
      return true;
    case Action::ZoomIn:
      canvas_->setZoom(canvas_->zoom() * kZoomStep, middle);
      return true;
    case Action::ZoomOut:
      canvas_->setZoom(canvas_->zoom() / kZoomStep, middle);
      return true;
    case Action::Find:
      openFind();
      return true;
    case Action::FindNext:
      if (!overlays_.findList().isSearching()) {
        openFind();
      } else {
        overlays_.findList().chooseNext();
      }
      return true;
    case Action::DiveIn:
      if (scene_.selectedBoxes().size() == 1 && scene_.selectedBoxes()[0]->node->compound()) {
        diveInto(*scene_.selectedBoxes()[0]->node);
      }
      return true;
    case Action::DiveOut: {
      NodeObject* left = scene_.levelNode();
      if (!left->parent()) return true;
      diveInto(*left->parent()->node());
      if (BoxItem* box = scene_.find(left)) scene_.select(*box);
      return true;
    }
    case Action::Back:
    case Action::Forward:
      keepView();
      if (action == Action::Back)
        navigator_.back();
      else
        navigator_.forward();
      showCurrentLevel();
      return true;
    default:
      return false;
  }
}

bool CompoundEditorWidget::performSelection(Action action) {
  switch (action) {
    case Action::SelectAll:
      for (NodeObject* node : scene_.level()->nodes().items()) scene_.select(*scene_.find(node));
      scene_.forEachNote([this](NoteItem& note) { scene_.select(note); });
      return true;
    case Action::SelectNone:
      if (interaction_->cursor().begun()) {
        interaction_->cursor().dropWire();
        return true;
      }
      interaction_->cursor().clear();
      scene_.clearSelection();
      return true;
    case Action::InvertSelection:
      invertSelection();
      return true;
    case Action::SelectUpstream:
      selectConnected(true);
      return true;
    case Action::SelectDownstream:
      selectConnected(false);
      return true;
    default:
      return false;
  }
}

bool CompoundEditorWidget::performPreference(Action action) {
  EditorPreferences wanted = preferences_;
  switch (action) {
    case Action::ToggleGrid:
      wanted.showGrid = !wanted.showGrid;
      break;
    case Action::ToggleSnap:
      wanted.snapToGrid = !wanted.snapToGrid;
      break;
    case Action::ToggleValues:
      wanted.showValues = !wanted.showValues;
      break;
    case Action::NextWireStyle:
      wanted.wireStyle = static_cast<WireStyle>((static_cast<int>(wanted.wireStyle) + 1) % 3);
      break;
    default:
      return false;
  }
  // All editors hear of it, this one too.
  wanted.save();
  return true;
}

void CompoundEditorWidget::fitSelection() {
  QRectF area;
  for (const BoxItem* box : scene_.selectedBoxes()) area |= box->bounds;
  for (const NoteItem* note : scene_.selectedNotes()) area |= note->bounds;
  if (area.isNull()) return fitAll();
  fit(area);
}

void CompoundEditorWidget::invertSelection() {
  std::vector<BoxItem*> others;
  for (NodeObject* node : scene_.level()->nodes().items()) {
    BoxItem* box = scene_.find(node);
    if (!box->selected) others.push_back(box);
  }
  scene_.clearSelection();
  for (BoxItem* box : others) scene_.select(*box);
}

void CompoundEditorWidget::selectConnected(bool upstream) {
  // The list grows by what is found.
  for (std::size_t i = 0; i < scene_.selectedBoxes().size(); ++i) {
    const BoxItem* box = scene_.selectedBoxes()[i];
    for (const Wire* wire : upstream ? box->arriving : box->leaving) {
      scene_.select(upstream ? *wire->from : *wire->to);
    }
  }
}

void CompoundEditorWidget::select(const std::vector<orvlib::NodeRef>& nodes) {
  if (nodes.empty()) return;
  scene_.clearSelection();
  for (const auto& node : nodes) {
    if (BoxItem* box = scene_.find(node.get())) scene_.select(*box);
  }
  canvas_->update();
}

}  // namespace orvuilib
