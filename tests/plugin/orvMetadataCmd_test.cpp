#include "plugin/orvMetadataCmd.h"

#include <gmock/gmock.h>

#include "platform/ORV_1_0/PortList.h"
#include "plugin/pluginMessages.h"
#include "standalone/graph/edits/FaultPoints.h"
#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/scene/Scene.h"
#include "tests/support/GraphHost.h"
#include "tests/support/GraphProbeCommand.h"
#include "tests/support/Latin1Locale.h"

namespace {

using hosttest::GraphHost;
using hosttest::Texts;
using ORV_v1::Container;
using ORV_v1::StringArray;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kParsingError = "! Invalid parameters detected.  Exiting.";
constexpr const char* kEmptyName = "! The metadata name cannot be empty";
constexpr const char* kBadText = "! Invalid metadata string format";

constexpr const char* kCompound = "graphProbe g \"/group\" ";
constexpr const char* kNode = "graphProbe g \"/add\" -node ";
constexpr const char* kWatchPoint = "graphProbe g \"/add\" -watchPoint result ";

/// A graph "g" with the compound "/group" and the node "/add", whose result has a watch point.
class MetadataTest : public testing::Test {
 protected:
  MetadataTest() : graph(host.graph("g")) {
    registerMessages();
    host.session().registry().add(
        {"graphProbe", GraphProbeCommand::creator, GraphProbeCommand::createSyntax(), nullptr, {}});
    host.run("graphProbe g \"/\" -create \"group\"");
    host.run("graphProbe g \"/\" -addNode core::math::add");
    host.run(std::string(kWatchPoint) + "-addWatchPoint");
    host.session().undoQueue().clear();
  }

  std::string run(const std::string& flags) { return host.run(kCompound + flags); }

  /// All metadata of the compound.
  std::string all() { return run("-queryMetaDataAsString"); }

  Texts refusal(const std::string& flags) {
    EXPECT_EQ(host.status(kCompound + flags), StatusFailure) << flags;
    return host.takeMessages();
  }

  GraphHost host;
  Container& graph;
};

class MetadataFlags : public MetadataTest {};

TEST_F(MetadataFlags, AreDeclaredInOrder) {
  KSyntax syntax;
  orvMetadataCmd::addMetadataFlags(syntax);
  Texts flags;
  for (const vesk::FlagSpec& flag : HostAccess::data(syntax).flags()) {
    flags.push_back(flag.shortName + " " + flag.longName + " " +
                    std::to_string(flag.arguments.size()) + (flag.multiUse ? " multi" : ""));
  }
  EXPECT_THAT(flags,
              ElementsAre("-qmd -queryMetaData 1", "-qms -queryMetaDatas 0", "-smd -setMetaData 2",
                          "-amd -addMetaData 2", "-rmd -removeMetaData 2", "-cmd -clearMetaData 1",
                          "-mfs -setMetaDataFromString 1", "-mas -queryMetaDataAsString 0"));
}

TEST_F(MetadataFlags, SetGivesANameOneValue) {
  run("-setMetaData color red");
  EXPECT_EQ(all(), "\"{color=red}\"");
  run("-setMetaData color blue");
  EXPECT_EQ(all(), "\"{color=blue}\"");
}

TEST_F(MetadataFlags, AddGivesANameAnotherValue) {
  run("-addMetaData tags a");
  run("-addMetaData tags b");
  EXPECT_EQ(all(), "\"{tags={a,b}}\"");
}

TEST_F(MetadataFlags, RemoveTakesOneValue) {
  run("-setMetaDataFromString \"{tags={a,b},note=n}\"");
  run("-removeMetaData tags a");
  EXPECT_EQ(all(), "\"{tags=b,note=n}\"");
}

TEST_F(MetadataFlags, ClearTakesANameWithItsValues) {
  run("-setMetaDataFromString \"{tags={a,b},note=n}\"");
  run("-clearMetaData tags");
  EXPECT_EQ(all(), "\"{note=n}\"");
}

TEST_F(MetadataFlags, SetFromStringReplacesAll) {
  run("-setMetaData color red");
  run("-setMetaDataFromString \"{tags={a,b},note=n}\"");
  EXPECT_EQ(all(), "\"{tags={a,b},note=n}\"");
}

TEST_F(MetadataFlags, WhatAQueryGivesAsTextCanBeSetAgain) {
  run("-setMetaDataFromString \"{a=1,b={x\\\\,y,},c={,}}\"");
  const std::string text = all();
  run("-setMetaData a 2");
  run("-setMetaDataFromString " + text);
  EXPECT_EQ(all(), text);
}

TEST_F(MetadataFlags, AnEmptyValueIsAValue) {
  run("-setMetaData note \"\"");
  EXPECT_EQ(run("-queryMetaData note"), R"([""])");
  run("-addMetaData note \"\"");
  EXPECT_EQ(run("-queryMetaData note"), R"(["",""])");
  run("-removeMetaData note \"\"; graphProbe g \"/group\" -addMetaData note n");
  EXPECT_EQ(run("-queryMetaData note"), R"(["","n"])");
}

TEST_F(MetadataFlags, OneLineIsCarriedOutInTheOrderOfReading) {
  run("-removeMetaData k a -addMetaData k b -setMetaData k a");
  EXPECT_EQ(all(), "\"{k=b}\"");
  run("-clearMetaData k -addMetaData k b -setMetaData k a");
  EXPECT_EQ(all(), "\"{}\"");
  run("-setMetaDataFromString \"{x=1}\" -addMetaData k a");
  EXPECT_EQ(all(), "\"{x=1}\"");
}

TEST_F(MetadataFlags, AQueryTellsWhatTheEditsOfItsLineMade) {
  EXPECT_EQ(run("-queryMetaData k -setMetaData k a -addMetaData k b"), R"(["a","b"])");
  EXPECT_EQ(run("-clearMetaData k -queryMetaDatas"), "[]");
}

class MetadataQueries : public MetadataTest {};

TEST_F(MetadataQueries, GiveTheValuesOfAName) {
  run("-setMetaDataFromString \"{tags={a,b},note=n}\"");
  EXPECT_EQ(run("-queryMetaData tags"), R"(["a","b"])");
  EXPECT_EQ(run("-queryMetaData note"), R"(["n"])");
}

TEST_F(MetadataQueries, GiveAnEmptyListForAnUnknownName) {
  EXPECT_EQ(run("-queryMetaData nothing"), "[]");
}

TEST_F(MetadataQueries, GiveAllNames) {
  EXPECT_EQ(run("-queryMetaDatas"), "[]");
  run("-setMetaDataFromString \"{tags={a,b},note=n}\"");
  EXPECT_EQ(run("-queryMetaDatas"), R"(["tags","note"])");
}

TEST_F(MetadataQueries, GiveAllAsOneText) {
  EXPECT_EQ(all(), "\"{}\"");
  run("-setMetaDataFromString \"{tags={a,b},note=n}\"");
  EXPECT_EQ(all(), "\"{tags={a,b},note=n}\"");
}

TEST_F(MetadataQueries, AListReplacesTheText) {
  run("-setMetaData k v");
  EXPECT_EQ(run("-queryMetaDataAsString -queryMetaData k"), R"(["v"])");
  EXPECT_EQ(run("-queryMetaDataAsString -queryMetaDatas"), R"(["k"])");
}

TEST_F(MetadataQueries, AllNamesGoBeforeTheValuesOfOne) {
  run("-setMetaData k v");
  EXPECT_EQ(run("-queryMetaData k -queryMetaDatas"), R"(["k"])");
}

TEST_F(MetadataQueries, OfAllNamesStillNeedTheNameOfOneToBeThere) {
  EXPECT_THAT(refusal("-queryMetaDatas -queryMetaData \"\""),
              ElementsAre(kEmptyName, kParsingError));
}

TEST_F(MetadataQueries, WithoutAQueryThereIsNoResult) {
  EXPECT_EQ(run(""), "");
  EXPECT_EQ(run("-setMetaData k v"), "");
}

TEST_F(MetadataQueries, OfAMissingWatchPointGiveNoResult) {
  for (const char* query : {"-queryMetaDatas", "-queryMetaData k", "-queryMetaDataAsString"}) {
    EXPECT_EQ(host.run(std::string("graphProbe g \"/add\" -watchPoint a ") + query), "") << query;
  }
}

class MetadataRefusals : public MetadataTest {};

TEST_F(MetadataRefusals, AnEmptyNameIsToldInTwoLines) {
  for (const char* flags : {"-queryMetaData \"\"", "-setMetaData \"\" v", "-addMetaData \"\" v",
                            "-removeMetaData \"\" v", "-clearMetaData \"\""}) {
    EXPECT_THAT(refusal(flags), ElementsAre(kEmptyName, kParsingError)) << flags;
  }
}

TEST_F(MetadataRefusals, EmptyTextAndMalformedTextAreToldInTwoLines) {
  for (const char* text : {"\"\"", "\"{\"", "\"k=v\"", "\"{k=}\"", "\"{k=v} \""}) {
    EXPECT_THAT(refusal(std::string("-setMetaDataFromString ") + text),
                ElementsAre(kBadText, kParsingError))
        << text;
  }
}

TEST_F(MetadataRefusals, TheFirstToBeReadIsTold) {
  EXPECT_THAT(refusal("-setMetaDataFromString \"{\" -clearMetaData \"\""),
              ElementsAre(kEmptyName, kParsingError));
  EXPECT_THAT(refusal("-clearMetaData \"\" -removeMetaData \"\" v"),
              ElementsAre(kEmptyName, kParsingError));
}

TEST_F(MetadataRefusals, NothingOfTheLineIsCarriedOut) {
  run("-setMetaData k v");
  refusal("-setMetaData k other -addMetaData \"\" v");
  refusal("-clearMetaData k -setMetaDataFromString \"{\"");
  EXPECT_EQ(all(), "\"{k=v}\"");
  EXPECT_EQ(host.steps().size(), 1u);
}

TEST_F(MetadataRefusals, AnEditThatTheLibraryRefusesFailsWithoutAMessage) {
  const orvlib::ArmedFault fault("MetadataCommand redo");
  ASSERT_TRUE(fault.isArmed());
  EXPECT_EQ(host.status(std::string(kCompound) + "-setMetaData k v -queryMetaDatas"),
            StatusFailure);
  EXPECT_TRUE(fault.refused());
  EXPECT_THAT(host.takeMessages(), IsEmpty());
  EXPECT_THAT(host.steps(), IsEmpty());
  EXPECT_EQ(all(), "\"{}\"");
}

TEST_F(MetadataRefusals, AnEditOfAMissingWatchPointFailsWithoutAMessage) {
  EXPECT_EQ(host.status("graphProbe g \"/add\" -watchPoint a -setMetaData k v"), StatusFailure);
  EXPECT_EQ(host.status("graphProbe g \"/add\" -watchPoint a -clearMetaData k"), StatusFailure);
  EXPECT_THAT(host.takeMessages(), IsEmpty());
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST_F(MetadataRefusals, AnEditOfAWatchPointThatTheLineIsToCreateFails) {
  const std::string line = "graphProbe g \"/add\" -watchPoint a -addWatchPoint -setMetaData k v";
  EXPECT_EQ(host.status(line), StatusFailure);
  EXPECT_THAT(host.takeMessages(), IsEmpty());
  EXPECT_FALSE(graph.findNodeFromPath("/add")->inputs()["a"]->getWatchPoint());
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST_F(MetadataRefusals, ALineWithoutMetadataEditsNeedsNoWatchPoint) {
  EXPECT_EQ(host.run("graphProbe g \"/add\" -watchPoint a -addWatchPoint"), "");
  host.run("graphProbe g \"/add\" -watchPoint a -setMetaData k v");
  EXPECT_EQ(host.run("graphProbe g \"/add\" -watchPoint a -queryMetaDatas"), R"(["k"])");
}

class MetadataUndo : public MetadataTest {};

TEST_F(MetadataUndo, AQueryLeavesNoStep) {
  for (const char* query : {"-queryMetaDatas", "-queryMetaData k", "-queryMetaDataAsString"}) {
    run(query);
  }
  EXPECT_THAT(host.steps(), IsEmpty());
}

TEST_F(MetadataUndo, EachKindOfEditIsAStep) {
  const Texts edits = {"-setMetaData k a", "-addMetaData k b", "-removeMetaData k a",
                       "-clearMetaData k", "-setMetaDataFromString \"{x=1}\""};
  for (const std::string& edit : edits) run(edit);
  EXPECT_EQ(host.steps().size(), edits.size());
}

TEST_F(MetadataUndo, GoesAllTheWayBackAndForwardAgainAndAgain) {
  Texts states = {all()};
  for (const char* edit : {"-smd k a -amd k b", "-amd tags x", "-rmd k a", "-smd note \"\"",
                           "-cmd k", "-mfs \"{x={1,2}}\"", "-amd x 3", "-mfs \"{}\""}) {
    run(edit);
    states.push_back(all());
  }
  for (int round = 0; round < 2; ++round) {
    for (std::size_t i = states.size() - 1; i > 0; --i) {
      host.run("undo");
      EXPECT_EQ(all(), states[i - 1]);
    }
    for (std::size_t i = 1; i < states.size(); ++i) {
      host.run("redo");
      EXPECT_EQ(all(), states[i]);
    }
  }
}

TEST_F(MetadataUndo, PutsANameBackInItsPlace) {
  run("-setMetaDataFromString \"{a=1,b=2,c=3}\"");
  run("-clearMetaData b");
  host.run("undo");
  EXPECT_EQ(all(), "\"{a=1,b=2,c=3}\"");
}

class MetadataOwners : public MetadataTest,
                       public testing::WithParamInterface<std::pair<const char*, const char*>> {
 protected:
  std::string ask(const char* flags) { return host.run(std::string(GetParam().second) + flags); }
};

TEST_P(MetadataOwners, TakeEdits) {
  ask("-setMetaData k a");
  ask("-addMetaData k b");
  ask("-addMetaData tags x");
  ask("-removeMetaData k a");
  EXPECT_EQ(ask("-queryMetaDataAsString"), "\"{k=b,tags=x}\"");
  EXPECT_EQ(ask("-queryMetaData k"), R"(["b"])");
  ask("-clearMetaData k");
  EXPECT_EQ(ask("-queryMetaDatas"), R"(["tags"])");
  ask("-setMetaDataFromString \"{x=1}\"");
  EXPECT_EQ(ask("-queryMetaDatas"), R"(["x"])");
}

TEST_P(MetadataOwners, GoBackAndForward) {
  ask("-setMetaData k a");
  ask("-addMetaData k b");
  host.run("undo");
  EXPECT_EQ(ask("-queryMetaData k"), R"(["a"])");
  host.run("undo");
  EXPECT_EQ(ask("-queryMetaDatas"), "[]");
  host.run("redo; redo");
  EXPECT_EQ(ask("-queryMetaData k"), R"(["a","b"])");
}

TEST_P(MetadataOwners, KeepTheirOwn) {
  ask("-setMetaData k a");
  const std::string self = GetParam().second;
  for (const char* other : {kCompound, kNode, kWatchPoint, "graphProbe g \"/group\" -node "}) {
    if (other == self) continue;
    EXPECT_EQ(host.run(std::string(other) + "-queryMetaDatas"), "[]") << other;
  }
}

TEST_P(MetadataOwners, AreFoundInTheContainerOfTheLine) {
  host.graph("other");
  host.run("graphProbe other \"/\" -create group; graphProbe other \"/\" -addNode core::math::add");
  host.run("graphProbe other \"/add\" -watchPoint result -addWatchPoint");
  ask("-setMetaData k a");
  std::string line = GetParam().second;
  line.replace(line.find(" g "), 3, " other ");
  EXPECT_EQ(host.run(line + "-queryMetaDatas"), "[]");
}

INSTANTIATE_TEST_SUITE_P(All, MetadataOwners,
                         testing::Values(std::pair("Compound", kCompound), std::pair("Node", kNode),
                                         std::pair("WatchPoint", kWatchPoint)),
                         [](const auto& owner) { return std::string(owner.param.first); });

TEST_F(MetadataTest, ACompoundInACompoundIsBoundByItsWholePath) {
  host.run("graphProbe g \"/group\" -create group");
  host.run("graphProbe g \"/group/group\" -setMetaData k inner");
  EXPECT_EQ(all(), "\"{}\"");
  EXPECT_EQ(host.run("graphProbe g \"/group/group\" -mas"), "\"{k=inner}\"");
}

TEST_F(MetadataTest, TheContainerMayBeNamedByItsIdentifier) {
  const std::string uuid = host.session().scene().find("g")->uuid();
  host.run("graphProbe \"" + uuid + "\" \"/group\" -setMetaData k v");
  EXPECT_EQ(all(), "\"{k=v}\"");
}

class MetadataNarrowText : public MetadataTest {
 protected:
  /// The first value of a name, as the library has it.
  std::string value(const char* name) {
    StringArray values;
    graph.findNodeFromPath("/group")->asCompound()->getMetadataValues(name, values);
    return values[0];
  }
};

TEST_F(MetadataNarrowText, IsWhatTheValueOfASetIs) {
  const hosttest::Latin1Locale locale;
  run("-setMetaData \"clé\" \"café\"");
  EXPECT_EQ(value("cl\u00e9"), "caf\xe9");
}

TEST_F(MetadataNarrowText, IsNothingElse) {
  const hosttest::Latin1Locale locale;
  run("-addMetaData \"clé\" \"café\"");
  EXPECT_EQ(value("cl\u00e9"), "caf\u00e9");
  EXPECT_EQ(run("-queryMetaData \"clé\""), "[\"café\"]");
  EXPECT_EQ(run("-queryMetaDatas"), "[\"clé\"]");
  EXPECT_EQ(all(), "\"{clé=café}\"");
  run("-removeMetaData \"clé\" \"café\"");
  EXPECT_EQ(value("cl\u00e9"), "");
  run("-setMetaDataFromString \"{clé=été}\"");
  EXPECT_EQ(value("cl\u00e9"), "\u00e9t\u00e9");
  run("-clearMetaData \"clé\"");
  EXPECT_EQ(all(), "\"{}\"");
}

}  // namespace
