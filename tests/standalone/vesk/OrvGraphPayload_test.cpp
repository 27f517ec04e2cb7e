#include "standalone/vesk/OrvGraphPayload.h"

#include "platform/ORV_1_0/NodeCommand.h"
#include "tests/support/GraphHost.h"
#include "tests/support/TemporaryFiles.h"

namespace {

using hosttest::GraphHost;
using hosttest::TemporaryFiles;
using testing::ElementsAre;

orvlib::ContainerObject& object(ORV_v1::Container& graph) {
  return static_cast<orvlib::ContainerObject&>(graph);
}

/// Adds a node, as a command of the library does.
void addNode(ORV_v1::Container& graph) {
  ORV_v1::NodeCommand command;
  ASSERT_TRUE(command.createNode(graph.getTopNode()->asCompound(), "core::math::add", nullptr));
  ASSERT_TRUE(command.doit());
}

TEST(OrvGraphPayload, IsFoundByTheUuidOfItsNode) {
  GraphHost host;
  ORV_v1::Container& graph = host.graph("g");
  EXPECT_EQ(host.run("ls -type orvGraph"), R"(["g"])");
  EXPECT_EQ(host.find("g"), &graph);
  EXPECT_EQ(ORV_v1::Container::getFromUUID("g"), nullptr);
}

TEST(OrvGraphPayload, HasTheNameOfItsNode) {
  GraphHost host;
  ORV_v1::Container& graph = host.graph("g");
  EXPECT_STREQ(graph.getContainerName().getName(), "g");
  host.run("rename g better");
  EXPECT_STREQ(graph.getContainerName().getName(), "better");
  host.run("undo");
  EXPECT_STREQ(graph.getContainerName().getName(), "g");
}

/// Notes what it is told.
class Listener final : public orvlib::ChangeListener {
 public:
  void graphChanged(orvlib::ContainerObject&,
                    std::span<const orvlib::NodeChange> changes) override {
    for (const orvlib::NodeChange& change : changes) told.push_back({change.node, change.bits});
  }
  std::vector<orvlib::NodeChange> told;
};

TEST(OrvGraphPayload, TellsOfAnotherNameAsOfItsTopNode) {
  GraphHost host;
  orvlib::ContainerObject& graph = object(host.graph("g"));
  Listener listener;
  graph.addListener(listener);
  host.run("rename g better");
  graph.removeListener(listener);
  ASSERT_EQ(listener.told.size(), 1u);
  EXPECT_EQ(listener.told[0].node.get(), &graph.top());
  EXPECT_EQ(listener.told[0].bits, orvlib::kIdentityChange);
}

TEST(OrvGraphPayload, IsOfTheStandardRuntime) {
  GraphHost host;
  EXPECT_EQ(object(host.graph("g")).core().runtime(), "standard");
}

TEST(OrvGraphPayload, GoesAndComesBackAsItsNodeDoes) {
  GraphHost host;
  ORV_v1::Container& graph = host.graph("g");
  addNode(graph);
  const std::string uuid = host.session().scene().find("g")->uuid();
  const auto found = [&uuid] { return ORV_v1::Container::getFromUUID(uuid.c_str()); };
  host.run("delete g");
  EXPECT_EQ(found(), nullptr);
  host.run("undo");
  EXPECT_EQ(found(), &graph);
  EXPECT_TRUE(object(graph).findNode("/add"));
  host.run("undo");
  EXPECT_EQ(found(), nullptr);
  host.run("redo");
  EXPECT_EQ(found(), &graph);
  host.run("redo");
  EXPECT_EQ(found(), nullptr);
}

TEST(OrvGraphPayload, IsGoneFromAnEmptiedScene) {
  GraphHost host;
  host.graph("g");
  const std::string uuid = host.session().scene().find("g")->uuid();
  host.run("file -new -force");
  EXPECT_EQ(ORV_v1::Container::getFromUUID(uuid.c_str()), nullptr);
}

TEST(OrvGraphPayload, MakesTheSceneModifiedWhenItChanges) {
  const TemporaryFiles files;
  GraphHost host;
  ORV_v1::Container& graph = host.graph("g");
  host.run("file -saveAs \"" + files.path("a.scene") + "\"");
  EXPECT_EQ(host.run("file -q -modified"), "false");
  addNode(graph);
  EXPECT_EQ(host.run("file -q -modified"), "true");
}

TEST(OrvGraphPayload, ComesBackFromTheSceneFile) {
  const TemporaryFiles files;
  GraphHost host;
  addNode(host.graph("g"));
  const std::string uuid = host.session().scene().find("g")->uuid();
  host.run("file -saveAs \"" + files.path("a.scene") + "\"");
  host.run("file -new");
  host.run("file -open \"" + files.path("a.scene") + "\"");
  EXPECT_EQ(host.run("file -q -modified"), "false");
  ORV_v1::Container* graph = host.find("g");
  ASSERT_TRUE(graph);
  EXPECT_EQ(graph, ORV_v1::Container::getFromUUID(uuid.c_str()));
  EXPECT_STREQ(graph->getContainerName().getName(), "g");
  EXPECT_TRUE(object(*graph).findNode("/add"));
  host.run("file -saveAs \"" + files.path("b.scene") + "\"");
  EXPECT_EQ(files.read("a.scene"), files.read("b.scene"));
}

TEST(OrvGraphPayload, ThatIsDamagedLeavesTheSceneAsItWas) {
  const TemporaryFiles files;
  GraphHost host;
  addNode(host.graph("kept"));
  ORV_v1::Container* const kept = host.find("kept");
  const std::string data = "vesk-graph 1\nruntime standard\ngraph\n  node 1 a\nend\n";
  const std::string path = files.write(
      "bad.scene",
      "vesk-scene 1\nnode \"orvGraph\" \"g\" \"0d5b0a4e-5b0c-4b1c-9f0a-3f5f3a6c2e11\" " +
          std::to_string(data.size()) + "\n" + data + "\nend 1\n");
  EXPECT_THAT(
      host.refusal("file -force -open \"" + path + "\""),
      ElementsAre("! cannot open \"" + path + "\": line 6: data of node \"g\": '1' is no name"));
  EXPECT_EQ(host.find("kept"), kept);
  EXPECT_TRUE(object(*kept).findNode("/add"));
  EXPECT_EQ(ORV_v1::Container::getFromUUID("0d5b0a4e-5b0c-4b1c-9f0a-3f5f3a6c2e11"), nullptr);
}

}  // namespace
