#pragma once

#include <functional>
#include <memory>
#include <random>

#include "platform/ORV_1_0/ConnectCommand.h"
#include "platform/ORV_1_0/CopyCommand.h"
#include "platform/ORV_1_0/CreateCompoundCommand.h"
#include "platform/ORV_1_0/ExplodeCompoundCommand.h"
#include "platform/ORV_1_0/MetadataCommand.h"
#include "platform/ORV_1_0/ModifyCompoundAnnotationCommand.h"
#include "platform/ORV_1_0/ModifyCompoundPortCommand.h"
#include "platform/ORV_1_0/ModifyNodePortCommand.h"
#include "platform/ORV_1_0/NodeCommand.h"
#include "platform/ORV_1_0/PasteCommand.h"
#include "platform/ORV_1_0/WatchPointCommand.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/graph/types/ValueText.h"

namespace orvlib {

/// A command that is done.
struct DoneEdit {
  std::function<bool()> undo;
  std::function<bool()> redo;
};

/// Makes random library commands on a graph, the same ones for the same seed.
class RandomCommands {
 public:
  RandomCommands(ContainerObject& graph, unsigned seed) : graph_(graph), random_(seed) {}

  /// Tries one command. Empty functions when it was refused.
  DoneEdit next() {
    using Try = DoneEdit (RandomCommands::*)();
    static constexpr Try kTries[] = {
        &RandomCommands::addNode,    &RandomCommands::addNode,        &RandomCommands::addNode,
        &RandomCommands::removeNode, &RandomCommands::connect,        &RandomCommands::connect,
        &RandomCommands::connect,    &RandomCommands::connect,        &RandomCommands::disconnect,
        &RandomCommands::setValue,   &RandomCommands::setValue,       &RandomCommands::editPorts,
        &RandomCommands::editPorts,  &RandomCommands::retype,         &RandomCommands::editMetadata,
        &RandomCommands::annotate,   &RandomCommands::createCompound, &RandomCommands::explode,
        &RandomCommands::watch,      &RandomCommands::paste,
    };
    return (this->*kTries[below(std::size(kTries))])();
  }

 private:
  using PortHandle = ORV_v1::AddRefWrapper<ORV_v1::Port>;
  using NodeHandle = ORV_v1::AddRefWrapper<ORV_v1::Node>;
  using CompoundHandle = ORV_v1::AddRefWrapper<ORV_v1::Compound>;

  unsigned below(unsigned count) { return static_cast<unsigned>(random_() % count); }

  template <class Command>
  static DoneEdit done(std::shared_ptr<Command> command) {
    DoneEdit edit;
    edit.undo = [command] {
      if constexpr (std::is_void_v<decltype(command->undo())>) {
        command->undo();
        return true;
      } else {
        return command->undo();
      }
    };
    edit.redo = [command] { return command->redo(); };
    return edit;
  }

  template <class Command>
  static DoneEdit redone(std::shared_ptr<Command> command) {
    return command->redo() ? done(command) : DoneEdit();
  }

  CompoundObject& anyLevel() {
    CompoundObject* level = graph_.top().compound();
    for (int depth = 0; depth < 4; ++depth) {
      NodeObject* child = anyNode(*level);
      if (child && child->compound()) level = child->compound();
    }
    return *level;
  }

  NodeObject* anyNode(const CompoundObject& level) {
    return level.nodes().count() == 0 ? nullptr : level.nodes().at(below(level.nodes().count()));
  }

  /// Any port that can be connected at the level, some of them children.
  PortObject* anyPort(CompoundObject& level, PortDirection direction) {
    const bool own = below(4) == 0;
    NodeObject* node = own ? level.node() : anyNode(level);
    if (!node) return nullptr;
    const auto other =
        direction == PortDirection::Input ? PortDirection::Output : PortDirection::Input;
    const PortListObject& list = own ? level.list(other) : node->list(direction);
    if (list.count() == 0) return nullptr;
    PortObject* port = list.at(below(list.count()));
    PortListObject* children = below(4) == 0 ? port->childList() : nullptr;
    return children && children->count() > 0 ? children->at(below(children->count())) : port;
  }

  std::string anyName() {
    static constexpr const char* kNames[] = {"a", "b", "c1", "values", "group", "x y"};
    return kNames[below(std::size(kNames))];
  }

  const char* anyType() {
    static constexpr const char* kTypes[] = {"float",  "int",          "vector3",       "color4",
                                             "string", "array<float>", "array<vector3>"};
    return kTypes[below(std::size(kTypes))];
  }

  DoneEdit addNode() {
    static constexpr const char* kTypes[] = {"core::math::add", "core::vector::vector3::add",
                                             "core::vector::vector3::separate",
                                             "core::array::length"};
    CompoundObject& level = anyLevel();
    auto command = std::make_shared<ORV_v1::NodeCommand>();
    if (below(8) == 0) {
      const auto kind =
          below(2) == 0 ? ORV_v1::NodeFlags::kInputNode : ORV_v1::NodeFlags::kOutputNode;
      PortObject* port =
          anyPort(level, below(2) == 0 ? PortDirection::Input : PortDirection::Output);
      const std::string path = port ? port->fullPath() : "";
      command->createIONode(CompoundHandle(&level), kind, path.c_str());
    } else {
      command->createNode(CompoundHandle(&level), kTypes[below(std::size(kTypes))], nullptr);
    }
    return redone(command);
  }

  DoneEdit removeNode() {
    CompoundObject& level = anyLevel();
    NodeObject* node = anyNode(level);
    if (!node) return {};
    auto command = std::make_shared<ORV_v1::NodeCommand>();
    command->removeNode(CompoundHandle(&level), node->getName());
    return redone(command);
  }

  DoneEdit connect() {
    CompoundObject& level = anyLevel();
    PortObject* source = anyPort(level, PortDirection::Output);
    PortObject* target = anyPort(level, PortDirection::Input);
    if (!source || !target) return {};
    auto command = std::make_shared<ORV_v1::ConnectCommand>();
    const bool copies = below(3) == 0;
    const bool made = command->connect(&graph_, PortHandle(source), PortHandle(target), copies);
    return made ? done(command) : DoneEdit();
  }

  DoneEdit disconnect() {
    PortObject* target = anyPort(anyLevel(), PortDirection::Input);
    if (!target || !target->source()) return {};
    auto command = std::make_shared<ORV_v1::ConnectCommand>();
    const PortHandle source(target->source());
    return command->disconnect(&graph_, source, PortHandle(target)) ? done(command) : DoneEdit();
  }

  DoneEdit setValue() {
    PortObject* port = anyPort(anyLevel(), PortDirection::Input);
    if (!port) return {};
    auto command = std::make_shared<ORV_v1::ModifyNodePortCommand>();
    const auto texts = ORV_v1::GraphAccess::makeStringArray(printValue(port->defaultValue()));
    const NodeHandle node(port->node());
    const std::string name = port->fullName();
    if (below(2) == 0) {
      command->resetPortValues(node, name.c_str());
    } else {
      command->setPortValues(node, name.c_str(), texts, false);
    }
    const auto bit = static_cast<ORV_v1::PortFlags>(below(2) == 0 ? 1u : 64u);
    const auto mode =
        port->isInner() ? ORV_v1::Container::kSearchInner : ORV_v1::Container::kSearchOuter;
    command->handlePortFlags(
        PortHandle(port), ORV_v1::Container::kSearchEither, mode, bit,
        below(2) == 0 ? ORV_v1::QueryPortFlags::kSet : ORV_v1::QueryPortFlags::kClear);
    return redone(command);
  }

  std::string anyPortName(NodeObject& node) {
    PortListObject& list = node.list(below(2) == 0 ? PortDirection::Input : PortDirection::Output);
    return list.count() == 0 ? anyName() : list.at(below(list.count()))->name();
  }

  DoneEdit editPorts() {
    CompoundObject& level = anyLevel();
    auto command = std::make_shared<ORV_v1::ModifyCompoundPortCommand>();
    command->setParentCompound(&graph_, level.node()->fullPath().c_str());
    for (unsigned count = 1 + below(3); count > 0; --count) {
      const std::string port = anyPortName(*level.node());
      NodeObject* node = anyNode(level);
      ORV_v1::PortProperties properties;
      if (below(3) == 0) properties.setFlags(ORV_v1::kPortFanIn);
      switch (below(7)) {
        case 0:
        case 1:
          command->createPort(static_cast<ORV_v1::PortIOType>(below(2)), anyName().c_str(),
                              anyType(), properties);
          break;
        case 2:
          command->renamePort(port.c_str(), anyName().c_str());
          break;
        case 3:
          command->movePort(port.c_str(), below(4));
          break;
        case 4:
          command->movePort(port.c_str(), node ? node->getName() : "none");
          break;
        case 5:
          command->deletePort(port.c_str());
          break;
        default:
          command->hidePort(port.c_str(), below(2) == 0);
      }
    }
    return redone(command);
  }

  DoneEdit retype() {
    CompoundObject& level = anyLevel();
    auto command = std::make_shared<ORV_v1::ModifyCompoundPortCommand>();
    command->setParentCompound(&graph_, level.node()->fullPath().c_str());
    command->setPortDataType(anyPortName(*level.node()).c_str(), anyType());
    return redone(command);
  }

  DoneEdit editMetadata() {
    CompoundObject& level = anyLevel();
    auto command = std::make_shared<ORV_v1::MetadataCommand>();
    const std::string path = level.node()->fullPath();
    if (below(2) == 0) {
      command->setParentCompound(&graph_, path.c_str());
    } else {
      command->setParentNode(&graph_, path.c_str());
    }
    command->addMetadata(anyName().c_str(), anyName().c_str());
    if (below(2) == 0) command->clearMetadata(anyName().c_str());
    return redone(command);
  }

  DoneEdit annotate() {
    auto command = std::make_shared<ORV_v1::ModifyCompoundAnnotationCommand>();
    command->setParentCompound(&graph_, anyLevel().node()->fullPath().c_str());
    command->createBackdrop(anyName().c_str());
    command->renameAnnotation(anyName().c_str(), anyName().c_str());
    command->setAnnotationMetaDataValue(anyName().c_str(), "key", anyName().c_str());
    if (below(2) == 0) command->deleteAnnotation(anyName().c_str());
    return redone(command);
  }

  DoneEdit createCompound() {
    CompoundObject& level = anyLevel();
    auto command = std::make_shared<ORV_v1::CreateCompoundCommand>();
    command->setParentCompound(&graph_, level.node()->fullPath().c_str());
    command->setNewCompoundName(anyName().c_str());
    for (unsigned count = below(5); count > 0; --count) {
      if (NodeObject* node = anyNode(level)) command->addNodeToMove(node->getName());
    }
    command->addAnnotationToMove(anyName().c_str());
    return redone(command);
  }

  DoneEdit explode() {
    CompoundObject& level = anyLevel();
    auto command = std::make_shared<ORV_v1::ExplodeCompoundCommand>();
    command->setParentCompound(&graph_, level.node()->fullPath().c_str());
    NodeObject* node = anyNode(level);
    return node && command->addCompoundToExplode(node->getName()) ? redone(command) : DoneEdit();
  }

  DoneEdit watch() {
    PortObject* port = anyPort(anyLevel(), PortDirection::Output);
    if (!port) return {};
    auto command = std::make_shared<ORV_v1::WatchPointCommand>();
    const PortHandle handle(port);
    if (!command->createWatchPoint(handle)) command->removeWatchPoint(handle);
    command->enableWatchPoint(handle, below(2) == 0);
    static constexpr const char* kParameters[][2] = {
        {"record", "changes"}, {"limit", "7"},           {"format", "fixed"},
        {"digits", "2"},       {"format", "scientific"}, {"format", "shortest"},
    };
    const auto& [name, value] = kParameters[below(std::size(kParameters))];
    command->setWatchPointParameter(handle, name, value);
    return redone(command);
  }

  DoneEdit paste() {
    CompoundObject& level = anyLevel();
    ORV_v1::CopyCommand copying;
    copying.setParentCompound(&graph_, level.node()->fullPath().c_str());
    for (unsigned count = 1 + below(2); count > 0; --count) {
      NodeObject* node = anyNode(level);
      // What holds much would soon fill the graph.
      if (node && !node->compound()) copying.addSourceNode(node->getName());
    }
    copying.doit();
    auto command = std::make_shared<ORV_v1::PasteCommand>();
    command->setParentCompound(&graph_, anyLevel().node()->fullPath().c_str());
    command->duplicateSourceInputConnections(below(2) == 0);
    return redone(command);
  }

  ContainerObject& graph_;
  std::mt19937 random_;
};

}  // namespace orvlib
