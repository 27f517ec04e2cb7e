#pragma once

#include "tests/commands/CommandTesting.h"

/// The command, to hold and to drive by hand. Each new object is the `last` until it is deleted.
class OpenPortCmd : public orvPortCmd {
 public:
  OpenPortCmd() { last = this; }
  ~OpenPortCmd() override {
    if (last == this) last = nullptr;
  }
  static KPxCommand* creator() { return new OpenPortCmd; }

  using orvPortCmd::portPath;
  using orvPortCmd::searchIOType;
  using orvPortCmd::searchMode;

  static inline OpenPortCmd* last = nullptr;
};

/// A graph "g" with the `core::math::add` node "a", the fan-in node "list", and the compound "box",
/// which has the input "in" and the node "d".
class PortTest : public CommandTest {
 protected:
  using Texts = hosttest::Texts;

  PortTest() {
    addCommand("openPort", OpenPortCmd::creator, orvPortCmd::createSyntax());
    host.run("orvCompound g / -addNode core::math::add -renameNode add a -create box");
    host.run("orvCompound g / -addNode core::array::build -renameNode build list");
    host.run("orvCompound g /box -createInputPort in float -addNode core::math::add");
    host.run("orvCompound g /box -renameNode add d");
    host.session().undoQueue().clear();
  }

  static constexpr const char* kParsing = "! Invalid parameters detected.  Exiting.";
  static constexpr const char* kTooFew = "! Too few arguments given.";

  ORV_v1::AddRefWrapper<ORV_v1::Port> port(const std::string& path) {
    using ORV_v1::Container;
    return graph.findPortFromPath(path.c_str(), Container::kSearchEither, Container::kSearchOuter);
  }
  unsigned flags(const std::string& path) { return port(path)->getFlags(); }

  static OpenPortCmd& command() { return *OpenPortCmd::last; }
};
