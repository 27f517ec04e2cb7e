#include "standalone/widgets/parameters/ParameterEditorWidget.h"

#include <QLabel>

#include "tests/standalone/widgets/parameters/ParameterTesting.h"

namespace orvuilib {
namespace {

using orvUI_v1::ParameterEditor;
using orvUI_v1::ParameterEditorMode;
using testing::ElementsAre;
using testing::IsEmpty;

class ParameterEditorWidgetTest : public ParameterTest {};

TEST_F(ParameterEditorWidgetTest, ShowsARowForEachInputOfWhatIsSelected) {
  select({add("core::math::add", "sum")});
  EXPECT_EQ(row("a")->row().ports.size(), 1u);
  EXPECT_EQ(row("b")->row().ports.size(), 1u);
  EXPECT_EQ(rows().rowOf("result"), nullptr);
}

TEST_F(ParameterEditorWidgetTest, IsBlankWithoutASelection) {
  EXPECT_TRUE(rows().isEmpty());
  select({add("core::math::add", "sum")});
  EXPECT_FALSE(rows().isEmpty());
  select({});
  EXPECT_TRUE(rows().isEmpty());
}

TEST_F(ParameterEditorWidgetTest, FollowsScripts) {
  select({add("core::math::add", "sum")});
  host.run("orvNode g \"/sum\" -setPortDefaultValues \"a\" \"2.5\"");
  settle();
  EXPECT_EQ(entry("a")->text(), "2.5");
}

TEST_F(ParameterEditorWidgetTest, ADeletedNodeLeavesItBlankUntilUndoBringsItBack) {
  select({add("core::math::add", "sum")});
  host.run("orvCompound g \"/\" -removeNode \"sum\"");
  settle();
  EXPECT_TRUE(rows().isEmpty());
  undo();
  settle();
  EXPECT_FALSE(rows().isEmpty());
}

TEST_F(ParameterEditorWidgetTest, AGraphThatGoesLeavesItBlank) {
  select({add("core::math::add", "sum")});
  host.run("delete g");
  host.session().undoQueue().clear();
  settle();
  EXPECT_TRUE(rows().isEmpty());
}

TEST_F(ParameterEditorWidgetTest, ANewGraphInThePlaceOfTheOldLeavesItBlank) {
  select({add("core::math::add", "sum")});
  host.run("file -new -force");
  settle();
  EXPECT_TRUE(rows().isEmpty());
}

TEST_F(ParameterEditorWidgetTest, FollowsPortsThatComeAndGo) {
  host.run("orvCompound g \"/\" -create \"box\"");
  select({"/box"});
  EXPECT_EQ(rows().rowOf("size"), nullptr);
  host.run("orvCompound g \"/box\" -createInputPort \"size\" \"float\"");
  settle();
  EXPECT_NE(rows().rowOf("size"), nullptr);
  undo();
  settle();
  EXPECT_EQ(rows().rowOf("size"), nullptr);
}

TEST_F(ParameterEditorWidgetTest, KeepsTheFocusAndWhatIsBeingTypedWhenValuesChange) {
  select({add("core::math::add", "sum")});
  EntryField* field = entry("a");
  QTest::mouseClick(field, Qt::LeftButton);
  field->selectAll();
  QTest::keyClicks(field, "7");
  host.run("orvNode g \"/sum\" -setPortDefaultValues \"a\" \"2.5\"");
  host.run("orvNode g \"/sum\" -setPortDefaultValues \"b\" \"3\"");
  settle();
  EXPECT_TRUE(field->hasFocus());
  EXPECT_EQ(field->text(), "7");
  EXPECT_EQ(entry("b")->text(), "3");
}

TEST_F(ParameterEditorWidgetTest, KeepsTheFocusWhenAPortComes) {
  host.run("orvCompound g \"/\" -create \"box\"");
  host.run("orvCompound g \"/box\" -createInputPort \"size\" \"float\"");
  select({"/box"});
  EntryField* field = entry("size");
  QTest::mouseClick(field, Qt::LeftButton);
  host.run("orvCompound g \"/box\" -createInputPort \"other\" \"float\"");
  settle();
  EXPECT_EQ(entry("size"), field);
  EXPECT_TRUE(field->hasFocus());
}

TEST_F(ParameterEditorWidgetTest, UndoAndRedoKeysReachTheProgram) {
  select({add("core::math::add", "sum")});
  enter(entry("a"), "4");
  EXPECT_EQ(value("/sum.a"), "4");
  QTest::keyClick(&editor, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(host.session().runIdleLines());
  settle();
  EXPECT_EQ(value("/sum.a"), "0");
  EXPECT_EQ(entry("a")->text(), "0");
}

TEST_F(ParameterEditorWidgetTest, TheInfoModeHasAPanelOfItsOwn) {
  const std::string sum = add("core::math::add", "sum");
  editor.setMode(ParameterEditorMode::kInfo);
  select({sum});
  EXPECT_EQ(editor.parameters(), nullptr);
  ASSERT_NE(editor.info(), nullptr);
  EXPECT_STREQ(editor.info()->node()->getName(), "sum");
  editor.setMode(ParameterEditorMode::kParameters);
  EXPECT_EQ(editor.info(), nullptr);
  EXPECT_FALSE(rows().isEmpty());
}

TEST_F(ParameterEditorWidgetTest, IsMadeByItsInterface) {
  QWidget parent;
  ParameterEditor* made = ParameterEditor::create(&parent);
  EXPECT_EQ(made->parentWidget(), &parent);
  made->setMode(ParameterEditorMode::kInfo);
  const std::unique_ptr<ParameterEditor> owned(ParameterEditor::create(nullptr));
  EXPECT_EQ(owned->parentWidget(), nullptr);
}

TEST_F(ParameterEditorWidgetTest, LeavesNoWidgetWhenItGoes) {
  select({add("core::math::add", "sum")});
  const auto countAfterAnother = [] {
    {
      ParameterEditorWidget other(nullptr);
      other.resize(300, 500);
      other.show();
      settle();
      other.setMode(ParameterEditorMode::kInfo);
      settle();
    }
    settle();
    return QApplication::allWidgets().size();
  };
  // The first may leave what widgets share.
  const auto before = countAfterAnother();
  EXPECT_EQ(countAfterAnother(), before);
}

}  // namespace
}  // namespace orvuilib
