#include <random>
#include <set>

#include "platform/ORV_1_0/CreateCompoundCommand.h"
#include "platform/ORV_1_0/ExplodeCompoundCommand.h"
#include "standalone/graph/storage/GraphText.h"
#include "standalone/graph/texts/ListText.h"
#include "standalone/graph/texts/PropertiesText.h"
#include "standalone/graph/types/ValueText.h"
#include "tests/standalone/graph/commands/CommandFixture.h"
#include "tests/standalone/graph/commands/GraphInvariants.h"
#include "tests/standalone/graph/commands/RandomCommands.h"

namespace orvlib {
namespace {

constexpr std::size_t kEdits = 2000;

class RecordedCommandHistory : public CommandFixture, public testing::WithParamInterface<unsigned> {
 protected:
  /// The form of a graph that is read from the form of this one.
  std::string textOfReadText() {
    ContainerObject copy("standard");
    const auto error = readGraph(text(), copy);
    return error ? error->reason : writeGraph(copy);
  }
};

TEST_P(RecordedCommandHistory, UndoingAllGivesTheFirstFormAndRedoingAllTheLast) {
  const std::string first = text();
  RandomCommands random(graph_, GetParam());
  std::vector<DoneEdit> done;
  // What is refused does not count.
  for (int i = 0; done.size() < kEdits; ++i) {
    ASSERT_LT(i, 20 * kEdits);
    DoneEdit edit = random.next();
    if (!edit.undo) continue;
    done.push_back(std::move(edit));
    ASSERT_EQ(brokenRule(graph_), "") << i;
    if (done.size() % 100 == 0) {
      ASSERT_EQ(textOfReadText(), text()) << i;
    }
  }
  const std::string last = text();
  for (auto edit = done.rbegin(); edit != done.rend(); ++edit) ASSERT_TRUE(edit->undo());
  EXPECT_EQ(text(), first);
  for (const DoneEdit& edit : done) ASSERT_TRUE(edit.redo());
  EXPECT_EQ(text(), last);
  EXPECT_EQ(brokenRule(graph_), "");
}

/// All that is said of the ports of a node and of those below, whatever the order.
void collectPorts(PortObject& port, std::set<std::string>& facts) {
  std::set<std::string> peers;
  for (const PortObject* peer : port.peers().items()) peers.insert(peer->fullPath());
  std::string fact = port.fullPath() + (port.isInner() ? " inside" : "") + " is " +
                     port.type()->getName() + ", flags " + std::to_string(port.flags());
  if (const Value* value = port.ownValue()) fact += ", value " + writeList(printValue(*value));
  for (const std::string& peer : peers) fact += ", wire " + peer;
  facts.insert(fact + ", " + writeProperties(port.metadata()));
  const PortListObject* children = port.madeChildren();
  if (!children) return;
  for (PortObject* child : children->items()) {
    if (child->hasPeers() || child->kind() == PortKind::Member) collectPorts(*child, facts);
  }
}

void collectNode(NodeObject& node, std::set<std::string>& facts) {
  facts.insert(node.fullPath() + ": " + node.typeName() + writeProperties(node.metadata()));
  for (const PortListObject* list : {&node.inputList(), &node.outputList()}) {
    for (PortObject* port : list->items()) {
      if (node.compound() || node.hasOwnPorts()) collectPorts(*port, facts);
      if (port->twin() && node.compound()) collectPorts(*port->twin(), facts);
    }
  }
  if (!node.compound()) return;
  for (NodeObject* child : node.compound()->nodes().items()) collectNode(*child, facts);
}

TEST_P(RecordedCommandHistory, ExplodingACompoundThatWasJustMadeGivesTheSameGraph) {
  RandomCommands random(graph_, GetParam());
  std::mt19937 choice(GetParam());
  int exploded = 0;
  for (int i = 0; i < 1500; ++i) {
    random.next();
    if (i % 10 != 9) continue;
    std::set<std::string> before;
    collectNode(graph_.top(), before);
    ORV_v1::CreateCompoundCommand create;
    ASSERT_TRUE(create.setParentCompound(&graph_, "/"));
    for (NodeObject* node : top().nodes().items()) {
      if (choice() % 3 == 0) create.addNodeToMove(node->getName());
    }
    create.setNewCompoundName("fresh");
    ASSERT_TRUE(create.doit()) << i;
    const NodeObject* made = graph_.findNode(create.getCreatedCompoundPath().toChar());
    ORV_v1::ExplodeCompoundCommand explode;
    ASSERT_TRUE(explode.setParentCompound(&graph_, "/"));
    ASSERT_TRUE(explode.addCompoundToExplode(made->getName()));
    ASSERT_TRUE(explode.doit()) << i << '\n' << text();
    std::set<std::string> after;
    collectNode(graph_.top(), after);
    ASSERT_EQ(after, before) << i;
    ++exploded;
  }
  EXPECT_EQ(exploded, 150);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RecordedCommandHistory, testing::Values(1u, 2u, 3u, 4u, 5u));

}  // namespace
}  // namespace orvlib
