#include "standalone/widgets/colour/ColourDialog.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

#include "standalone/widgets/colour/ColourPalette.h"
#include "standalone/widgets/colour/ColourPicker.h"

namespace orvuilib {

using orvUI_v1::HIGColor;

ColourDialog::ColourDialog(const HIGColor& colour, QWidget* parent)
    : QDialog(parent), picker_(new ColourPicker), before_(colour) {
  setWindowTitle(tr("Colour"));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  auto* column = new QVBoxLayout(this);
  column->addWidget(picker_, 1);
  column->addWidget(buttons);
  picker_->setColour(colour);
  connect(picker_, &ColourPicker::changing, this, &ColourDialog::changing);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void ColourDialog::done(int result) {
  const HIGColor colour = picker_->colour();
  QDialog::done(result);
  if (result != QDialog::Accepted || colour == before_) {
    emit cancelled();
    return;
  }
  ColourPalette::noteChosen(colour);
  emit chosen(colour);
}

}  // namespace orvuilib
