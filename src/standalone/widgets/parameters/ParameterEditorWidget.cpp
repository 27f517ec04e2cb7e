#include "standalone/widgets/parameters/ParameterEditorWidget.h"

#include <QApplication>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "standalone/widgets/colour/ColourRegistry.h"
#include "standalone/widgets/hooks/HookRegistry.h"
#include "standalone/widgets/parameters/Notice.h"
#include "standalone/widgets/parameters/ParameterPanel.h"
#include "standalone/widgets/parameters/PortEdits.h"
#include "standalone/widgets/parameters/RowView.h"
#include "standalone/widgets/parameters/info/InfoPanel.h"
#include "standalone/widgets/preferences/Preferences.h"
#include "standalone/widgets/selection/SelectionModel.h"

namespace orvuilib {

using orvlib::NodeObject;
using orvlib::NodeRef;
using orvUI_v1::ParameterEditorMode;

ParameterEditorWidget::ParameterEditorWidget(QWidget* parent)
    : ParameterEditor(parent),
      notice_(new Notice(this)),
      follower_([this](unsigned char bits) { follow(bits); }) {
  ColourRegistry::instance().takeUpPreferences();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(notice_);
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
  auto* place = static_cast<QVBoxLayout*>(layout());
  const auto edited = [this] { follower_.note(orvlib::kValueChange); };
  const auto refused = [this](const QString& reason) { notice_->tell(reason); };
  if (mode_ == ParameterEditorMode::kInfo) {
    info_ = new InfoPanel(this);
    info_->edited = edited;
    info_->refused = refused;
    place->insertWidget(0, info_, 1);
  } else {
    parameters_ = new ParameterPanel(this);
    parameters_->edited = edited;
    parameters_->refused = refused;
    place->insertWidget(0, parameters_, 1);
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
  LiveEdit::putBackStranded();
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

/// Undo while a value is on its way is what Escape is.
bool ParameterEditorWidget::giveUpLive() {
  if (!parameters_ || !parameters_->rows().isLive()) return false;
  QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  if (QWidget* focused = QApplication::focusWidget()) QApplication::sendEvent(focused, &escape);
  return true;
}

/// What a field does not take back by itself is taken back in the program.
void ParameterEditorWidget::keyPressEvent(QKeyEvent* event) {
  auto* services = HookRegistry::appServicesHook();
  const bool isUndo = event->matches(QKeySequence::Undo) || event->matches(QKeySequence::Redo);
  if (isUndo && giveUpLive()) return;
  if (services && event->matches(QKeySequence::Undo)) {
    services->undo();
  } else if (services && event->matches(QKeySequence::Redo)) {
    services->redo();
  } else {
    ParameterEditor::keyPressEvent(event);
  }
}

}  // namespace orvuilib
