#include "standalone/widgets/colour/ColourDialog.h"

#include <gmock/gmock.h>

#include <QDoubleSpinBox>
#include <QSignalSpy>
#include <QTest>

#include "standalone/widgets/colour/ColourPalette.h"
#include "standalone/widgets/colour/ColourPicker.h"
#include "tests/standalone/widgets/colour/ColourTesting.h"

namespace {

using orvUI_v1::HIGColor;
using orvuilib::ColourDialog;
using orvuilib::ColourPalette;
using testing::ElementsAre;

class Dialog : public ColourTest {
 protected:
  Dialog() { dialog.show(); }

  ColourDialog dialog{{0.5f, 0.5f, 0.5f, 1}, nullptr};
  QSignalSpy changing{&dialog, &ColourDialog::changing};
  QSignalSpy chosen{&dialog, &ColourDialog::chosen};
  QSignalSpy cancelled{&dialog, &ColourDialog::cancelled};
};

TEST_F(Dialog, IsOneChoiceHoweverMuchWasTried) {
  dialog.picker().findChild<QDoubleSpinBox*>()->setValue(0.25);
  dialog.picker().findChild<QDoubleSpinBox*>()->setValue(0.75);
  EXPECT_EQ(changing.count(), 2);
  EXPECT_EQ(chosen.count(), 0);
  dialog.accept();
  ASSERT_EQ(chosen.count(), 1);
  EXPECT_EQ(chosen[0][0].value<HIGColor>(), (HIGColor{0.75f, 0.5f, 0.5f, 1}));
  EXPECT_THAT(ColourPalette::recent(), ElementsAre(HIGColor{0.75f, 0.5f, 0.5f, 1}));
}

TEST_F(Dialog, EscapeLeavesTheColour) {
  dialog.picker().findChild<QDoubleSpinBox*>()->setValue(0.25);
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_EQ(chosen.count(), 0);
  EXPECT_EQ(cancelled.count(), 1);
}

TEST_F(Dialog, TakingTheSameColourChangesNothing) {
  dialog.accept();
  EXPECT_EQ(chosen.count(), 0);
  EXPECT_EQ(cancelled.count(), 1);
}

}  // namespace
