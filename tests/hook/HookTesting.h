#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <string>
#include <utility>

#include "platform/ORV_1_0/AnnotationList.h"
#include "platform/ORV_1_0/NodeList.h"
#include "platform/ORV_1_0/PortList.h"
#include "platform/orvUI_1_0/AppServicesHook.h"
#include "platform/orvUI_1_0/CommandHook.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/graph/storage/GraphText.h"
#include "standalone/widgets/hooks/HookRegistry.h"
#include "testPaths.h"
#include "tests/support/GraphHost.h"
#include "tests/support/ProbeCommand.h"
#include "tests/support/TemporaryFiles.h"

inline constexpr const char* kModulePath = VESK_BUILD_DIR "/plug-ins/veskOrvPlugin.so";
inline constexpr const char* kModuleName = "veskOrvPlugin";

/// What a call of the hook left behind in the host.
struct Trace {
  hosttest::Texts journal;  ///< the lines, each with the notes ahead of it
  hosttest::Texts echoes;
  hosttest::Texts steps;  ///< what came onto the undo queue

  bool operator==(const Trace&) const = default;
};

inline void PrintTo(const Trace& trace, std::ostream* out) {
  const auto print = [out](const char* title, const hosttest::Texts& texts) {
    *out << "\n  " << title;
    for (const std::string& text : texts) *out << "\n    " << text;
  };
  print("journal:", trace.journal);
  print("echoes:", trace.echoes);
  print("steps:", trace.steps);
}

/// Of a line that is shown and becomes a step.
inline Trace edit(const std::string& line) { return {{line}, {line}, {line}}; }

/// Of one that is shown and changes nothing that could be undone.
inline Trace shown(const std::string& line) { return {{line}, {line}, {}}; }

/// Of one that becomes a step and is not shown.
inline Trace hiddenEdit(const std::string& line) { return {{"// without echo", line}, {}, {line}}; }

/// Of one that is shown and becomes no step although it could.
inline Trace unrecorded(const std::string& line) { return {{"// without undo", line}, {line}, {}}; }

inline Trace silent(const std::string& line) {
  return {{"// without undo without echo", line}, {}, {}};
}

/// Of one that is shown and fails with these messages.
inline Trace failed(const std::string& line, const hosttest::Texts& messages = {}) {
  Trace trace{{}, {line}, {}};
  for (const std::string& message : messages) trace.journal.push_back("// Error: " + message);
  trace.journal.emplace_back("// failed with status 1");
  trace.journal.push_back(line);
  return trace;
}

/// Of one call after another.
inline Trace operator+(Trace first, const Trace& second) {
  const auto append = [](hosttest::Texts& texts, const hosttest::Texts& more) {
    texts.insert(texts.end(), more.begin(), more.end());
  };
  append(first.journal, second.journal);
  append(first.echoes, second.echoes);
  append(first.steps, second.steps);
  return first;
}

/// A host with the real module, the hook that the module installs, and a graph "g": the nodes "a",
/// "b" and "c" of `core::math::negate`, the fan-in node "list", the vector node "vec", the backdrop
/// "frame", the note "note" and the compound "group" with the input "in", the output "out", the
/// node "d", and the nodes "input" and "output" for its ports. A message that a test does not take
/// fails it.
class HookTest : public testing::Test {
 protected:
  using Texts = hosttest::Texts;
  using CommandHook = orvUI_v1::CommandHook;
  using AppServicesHook = orvUI_v1::AppServicesHook;
  using Registry = orvuilib::HookRegistry;
  using CompoundHandle = CommandHook::CompoundHandle;
  using NodeHandle = CommandHook::NodeHandle;
  using PortHandle = CommandHook::PortHandle;
  using Container = ORV_v1::Container;

  HookTest() : graph(makeGraph()) {
    for (const std::string name : {"a", "b", "c"}) {
      build("/", "-addNode core::math::negate -renameNode negate " + name);
    }
    build("/", "-addNode core::array::build -renameNode build list");
    build("/", "-addNode core::vector::vector3::normalize -renameNode normalize vec");
    build("/", "-addBackdrop frame -addStickyNote note -create group");
    build("/group", "-createInputPort in float -createOutputPort out float");
    build("/group", "-addNode core::math::negate -renameNode negate d");
    build("/group", "-addIONode true -addIONode false");
    host.session().undoQueue().clear();
    EXPECT_TRUE(host.session().journal().open(files_.path("journal")));
    host.takeEchoes();
  }

  /// The module takes its own commands away itself.
  ~HookTest() override {
    for (const vesk::CommandEntry& entry : replaced_) {
      host.session().registry().remove(entry.name, nullptr);
      host.session().registry().add(entry);
    }
  }

  static CommandHook& hook() { return *Registry::commandHook(); }
  static AppServicesHook& services() { return *Registry::appServicesHook(); }

  /// What the call leaves in the host, from an empty undo queue on.
  Trace traceOf(const std::function<void()>& call) {
    host.session().undoQueue().clear();
    begin();
    call();
    return {takeJournal(), host.takeEchoes(), host.steps()};
  }

  /// As `traceOf` for a call that edits the graph: checks that undo gives the graph from before,
  /// and redo the one from after.
  Trace editTraceOf(const std::function<void()>& call) {
    const std::string before = stored();
    Trace trace = traceOf(call);
    const std::string after = stored();
    EXPECT_NE(before, after);
    host.run("undo");
    EXPECT_EQ(stored(), before);
    host.run("redo");
    EXPECT_EQ(stored(), after);
    return trace;
  }

  /// Lets this take the place of a command.
  void replace(const std::string& command, hosttest::ProbeBody body, const KSyntax& syntax = {}) {
    if (const auto entry = host.session().registry().find(command)) {
      host.session().registry().remove(command, entry->owner);
      replaced_.push_back(*entry);
    }
    addProbe(host, command, std::move(body), syntax);
  }

  /// Lets a command fail that gives `failureResult` all the same.
  void replaceByFailure(const std::string& command) {
    replace(command, {.doIt = [this](KPxCommand& probe, auto&) -> KStatus {
              probe.setResult(failureResult);
              return StatusFailure;
            }});
  }
  unsigned int failureResult = 1;

  /// Runs `orvCompound "g" PATH FLAGS`, which must work and leaves no step.
  void build(const std::string& path, const std::string& flags) {
    host.run("orvCompound g \"" + path + "\" " + flags);
    host.session().undoQueue().clear();
  }

  std::string stored() const {
    return orvlib::writeGraph(static_cast<const orvlib::ContainerObject&>(graph));
  }

  NodeHandle node(const std::string& path) { return graph.findNodeFromPath(path.c_str()); }
  CompoundHandle compound(const std::string& path) { return node(path)->asCompound(); }
  CompoundHandle top() { return compound("/"); }
  PortHandle port(const std::string& path, Container::ESearchMode mode = Container::kSearchOuter) {
    return graph.findPortFromPath(path.c_str(), Container::kSearchEither, mode);
  }
  PortHandle inner(const std::string& path) { return port(path, Container::kSearchInner); }

  /// The names of what the compound holds, in their order: nodes, or annotations.
  Texts nodes(const std::string& path) { return namesOf(compound(path)->getChildNodes()); }
  Texts annotations(const std::string& path) { return namesOf(compound(path)->getAnnotations()); }

  template <class List>
  static Texts namesOf(const List& list) {
    Texts names;
    for (const auto& one : list) names.emplace_back(one->getName());
    return names;
  }

  /// The value texts that the port has.
  static Texts values(const PortHandle& port) {
    ORV_v1::StringArray texts;
    EXPECT_TRUE(port->getPortDefaultValues(texts));
    Texts values;
    for (unsigned int i = 0; i < texts.size(); ++i) values.emplace_back(texts[i]);
    return values;
  }

  /// The path of what the input of that path is connected to; empty when it is not.
  std::string sourceOf(const std::string& path) {
    for (const auto& source : port(path)->connectedTo()) {
      return source->getFullPathName().getName();
    }
    return "";
  }

  ORV_v1::AddRefWrapper<ORV_v1::NodeList> listOf(const Texts& paths) {
    const auto list = ORV_v1::NodeList::createNew(nullptr);
    for (const std::string& path : paths) EXPECT_TRUE(list->add(node(path))) << path;
    return list;
  }
  ORV_v1::AddRefWrapper<ORV_v1::AnnotationList> annotationListOf(const Texts& names) {
    const auto list = ORV_v1::AnnotationList::createNew();
    for (const std::string& name : names) {
      EXPECT_TRUE(list->add(graph.findAnnotationFromPath(("/" + name).c_str()))) << name;
    }
    return list;
  }

  hosttest::GraphHost host;
  Container& graph;

 private:
  Container& makeGraph() {
    EXPECT_TRUE(host.session().plugins().load(kModulePath));
    return host.graph("g");
  }

  void begin() {
    takeJournal();
    host.takeEchoes();
  }

  /// The lines that were written since it was last asked.
  Texts takeJournal() {
    std::ifstream file(files_.path("journal"), std::ios::binary);
    file.seekg(journalRead_);
    Texts lines;
    for (std::string line; std::getline(file, line);) {
      journalRead_ += static_cast<std::streamoff>(line.size()) + 1;
      lines.push_back(line);
    }
    return lines;
  }

  hosttest::TemporaryFiles files_;
  std::streamoff journalRead_ = 0;
  std::vector<vesk::CommandEntry> replaced_;
};

/// What is selected: the lists live with it.
struct Selection {
  ORV_v1::AddRefWrapper<ORV_v1::NodeList> nodes;
  ORV_v1::AddRefWrapper<ORV_v1::AnnotationList> annotations;

  orvUI_v1::EditSelection in(const ORV_v1::AddRefWrapper<ORV_v1::Compound>& parent) const {
    return {parent, nodes.get(), annotations.get()};
  }
};
