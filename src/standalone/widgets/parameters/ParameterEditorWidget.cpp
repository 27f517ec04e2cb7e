#include "standalone/widgets/parameters/ParameterEditorWidget.h"

#include <QKeyEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "standalone/widgets/hooks/HookRegistry.h"
#include "standalone/widgets/parameters/ParameterPanel.h"
#include "standalone/widgets/parameters/ParameterPreferences.h"
#include "standalone/widgets/parameters/info/InfoPanel.h"
#include "standalone/widgets/preferences/Preferences.h"
#include "standalone/widgets/selection/SelectionModel.h"

namespace orvuilib {

using orvlib::NodeObject;
using orvlib::NodeRef;
using orvUI_v1::ParameterEditorMode;

ParameterEditorWidget::ParameterEditorWidget(QWidget* parent)
    : ParameterEditor(parent), follower_([this](unsigned char bits) { follow(bits); }) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  connect(&SelectionModel::instance(), &SelectionModel::changed, this, [this] { showSelection(); });
  connect(&Preferences::instance(), &Preferences::changed, this,
          [this] { follower_.note(orvlib::kValueChange); });
  makePanel();
}

ParameterEditorWidget::~ParameterEditorWidget() {
  // What is on its way is put back while all is still there.
  delete parameters_;
  delete info_;
}

QSize ParameterEditorWidget::sizeHint() const {
  const int unit = fontMetrics().height();
  return {unit * 20, unit * 36};
}

void ParameterEditorWidget::setMode(ParameterEditorMode mode) {
  if (mode == mode_) return;
  mode_ = mode;
  makePanel();
}

void ParameterEditorWidget::makePanel() {
  delete parameters_;
  delete info_;
  parameters_ = nullptr;
  info_ = nullptr;
  const auto edited = [this] { follower_.note(orvlib::kValueChange); };
  if (mode_ == ParameterEditorMode::kInfo) {
    info_ = new InfoPanel(this);
    info_->edited = edited;
    layout()->addWidget(info_);
  } else {
    parameters_ = new ParameterPanel(this);
    parameters_->edited = edited;
    layout()->addWidget(parameters_);
  }
  // What is recorded of a node changes with others too.
  follower_.followAll(mode_ == ParameterEditorMode::kInfo);
  showSelection();
}

std::vector<NodeRef> ParameterEditorWidget::nodesInGraphs() const {
  std::vector<NodeRef> nodes;
  for (const auto& handle : SelectionModel::instance().nodes()) {
    auto* node = static_cast<NodeObject*>(handle.get());
    if (node->container()) nodes.emplace_back(node);
  }
  return nodes;
}

void ParameterEditorWidget::showSelection() {
  std::vector<NodeRef> selected;
  for (const auto& handle : SelectionModel::instance().nodes()) {
    selected.emplace_back(static_cast<NodeObject*>(handle.get()));
  }
  follower_.follow(selected);
  nodes_ = nodesInGraphs();
  if (parameters_) parameters_->showNodes(nodes_);
  if (info_) info_->showNodes(nodes_);
}

/// A node that left its graph is shown no longer, and is again when undo brings it back.
void ParameterEditorWidget::follow(unsigned char bits) {
  if (bits & orvlib::kContentChange) {
    const std::vector<NodeRef> now = nodesInGraphs();
    const auto isSame = [](const NodeRef& a, const NodeRef& b) { return a.get() == b.get(); };
    if (!std::ranges::equal(now, nodes_, isSame)) {
      showSelection();
      return;
    }
  }
  if (parameters_) parameters_->follow(bits);
  if (info_) info_->follow(bits);
}

/// What a field does not take back by itself is taken back in the program.
void ParameterEditorWidget::keyPressEvent(QKeyEvent* event) {
  auto* services = HookRegistry::appServicesHook();
  if (services && event->matches(QKeySequence::Undo)) {
    services->undo();
  } else if (services && event->matches(QKeySequence::Redo)) {
    services->redo();
  } else {
    ParameterEditor::keyPressEvent(event);
  }
}

}  // namespace orvuilib
