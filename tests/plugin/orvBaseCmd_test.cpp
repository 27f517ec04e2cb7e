#include "plugin/orvBaseCmd.h"

#include <gmock/gmock.h>

#include "platform/ORV_1_0/PortTypeLookup.h"
#include "platform/ORV_1_0/QtConversions.h"
#include "plugin/pluginMessages.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/host/engine/HostAccess.h"
#include "standalone/host/scene/Scene.h"
#include "tests/plugin/RecordedCalls.h"
#include "tests/support/GraphHost.h"
#include "tests/support/GraphProbeCommand.h"
#include "tests/support/Latin1Locale.h"
#include "tests/support/LineReading.h"

namespace {

using hosttest::GraphHost;
using hosttest::Latin1Locale;
using hosttest::Reading;
using ORV_v1::AddRefWrapper;
using ORV_v1::Compound;
using ORV_v1::Container;
using ORV_v1::PortDataType;
using ORV_v1::StringArray;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kUtf8 = "caf\u00e9";
constexpr const char* kLatin1 = "caf\xe9";

const AddRefWrapper<PortDataType> kNoType;

/// An array of texts given as UTF-8.
KStringArray hostTexts(std::initializer_list<const char*> texts) {
  KStringArray array;
  for (const char* text : texts) array.append(HostAccess::string(text));
  return array;
}

StringArray libraryTexts(std::initializer_list<const char*> texts) {
  StringArray array;
  for (const char* text : texts) array.add(text);
  return array;
}

std::vector<std::string> texts(const StringArray& array) {
  std::vector<std::string> all;
  for (const char* text : array) all.emplace_back(text);
  return all;
}

std::vector<std::string> texts(const KStringArray& array) {
  std::vector<std::string> all;
  for (unsigned i = 0; i < array.length(); ++i) all.emplace_back(array[i].asUTF8());
  return all;
}

class SharedByCommands : public testing::Test {
 protected:
  SharedByCommands() { registerMessages(); }

  std::string uuidOf(const char* node) { return host.session().scene().find(node)->uuid(); }

  GraphHost host;
};

TEST_F(SharedByCommands, FindsAContainerByTheNameOfItsNode) {
  Container& graph = host.graph("g");
  host.graph("other");
  EXPECT_EQ(findContainer("g"), &graph);
}

TEST_F(SharedByCommands, FindsAContainerByItsIdentifier) {
  Container& graph = host.graph("g");
  EXPECT_EQ(findContainer(uuidOf("g").c_str()), &graph);
}

TEST_F(SharedByCommands, ANodeThatHoldsNoGraphIsNoContainer) {
  host.run("createNode group -name \"plain\"");
  EXPECT_EQ(findContainer("plain"), nullptr);
  EXPECT_EQ(findContainer(uuidOf("plain").c_str()), nullptr);
}

TEST_F(SharedByCommands, NoContainerIsFoundByAnUnknownOrEmptyName) {
  host.graph("g");
  EXPECT_EQ(findContainer("nothing"), nullptr);
  EXPECT_EQ(findContainer(""), nullptr);
  EXPECT_THAT(host.takeMessages(), IsEmpty());
}

TEST_F(SharedByCommands, ADeletedNodesContainerIsFoundAgainAfterUndo) {
  host.graph("g");
  host.run("delete g");
  EXPECT_EQ(findContainer("g"), nullptr);
  host.run("undo");
  EXPECT_NE(findContainer("g"), nullptr);
}

TEST_F(SharedByCommands, ANodeThatTheHostDoesNotGiveIsNotLookedForAsAnIdentifier) {
  Container& graph = host.graph("g");
  orvlib::ContainerObject other("standard");
  other.publishUuid("g");
  {
    const RefusedSelections refused;
    EXPECT_EQ(findContainer("g"), nullptr);
    EXPECT_EQ(findContainer(uuidOf("g").c_str()), &graph);
  }
  EXPECT_EQ(findContainer("g"), &graph);
}

KSyntax oneText() {
  KSyntax syntax;
  addStringArgument(syntax);
  return syntax;
}

TEST_F(SharedByCommands, AStringArgumentIsOnePositionalText) {
  EXPECT_THAT(HostAccess::data(oneText()).arguments(), ElementsAre(KSyntax::ArgString));
}

TEST_F(SharedByCommands, TheContainerIsTheFirstArgument) {
  const Reading line(oneText(), "g");
  KString name;
  EXPECT_TRUE(getContainerArgument(name, line.database));
  EXPECT_STREQ(name.asUTF8(), "g");
}

TEST_F(SharedByCommands, AMissingContainerIsToldAndGivesTheStatusOfTheRead) {
  const Reading line(oneText(), "");
  KString name("before");
  EXPECT_EQ(getContainerArgument(name, line.database).statusCode(), StatusFailure);
  EXPECT_STREQ(name.asUTF8(), "before");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Too few arguments given."));
}

/// A command's base, opened.
struct Base : orvBaseCmd {
  explicit Base(const char* name) { containerName = name; }
  using orvBaseCmd::requireCompound;
  using orvBaseCmd::requireContainer;
};

TEST_F(SharedByCommands, TheTopCompoundIsFoundByItsPath) {
  Container& graph = host.graph("g");
  const AddRefWrapper<Compound> compound = Base("g").requireCompound("/");
  ASSERT_TRUE(compound);
  EXPECT_EQ(compound->getAsNode().get(), graph.getTopNode().get());
}

TEST_F(SharedByCommands, NoCompoundIsFoundWithoutAContainer) {
  EXPECT_FALSE(Base("nothing").requireCompound("/"));
  EXPECT_FALSE(Base("").requireCompound("/"));
  EXPECT_EQ(Base("nothing").requireContainer(), nullptr);
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! nothing is not a DG ORV container", "!  is not a DG ORV container",
                          "! nothing is not a DG ORV container"));
}

TEST_F(SharedByCommands, APathThatIsNotThereIsToldAsNoCompound) {
  host.graph("g");
  EXPECT_FALSE(Base("g").requireCompound("/nothing"));
  EXPECT_FALSE(Base("g").requireCompound(""));
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! /nothing is not a compound name", "!  is not a compound name"));
}

TEST_F(SharedByCommands, APlainNodeIsToldAsNoCompound) {
  host.graph("g");
  host.session().registry().add(
      {"graphProbe", GraphProbeCommand::creator, GraphProbeCommand::createSyntax(), nullptr, {}});
  host.run("graphProbe g \"/\" -addNode \"core::math::add\"");
  EXPECT_FALSE(Base("g").requireCompound("/add"));
  EXPECT_THAT(host.takeMessages(), ElementsAre("! /add is not a compound name"));
}

TEST(TextsToTheLibrary, ReplaceWhatWasThereInOrder) {
  StringArray to = libraryTexts({"before"});
  toStringArray(hostTexts({"b", "", "a"}), to);
  EXPECT_THAT(texts(to), ElementsAre("b", "", "a"));
  toStringArray(hostTexts({}), to);
  EXPECT_EQ(to.size(), 0u);
}

TEST(TextsToTheLibrary, AreNarrow) {
  const Latin1Locale locale;
  StringArray to;
  toStringArray(hostTexts({kUtf8}), to);
  EXPECT_THAT(texts(to), ElementsAre(kLatin1));
}

TEST(TextsFromTheLibrary, ReplaceWhatWasThereInOrder) {
  KStringArray to = hostTexts({"before", "before", "before", "before"});
  toKStringArray(libraryTexts({"b", "", "a"}), to);
  EXPECT_THAT(texts(to), ElementsAre("b", "", "a"));
}

TEST(TextsFromTheLibrary, OfAnEmptyArrayLeaveNothing) {
  KStringArray to = hostTexts({"before"});
  toKStringArray({}, to);
  EXPECT_EQ(to.length(), 0u);
}

TEST(TextsFromTheLibrary, AreUtf8WhateverTheLocale) {
  const Latin1Locale locale;
  KStringArray to;
  toKStringArray(libraryTexts({kUtf8}), to);
  EXPECT_THAT(texts(to), ElementsAre(kUtf8));
}

TEST(TextsFromTheLibrary, ShowWhatIsNoUtf8AsReplaced) {
  KStringArray to = hostTexts({"before"});
  toKStringArray(libraryTexts({kLatin1}), to);
  EXPECT_THAT(texts(to), ElementsAre("caf\ufffd"));
}

TEST(ValuesInOneText, WithoutATypeAreAnyTexts) {
  StringArray values = libraryTexts({"before"});
  EXPECT_TRUE(unserializePortValues("{/g/add1,two,}", values, kNoType));
  EXPECT_THAT(texts(values), ElementsAre("/g/add1", "two"));
  EXPECT_TRUE(unserializePortValues("", values, kNoType));
  EXPECT_THAT(texts(values), IsEmpty());
}

TEST(ValuesInOneText, LeaveTheArrayWhenTheyCannotBeRead) {
  StringArray values = libraryTexts({"before"});
  EXPECT_FALSE(unserializePortValues("{a", values, kNoType));
  EXPECT_THAT(texts(values), ElementsAre("before"));
}

TEST_F(SharedByCommands, ValuesOfATypeMustFitIt) {
  const auto type = host.graph("g").portTypeLookup().findPortType("vector3");
  ASSERT_TRUE(type);
  StringArray values = libraryTexts({"before"});
  EXPECT_FALSE(unserializePortValues("{1,2}", values, type));
  EXPECT_THAT(texts(values), ElementsAre("before"));
  EXPECT_TRUE(unserializePortValues("{1,2,3}", values, type));
  EXPECT_THAT(texts(values), ElementsAre("1", "2", "3"));
}

TEST(ValuesInOneText, ReachTheLibraryAsUtf8WhateverTheLocale) {
  const Latin1Locale locale;
  StringArray values;
  EXPECT_TRUE(unserializePortValues(HostAccess::string(kUtf8), values, kNoType));
  EXPECT_THAT(texts(values), ElementsAre(kUtf8));
}

QString serialized(const QStringList& list) {
  QString text("before");
  serializeStringList(list, text);
  return text;
}

TEST(ListInOneText, HasTheLibrarysForm) {
  EXPECT_EQ(serialized({}), "{}");
  EXPECT_EQ(serialized({"one"}), "one");
  EXPECT_EQ(serialized({"a", "b,c", "Größe"}), "{a,b\\,c,Größe}");
}

TEST(ListInOneText, IsSplitAsItWas) {
  for (const QStringList& list :
       {QStringList{}, {""}, {"a"}, {"", ""}, {"{", "}", "\\", ","}, {"a b", "\"", "雪"}}) {
    StringArray values;
    const QByteArray text = serialized(list).toUtf8();
    EXPECT_TRUE(unserializePortValues(HostAccess::string(text.constData()), values, kNoType));
    EXPECT_EQ(ORV_v1::toQStringList(values), list) << text.constData();
  }
}

}  // namespace
