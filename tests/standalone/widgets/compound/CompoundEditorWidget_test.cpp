#include "standalone/widgets/compound/CompoundEditorWidget.h"

#include "platform/ORV_1_0/AnnotationList.h"
#include "standalone/widgets/parameters/ParameterEditorWidget.h"
#include "standalone/widgets/parameters/fields/SourceLink.h"
#include "standalone/widgets/selection/SelectionModel.h"
#include "tests/standalone/widgets/compound/EditorTesting.h"

namespace {

using orvlib::CompoundRef;
using testing::ElementsAre;
using testing::IsEmpty;

class CompoundEditorWidgetTest : public EditorTest {
 protected:
  CompoundEditorWidgetTest() {
    add("core::math::add", "a", -300, 0);
    add("core::math::add", "b", 0, 0);
    open();
  }

  void select(std::initializer_list<const char*> names) {
    auto list = ORV_v1::NodeList::createNew(nullptr);
    for (const char* name : names) {
      list->add(ORV_v1::AddRefWrapper<ORV_v1::Node>(node(std::string("/") + name)));
    }
    editor->setSelectedNodes(list);
  }
  std::string shown() {
    const auto compound = editor->currentCompound();
    return compound ? compound->getAsNode()->getFullPathName().getName() : "nothing";
  }
  bool dive(const char* path) {
    return editor->diveInCompound(ORV_v1::AddRefWrapper<ORV_v1::Compound>(
        static_cast<orvlib::ContainerObject&>(graph).findCompound(path)));
  }
};

TEST_F(CompoundEditorWidgetTest, ShowsTheGraphWhoseTopNodeIsGiven) {
  EXPECT_EQ(shown(), "/");
  EXPECT_EQ(scene().boxCount(), 2u);
  EXPECT_EQ(box("a")->bounds.topLeft(), QPointF(-300, 0));
}

TEST_F(CompoundEditorWidgetTest, WhatWasFittedStaysInViewWhenTheSizeChanges) {
  for (const int fit : {Qt::Key_A, Qt::Key_F}) {
    editor->resize(1000, 700);
    select({"a"});
    key(static_cast<Qt::Key>(fit));
    editor->resize(400, 300);
    const QPointF centre = canvas().toWidget(box("a")->bounds.center());
    EXPECT_TRUE(QRectF(canvas().rect()).contains(centre)) << fit;
    editor->resize(1600, 1200);
    if (fit == Qt::Key_A) continue;
    EXPECT_NEAR(canvas().toWidget(box("a")->bounds.center()).x(), canvas().width() / 2.0, 2);
    EXPECT_NEAR(canvas().toWidget(box("a")->bounds.center()).y(), canvas().height() / 2.0, 2);
  }
}

TEST_F(CompoundEditorWidgetTest, WhatTheUserMovedStaysWhereItIs) {
  key(Qt::Key_F);
  canvas().setZoom(0.5, {});
  const QPointF corner = canvas().toScene({0, 0});
  editor->resize(1100, 800);
  EXPECT_EQ(canvas().toScene({0, 0}), corner);
}

TEST_F(CompoundEditorWidgetTest, IsBlankForNull) {
  editor->editCompound({});
  EXPECT_EQ(shown(), "nothing");
  ORV_v1::AddRefWrapper<ORV_v1::NodeList> nodes;
  EXPECT_FALSE(editor->getSelectedNodes(nodes));
  EXPECT_TRUE(nodes == nullptr);
}

TEST_F(CompoundEditorWidgetTest, DivesIntoCompoundsOfItsGraphAlone) {
  host.run("orvCompound g \"/\" -create inner");
  EXPECT_TRUE(dive("/inner"));
  EXPECT_EQ(shown(), "/inner");
  EXPECT_FALSE(editor->diveInCompound({}));
  ORV_v1::Container& other = host.graph("h");
  EXPECT_FALSE(editor->diveInCompound(other.getTopNode()->asCompound()));
  EXPECT_EQ(shown(), "/inner");
  host.takeEchoes();
}

TEST_F(CompoundEditorWidgetTest, SelectsNodesOfItsLevelAlone) {
  select({"b", "a"});
  EXPECT_THAT(selected(), ElementsAre("b", "a"));
  auto list = ORV_v1::NodeList::createNew(nullptr);
  list->add(graph.getTopNode());
  editor->setSelectedNodes(list);
  EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(CompoundEditorWidgetTest, TellsTheSelectionModel) {
  select({"b"});
  const auto& nodes = orvuilib::SelectionModel::instance().nodes();
  ASSERT_EQ(nodes.size(), 1u);
  EXPECT_STREQ(nodes[0]->getName(), "b");
}

TEST_F(CompoundEditorWidgetTest, TheBreadcrumbFollowsTheNameOfTheGraph) {
  host.run("rename g other");
  EXPECT_THAT(editor->breadcrumb().texts(), ElementsAre("other"));
  undo();
  EXPECT_THAT(editor->breadcrumb().texts(), ElementsAre("g"));
}

TEST_F(CompoundEditorWidgetTest, WhatIsSelectedInOneEditorIsSelectedInAllOfTheLevel) {
  orvuilib::CompoundEditorWidget second(nullptr);
  second.editCompound(graph.getTopNode());
  select({"a", "b"});
  EXPECT_EQ(second.scene().selectedBoxes().size(), 2u);
  auto list = ORV_v1::NodeList::createNew(nullptr);
  list->add(ORV_v1::AddRefWrapper<ORV_v1::Node>(node("/b")));
  second.setSelectedNodes(list);
  EXPECT_THAT(selected(), ElementsAre("b"));
}

/// Over both editors: the link selects, the canvas follows, and a click goes back.
TEST_F(CompoundEditorWidgetTest, ALinkToASourceSelectsItAndAClickBringsTheOtherBack) {
  host.run("orvConnect g /a.result /b.a");
  orvuilib::ParameterEditorWidget parameters(nullptr);
  parameters.resize(320, 500);
  parameters.show();
  click(titleOf("b"));
  QCoreApplication::processEvents();
  for (auto* link : parameters.findChildren<orvuilib::SourceLink*>()) {
    if (!link->text().isEmpty()) {
      link->click();
      break;
    }
  }
  QCoreApplication::processEvents();
  EXPECT_THAT(selected(), ElementsAre("a"));
  EXPECT_TRUE(canvas().rect().contains(titleOf("a")));
  click(titleOf("b"));
  const auto& nodes = orvuilib::SelectionModel::instance().nodes();
  ASSERT_EQ(nodes.size(), 1u);
  EXPECT_STREQ(nodes[0]->getName(), "b");
  key(Qt::Key_Delete);
  EXPECT_TRUE(node("/a"));
  EXPECT_FALSE(node("/b"));
  host.takeEchoes();
}

TEST_F(CompoundEditorWidgetTest, OneEditorGoesToTheLevelOfWhatIsToBeSeen) {
  host.run("orvCompound g \"/\" -create inner");
  host.run("orvCompound g \"/inner\" -addNode core::math::add");
  orvuilib::CompoundEditorWidget second(nullptr);
  second.editCompound(graph.getTopNode());
  const ORV_v1::AddRefWrapper<ORV_v1::Node> deep(node("/inner/add"));
  orvuilib::SelectionModel::instance().select({deep});
  EXPECT_EQ(shown(), "/") << "a selection alone goes nowhere";
  orvuilib::SelectionModel::instance().reveal(deep);
  EXPECT_EQ(shown(), "/inner");
  EXPECT_THAT(selected(), ElementsAre("add"));
  EXPECT_EQ(second.scene().levelNode()->fullPath(), "/");
  host.takeEchoes();
}

TEST_F(CompoundEditorWidgetTest, WhatIsRemovedLeavesTheSelection) {
  select({"a", "b"});
  host.run("orvCompound g \"/\" -removeNode a");
  EXPECT_THAT(selected(), ElementsAre("b"));
  EXPECT_EQ(orvuilib::SelectionModel::instance().nodes().size(), 1u);
}

TEST_F(CompoundEditorWidgetTest, AKeyThatIsSentDoesWhatAPressedOneDoes) {
  editor->sendKeyEvent(Qt::Key_A, Qt::ControlModifier);
  EXPECT_THAT(selected(), ElementsAre("a", "b"));
  editor->sendKeyEvent(Qt::Key_Escape, Qt::NoModifier);
  EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(CompoundEditorWidgetTest, GoesUpWhenItsLevelGoes) {
  host.run("orvCompound g \"/\" -create inner");
  host.run("orvCompound g \"/inner\" -create deep");
  ASSERT_TRUE(dive("/inner/deep"));
  host.run("orvCompound g \"/\" -removeNode inner");
  EXPECT_EQ(shown(), "/");
  EXPECT_THAT(editor->breadcrumb().texts(), ElementsAre("g"));
}

TEST_F(CompoundEditorWidgetTest, IsBlankWhenTheGraphGoes) {
  select({"a"});
  host.run("delete g");
  host.session().undoQueue().clear();
  EXPECT_EQ(shown(), "nothing");
  EXPECT_EQ(scene().boxCount(), 0u);
  EXPECT_TRUE(orvuilib::SelectionModel::instance().nodes().empty());
}

TEST_F(CompoundEditorWidgetTest, FollowsUndoAndRedo) {
  host.run("orvCompound g \"/\" -removeNode a");
  EXPECT_EQ(scene().boxCount(), 1u);
  undo();
  EXPECT_EQ(scene().boxCount(), 2u);
  EXPECT_EQ(box("a")->bounds.topLeft(), QPointF(-300, 0));
}

TEST_F(CompoundEditorWidgetTest, LeavesNoListenerAndNoWidgetBehind) {
  const auto before = QApplication::allWidgets().size();
  {
    orvuilib::CompoundEditorWidget second(nullptr);
    second.editCompound(graph.getTopNode());
  }
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(QApplication::allWidgets().size(), before);
  host.run("orvCompound g \"/\" -removeNode a");
}

TEST_F(CompoundEditorWidgetTest, IsReadOnlyWithoutAHook) {
  orvUI_v1::setCommandHook(nullptr, nullptr);
  select({"a"});
  const std::string before = stored();
  key(Qt::Key_Delete);
  drag(titleOf("a"), titleOf("a") + QPoint(60, 40));
  EXPECT_EQ(stored(), before);
  EXPECT_EQ(box("a")->bounds.topLeft(), QPointF(-300, 0));
  EXPECT_TRUE(canvas().notice().startsWith("Read only"));
}

TEST_F(CompoundEditorWidgetTest, SaysThatALockedCompoundCannotBeEdited) {
  host.run("orvCompound g \"/\" -setMetaData locked true");
  host.takeEchoes();
  select({"a"});
  key(Qt::Key_Delete);
  EXPECT_THAT(host.takeEchoes(), IsEmpty());
  EXPECT_TRUE(canvas().notice().contains("locked"));
}

}  // namespace
