#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "commands/compound/orvCompoundCmd.h"
#include "commands/graph/orvConnectCmd.h"
#include "commands/graph/orvNodeCmd.h"
#include "platform/ORV_1_0/NodeList.h"
#include "plugin/pluginMessages.h"
#include "standalone/graph/library/RuntimeRegistry.h"
#include "standalone/host/engine/HostSession.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/vesk/OrvGraphPayload.h"

/// A host with the graph "g", whose top compound holds nodes "add", "add1", ... that were there
/// before anything was recorded for undo.
class ScriptedGraph {
 public:
  explicit ScriptedGraph(std::size_t count) : session_(options()) {
    vesk::addOrvGraphType(session_.scene().types());
    registerMessages();
    add("orvCompound", orvCompoundCmd::creator, orvCompoundCmd::createSyntax());
    add("orvConnect", orvConnectCmd::creator, orvConnectCmd::createSyntax());
    add("orvNode", orvNodeCmd::creator, orvNodeCmd::createSyntax());
    run("createNode orvGraph -name \"g\"");
    container_ = ORV_v1::Container::getFromUUID(session_.scene().find("g")->uuid().c_str());
    top_ = container_->getTopNode()->asCompound();
    for (std::size_t i = 0; i < count; ++i) {
      ORV_v1::NodeCommand command;
      command.createNode(top_, "core::math::add", nullptr);
      command.redo();
    }
    session_.undoQueue().clear();
  }

  ORV_v1::Container& container() { return *container_; }
  const ORV_v1::AddRefWrapper<ORV_v1::Compound>& top() { return top_; }
  ORV_v1::NodeList& nodes() { return top_->getChildNodes(); }

  void run(const std::string& line) {
    if (session_.engine().run(line, result_)) return;
    std::fprintf(stderr, "the line failed: %s\n", line.c_str());
    std::exit(1);
  }
  void run(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) run(line);
  }

  void undo(std::size_t steps) {
    for (std::size_t i = 0; i < steps; ++i) session_.undoQueue().undo();
  }
  void redo(std::size_t steps) {
    for (std::size_t i = 0; i < steps; ++i) session_.undoQueue().redo();
  }
  void forget() { session_.undoQueue().clear(); }

 private:
  void add(const char* name, KFnPlugin::Creator creator, const KSyntax& syntax) {
    session_.registry().add({name, creator, syntax, nullptr, {}});
  }

  static vesk::SessionOptions options() {
    vesk::SessionOptions options;
    options.messages = [](const vesk::Message& message) {
      if (message.kind == vesk::MessageKind::Error)
        std::fprintf(stderr, "%s\n", std::string(message.text).c_str());
    };
    return options;
  }

  vesk::HostSession session_;
  vesk::ResultValue result_;
  ORV_v1::Container* container_ = nullptr;
  ORV_v1::AddRefWrapper<ORV_v1::Compound> top_;
};
