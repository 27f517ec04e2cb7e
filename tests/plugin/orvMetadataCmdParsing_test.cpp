// The metadata base without a command around it: what it records before anything is carried out.

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <type_traits>
#include <vector>

#include "platform/OpenVesk/KPxCommand.h"
#include "plugin/orvMetadataCmd.h"
#include "plugin/pluginMessages.h"
#include "tests/support/FailingNew.h"
#include "tests/support/GraphHost.h"
#include "tests/support/GraphProbeCommand.h"
#include "tests/support/LineReading.h"

namespace {

using hosttest::GraphHost;
using hosttest::Reading;
using ORV_v1::Container;
using ORV_v1::StringArray;
using testing::ElementsAre;
using testing::IsEmpty;

/// The base, opened.
struct Parts : orvMetadataCmd {
  using orvMetadataCmd::containerName;
  using orvMetadataCmd::metadataChanged;
  using orvMetadataCmd::metadataCommand;
  using orvMetadataCmd::metadataSourceText;
  using orvMetadataCmd::parseCompoundMetadata;
  using orvMetadataCmd::parseMetadataFlags;
  using orvMetadataCmd::parseNodeMetadata;
  using orvMetadataCmd::parseWatchPointMetadata;
  using orvMetadataCmd::queryAllMetadata;
  using orvMetadataCmd::queryMetadataAsString;
  using orvMetadataCmd::queryMetadataName;
  using orvMetadataCmd::redoMetadata;
  using orvMetadataCmd::undoMetadata;
};

static_assert(std::has_virtual_destructor_v<orvMetadataCmd>);
static_assert(!std::is_base_of_v<KPxCommand, orvMetadataCmd>);

KSyntax makeSyntax() {
  KSyntax syntax;
  orvMetadataCmd::addMetadataFlags(syntax);
  syntax.enableQuery(true);
  return syntax;
}

class MetadataParsing : public testing::Test {
 protected:
  MetadataParsing() { registerMessages(); }

  /// The status of reading a line of flags.
  KStatusCode read(const char* line) {
    const Reading reading(makeSyntax(), line);
    KStatus status = StatusBadArgument;
    parts.parseMetadataFlags(status, reading.database);
    return status.statusCode();
  }

  GraphHost host;
  Parts parts;
};

TEST_F(MetadataParsing, BeginsWithNothing) {
  EXPECT_FALSE(parts.metadataChanged);
  EXPECT_FALSE(parts.queryAllMetadata);
  EXPECT_FALSE(parts.queryMetadataAsString);
  EXPECT_EQ(parts.queryMetadataName.length(), 0u);
  EXPECT_EQ(parts.metadataSourceText.length(), 0u);
}

TEST_F(MetadataParsing, KeepsItsFieldsInOrder) {
  const std::vector<const void*> fields = {&parts.containerName,         &parts.metadataChanged,
                                           &parts.metadataCommand,       &parts.queryAllMetadata,
                                           &parts.queryMetadataAsString, &parts.queryMetadataName,
                                           &parts.metadataSourceText};
  EXPECT_TRUE(std::is_sorted(fields.begin(), fields.end(), std::less<const void*>()));
}

TEST(MetadataCommandBases, TheMetadataBaseComesFirst) {
  GraphProbeCommand command;
  const void* first = static_cast<orvMetadataCmd*>(&command);
  const void* second = static_cast<KPxCommand*>(&command);
  EXPECT_EQ(first, &command);
  EXPECT_GT(second, first);
}

TEST(MetadataCommandBases, TheCreatorGivesTheHostsBase) {
  KPxCommand* made = GraphProbeCommand::creator();
  EXPECT_NE(dynamic_cast<GraphProbeCommand*>(made), nullptr);
  delete made;
}

TEST(MetadataCommandBases, TheCreatorGivesNullWithoutMemory) {
  const FailingNew failing;
  EXPECT_EQ(GraphProbeCommand::creator(), nullptr);
}

TEST_F(MetadataParsing, OfNoFlagsSucceedsAndRecordsNothing) {
  EXPECT_EQ(read(""), StatusSuccess);
  EXPECT_FALSE(parts.metadataChanged);
  EXPECT_TRUE(parts.redoMetadata());
  parts.undoMetadata();
}

TEST_F(MetadataParsing, OfQueriesRecordsNoEdit) {
  EXPECT_EQ(read("-qms -qmd k -mas"), StatusSuccess);
  EXPECT_TRUE(parts.queryAllMetadata);
  EXPECT_TRUE(parts.queryMetadataAsString);
  EXPECT_STREQ(parts.queryMetadataName.asUTF8(), "k");
  EXPECT_FALSE(parts.metadataChanged);
  EXPECT_TRUE(parts.redoMetadata());
}

TEST_F(MetadataParsing, OfEachEditSaysThatThereIsOne) {
  for (const char* line : {"-smd k v", "-amd k v", "-rmd k v", "-cmd k", "-mfs \"{k=v}\""}) {
    Parts fresh;
    KStatus status;
    const Reading reading(makeSyntax(), line);
    fresh.parseMetadataFlags(status, reading.database);
    EXPECT_TRUE(status) << line;
    EXPECT_TRUE(fresh.metadataChanged) << line;
  }
}

TEST_F(MetadataParsing, KeepsTheTextOfAWholeSet) {
  EXPECT_EQ(read("-mfs \"{k=v}\""), StatusSuccess);
  EXPECT_STREQ(parts.metadataSourceText.asUTF8(), "{k=v}");
}

/// A line with one flag that is refused, and what was read of it ahead of that.
struct RefusedLine {
  const char* line;
  bool all;
  const char* name;
  bool changed;
  const char* text;
};

class MetadataOrder : public MetadataParsing, public testing::WithParamInterface<RefusedLine> {};

TEST_P(MetadataOrder, ReadsWhatComesBeforeARefusalAndNothingBehindIt) {
  const RefusedLine& expected = GetParam();
  EXPECT_EQ(read(expected.line), StatusFailure);
  EXPECT_EQ(parts.queryAllMetadata, expected.all);
  EXPECT_STREQ(parts.queryMetadataName.asUTF8(), expected.name);
  EXPECT_EQ(parts.metadataChanged, expected.changed);
  EXPECT_STREQ(parts.metadataSourceText.asUTF8(), expected.text);
  EXPECT_FALSE(parts.queryMetadataAsString);
  EXPECT_EQ(host.takeMessages().size(), 1u);
}

// Each flag is read behind the one ahead of it in this list, and not when that one is refused.
INSTANTIATE_TEST_SUITE_P(
    All, MetadataOrder,
    testing::Values(RefusedLine{"-mas -qmd \"\" -qms", true, "", false, ""},
                    RefusedLine{"-mas -smd k v -qmd \"\"", false, "", false, ""},
                    RefusedLine{"-mas -smd \"\" v -qmd k", false, "k", false, ""},
                    RefusedLine{"-mas -amd k v -smd \"\" v", false, "", false, ""},
                    RefusedLine{"-mas -amd \"\" v -smd k v", false, "", true, ""},
                    RefusedLine{"-mas -rmd k v -amd \"\" v", false, "", false, ""},
                    RefusedLine{"-mas -rmd \"\" v -amd k v", false, "", true, ""},
                    RefusedLine{"-mas -cmd k -rmd \"\" v", false, "", false, ""},
                    RefusedLine{"-mas -cmd \"\" -rmd k v", false, "", true, ""},
                    RefusedLine{"-mas -mfs \"{k=v}\" -cmd \"\"", false, "", false, ""},
                    RefusedLine{"-mas -mfs \"{\" -cmd k", false, "", true, "{"},
                    RefusedLine{"-mas -mfs \"\"", false, "", false, ""}));

TEST_F(MetadataParsing, AnArgumentThatQueryModeTakesAwayCountsAsEmpty) {
  for (const char* line : {"-q -qmd", "-q -smd", "-q -amd", "-q -rmd", "-q -cmd"}) {
    EXPECT_EQ(read(line), StatusFailure) << line;
    EXPECT_THAT(host.takeMessages(), ElementsAre("! The metadata name cannot be empty")) << line;
  }
  EXPECT_EQ(read("-q -mfs"), StatusFailure);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Invalid metadata string format"));
}

TEST_F(MetadataParsing, OfNoObjectFailsWithoutAWordAndReadsNothing) {
  const Reading reading(makeSyntax(), "-qms -smd k v -cmd \"\"");
  KStatus status;
  parts.parseCompoundMetadata(status, reading.database, {});
  EXPECT_EQ(status.statusCode(), StatusFailure);
  status = StatusSuccess;
  parts.parseNodeMetadata(status, reading.database, {});
  EXPECT_EQ(status.statusCode(), StatusFailure);
  status = StatusSuccess;
  parts.parseWatchPointMetadata(status, reading.database, {});
  EXPECT_EQ(status.statusCode(), StatusFailure);
  EXPECT_FALSE(parts.queryAllMetadata);
  EXPECT_FALSE(parts.metadataChanged);
  EXPECT_THAT(host.takeMessages(), IsEmpty());
}

/// How many names the metadata of the top node has.
unsigned int keyCount(Container& graph) {
  StringArray keys;
  graph.getTopNode()->getMetadataKeys(keys);
  return keys.size();
}

TEST_F(MetadataParsing, RecordsAndChangesNothingUntilItIsCarriedOut) {
  Container& graph = host.graph("g");
  parts.containerName = "g";
  const Reading reading(makeSyntax(), "-smd k v");
  KStatus status = StatusBadArgument;
  parts.parseNodeMetadata(status, reading.database, graph.getTopNode());
  EXPECT_TRUE(status);
  EXPECT_EQ(keyCount(graph), 0u);

  for (int round = 0; round < 2; ++round) {
    EXPECT_TRUE(parts.redoMetadata());
    EXPECT_EQ(keyCount(graph), 1u);
    parts.undoMetadata();
    EXPECT_EQ(keyCount(graph), 0u);
    EXPECT_TRUE(parts.metadataChanged);
  }
}

TEST_F(MetadataParsing, LeavesTheLibrarysCommandAloneUnlessAnEditWasParsed) {
  Container& graph = host.graph("g");
  parts.metadataCommand.setParentNode(&graph, "/");
  parts.metadataCommand.addMetadata("k", "v");
  EXPECT_TRUE(parts.redoMetadata());
  EXPECT_EQ(keyCount(graph), 0u);
  ASSERT_TRUE(parts.metadataCommand.redo());
  parts.undoMetadata();
  EXPECT_EQ(keyCount(graph), 1u);
}

TEST_F(MetadataParsing, SaysWhenTheRecordedEditsCannotBeMade) {
  EXPECT_EQ(read("-smd k v"), StatusSuccess);
  EXPECT_FALSE(parts.redoMetadata());
  EXPECT_THAT(host.takeMessages(), IsEmpty());
}

}  // namespace
