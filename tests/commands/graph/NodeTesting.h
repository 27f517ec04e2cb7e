#pragma once

#include <string>

#include "platform/ORV_1_0/NodeStateFlags.h"
#include "tests/commands/CommandTesting.h"

/// The command, with what a line leaves in the object to look at. Each new object is the `last`
/// until it is deleted.
class OpenNodeCmd : public orvNodeCmd {
 public:
  OpenNodeCmd() { last = this; }
  ~OpenNodeCmd() override {
    if (last == this) last = nullptr;
  }
  static KPxCommand* creator() { return new OpenNodeCmd; }

  using orvNodeCmd::containerName;
  using orvNodeCmd::nodePath;
  using orvNodeCmd::stateFlagChanges;

  static inline OpenNodeCmd* last = nullptr;
};

/// Lines of `orvNode` on the graph "g".
class NodeTest : public CommandTest {
 protected:
  using Texts = hosttest::Texts;
  using NodeHandle = ORV_v1::AddRefWrapper<ORV_v1::Node>;
  using PortHandle = ORV_v1::AddRefWrapper<ORV_v1::Port>;

  NodeTest() { addCommand("openNode", OpenNodeCmd::creator); }

  using CommandTest::addCommand;
  void addCommand(const char* name, KFnPlugin::Creator creator) {
    addCommand(name, creator, orvNodeCmd::createSyntax());
  }

  /// Edits a level of the graph by `orvCompound`, which leaves no step.
  void build(const std::string& path, const std::string& flags) {
    host.run("orvCompound g \"" + path + "\" " + flags);
    host.session().undoQueue().clear();
  }

  /// Runs `orvNode "g" PATH FLAGS`, which must work; gives its result as JSON.
  std::string run(const std::string& path, const std::string& flags) {
    return host.run(line(path, flags));
  }

  /// Runs it as a line that must fail with `StatusFailure`; gives its messages.
  Texts refusal(const std::string& path, const std::string& flags) {
    return refusalOf(line(path, flags));
  }

  /// The same of a line that leaves the graph as it is, and no step.
  Texts refusalOfAll(const std::string& path, const std::string& flags) {
    const std::string before = stored();
    const std::size_t steps = host.steps().size();
    const Texts told = refusal(path, flags);
    EXPECT_EQ(stored(), before) << flags;
    EXPECT_EQ(host.steps().size(), steps) << flags;
    return told;
  }

  static std::string line(const std::string& path, const std::string& flags) {
    return "orvNode \"g\" \"" + path + "\" " + flags;
  }

  void sweep(const std::string& path, const std::string& flags) { sweepLine(line(path, flags)); }

  void connect(const char* source, const char* destination) {
    PortHandle from, to;
    ASSERT_TRUE(graph.findPortsForConnection(source, destination, &from, &to)) << source;
    ASSERT_TRUE(to->addConnection(from, false)) << source << ' ' << destination;
  }

  NodeHandle node(const std::string& path) { return graph.findNodeFromPath(path.c_str()); }

  /// The port of that path, seen from outside; null when there is none.
  PortHandle port(const std::string& path) {
    return graph.findPortFromPath(path.c_str(), ORV_v1::Container::kSearchEither,
                                  ORV_v1::Container::kSearchOuter);
  }

  /// The names of the top-level ports, inputs first.
  Texts ports(const std::string& path) {
    Texts names;
    for (const auto& one : node(path)->inputs()) names.emplace_back(one->getName());
    for (const auto& one : node(path)->outputs()) names.emplace_back(one->getName());
    return names;
  }

  /// The value texts that the port has.
  Texts values(const std::string& path) {
    ORV_v1::StringArray texts;
    if (!port(path)->getPortDefaultValues(texts)) return {"none to give"};
    Texts values;
    for (unsigned int i = 0; i < texts.size(); ++i) values.emplace_back(texts[i]);
    return values;
  }

  std::string metadata(const std::string& path, const char* key) {
    return port(path)->getPortMetaDataValue(key).toChar();
  }

  std::string typeOf(const std::string& path) { return port(path)->getDataType()->getName(); }

  bool hasOpenBracket() const { return graph.activeChangeBracket(); }

  static constexpr const char* kParsingError = "! Invalid parameters detected.  Exiting.";
  static constexpr const char* kTooFew = "! Too few arguments given.";
  static constexpr const char* kUnknownNoType = "! Unknown port type ";
};
