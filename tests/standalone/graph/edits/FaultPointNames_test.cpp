// The fault points of the library, each named after the operation that asks it.

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "platform/ORV_1_0/AnnotationList.h"
#include "tests/standalone/graph/edits/FaultPointCommandCases.h"

namespace orvlib::faultcases {
namespace {

void addObjects(std::vector<Case>& all) {
  using Test = FaultPointNames;
  const auto add = [&all](const char* name, void (*run)(Test&)) { all.push_back({name, run}); };
  add("Container openChangeBracket",
      [](Test& t) { t.ask([&] { return t.graph_.openChangeBracket(nullptr); }); });
  add("Container closeChangeBracket", [](Test& t) {
    ASSERT_TRUE(t.graph_.openChangeBracket(nullptr));
    t.ask([&] { return t.graph_.closeChangeBracket(nullptr); });
    EXPECT_FALSE(t.graph_.closeChangeBracket(nullptr));
  });
  add("Container findPortsForConnection", [](Test& t) {
    AddRefWrapper<Port> from;
    AddRefWrapper<Port> to;
    const auto find = [&] {
      return t.graph_.findPortsForConnection("/first.result", "/last.b", &from, &to);
    };
    t.refuse(find);
    EXPECT_TRUE(from == nullptr && to == nullptr);
    EXPECT_TRUE(find());
  });
  add("Port getPortDefaultValues", [](Test& t) {
    t.askFor(t.array({"kept"}),
             [&](auto& out) { return t.handle("/free.a")->getPortDefaultValues(out); });
  });
  add("Port unserializePortValuesString", [](Test& t) {
    t.askFor(t.array({"kept"}), [](auto& out) {
      return Port::unserializePortValuesString("1", out, AddRefWrapper<PortDataType>());
    });
  });
  add("Port addConnection", [](Test& t) {
    t.ask([&] { return t.handle("/free.result")->addConnection(t.handle("/last.b"), false); });
  });
  add("Metadata getMetadataValues", [](Test& t) {
    StringArray out = t.array({"former"});
    t.refuse([&] { return t.node("/first")->getMetadataValues("k", out); });
    EXPECT_EQ(out.size(), 0u);
    EXPECT_TRUE(t.node("/first")->getMetadataValues("k", out));
  });
  add("PropertyList unserialize", [](Test& t) {
    PropertyList list;
    t.ask([&] {
      const bool read = list.unserialize("{a=b}", PropertyList::kSerializeAll);
      EXPECT_NE(read, list.empty());
      return read;
    });
  });
  add("NodeList add", [](Test& t) {
    const auto list = NodeList::createNew(nullptr);
    t.refuse([&] { return list->add(t.node("/first")); });
    EXPECT_EQ(list->size(), 0u);
    EXPECT_TRUE(list->add(t.node("/first")));
  });
  add("AnnotationList add", [](Test& t) {
    const auto list = AnnotationList::createNew();
    t.refuse([&] { return list->add(t.graph_.findAnnotationFromPath("/back")); });
    EXPECT_EQ(list->size(), 0u);
    EXPECT_TRUE(list->add(t.graph_.findAnnotationFromPath("/back")));
  });
}

void addWatchPoint(std::vector<Case>& all) {
  using Test = FaultPointNames;
  const auto addTexts = [&all](const char* name, bool (*get)(WatchPoint&, StringArray&)) {
    all.push_back({name, [get](Test& t) {
                     t.askFor(t.array({"kept"}),
                              [&](StringArray& out) { return get(t.watchPoint(), out); });
                   }});
  };
  const auto addText = [&all](const char* name, bool (*get)(WatchPoint&, String&)) {
    all.push_back({name, [get](Test& t) {
                     t.askFor(GraphAccess::makeString("kept"),
                              [&](String& out) { return get(t.watchPoint(), out); });
                   }});
  };
  addTexts("WatchPoint getParameterNames",
           [](WatchPoint& w, StringArray& out) { return w.getParameterNames(out); });
  addTexts("WatchPoint getParameterValues",
           [](WatchPoint& w, StringArray& out) { return w.getParameterValues("record", out); });
  addTexts("WatchPoint getRecordNames",
           [](WatchPoint& w, StringArray& out) { return w.getRecordNames(out); });
  addTexts("WatchPoint getRecordedValues",
           [](WatchPoint& w, StringArray& out) { return w.getRecordedValues("value", out); });
  addText("WatchPoint getParameterDescription",
          [](WatchPoint& w, String& out) { return w.getParameterDescription("limit", out); });
  addText("WatchPoint getParameterValueDescription", [](WatchPoint& w, String& out) {
    return w.getParameterValueDescription("record", "all", out);
  });
  addText("WatchPoint getParameterValue",
          [](WatchPoint& w, String& out) { return w.getParameterValue("limit", out); });
  all.push_back({"WatchPoint clearRecordedValues", [](Test& t) {
                   auto& watched = static_cast<WatchPointObject&>(t.watchPoint());
                   watched.record(1, Value());
                   StringArray records;
                   t.refuse([&] { return watched.clearRecordedValues(); });
                   EXPECT_TRUE(watched.getRecordedValues("evaluation", records));
                   EXPECT_EQ(records.size(), 1u);
                   EXPECT_TRUE(watched.clearRecordedValues());
                 }});
}

void addCompound(std::vector<Case>& all) {
  using Test = FaultPointNames;
  // Without a compound that comes from a published one these two have nothing to do.
  all.push_back({"Compound canResetToFactory", [](Test& t) {
                   t.refuse([&] { return t.compound("/group")->canResetToFactory(); });
                 }});
  all.push_back({"Compound resetToFactory", [](Test& t) {
                   t.refuse([&] {
                     t.compound("/group")->resetToFactory();
                     return false;
                   });
                 }});
  all.push_back({"Compound setIsReferenced", [](Test& t) {
                   t.ask([&] { return t.compound("/group")->setIsReferenced(false); });
                 }});
  const auto addText = [&all](const char* name, bool (*write)(Compound&, String&)) {
    all.push_back({name, [write](Test& t) {
                     String why;
                     t.refuse([&] { return write(*t.compound("/group"), why); });
                     EXPECT_THAT(why.toChar(), testing::HasSubstr("the library refused it"));
                   }});
  };
  addText("Compound save", [](Compound& c, String& why) { return c.save("none.yaml", why); });
  addText("Compound publish",
          [](Compound& c, String& why) { return c.publish("none", "", "", false, why); });
  addText("Compound publishGraph",
          [](Compound& c, String& why) { return c.publishGraph("none", "", "", "", why); });
  all.push_back({"Compound addStatePorts", [](Test& t) {
                   const auto type = t.handle("/free.a")->getDataType();
                   t.ask([&] { return t.compound("/group")->addStatePorts("s", "t", type); });
                 }});
  all.push_back({"Compound removePort", [](Test& t) {
                   t.ask([&] { return t.compound("/group")->removePort(t.handle("/group.in")); });
                 }});
}

std::vector<Case> cases() {
  std::vector<Case> all;
  addObjects(all);
  addWatchPoint(all);
  addCompound(all);
  addNodeCommands(all);
  addPortCommands(all);
  addDataCommands(all);
  addMovingCommands(all);
  return all;
}

TEST_P(FaultPointNames, MakesItsOperationSayFalseAndChangeNothing) { GetParam().run(*this); }

std::string caseName(const testing::TestParamInfo<Case>& info) {
  std::string name = info.param.name;
  name.erase(std::remove(name.begin(), name.end(), ' '), name.end());
  return name + std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(Operations, FaultPointNames, testing::ValuesIn(cases()), caseName);

TEST(FaultPointTable, NamesEachFaultPointOfTheLibrary) {
  std::set<std::string> stated;
  for (const Case& one : cases()) stated.insert(one.name);
  std::set<std::string> present;
  for (const std::string_view name : FaultPoints::names()) {
    // Those of single edits are asked below the operations; tests have some of their own.
    if (!name.starts_with("edit ") && !name.starts_with("test.")) present.emplace(name);
  }
  EXPECT_EQ(present, stated);
}

}  // namespace
}  // namespace orvlib::faultcases
