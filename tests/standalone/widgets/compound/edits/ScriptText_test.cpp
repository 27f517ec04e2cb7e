#include "standalone/widgets/compound/edits/ScriptText.h"

#include <QClipboard>
#include <sstream>

#include "tests/standalone/widgets/compound/edits/EditsTesting.h"

namespace {

using testing::HasSubstr;
using testing::Not;

/// A level with everything that lines can make.
class ScriptTextTest : public EditsTest {
 protected:
  ScriptTextTest() {
    script({"orvCompound g / -addNode core::math::add -addNode core::math::add",
            "orvCompound g / -addNode core::color::mix3 -addNode core::array::build",
            "orvCompound g / -renameNode mix3 blend", "orvConnect g /add.result /add1.a",
            "orvConnect g /add1.result /build.elements", "orvConnect g /add.result /build.elements",
            "orvConnect g /add1.result /blend.a.g", "orvNode g /add -setPortDefaultValues b 2.5",
            "orvNode g /add1 -setStateFlag f true",
            "orvNode g /add -setMetaDataFromString \"{editor.position=10\\\\,20,tags={a,b}}\"",
            "orvNode g /add -createInputPort extra float -portFlags 1 -portOptions \"{min=0}\"",
            "orvNode g /blend -setPortMetaDataValue weight softMax 2",
            "orvPort g /blend.b 0 1 -set 1", "orvWatchPoint g /add result -create",
            "orvWatchPoint g /add result -setParameterValue limit 7",
            "orvWatchPoint g /add result -enable false",
            "orvWatchPoint g /add result -setMetaData label \"first \\\"sum\\\"\""});
    scriptCompound();
    script({"orvCompound g / -addBackdrop frame -addStickyNote x -addStickyNote x",
            "orvCompound g / -renameAnnotation note todo",
            "orvCompound g / -setAnnotationMetaDataValue todo editor.text \"two\\nlines\"",
            "orvCompound g / -setAnnotationMetaDataValue frame editor.position \"-50,0\""});
    open();
  }

  void scriptCompound() {
    script({"orvCompound g / -create inner", "orvCompound g /inner -createInputPort x float",
            "orvCompound g /inner -createOutputPort y float -createInputPort z color3",
            "orvCompound g /inner -addStatePorts last next float",
            "orvCompound g /inner -movePort next 0",
            "orvCompound g /inner -addIONode true -addNode core::math::negate",
            "orvCompound g /inner -movePortToIONode z input",
            "orvConnect g /inner.x /inner/negate.value",
            "orvConnect g /inner/negate.result /inner.y",
            "orvCompound g /inner -setPortDefaultValues x 4",
            "orvCompound g /inner -addBackdrop inside", "orvWatchPoint g /inner y -create",
            "orvConnect g /add.result /inner.x", "orvCompound g /inner -setMetaData locked true"});
  }

  std::string copied() {
    key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    return QApplication::clipboard()->text().toStdString();
  }

  /// Runs the lines for the graph "h" instead of "g".
  void runInH(std::string lines) {
    for (std::size_t at = 0; (at = lines.find("\"g\"", at)) != std::string::npos;) {
      lines.replace(at, 3, "\"h\"");
    }
    std::istringstream each(lines);
    for (std::string line; std::getline(each, line);) host.run(line);
    host.takeEchoes();
  }

  std::string storedH() {
    return orvlib::writeGraph(static_cast<orvlib::ContainerObject&>(*host.find("h")));
  }
};

TEST_F(ScriptTextTest, InAnEmptyGraphTheLinesMakeTheSame) {
  key(Qt::Key_A, Qt::ControlModifier);
  const std::string lines = copied();
  host.run("createNode orvGraph -name h");
  runInH(lines);
  EXPECT_EQ(storedH(), stored());
}

TEST_F(ScriptTextTest, WhatIsThereAlreadyIsNotTouched) {
  host.run("createNode orvGraph -name h");
  host.run("orvCompound h / -addNode core::math::add -addBackdrop frame");
  host.run("orvNode h /add -setPortDefaultValues a 9");
  host.run("orvNode h /add -setMetaData mine yes");
  const std::string before = storedH();
  key(Qt::Key_A, Qt::ControlModifier);
  runInH(copied());
  orvlib::ContainerObject& other = static_cast<orvlib::ContainerObject&>(*host.find("h"));
  const orvlib::CompoundObject& level = *other.top().compound();
  EXPECT_EQ(level.nodes().count(), 1 + scene().level()->nodes().count());
  EXPECT_EQ(level.annotations().count(), 4u);
  // Without what came, all is as it was.
  for (const char* name : {"add1", "add2", "blend", "build", "inner"}) {
    ASSERT_TRUE(level.nodes().find(name)) << name;
    host.run(std::string("orvCompound h / -removeNode ") + name);
  }
  host.run("orvCompound h / -removeAnnotation frame1 -removeAnnotation todo");
  host.run("orvCompound h / -removeAnnotation note1");
  EXPECT_EQ(storedH(), before);
}

TEST_F(ScriptTextTest, RunTwiceTheyMakeItTwice) {
  key(Qt::Key_A, Qt::ControlModifier);
  const std::string lines = copied();
  host.run("createNode orvGraph -name h");
  runInH(lines);
  runInH(lines);
  orvlib::ContainerObject& other = static_cast<orvlib::ContainerObject&>(*host.find("h"));
  EXPECT_EQ(other.top().compound()->nodes().count(), 2 * scene().level()->nodes().count());
}

TEST_F(ScriptTextTest, NotesAloneCopyToo) {
  const_cast<orvuilib::LevelScene&>(scene()).select(
      *scene().find(scene().level()->annotations().find("todo")));
  const std::string lines = copied();
  EXPECT_THAT(lines, HasSubstr("-addStickyNote"));
  EXPECT_THAT(lines, Not(HasSubstr("-addNode")));
  host.run("createNode orvGraph -name h");
  runInH(lines);
  orvlib::ContainerObject& other = static_cast<orvlib::ContainerObject&>(*host.find("h"));
  const auto* note = other.top().compound()->annotations().find("todo");
  ASSERT_TRUE(note);
  EXPECT_EQ(note->metadata(), scene().level()->annotations().find("todo")->metadata());
}

TEST_F(ScriptTextTest, OfASelectionTheWiresAmongItComeAlong) {
  select({"add", "build"});
  const std::string lines = copied();
  host.run("createNode orvGraph -name h");
  runInH(lines);
  orvlib::ContainerObject& other = static_cast<orvlib::ContainerObject&>(*host.find("h"));
  EXPECT_EQ(other.top().compound()->nodes().count(), 2u);
  const auto* members = other.findNode("/build")->port("elements")->madeChildren();
  ASSERT_EQ(members->count(), 1u);
  EXPECT_EQ(members->at(0)->source(), other.findNode("/add")->port("result"));
}

TEST_F(ScriptTextTest, WithoutASelectionThereIsNothing) {
  EXPECT_TRUE(orvuilib::selectionAsScript(scene()).isEmpty());
}

}  // namespace
