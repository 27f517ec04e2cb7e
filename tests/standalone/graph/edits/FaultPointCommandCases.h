#pragma once

#include "platform/ORV_1_0/ConnectNodesCommand.h"
#include "platform/ORV_1_0/CopyCommand.h"
#include "platform/ORV_1_0/CreateCompoundCommand.h"
#include "platform/ORV_1_0/ExplodeCompoundCommand.h"
#include "platform/ORV_1_0/MetadataCommand.h"
#include "platform/ORV_1_0/ModifyCompoundAnnotationCommand.h"
#include "platform/ORV_1_0/NodeCommand.h"
#include "platform/ORV_1_0/PasteCommand.h"
#include "platform/ORV_1_0/WatchPointCommand.h"
#include "tests/standalone/graph/edits/FaultPointCases.h"

namespace orvlib::faultcases {

inline void addNodeCommands(std::vector<Case>& all) {
  using T = FaultPointNames;
  using N = NodeCommand;
  const Step<N> create = [](T& t, N& c) { return c.createNode(t.compound("/"), kAdd, nullptr); };
  all.push_back(recording<N>("NodeCommand createNode", nothing, create));
  all.push_back(recording<N>("NodeCommand createIONode", nothing, [](T& t, N& c) {
    return c.createIONode(t.compound("/group"), NodeFlags::kInputNode, nullptr);
  }));
  all.push_back(recording<N>("NodeCommand removeNode", nothing,
                             [](T& t, N& c) { return c.removeNode(t.compound("/"), "free"); }));
  addRuns<N>(all, "NodeCommand", create);

  using C = ConnectCommand;
  const Step<C> connect = [](T& t, C& c) {
    return c.connect(&t.graph_, t.handle("/free.result"), t.handle("/last.b"), false);
  };
  all.push_back(calling<C>("ConnectCommand connect", nothing, connect));
  all.push_back(calling<C>("ConnectCommand disconnect", nothing, [](T& t, C& c) {
    return c.disconnect(&t.graph_, t.handle("/first.result"), t.handle("/last.a"));
  }));
  all.push_back(calling<C>("ConnectCommand undo", connect, [](T&, C& c) { return c.undo(); }));
  const Step<C> undone = [](T& t, C& c) {
    return c.connect(&t.graph_, t.handle("/free.result"), t.handle("/last.b"), false) && c.undo();
  };
  all.push_back(calling<C>("ConnectCommand redo", undone, [](T&, C& c) { return c.redo(); }));

  using L = ConnectNodesCommand;
  const Step<L> chain = [](T& t, L& c) {
    const auto list = NodeList::createNew(nullptr);
    return list->add(t.node("/free")) && list->add(t.node("/last")) && c.connect(*list);
  };
  all.push_back(recording<L>("ConnectNodesCommand connect", nothing, chain));
  addRuns<L>(all, "ConnectNodesCommand", chain);
}

inline void addPortCommands(std::vector<Case>& all) {
  using T = FaultPointNames;
  using C = ModifyCompoundPortCommand;
  const auto addC = [&all](const std::string& name, Step<C> step) {
    all.push_back(recording<C>("ModifyCompoundPortCommand " + name, inGroup, step));
  };
  all.push_back(calling<C>("ModifyCompoundPortCommand setParentCompound", nothing, inGroup));
  addC("createPort", [](T&, C& c) { return c.createPort(PortIOType::kInput, "x", "int", {}); });
  addC("renamePort", [](T&, C& c) { return c.renamePort("in", "other"); });
  addC("movePort", [](T&, C& c) { return c.movePort("in", 0u); });
  addC("movePort", [](T&, C& c) { return c.movePort("in", "io"); });
  addC("hidePort", [](T&, C& c) { return c.hidePort("in", true); });
  addC("setPortDataType", [](T&, C& c) { return c.setPortDataType("in", "int"); });
  addC("setPortMetaDataValue", [](T&, C& c) { return c.setPortMetaDataValue("in", "k", "v"); });
  addC("deletePort", [](T&, C& c) { return c.deletePort("in"); });
  addC("setPortValues", [](T& t, C& c) { return c.setPortValues("in", t.array({"2"}), false); });
  addC("resetPortValues", [](T&, C& c) { return c.resetPortValues("in"); });
  addRuns<C>(all, "ModifyCompoundPortCommand",
             [](T& t, C& c) { return inGroup(t, c) && c.renamePort("in", "other"); });

  using N = ModifyNodePortCommand;
  const auto addN = [&all](const std::string& name, Step<N> step) {
    all.push_back(recording<N>("ModifyNodePortCommand " + name, nothing, step));
  };
  addN("createPort", [](T& t, N& c) {
    return c.createPort(t.node("/group"), PortIOType::kInput, "x", "int", {});
  });
  addN("deletePort", [](T& t, N& c) { return c.deletePort(t.node("/group"), "in"); });
  addN("setPortType", [](T& t, N& c) { return c.setPortType(t.node("/group"), "in", "int"); });
  addN("setPortMetaDataValue",
       [](T& t, N& c) { return c.setPortMetaDataValue(t.node("/free"), "a", "k", "v"); });
  addN("resetPortValues", [](T& t, N& c) { return c.resetPortValues(t.node("/free"), "a"); });
  addN("handlePortFlags", [](T& t, N& c) {
    return c.handlePortFlags(t.handle("/free.a"), Container::kSearchInput, Container::kSearchOuter,
                             kPortHidden, QueryPortFlags::kSet);
  });
  const Step<N> set = [](T& t, N& c) {
    return c.setPortValues(t.node("/free"), "a", t.array({"2"}), false);
  };
  addN("setPortValues", set);
  addRuns<N>(all, "ModifyNodePortCommand", set);
}

inline void addDataCommands(std::vector<Case>& all) {
  using T = FaultPointNames;
  using M = MetadataCommand;
  const auto addM = [&all](const std::string& name, Step<M> prepare, Step<M> step) {
    all.push_back(recording<M>("MetadataCommand " + name, prepare, step));
  };
  addM("setParentCompound", nothing,
       [](T& t, M& c) { return c.setParentCompound(&t.graph_, "/group"); });
  addM("setParentNode", nothing, onFirst);
  addM("setParentWatchPoint", nothing,
       [](T& t, M& c) { return c.setParentWatchPoint(&t.graph_, "/first.result"); });
  addM("setMetadata", onFirst, [](T& t, M& c) { return c.setMetadata("a", t.array({"b"})); });
  addM("addMetadata", onFirst, [](T&, M& c) { return c.addMetadata("a", "b"); });
  addM("removeMetadata", onFirst, [](T&, M& c) { return c.removeMetadata("k", "v"); });
  addM("clearMetadata", onFirst, [](T&, M& c) { return c.clearMetadata("k"); });
  addM("setFromPropertyList", onFirst, [](T&, M& c) { return c.setFromPropertyList({}); });
  addRuns<M>(all, "MetadataCommand",
             [](T& t, M& c) { return onFirst(t, c) && c.addMetadata("a", "b"); });

  using A = ModifyCompoundAnnotationCommand;
  const auto addA = [&all](const std::string& name, Step<A> prepare, Step<A> step) {
    all.push_back(recording<A>("ModifyCompoundAnnotationCommand " + name, prepare, step));
  };
  addA("setParentCompound", nothing, inTop);
  addA("createBackdrop", inTop, [](T&, A& c) { return c.createBackdrop("b"); });
  addA("createStickyNote", inTop, [](T&, A& c) { return c.createStickyNote(); });
  addA("deleteAnnotation", inTop, [](T&, A& c) { return c.deleteAnnotation("back"); });
  addA("renameAnnotation", inTop, [](T&, A& c) { return c.renameAnnotation("back", "b"); });
  addA("setAnnotationMetaDataValue", inTop,
       [](T&, A& c) { return c.setAnnotationMetaDataValue("back", "k", "v"); });
  addRuns<A>(all, "ModifyCompoundAnnotationCommand",
             [](T& t, A& c) { return inTop(t, c) && c.createStickyNote(); });

  using W = WatchPointCommand;
  const auto addW = [&all](const std::string& name, Step<W> step) {
    all.push_back(recording<W>("WatchPointCommand " + name, nothing, step));
  };
  const Step<W> create = [](T& t, W& c) { return c.createWatchPoint(t.handle("/free.result")); };
  addW("createWatchPoint", create);
  addW("removeWatchPoint",
       [](T& t, W& c) { return c.removeWatchPoint(t.handle("/first.result")); });
  addW("enableWatchPoint",
       [](T& t, W& c) { return c.enableWatchPoint(t.handle("/first.result"), false); });
  addW("setWatchPointParameter", [](T& t, W& c) {
    return c.setWatchPointParameter(t.handle("/first.result"), "limit", "7");
  });
  addRuns<W>(all, "WatchPointCommand", create);
}

inline void addMovingCommands(std::vector<Case>& all) {
  using T = FaultPointNames;
  using C = CreateCompoundCommand;
  const Step<C> move = [](T& t, C& c) { return inTop(t, c) && c.addNodeToMove("free"); };
  all.push_back(calling<C>("CreateCompoundCommand setParentCompound", nothing, inTop));
  all.push_back(calling<C>("CreateCompoundCommand addNodeToMove", inTop,
                           [](T&, C& c) { return c.addNodeToMove("free"); }));
  all.push_back(calling<C>("CreateCompoundCommand addAnnotationToMove", inTop,
                           [](T&, C& c) { return c.addAnnotationToMove("back"); }));
  addRuns<C>(all, "CreateCompoundCommand", move);

  using E = ExplodeCompoundCommand;
  all.push_back(recording<E>("ExplodeCompoundCommand setParentCompound", nothing, inTop));
  all.push_back(recording<E>("ExplodeCompoundCommand addCompoundToExplode", inTop,
                             [](T&, E& c) { return c.addCompoundToExplode("group"); }));
  addRuns<E>(all, "ExplodeCompoundCommand",
             [](T& t, E& c) { return inTop(t, c) && c.addCompoundToExplode("group"); });

  using Y = CopyCommand;
  all.push_back(calling<Y>("CopyCommand setParentCompound", nothing, inTop));
  all.push_back(calling<Y>("CopyCommand addSourceNode", inTop,
                           [](T&, Y& c) { return c.addSourceNode("free"); }));
  all.push_back(calling<Y>("CopyCommand addSourceAnnotation", inTop,
                           [](T&, Y& c) { return c.addSourceAnnotation("back"); }));
  all.push_back(calling<Y>("CopyCommand doit", inTop, [](T&, Y& c) { return c.doit(); }));

  using P = PasteCommand;
  all.push_back(calling<P>("PasteCommand setParentCompound", nothing, inTop));
  addRuns<P>(all, "PasteCommand", [](T& t, P& c) {
    Y copying;
    return inTop(t, copying) && copying.addSourceNode("free") && copying.doit() && inTop(t, c);
  });
}

}  // namespace orvlib::faultcases
