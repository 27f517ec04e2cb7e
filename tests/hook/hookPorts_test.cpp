// Ports: naming, removing, hiding and moving them, their type, flags and values.

#include "standalone/graph/model/PortObject.h"
#include "tests/hook/HookTesting.h"

namespace {

using ORV_v1::PortFlags;
using testing::ElementsAre;
using testing::IsEmpty;

using HookPorts = HookTest;

TEST_F(HookPorts, RenamePort) {
  EXPECT_EQ(editTraceOf([&] { hook().renamePort(port("/group.in"), "size"); }),
            edit(R"(orvCompound "g" "/group" -renamePort "in" "size")"));
  EXPECT_THAT(namesOf(node("/group")->inputs()), ElementsAre("size"));
}

TEST_F(HookPorts, RenamePortByTheInnerFace) {
  EXPECT_EQ(editTraceOf([&] { hook().renamePort(inner("/group.out"), "size"); }),
            edit(R"(orvCompound "g" "/group" -renamePort "out" "size")"));
}

TEST_F(HookPorts, DeletePortOfACompound) {
  EXPECT_EQ(editTraceOf([&] { hook().deletePort(port("/group.in")); }),
            edit(R"(orvCompound "g" "/group" -deletePort "in")"));
  EXPECT_THAT(namesOf(node("/group")->inputs()), IsEmpty());
}

TEST_F(HookPorts, DeletePortOfANode) {
  host.run("orvNode g /a -createInputPort more float");
  EXPECT_EQ(editTraceOf([&] { hook().deletePort(port("/a.more")); }),
            edit(R"(orvNode "g" "/a" -deletePort "more")"));
  EXPECT_THAT(namesOf(node("/a")->inputs()), ElementsAre("value"));
}

TEST_F(HookPorts, DeletePortOfAMember) {
  host.run("orvNode g /list -createInputPort elements.one float");
  EXPECT_EQ(editTraceOf([&] { hook().deletePort(port("/list.elements.one")); }),
            edit(R"(orvNode "g" "/list" -deletePort "elements.one")"));
  EXPECT_THAT(namesOf(*port("/list.elements")->children()), IsEmpty());
}

TEST_F(HookPorts, DeletePortOfAMemberBesideAConnectionOfTheWhole) {
  build("/", "-addNode core::array::build");
  host.run("orvNode g /list -createInputPort elements.one float");
  host.run("orvConnect g /build.result /list.elements");
  EXPECT_EQ(editTraceOf([&] { hook().deletePort(port("/list.elements.one")); }),
            edit(R"(orvNode "g" "/list" -deletePort "elements.one")"));
}

TEST_F(HookPorts, DeletePortOfAMemberIsANodesAlsoOnACompound) {
  build("/group", "-createInputPort many \"array<float>\" -portFlags 2");
  host.run("orvNode g /group -createInputPort many.one float");
  ASSERT_TRUE(port("/group.many.one")->isMemberFanIn());
  const Trace trace = traceOf([&] { hook().deletePort(port("/group.many.one")); });
  EXPECT_EQ(trace, edit(R"(orvNode "g" "/group" -deletePort "many.one")"));
  EXPECT_THAT(namesOf(*port("/group.many")->children()), IsEmpty());
}

TEST_F(HookPorts, HidePortTellsWhichWay) {
  EXPECT_EQ(editTraceOf([&] { hook().hidePort(port("/group.in"), true); }),
            edit(R"(orvCompound "g" "/group" -hidePort "in" true)"));
  EXPECT_TRUE(port("/group.in")->isFlagSet(PortFlags::kPortHidden));
  EXPECT_EQ(editTraceOf([&] { hook().hidePort(port("/group.in"), false); }),
            edit(R"(orvCompound "g" "/group" -hidePort "in" false)"));
  EXPECT_FALSE(port("/group.in")->isFlagSet(PortFlags::kPortHidden));
}

TEST_F(HookPorts, SetPortDataTypeOfACompound) {
  for (const int kind : {1, 2, -1}) {
    EXPECT_EQ(editTraceOf([&] { hook().setPortDataType(kind, port("/group.in"), "int"); }),
              edit(R"(orvCompound "g" "/group" -setPortDataType "in" "int")"))
        << kind;
    EXPECT_STREQ(port("/group.in")->getDataType()->getName(), "int");
    hook().setPortDataType(kind, port("/group.in"), "float");
  }
}

TEST_F(HookPorts, SetPortDataTypeOfANode) {
  host.run("orvNode g /a -createInputPort more float");
  EXPECT_EQ(editTraceOf([&] { hook().setPortDataType(0, port("/a.more"), "array<int>"); }),
            edit(R"(orvNode "g" "/a" -setPortDataType "more" "array<int>")"));
  EXPECT_STREQ(port("/a.more")->getDataType()->getName(), "array<int>");
}

TEST_F(HookPorts, MovePort) {
  build("/group", "-createInputPort second float -createInputPort third float");
  EXPECT_EQ(editTraceOf([&] { hook().movePort(port("/group.third"), 0); }),
            edit(R"(orvCompound "g" "/group" -movePort "third" 0)"));
  EXPECT_THAT(namesOf(node("/group")->inputs()), ElementsAre("third", "in", "second"));
}

TEST_F(HookPorts, MovePortWritesTheIndexWithoutASign) {
  const Trace trace = traceOf([&] { hook().movePort(port("/group.in"), 4294967295u); });
  EXPECT_EQ(trace.journal.back(), R"(orvCompound "g" "/group" -movePort "in" 4294967295)");
  host.takeMessages();
}

TEST_F(HookPorts, MovePortToIONodeIsALineOfTheCompoundOfTheInnerFace) {
  build("/group", "-addIONode true");
  EXPECT_EQ(editTraceOf([&] { hook().movePortToIONode(inner("/group.in"), "input1"); }),
            edit(R"(orvCompound "g" "/group" -movePortToIONode "in" "input1")"));
  EXPECT_EQ(static_cast<orvlib::PortObject&>(*inner("/group.in")).ioNode(),
            node("/group/input1").get());
}

TEST_F(HookPorts, SetAndClearPortFlag) {
  bool done = false;
  EXPECT_EQ(editTraceOf([&] { done = hook().setPortFlag(port("/a.value"), 8); }),
            edit(R"(orvPort "g" "/a.value" 0 1 -set 8)"));
  EXPECT_TRUE(done);
  EXPECT_EQ(port("/a.value")->getFlags(), 8u);

  done = false;
  EXPECT_EQ(editTraceOf([&] { done = hook().clearPortFlag(port("/a.value"), 8); }),
            edit(R"(orvPort "g" "/a.value" 0 1 -clear 8)"));
  EXPECT_TRUE(done);
  EXPECT_EQ(port("/a.value")->getFlags(), 0u);
}

TEST_F(HookPorts, APortFlagLineTellsDirectionAndFace) {
  EXPECT_EQ(editTraceOf([&] { hook().setPortFlag(port("/a.result"), 4); }),
            edit(R"(orvPort "g" "/a.result" 1 1 -set 4)"));
  EXPECT_EQ(editTraceOf([&] { hook().setPortFlag(inner("/group.in"), 4); }),
            edit(R"(orvPort "g" "/group.in" 1 0 -set 4)"))
      << "the inner face of an input gives values";
  EXPECT_EQ(editTraceOf([&] { hook().setPortFlag(inner("/group.out"), 4294967292u); }),
            edit(R"(orvPort "g" "/group.out" 0 0 -set 4294967292)"));
}

TEST_F(HookPorts, APortFlagLineThatFailsIsFalse) {
  replaceByFailure("orvPort");
  bool done = true;
  EXPECT_EQ(traceOf([&] { done = hook().setPortFlag(port("/a.value"), 8); }),
            failed(R"(orvPort "g" "/a.value" 0 1 -set 8)"));
  EXPECT_FALSE(done) << "the result is not read";
  EXPECT_EQ(traceOf([&] { done = hook().clearPortFlag(port("/a.value"), 8); }),
            failed(R"(orvPort "g" "/a.value" 0 1 -clear 8)"));
  EXPECT_FALSE(done);
}

TEST_F(HookPorts, APortFlagWithoutAGraphRunsNoLine) {
  const PortHandle gone = port("/a.value");
  const NodeHandle kept = node("/a");
  build("/", "-removeNode a");
  ASSERT_TRUE(gone->getParentNode());
  ASSERT_FALSE(kept->getContainer());
  bool done = true;
  EXPECT_EQ(traceOf([&] { done = hook().setPortFlag(gone, 8); }), Trace{});
  EXPECT_FALSE(done);
  done = true;
  EXPECT_EQ(traceOf([&] { done = hook().clearPortFlag(gone, 8); }), Trace{});
  EXPECT_FALSE(done);
}

// Components: some lines name them alone, some by the path below the node.

TEST_F(HookPorts, LinesOfACompoundNameAComponentAlone) {
  build("/group", "-createInputPort tint vector3");
  const PortHandle component = port("/group.tint.y");
  const auto lineOf = [this](const std::function<void()>& call) {
    const std::string line = traceOf(call).journal.back();
    host.takeMessages();
    return line;
  };
  const std::string start = R"(orvCompound "g" "/group" )";
  EXPECT_EQ(lineOf([&] { hook().renamePort(component, "new"); }),
            start + R"(-renamePort "y" "new")");
  EXPECT_EQ(lineOf([&] { hook().hidePort(component, true); }), start + R"(-hidePort "y" true)");
  EXPECT_EQ(lineOf([&] { hook().setPortDataType(1, component, "int"); }),
            start + R"(-setPortDataType "y" "int")");
  EXPECT_EQ(lineOf([&] { hook().setPortDataType(0, port("/vec.vector.y"), "int"); }),
            R"(orvNode "g" "/vec" -setPortDataType "y" "int")");
  EXPECT_EQ(lineOf([&] { hook().movePort(component, 0); }), start + R"(-movePort "y" 0)");
  EXPECT_EQ(lineOf([&] { hook().movePortToIONode(inner("/group.tint.y"), "input"); }),
            start + R"(-movePortToIONode "y" "input")");
}

TEST_F(HookPorts, DeletePortOfAComponentGoesByTheFullName) {
  const Trace trace = traceOf([&] { hook().deletePort(port("/vec.vector.y")); });
  EXPECT_EQ(trace.journal.back(), R"(orvNode "g" "/vec" -deletePort "vector.y")");
  host.takeMessages();
}

// Default values.

TEST_F(HookPorts, SetPortDefaultValuesIsALineOfTheNode) {
  EXPECT_EQ(editTraceOf([&] { hook().setPortDefaultValues(port("/a.value"), {"2.5"}, false); }),
            edit(R"(orvNode "g" "/a" -setPortDefaultValues "value" "2.5")"));
  EXPECT_THAT(values(port("/a.value")), ElementsAre("2.5"));
}

TEST_F(HookPorts, SetPortDefaultValuesJoinsTheList) {
  const QList<QString> list = {"1", "2", "3"};
  EXPECT_EQ(editTraceOf([&] { hook().setPortDefaultValues(port("/vec.vector"), list, false); }),
            edit(R"(orvNode "g" "/vec" -setPortDefaultValues "vector" "{1,2,3}")"));
  EXPECT_THAT(values(port("/vec.vector")), ElementsAre("1", "2", "3"));
}

TEST_F(HookPorts, SetPortDefaultValuesOfAComponentGoesByTheFullName) {
  EXPECT_EQ(editTraceOf([&] { hook().setPortDefaultValues(port("/vec.vector.y"), {"7"}, false); }),
            edit(R"(orvNode "g" "/vec" -setPortDefaultValues "vector.y" "7")"));
  EXPECT_THAT(values(port("/vec.vector")), ElementsAre("0", "7", "0"));
}

TEST_F(HookPorts, SetPortDefaultValuesOfAnInnerFaceIsALineOfTheCompound) {
  EXPECT_EQ(editTraceOf([&] { hook().setPortDefaultValues(inner("/group.out"), {"3"}, false); }),
            edit(R"(orvCompound "g" "/group" -setPortDefaultValues "out" "3")"));
  EXPECT_EQ(editTraceOf([&] { hook().setPortDefaultValues(port("/group.in"), {"4"}, false); }),
            edit(R"(orvNode "g" "/group" -setPortDefaultValues "in" "4")"))
      << "the outer face is the node's";
}

TEST_F(HookPorts, ResetPortDefaultValuesOfEitherFace) {
  host.run("orvNode g /a -setPortDefaultValues value 5");
  EXPECT_EQ(editTraceOf([&] { hook().resetPortDefaultValues(port("/a.value")); }),
            edit(R"(orvNode "g" "/a" -resetPortDefaultValues "value")"));
  EXPECT_THAT(values(port("/a.value")), ElementsAre("0"));

  hook().setPortDefaultValues(inner("/group.out"), {"3"}, false);
  EXPECT_EQ(editTraceOf([&] { hook().resetPortDefaultValues(inner("/group.out")); }),
            edit(R"(orvCompound "g" "/group" -resetPortDefaultValues "out")"));
}

TEST_F(HookPorts, ResetPortDefaultValuesOfAComponentGoesByTheFullName) {
  hook().setPortDefaultValues(port("/vec.vector"), {"1", "2", "3"}, false);
  EXPECT_EQ(editTraceOf([&] { hook().resetPortDefaultValues(port("/vec.vector.y")); }),
            edit(R"(orvNode "g" "/vec" -resetPortDefaultValues "vector.y")"));
  EXPECT_THAT(values(port("/vec.vector")), ElementsAre("1", "0", "3"));
}

}  // namespace
