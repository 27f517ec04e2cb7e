// A command that is refused anywhere on its way, at its first redo, its undo or a later redo,
// leaves no trace.

#include <functional>

#include "platform/ORV_1_0/ConnectNodesCommand.h"
#include "platform/ORV_1_0/CopyCommand.h"
#include "platform/ORV_1_0/CreateCompoundCommand.h"
#include "platform/ORV_1_0/ExplodeCompoundCommand.h"
#include "platform/ORV_1_0/MetadataCommand.h"
#include "platform/ORV_1_0/ModifyCompoundAnnotationCommand.h"
#include "platform/ORV_1_0/NodeCommand.h"
#include "platform/ORV_1_0/PasteCommand.h"
#include "platform/ORV_1_0/WatchPointCommand.h"
#include "standalone/graph/edits/FaultPoints.h"
#include "tests/standalone/graph/commands/CommandFixture.h"

namespace orvlib {
namespace {

constexpr const char* kAdd = "core::math::add";

/// first -> group.in -> group/a -> group.out -> last, group -> group/io; a list with two members.
class RecordedCommandFaults : public CommandFixture {
 protected:
  RecordedCommandFaults() : group_(addCompound(top(), "group")) {
    for (const char* name : {"first", "last", "free"}) add(top(), kAdd, name);
    add(*group_, kAdd, "a");
    NodeObject* io = insert(*group_, factory().makeIo(NodeKind::Input, "io"));
    PortObject* in = addPort(*group_, PortDirection::Input, "in", "float");
    edits_.run(SetIoNode{PortRef(in), NodeRef(io), 0});
    addPort(*group_, PortDirection::Output, "out", "float");
    CompoundObject* list = addCompound(top(), "list");
    PortObject* values = addPort(*list, PortDirection::Input, "values", "array<float>");
    edits_.run(SetPortFlags{PortRef(values), ORV_v1::kPortFanIn});
    addPort(*list, PortDirection::Input, "vec", "vector3");
    for (auto [from, to] : std::initializer_list<std::pair<const char*, const char*>>{
             {"/first.result", "/group.in"},
             {"/group.in", "/group/a.a"},
             {"/group/a.result", "/group.out"},
             {"/group.out", "/last.a"},
             {"/first.result", "/list.values"},
             {"/group.out", "/list.values"},
             {"/first.result", "/list.vec.y"}}) {
      EXPECT_TRUE(connect(from, to)) << to;
    }
    addAnnotation(top(), "back");
    addAnnotation(*group_, "back");
  }

  void addAnnotation(CompoundObject& level, const char* name) {
    const AnnotationRef note(new AnnotationObject(AnnotationKind::Backdrop, name));
    edits_.run(InsertAnnotation{{CompoundRef(&level), note, 0}});
  }

  /// Refuses the 1st, the 2nd and so on of what `step` asks, until it is done unrefused.
  void sweep(const std::function<bool()>& step) {
    const std::string before = text();
    for (unsigned nth = 1; nth < 500; ++nth) {
      bool done = false;
      bool refused = false;
      {
        const ArmedFault fault(nth);
        done = step();
        refused = fault.refused();
      }
      if (!refused) {
        EXPECT_TRUE(done);
        EXPECT_GT(nth, 1u);
        return;
      }
      EXPECT_FALSE(done) << nth;
      ASSERT_EQ(text(), before) << nth;
    }
    FAIL() << "never done";
  }

  template <class Command>
  void sweepAll(Command& command) {
    const std::string before = text();
    sweep([&] { return command.redo(); });
    const std::string after = text();
    EXPECT_NE(after, before);
    // Some commands do not tell whether they were undone.
    sweep([&] {
      command.undo();
      return text() == before;
    });
    EXPECT_EQ(text(), before);
    sweep([&] { return command.redo(); });
    EXPECT_EQ(text(), after);
  }

  CompoundObject* group_;
};

TEST_F(RecordedCommandFaults, NodeCommand) {
  ORV_v1::NodeCommand command;
  command.createNode(compound("/"), kAdd, "last.b");
  command.createIONode(compound("/group"), ORV_v1::NodeFlags::kInputNode, "a.b");
  command.removeNode(compound("/"), "group");
  sweepAll(command);
}

TEST_F(RecordedCommandFaults, ConnectCommand) {
  ORV_v1::ConnectCommand command;
  sweep([&] { return command.connect(&graph_, handle("/free.result"), handle("/last.a"), true); });
  command.undo();
  sweep([&] { return command.redo(); });
}

TEST_F(RecordedCommandFaults, ConnectCommandDisconnecting) {
  ORV_v1::ConnectCommand command;
  sweep([&] {
    return command.disconnect(&graph_, handle("/first.result"), handle("/list.values.item"));
  });
  sweep([&] { return command.undo(); });
}

TEST_F(RecordedCommandFaults, ConnectNodesCommand) {
  ORV_v1::ConnectNodesCommand command;
  auto list = ORV_v1::NodeList::createNew(nullptr);
  for (const char* path : {"/free", "/first", "/list"}) list->add(node(path));
  ASSERT_TRUE(command.connect(*list));
  sweepAll(command);
}

TEST_F(RecordedCommandFaults, ModifyCompoundPortCommand) {
  ORV_v1::ModifyCompoundPortCommand command;
  ASSERT_TRUE(command.setParentCompound(&graph_, "/list"));
  ORV_v1::PortProperties properties;
  properties.setFlags(ORV_v1::kPortHidden);
  properties.options().unserialize("{a=b}", ORV_v1::PropertyList::kSerializeAll);
  properties.defaultValues().setValues(array({"1"}));
  ASSERT_TRUE(command.createPort(ORV_v1::PortIOType::kInput, "fresh", "float", properties));
  ASSERT_TRUE(command.renamePort("fresh", "vec"));
  ASSERT_TRUE(command.movePort("vec1", 0u));
  ASSERT_TRUE(command.setPortValues("vec.x", array({"3"}), false));
  ASSERT_TRUE(command.setPortDataType("vec", "vector4"));
  ASSERT_TRUE(command.setPortDataType("values", "array<int>"));
  ASSERT_TRUE(command.setPortMetaDataValue("vec", "k", "v"));
  ASSERT_TRUE(command.deletePort("values"));
  sweepAll(command);
}

TEST_F(RecordedCommandFaults, ModifyCompoundPortCommandOnAnInputNode) {
  ORV_v1::ModifyCompoundPortCommand command;
  ASSERT_TRUE(command.setParentCompound(&graph_, "/group"));
  ASSERT_TRUE(command.createPort(ORV_v1::PortIOType::kInput, "x", "int", {}));
  ASSERT_TRUE(command.movePort("x", "io"));
  ASSERT_TRUE(command.hidePort("x", true));
  ASSERT_TRUE(command.deletePort("in"));
  sweepAll(command);
}

TEST_F(RecordedCommandFaults, ModifyNodePortCommand) {
  ORV_v1::ModifyNodePortCommand command;
  ASSERT_TRUE(command.createPort(node("/list"), ORV_v1::PortIOType::kInput, "values.x", "", {}));
  ASSERT_TRUE(command.deletePort(node("/list"), "values.item"));
  ASSERT_TRUE(command.setPortValues(node("/free"), "a", array({"2"}), false));
  ASSERT_TRUE(command.resetPortValues(node("/free"), "b"));
  sweepAll(command);
}

TEST_F(RecordedCommandFaults, CreateCompoundCommand) {
  ORV_v1::CreateCompoundCommand command;
  ASSERT_TRUE(command.setParentCompound(&graph_, "/"));
  for (const char* name : {"group", "list"}) ASSERT_TRUE(command.addNodeToMove(name));
  ASSERT_TRUE(command.addAnnotationToMove("back"));
  sweepAll(command);
}

TEST_F(RecordedCommandFaults, ExplodeCompoundCommand) {
  ORV_v1::ExplodeCompoundCommand command;
  ASSERT_TRUE(command.setParentCompound(&graph_, "/"));
  ASSERT_TRUE(command.addCompoundToExplode("group"));
  ASSERT_TRUE(command.addCompoundToExplode("list"));
  sweepAll(command);
}

TEST_F(RecordedCommandFaults, MetadataCommand) {
  ORV_v1::MetadataCommand command;
  ASSERT_TRUE(command.setParentNode(&graph_, "/group"));
  ASSERT_TRUE(command.addMetadata("a", "b"));
  sweepAll(command);
}

TEST_F(RecordedCommandFaults, ModifyCompoundAnnotationCommand) {
  ORV_v1::ModifyCompoundAnnotationCommand command;
  ASSERT_TRUE(command.setParentCompound(&graph_, "/"));
  ASSERT_TRUE(command.createStickyNote());
  ASSERT_TRUE(command.renameAnnotation("back", "other"));
  ASSERT_TRUE(command.setAnnotationMetaDataValue("other", "k", "v"));
  ASSERT_TRUE(command.deleteAnnotation("note"));
  sweepAll(command);
}

TEST_F(RecordedCommandFaults, WatchPointCommand) {
  ORV_v1::WatchPointCommand command;
  ASSERT_TRUE(command.createWatchPoint(handle("/group.out", 0)));
  ASSERT_TRUE(command.setWatchPointParameter(handle("/group.out", 0), "limit", "7"));
  sweepAll(command);
}

TEST_F(RecordedCommandFaults, PasteCommand) {
  ORV_v1::CopyCommand copying;
  ASSERT_TRUE(copying.setParentCompound(&graph_, "/"));
  for (const char* name : {"group", "list"}) ASSERT_TRUE(copying.addSourceNode(name));
  ASSERT_TRUE(copying.addSourceAnnotation("back"));
  ASSERT_TRUE(copying.doit());
  ORV_v1::PasteCommand command;
  command.setParentCompound(&graph_, "/");
  command.duplicateSourceInputConnections(true);
  sweepAll(command);
}

TEST_F(RecordedCommandFaults, RecordingThatIsRefusedRecordsNothing) {
  ORV_v1::NodeCommand command;
  {
    const ArmedFault fault("NodeCommand createNode");
    ASSERT_TRUE(fault.isArmed());
    EXPECT_FALSE(command.createNode(compound("/"), kAdd, nullptr));
  }
  const std::string before = text();
  EXPECT_TRUE(command.redo());
  EXPECT_EQ(text(), before);
}

}  // namespace
}  // namespace orvlib
