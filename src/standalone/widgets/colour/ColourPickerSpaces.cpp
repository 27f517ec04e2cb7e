// The picker's switch, mixing spaces and views.

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

#include "standalone/widgets/colour/ColourPicker.h"
#include "standalone/widgets/colour/ColourRegistry.h"

namespace orvuilib {

void ColourPicker::buildSpaces(QGridLayout& grid) {
  const int row = grid.rowCount();
  grid.addWidget(managed_, row, 0, 1, 3);
  auto* line = new QHBoxLayout;
  space_->setObjectName(QStringLiteral("mixingSpace"));
  view_->setObjectName(QStringLiteral("viewSpace"));
  note_->setObjectName(QStringLiteral("note"));
  space_->setToolTip(tr("Mixing space"));
  view_->setToolTip(tr("View"));
  line->addWidget(space_, 1);
  line->addWidget(view_, 1);
  grid.addLayout(line, row + 1, 0, 1, 3);
  note_->setWordWrap(true);
  note_->hide();
  grid.addWidget(note_, row + 2, 0, 1, 3);
  connect(managed_, &QCheckBox::clicked, this, [](bool on) {
    auto* management = ColourRegistry::instance().handler();
    if (!management) return;
    management->setEnabled(on);
    management->saveUserPrefs();
  });
  connect(space_, &QComboBox::textActivated, this, &ColourPicker::chooseSpace);
  connect(view_, &QComboBox::textActivated, this, &ColourPicker::chooseView);
}

void ColourPicker::showSpaces() {
  auto* management = ColourRegistry::instance().handler();
  const bool there = management && management->isColorManagementAvailable();
  const bool on = there && management->enabled();
  managed_->setEnabled(there);
  managed_->setChecked(on);
  dropper_->setEnabled(ColourRegistry::instance().eyeDropper());
  for (QComboBox* box : {space_, view_}) {
    box->clear();
    box->setEnabled(false);
  }
  if (!on) return;
  space_->addItems(management->getMixingSpaceNames());
  space_->setCurrentText(management->mixingSpace());
  view_->addItems(management->getViewSpaceNames());
  view_->setCurrentText(management->viewSpace());
  for (QComboBox* box : {space_, view_}) box->setEnabled(box->count() > 0);
}

void ColourPicker::chooseSpace(const QString& name) {
  auto* management = ColourRegistry::instance().handler();
  if (!management) return;
  const bool inForce = name == management->mixingSpace();
  const bool taken = inForce || management->setMixingSpace(name);
  // The space brings a view of its own, which is to be stored with it.
  const QString view = taken && !inForce ? management->viewSpace() : QString();
  if (!view.isEmpty()) management->setViewSpace(view);
  noteChoice(name, taken);
}

void ColourPicker::chooseView(const QString& name) {
  if (auto* management = ColourRegistry::instance().handler()) {
    noteChoice(name, name == management->viewSpace() || management->setViewSpace(name));
  }
}

/// What was refused is told, and the boxes go back to what is in force.
void ColourPicker::noteChoice(const QString& name, bool taken) {
  tell(taken ? QString() : tr("%1 cannot be used").arg(name));
  if (taken) ColourRegistry::instance().handler()->saveUserPrefs();
  showSpaces();
}

void ColourPicker::tell(const QString& text) {
  note_->setText(text);
  note_->setVisible(!text.isEmpty());
}

}  // namespace orvuilib
