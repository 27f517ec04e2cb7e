#include "standalone/widgets/parameters/rows/RowWidget.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QTableView>

#include "standalone/widgets/colour/ColourDialog.h"
#include "standalone/widgets/colour/ColourPicker.h"
#include "standalone/widgets/colour/ColourSlider.h"
#include "standalone/widgets/parameters/fields/ChoiceBox.h"
#include "standalone/widgets/parameters/fields/ColourButton.h"
#include "standalone/widgets/parameters/fields/NumberField.h"
#include "standalone/widgets/parameters/fields/ParagraphField.h"
#include "standalone/widgets/parameters/fields/SourceLink.h"
#include "tests/standalone/widgets/parameters/ParameterTesting.h"

namespace orvuilib {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A compound "box" with one input "it" of a type.
class RowTest : public ParameterTest {
 protected:
  void selectPort(const std::string& type) {
    host.run("orvCompound g \"/\" -create \"box\"");
    host.run("orvCompound g \"/box\" -createInputPort \"it\" \"" + type + "\"");
    select({"/box"});
    before = stored();
  }

  std::string it() { return value("/box.it"); }

  std::string before;
};

TEST_F(RowTest, ACheckBoxSetsATruthValue) {
  selectPort("bool");
  QTest::mouseClick(part<QCheckBox>("it"), Qt::LeftButton, {},
                    {5, part<QCheckBox>("it")->height() / 2});
  settle();
  EXPECT_EQ(it(), "true");
  expectOneStep(before);
  EXPECT_TRUE(part<QCheckBox>("it")->isChecked());
}

TEST_F(RowTest, TruthValuesThatDifferBecomeTrue) {
  add("core::logic::not", "one");
  add("core::logic::not", "two");
  host.run("orvNode g \"/two\" -setPortDefaultValues \"value\" \"true\"");
  select({"/one", "/two"});
  auto* box = part<QCheckBox>("value");
  EXPECT_EQ(box->checkState(), Qt::PartiallyChecked);
  QTest::mouseClick(box, Qt::LeftButton, {}, {5, box->height() / 2});
  settle();
  EXPECT_EQ(value("/one.value"), "true");
  EXPECT_EQ(value("/two.value"), "true");
}

TEST_F(RowTest, AVectorHasAFieldForEachComponent) {
  selectPort("vector3");
  enter(entry("it", "y"), "4");
  EXPECT_EQ(it(), "{0,4,0}");
  expectOneStep(before);
}

TEST_F(RowTest, AComponentOfManyVectorsLeavesTheOthersAsTheyAre) {
  for (const char* name : {"one", "two"}) add("core::vector::vector3::add", name);
  host.run("orvNode g \"/two\" -setPortDefaultValues \"a\" \"{1,2,3}\"");
  select({"/one", "/two"});
  enter(entry("a", "x"), "9");
  EXPECT_EQ(value("/one.a"), "{9,0,0}");
  EXPECT_EQ(value("/two.a"), "{9,2,3}");
  EXPECT_FALSE(entry("a", "x")->isMixed());
  EXPECT_TRUE(entry("a", "y")->isMixed());
}

TEST_F(RowTest, AStepOfAComponentIsOneStepOfUndo) {
  selectPort("vector4");
  QTest::mouseClick(entry("it", "w"), Qt::LeftButton);
  QTest::keyClick(entry("it", "w"), Qt::Key_Up, Qt::ShiftModifier);
  settle();
  EXPECT_EQ(it(), "{0,0,0,1}");
  expectOneStep(before);
}

TEST_F(RowTest, AConnectedComponentCannotBeEdited) {
  add("core::math::add", "sum");
  selectPort("vector3");
  host.run("orvConnect g \"/sum.result\" \"/box.it.x\"");
  settle();
  EXPECT_FALSE(entry("it", "x")->isEnabled());
  EXPECT_TRUE(entry("it", "y")->isEnabled());
}

TEST_F(RowTest, AMatrixHasAFieldForEachComponent) {
  selectPort("matrix4");
  enter(entry("it", "m03"), "7");
  EXPECT_EQ(it(), "{1,0,0,7,0,1,0,0,0,0,1,0,0,0,0,1}");
  expectOneStep(before);
  EXPECT_GT(entry("it", "m10")->y(), entry("it", "m00")->y());
  EXPECT_EQ(entry("it", "m10")->x(), entry("it", "m00")->x());
}

TEST_F(RowTest, ATextKeepsItsSpecialCharacters) {
  selectPort("string");
  enter(entry("it"), QString::fromUtf8(" a \"b\" {c,d} \\ é "));
  EXPECT_EQ(valueTexts(row("it")->row().first()),
            QStringList(QString::fromUtf8(" a \"b\" {c,d} \\ é ")));
  expectOneStep(before);
}

TEST_F(RowTest, AnEmptyTextIsAValue) {
  selectPort("string");
  enter(entry("it"), "a");
  enter(entry("it"), "");
  EXPECT_EQ(valueTexts(row("it")->row().first()), QStringList(""));
}

TEST_F(RowTest, LineEndsInATextSurviveAVisit) {
  selectPort("string");
  host.run("orvNode g \"/box\" -setPortDefaultValues \"it\" \"a\\nb\"");
  settle();
  host.takeEchoes();
  QTest::mouseClick(entry("it"), Qt::LeftButton);
  QTest::keyClick(entry("it"), Qt::Key_Return);
  EXPECT_THAT(lines(), IsEmpty());
  EXPECT_EQ(valueTexts(row("it")->row().first()), QStringList("a\nb"));
}

TEST_F(RowTest, TheMetadataOfThePortAskForATextOfSeveralLines) {
  selectPort("string");
  const int before1 = row("it")->height();
  host.run("orvNode g \"/box\" -setPortMetaDataValue \"it\" \"lines\" \"4\"");
  settle();
  EXPECT_EQ(row("it")->height(), 4 * before1);
  host.session().undoQueue().clear();
  before = stored();
  auto* field = part<ParagraphField>("it");
  QTest::mouseClick(field->viewport(), Qt::LeftButton);
  QTest::keyClicks(field, "one");
  QTest::keyClick(field, Qt::Key_Return);
  QTest::keyClicks(field, "two");
  EXPECT_THAT(host.steps(), IsEmpty());
  QTest::keyClick(field, Qt::Key_Return, Qt::ControlModifier);
  settle();
  EXPECT_EQ(valueTexts(row("it")->row().first()), QStringList("one\ntwo"));
  expectOneStep(before);
}

TEST_F(RowTest, ATextOfSeveralLinesIsShownAndLeftByAVisit) {
  selectPort("string");
  host.run("orvNode g \"/box\" -setPortMetaDataValue \"it\" \"lines\" \"4\"");
  host.run("orvNode g \"/box\" -setPortDefaultValues \"it\" \"one\\ntwo\"");
  settle();
  host.takeEchoes();
  auto* field = part<ParagraphField>("it");
  EXPECT_EQ(field->toPlainText(), "one\ntwo");
  QTest::mouseClick(field->viewport(), Qt::LeftButton);
  QTest::keyClick(field, Qt::Key_Tab);
  settle();
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(RowTest, EscapeTakesBackATextOfSeveralLines) {
  selectPort("string");
  host.run("orvNode g \"/box\" -setPortMetaDataValue \"it\" \"lines\" \"4\"");
  settle();
  before = stored();
  auto* field = part<ParagraphField>("it");
  QTest::mouseClick(field->viewport(), Qt::LeftButton);
  QTest::keyClicks(field, "one");
  host.run("orvCompound g \"/box\" -createInputPort other float");
  settle();
  EXPECT_EQ(part<ParagraphField>("it")->toPlainText(), "one") << "it is not disturbed";
  QTest::keyClick(field, Qt::Key_Escape);
  EXPECT_EQ(field->toPlainText(), "");
  undo();
  QTest::keyClick(field, Qt::Key_Tab);
  settle();
  EXPECT_EQ(stored(), before);
}

TEST_F(RowTest, ChoicesComeFromTheMetadataOfThePort) {
  selectPort("int");
  host.run("orvNode g \"/box\" -setPortMetaDataValue \"it\" \"choices\" \"{0=Low,5=High}\"");
  settle();
  auto* box = part<ChoiceBox>("it");
  ASSERT_EQ(box->count(), 2);
  EXPECT_EQ(box->currentText(), "Low");
  host.session().undoQueue().clear();
  before = stored();
  box->setFocus();
  QTest::keyClick(box, Qt::Key_Down);
  settle();
  EXPECT_EQ(it(), "5");
  expectOneStep(before);
}

TEST_F(RowTest, AValueThatIsNoChoiceIsShownAsItIs) {
  selectPort("string");
  host.run("orvNode g \"/box\" -setPortMetaDataValue \"it\" \"choices\" \"{red,green}\"");
  host.run("orvNode g \"/box\" -setPortDefaultValues \"it\" \"blue\"");
  settle();
  EXPECT_EQ(part<ChoiceBox>("it")->currentIndex(), -1);
  EXPECT_EQ(part<ChoiceBox>("it")->placeholderText(), "blue");
}

TEST_F(RowTest, AColourIsEditedByItsComponents) {
  selectPort("color3");
  enter(entry("it", "g"), "0.5");
  EXPECT_EQ(it(), "{0,0.5,0}");
  expectOneStep(before);
}

/// The picker that a click on the swatch opens.
ColourDialog* pickerOf(QWidget* swatch, QWidget* row) {
  QTest::mouseClick(swatch, Qt::LeftButton);
  return row->findChild<ColourDialog*>("picker");
}

void dragToItsEnd(ColourSlider* slider) {
  const QPoint end(slider->width() - 4, slider->height() / 2);
  QTest::mousePress(slider, Qt::LeftButton, {}, {4, end.y()});
  QTest::mouseMove(slider, end);
  QTest::mouseRelease(slider, Qt::LeftButton, {}, end);
}

TEST_F(RowTest, ASwatchOpensAPickerAndAPickIsOneStep) {
  selectPort("color4");
  ColourDialog* picker = pickerOf(part<ColourButton>("it"), row("it"));
  ASSERT_NE(picker, nullptr);
  EXPECT_TRUE(picker->isModal());
  const auto sliders = picker->findChildren<ColourSlider*>();
  dragToItsEnd(sliders.at(0));
  dragToItsEnd(sliders.at(2));
  settle();
  EXPECT_EQ(it(), "{1,0,1,1}") << "it is seen while it is mixed";
  EXPECT_THAT(host.steps(), IsEmpty());
  picker->accept();
  settle();
  EXPECT_EQ(it(), "{1,0,1,1}");
  expectOneStep(before);
}

TEST_F(RowTest, EscapeInThePickerPutsTheColourBack) {
  selectPort("color3");
  QPointer<ColourDialog> picker = pickerOf(part<ColourButton>("it"), row("it"));
  dragToItsEnd(picker->findChildren<ColourSlider*>().at(0));
  settle();
  EXPECT_EQ(it(), "{1,0,0}");
  QTest::keyClick(picker, Qt::Key_Escape);
  settle();
  EXPECT_EQ(stored(), before);
  EXPECT_THAT(host.steps(), IsEmpty());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(picker);
}

TEST_F(RowTest, ThePickerTakesNumbersAlsoBeyondTheScreen) {
  selectPort("color3");
  ColourDialog* picker = pickerOf(part<ColourButton>("it"), row("it"));
  picker->findChild<QDoubleSpinBox*>()->setValue(2.5);
  picker->accept();
  settle();
  EXPECT_EQ(it(), "{2.5,0,0}");
  expectOneStep(before);
}

TEST_F(RowTest, APickerIsLeftWhenThePortIsConnectedMeanwhile) {
  selectPort("color3");
  QPointer<ColourDialog> picker = pickerOf(part<ColourButton>("it"), row("it"));
  host.run("orvCompound g / -addNode \"core::color::combine3\"");
  host.run("orvConnect g /combine3.color /box.it");
  settle();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(picker);
}

TEST_F(RowTest, AnArrayOpensToATableOfItsElements) {
  selectPort("array<vector2>");
  host.run("orvNode g \"/box\" -setPortDefaultValues \"it\" \"{1,2,3,4}\"");
  settle();
  const int closed = row("it")->height();
  QTest::mouseClick(row("it")->findChild<QWidget*>("summary"), Qt::LeftButton);
  settle();
  EXPECT_GT(row("it")->height(), closed);
  auto* table = part<QTableView>("it");
  ASSERT_EQ(table->model()->rowCount(), 2);
  ASSERT_EQ(table->model()->columnCount(), 2);
  host.session().undoQueue().clear();
  before = stored();
  table->setFocus();
  table->setCurrentIndex(table->model()->index(1, 0));
  QTest::keyClick(table, Qt::Key_F2);
  auto* cell = table->findChild<QLineEdit*>();
  ASSERT_NE(cell, nullptr);
  cell->selectAll();
  QTest::keyClicks(cell, "9");
  QTest::keyClick(cell, Qt::Key_Return);
  settle();
  EXPECT_EQ(it(), "{1,2,9,4}");
  expectOneStep(before);
}

TEST_F(RowTest, ElementsAreAddedAndRemoved) {
  selectPort("array<float>");
  QTest::mouseClick(row("it")->findChild<QWidget*>("add"), Qt::LeftButton);
  settle();
  EXPECT_EQ(valueTexts(row("it")->row().first()), QStringList("0"));
  expectOneStep(before);
  QTest::mouseClick(row("it")->findChild<QWidget*>("remove"), Qt::LeftButton);
  settle();
  EXPECT_THAT(valueTexts(row("it")->row().first()), IsEmpty());
}

TEST_F(RowTest, AFanInPortShowsAllItsSources) {
  add("core::array::build", "list");
  for (const char* name : {"one", "two"}) {
    add("core::math::add", name);
    host.run("orvConnect g \"/" + std::string(name) + ".result\" \"/list.elements\"");
  }
  select({"/list"});
  EXPECT_TRUE(part<SourceLink>("elements")->text().contains("2 sources"));
}

TEST_F(RowTest, ThePickerHasAlphaForColoursThatHaveIt) {
  selectPort("color3");
  ColourDialog* opaque = pickerOf(part<ColourButton>("it"), row("it"));
  EXPECT_TRUE(opaque->findChildren<ColourSlider*>().at(5)->isVisible());
  EXPECT_FALSE(opaque->findChildren<ColourSlider*>().at(6)->isVisible());
  opaque->picker().setColour({1, 0, 0, 0.5});
  EXPECT_EQ(opaque->picker().colour().a, 1);
  opaque->reject();
  settle();
  host.run("orvCompound g /box -createInputPort other color4");
  settle();
  ColourDialog* clear = pickerOf(part<ColourButton>("other"), row("other"));
  EXPECT_TRUE(clear->findChildren<ColourSlider*>().at(6)->isVisible());
  clear->reject();
}

}  // namespace
}  // namespace orvuilib
