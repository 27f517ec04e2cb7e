#include "standalone/widgets/parameters/RowEdits.h"

#include <QTableView>

#include "standalone/widgets/parameters/fields/SourceLink.h"
#include "standalone/widgets/parameters/info/PortsModel.h"
#include "tests/standalone/widgets/parameters/ParameterTesting.h"

namespace orvuilib {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RowEditsTest : public ParameterTest {
 protected:
  RowEditsTest() {
    for (const char* name : {"one", "two", "three"}) paths.push_back(add("core::math::add", name));
  }

  std::vector<std::string> paths;
};

TEST_F(RowEditsTest, ManyNodesAreEditedAsOneStep) {
  select(paths);
  const std::string before = stored();
  enter(entry("a"), "5");
  for (const std::string& path : paths) EXPECT_EQ(value(path + ".a"), "5");
  EXPECT_EQ(host.steps().size(), 1u);
  expectOneStep(before);
}

TEST_F(RowEditsTest, TheGraphTellsOfAnEditOfManyNodesOnce) {
  select(paths);
  struct Counter : orvlib::ChangeListener {
    void graphChanged(orvlib::ContainerObject&, std::span<const orvlib::NodeChange>) override {
      ++rounds;
    }
    int rounds = 0;
  } counter;
  auto& container = static_cast<orvlib::ContainerObject&>(graph);
  container.addListener(counter);
  enter(entry("a"), "5");
  EXPECT_EQ(counter.rounds, 1);
  undo();
  EXPECT_EQ(counter.rounds, 2);
  container.removeListener(counter);
}

TEST_F(RowEditsTest, ValuesThatDifferAreShownAsSuch) {
  host.run("orvNode g \"/two\" -setPortDefaultValues \"a\" \"2\"");
  select(paths);
  EXPECT_TRUE(entry("a")->isMixed());
  EXPECT_EQ(entry("a")->text(), "");
  EXPECT_FALSE(entry("b")->isMixed());
  enter(entry("a"), "2");
  EXPECT_FALSE(entry("a")->isMixed());
  EXPECT_EQ(value("/one.a"), "2");
}

TEST_F(RowEditsTest, ADragOfManyNodesIsOneStepBackToWhatEachHad) {
  host.run("orvNode g \"/two\" -setPortDefaultValues \"a\" \"2\"");
  select(paths);
  const std::string before = stored();
  auto* slider = part<RangeSlider>("a");
  QTest::mousePress(slider, Qt::LeftButton, {}, {5, 5});
  QTest::mouseMove(slider, {slider->width() / 2, 5});
  EXPECT_EQ(value("/one.a"), value("/three.a"));
  QTest::mouseRelease(slider, Qt::LeftButton, {}, {slider->width() / 2, 5});
  settle();
  EXPECT_EQ(value("/one.a"), value("/two.a"));
  const std::string line = "\" -setPortDefaultValues \"a\" \"" + value("/one.a") + "\"";
  EXPECT_THAT(lines(), ElementsAre("orvNode \"g\" \"/one" + line, "orvNode \"g\" \"/two" + line,
                                   "orvNode \"g\" \"/three" + line));
  expectOneStep(before);
}

TEST_F(RowEditsTest, AResetLeavesConnectedPortsAlone) {
  host.run("orvNode g \"/one\" -setPortDefaultValues \"a\" \"3\"");
  host.run("orvNode g \"/two\" -setPortDefaultValues \"a\" \"2\"");
  host.run("orvConnect g \"/one.result\" \"/two.a\"");
  select(paths);
  QTest::mouseClick(row("a")->findChild<QWidget*>("reset"), Qt::LeftButton);
  settle();
  EXPECT_EQ(value("/one.a"), "0");
  EXPECT_EQ(value("/two.a"), "2");
}

TEST_F(RowEditsTest, ResetOfManyNodesIsOneStep) {
  host.run("orvNode g \"/two\" -setPortDefaultValues \"a\" \"2\"");
  host.run("orvNode g \"/one\" -setPortDefaultValues \"a\" \"3\"");
  select(paths);
  const std::string before = stored();
  QTest::mouseClick(row("a")->findChild<QWidget*>("reset"), Qt::LeftButton);
  settle();
  EXPECT_EQ(value("/one.a"), "0");
  EXPECT_EQ(value("/two.a"), "0");
  expectOneStep(before);
}

TEST_F(RowEditsTest, AConnectedPortShowsItsSourceInThePlaceOfItsValue) {
  host.run("orvConnect g \"/one.result\" \"/two.a\"");
  select({"/two"});
  auto* link = part<SourceLink>("a");
  EXPECT_TRUE(link->isVisible());
  EXPECT_TRUE(link->text().endsWith("one.result"));
  EXPECT_FALSE(entry("a")->isVisible());
  QTest::mouseClick(link, Qt::LeftButton);
  ASSERT_EQ(SelectionModel::instance().nodes().size(), 1u);
  EXPECT_STREQ(SelectionModel::instance().nodes()[0]->getName(), "one");
}

TEST_F(RowEditsTest, WiresThatComeAndGoChangeTheRow) {
  select({"/two"});
  EXPECT_TRUE(entry("a")->isVisible());
  host.run("orvConnect g \"/one.result\" \"/two.a\"");
  settle();
  EXPECT_FALSE(entry("a")->isVisible());
  undo();
  settle();
  EXPECT_TRUE(entry("a")->isVisible());
}

TEST_F(RowEditsTest, OfManyNodesOnlyThoseThatAreNotConnectedAreEdited) {
  host.run("orvConnect g \"/one.result\" \"/two.a\"");
  select(paths);
  enter(entry("a"), "5");
  EXPECT_EQ(value("/one.a"), "5");
  EXPECT_EQ(value("/two.a"), "0");
  EXPECT_EQ(value("/three.a"), "5");
}

TEST_F(RowEditsTest, NodesOfSeveralTypesShareWhatTheyHaveInCommon) {
  add("core::math::negate", "minus");
  add("core::math::multiply", "times");
  select({"/one", "/times"});
  enter(entry("a"), "5");
  EXPECT_EQ(value("/one.a"), "5");
  EXPECT_EQ(value("/times.a"), "5");
  select({"/one", "/minus"});
  EXPECT_EQ(row("a")->row().ports.size(), 1u);
  EXPECT_EQ(row("value")->row().ports.size(), 1u);
}

TEST_F(RowEditsTest, WithoutAHookNothingCanBeEdited) {
  orvUI_v1::setCommandHook(nullptr, nullptr);
  select(paths);
  EXPECT_FALSE(entry("a")->isEnabled());
  EXPECT_FALSE(part<RangeSlider>("a")->isEnabled());
}

TEST_F(RowEditsTest, WhatIsInALockedCompoundCannotBeEdited) {
  host.run("orvCompound g \"/\" -create \"box\" -moveNodeIn \"one\"");
  select({"/box/one"});
  EXPECT_TRUE(entry("a")->isEnabled());
  host.run("orvCompound g \"/box\" -setMetaData \"locked\" \"true\"");
  settle();
  EXPECT_FALSE(entry("a")->isEnabled());
  undo();
  settle();
  EXPECT_TRUE(entry("a")->isEnabled());
}

TEST_F(RowEditsTest, ANodeThatGoesInADragIsPassedOver) {
  select({"/one", "/two"});
  auto* slider = part<RangeSlider>("a");
  QTest::mousePress(slider, Qt::LeftButton, {}, {5, 5});
  QTest::mouseMove(slider, {slider->width() / 2, 5});
  host.run("orvCompound g \"/\" -removeNode \"one\"");
  QTest::mouseMove(slider, {slider->width() / 3, 5});
  QTest::mouseRelease(slider, Qt::LeftButton, {}, {slider->width() / 3, 5});
  settle();
  EXPECT_EQ(row("a")->row().ports.size(), 1u);
}

/// The output of a compound, from within it or not.
class FedOutputTest : public RowEditsTest {
 protected:
  FedOutputTest() {
    host.run("orvCompound g / -create box -moveNodeIn one");
    host.run("orvCompound g /box -createOutputPort out float");
    host.run("orvNode g /box -setPortDefaultValues out 5");
    select({"/box"});
  }
  void feed() {
    host.run("orvConnect g /box/one.result /box.out");
    settle();
    lines();
  }
};

TEST_F(FedOutputTest, ShowsItsSourceInThePlaceOfItsValue) {
  EXPECT_TRUE(entry("out")->isVisible());
  feed();
  EXPECT_FALSE(entry("out")->isVisible());
  EXPECT_TRUE(part<SourceLink>("out")->isVisible());
  EXPECT_TRUE(part<SourceLink>("out")->text().endsWith(" one.result"));
  undo();
  settle();
  EXPECT_TRUE(entry("out")->isVisible());
}

TEST_F(FedOutputTest, ShowsItsSourceAmongThePortsToo) {
  editor.setMode(orvUI_v1::ParameterEditorMode::kInfo);
  settle();
  const auto* ports = editor.findChild<QTableView*>("ports")->model();
  EXPECT_EQ(ports->index(0, PortsModel::kValue).data(), "5");
  feed();
  EXPECT_EQ(ports->index(0, PortsModel::kValue).data(), QString(QChar(0x2190)) + " one.result");
}

TEST_F(FedOutputTest, TakesNoEdits) {
  feed();
  RowEdits edits(row("out")->row());
  EXPECT_TRUE(edits.row().connected);
  EXPECT_FALSE(edits.state().editable);
  edits.change(toValue({"7"}));
  edits.reset();
  EXPECT_EQ(value("/box.out"), "5");
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(RowEditsTest, TheSourceOfAConnectedPortHasTheWholeLine) {
  host.run("orvConnect g /one.result /two.a");
  select({"/two"});
  auto* link = part<SourceLink>("a");
  EXPECT_LE(link->parentWidget()->width() - link->geometry().right(), link->height() / 2);
  EXPECT_FALSE(row("a")->findChild<QWidget*>("reset")->isVisible());
}

}  // namespace
}  // namespace orvuilib
