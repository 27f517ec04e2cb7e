#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "platform/ORV_1_0/MetadataCommand.h"
#include "platform/ORV_1_0/ModifyCompoundAnnotationCommand.h"
#include "platform/ORV_1_0/WatchPointCommand.h"
#include "standalone/graph/edits/FaultPoints.h"
#include "tests/standalone/graph/commands/CommandFixture.h"

namespace orvlib::faultcases {

using namespace ORV_v1;

constexpr const char* kAdd = "core::math::add";

class FaultPointNames;

/// The name of a fault point, and how the operation behind it is called.
struct Case {
  std::string name;
  std::function<void(FaultPointNames&)> run;
};

/// How a test of it is listed.
inline void PrintTo(const Case& one, std::ostream* out) { *out << one.name; }

inline std::vector<std::string> textsOf(const StringArray& texts) {
  return GraphAccess::textsOf(texts);
}
inline std::vector<std::string> textsOf(const String& text) { return {text.toChar()}; }

/// first -> last.a, a free node, a compound group with a port "in" and an input node "io", a watch
/// point at first.result, an annotation and metadata.
class FaultPointNames : public CommandFixture, public testing::WithParamInterface<Case> {
 public:
  using CommandFixture::array;
  using CommandFixture::compound;
  using CommandFixture::graph_;
  using CommandFixture::handle;
  using CommandFixture::node;
  using CommandFixture::text;

  FaultPointNames() {
    for (const char* name : {"first", "last", "free"}) add(top(), kAdd, name);
    CompoundObject* group = addCompound(top(), "group");
    insert(*group, factory().makeIo(NodeKind::Input, "io"));
    addPort(*group, PortDirection::Input, "in", "float");
    EXPECT_TRUE(connect("/first.result", "/last.a"));
    ModifyCompoundAnnotationCommand note;
    EXPECT_TRUE(note.setParentCompound(&graph_, "/") && note.createBackdrop("back") && note.doit());
    WatchPointCommand watch;
    EXPECT_TRUE(watch.createWatchPoint(handle("/first.result")) && watch.redo());
    MetadataCommand metadata;
    EXPECT_TRUE(metadata.setParentNode(&graph_, "/first") &&
                metadata.setMetadata("k", array({"v"})));
    EXPECT_TRUE(metadata.doit());
  }

  WatchPoint& watchPoint() { return *handle("/first.result")->getWatchPoint(); }

  /// Has the point refuse `operation`, and the graph stay as it was.
  template <class Operation>
  void refuse(Operation operation) {
    const std::string before = text();
    const ArmedFault fault(GetParam().name);
    ASSERT_TRUE(fault.isArmed());
    EXPECT_FALSE(operation());
    EXPECT_TRUE(fault.refused());
    EXPECT_EQ(text(), before);
  }

  /// What was refused can be done afterwards.
  template <class Operation>
  void ask(Operation operation) {
    refuse(operation);
    EXPECT_TRUE(operation());
  }

  /// Likewise, and `out` is as it was while the operation is refused.
  template <class Out, class Operation>
  void askFor(Out out, Operation operation) {
    const auto before = textsOf(out);
    refuse([&] { return operation(out); });
    EXPECT_EQ(textsOf(out), before);
    EXPECT_TRUE(operation(out));
    EXPECT_NE(textsOf(out), before);
  }
};

template <class Command>
using Step = bool (*)(FaultPointNames&, Command&);

/// `record` records nothing when it is refused.
template <class Command>
Case recording(const std::string& name, Step<Command> prepare, Step<Command> record) {
  return {name, [prepare, record](FaultPointNames& test) {
            Command command;
            ASSERT_TRUE(prepare(test, command));
            test.refuse([&] { return record(test, command); });
            const std::string before = test.text();
            EXPECT_TRUE(command.redo());
            EXPECT_EQ(test.text(), before);
            Command other;
            ASSERT_TRUE(prepare(test, other));
            EXPECT_TRUE(record(test, other));
            EXPECT_TRUE(other.redo());
          }};
}

/// `call` can be called again when it was refused.
template <class Command>
Case calling(const std::string& name, Step<Command> prepare, Step<Command> call) {
  return {name, [prepare, call](FaultPointNames& test) {
            Command command;
            ASSERT_TRUE(prepare(test, command));
            test.ask([&] { return call(test, command); });
          }};
}

template <class Command>
bool nothing(FaultPointNames&, Command&) {
  return true;
}

template <class Command>
bool inTop(FaultPointNames& test, Command& command) {
  return command.setParentCompound(&test.graph_, "/");
}

inline bool inGroup(FaultPointNames& test, ModifyCompoundPortCommand& command) {
  return command.setParentCompound(&test.graph_, "/group");
}

inline bool onFirst(FaultPointNames& test, MetadataCommand& command) {
  return command.setParentNode(&test.graph_, "/first");
}

/// Carrying out, undoing and carrying out again of what `record` records.
template <class Command>
void addRuns(std::vector<Case>& cases, const std::string& name, Step<Command> record) {
  if constexpr (requires(Command & command) { command.doit(); }) {
    cases.push_back({name + " doit", [record](FaultPointNames& test) {
                       Command command;
                       ASSERT_TRUE(record(test, command));
                       test.ask([&] { return command.doit(); });
                     }});
  }
  cases.push_back({name + " redo", [record](FaultPointNames& test) {
                     Command command;
                     ASSERT_TRUE(record(test, command));
                     test.ask([&] { return command.redo(); });
                   }});
  cases.push_back({name + " undo", [record](FaultPointNames& test) {
                     const std::string before = test.text();
                     Command command;
                     ASSERT_TRUE(record(test, command) && command.redo());
                     ASSERT_NE(test.text(), before);
                     // Some commands do not tell whether they were undone.
                     test.ask([&] {
                       command.undo();
                       return test.text() == before;
                     });
                   }});
}

}  // namespace orvlib::faultcases
