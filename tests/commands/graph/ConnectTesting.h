#pragma once

#include "tests/commands/CommandTesting.h"
#include "tests/commands/graph/LibraryCalls.h"

/// The command, to hold and to drive by hand. Each new object is the `last` until it is deleted.
class OpenConnectCmd : public orvConnectCmd {
 public:
  OpenConnectCmd() { last = this; }
  ~OpenConnectCmd() override {
    if (last == this) last = nullptr;
  }
  static KPxCommand* creator() { return new OpenConnectCmd; }

  using orvConnectCmd::bracketCompoundPath;
  using orvConnectCmd::connectNodesMode;
  using orvConnectCmd::copyMetaData;
  using orvConnectCmd::destinationPortPath;
  using orvConnectCmd::disconnect;
  using orvConnectCmd::sourcePortPath;

  static inline OpenConnectCmd* last = nullptr;
};

/// A graph "g" with the `core::math::add` nodes "a", "b" and "c", the fan-in node "list", and the
/// compound "box", which has the input "in", the output "out" and the nodes "d" and "e".
class ConnectTest : public CommandTest {
 protected:
  using Texts = hosttest::Texts;
  using PortHandle = ORV_v1::AddRefWrapper<ORV_v1::Port>;

  ConnectTest() {
    addCommand("openConnect", OpenConnectCmd::creator, orvConnectCmd::createSyntax());
    edit("/", "-create box");
    addNodes("/", {"a", "b", "c"});
    addNodes("/box", {"d", "e"});
    edit("/", "-addNode core::array::build -renameNode build list");
    edit("/box", "-createInputPort in float -createOutputPort out float");
    host.session().undoQueue().clear();
  }

  static constexpr const char* kNotEditable = "! The compound is not editable";
  static constexpr const char* kParsing = "! Invalid parameters detected.  Exiting.";
  static constexpr const char* kTooFew = "! Too few arguments given.";

  /// Runs a line of `orvCompound`, which must work.
  void edit(const std::string& path, const std::string& flags) {
    host.run("orvCompound g " + path + " " + flags);
  }
  void addNodes(const std::string& path, const Texts& names) {
    for (const std::string& name : names) {
      edit(path, "-addNode core::math::add -renameNode add " + name);
    }
  }

  void connect(const std::string& from, const std::string& to) {
    host.run("orvConnect g " + from + " " + to);
  }

  PortHandle port(const std::string& path, unsigned mode = ORV_v1::Container::kSearchOuter) {
    return graph.findPortFromPath(path.c_str(), ORV_v1::Container::kSearchEither,
                                  static_cast<ORV_v1::Container::ESearchMode>(mode));
  }
  PortHandle innerPort(const std::string& path) {
    return port(path, ORV_v1::Container::kSearchInner);
  }

  /// The full paths of what the port is connected to itself.
  static Texts peersOf(const PortHandle& port) {
    if (!port) return {"no port"};
    Texts paths;
    for (const PortHandle& peer : port->connectedTo()) {
      paths.emplace_back(peer->getFullPathName().getName());
    }
    return paths;
  }
  Texts peers(const std::string& path) { return peersOf(port(path)); }

  /// The names of the members of a fan-in port.
  Texts members(const std::string& path) {
    Texts names;
    for (const PortHandle& child : *port(path)->children()) names.emplace_back(child->getName());
    return names;
  }

  ORV_v1::AddRefWrapper<ORV_v1::Compound> compound(const std::string& path) {
    return graph.findNodeFromPath(path.c_str())->asCompound();
  }

  static OpenConnectCmd& command() { return *OpenConnectCmd::last; }
};
