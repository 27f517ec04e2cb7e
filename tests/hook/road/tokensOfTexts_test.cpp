// Whatever text a call takes, the host reads the same text again from the line that the hook makes.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>

#include "platform/ORV_1_0/AnnotationList.h"
#include "platform/ORV_1_0/NodeList.h"
#include "platform/ORV_1_0/QtConversions.h"
#include "platform/orvUI_1_0/UserPrefs.h"
#include "tests/hook/road/RandomObjects.h"
#include "tests/hook/road/Road.h"
#include "tests/hook/road/Words.h"

namespace {

using namespace std::string_literals;

using orvUI_v1::CommandHook;

/// So many pairs, each for every handler.
constexpr unsigned kTexts = 2000;

std::string utf8(const QString& text) { return text.toStdString(); }

/// Goes through all handlers that take text, with the same texts.
class TokensOfTexts : public testing::Test {
 protected:
  TokensOfTexts() {
    node_ = road_.graph().findNodeFromPath("/group/add");
    compound_ = road_.graph().findNodeFromPath("/group")->asCompound();
    port_ = compound_->compoundInputs()[0u];
    road_.host().session().undoQueue().clear();
    road_.takeLines();
  }

  /// The one line that ran ends in these words.
  void expectWords(const Words& words) {
    const std::vector<std::string> lines = road_.takeLines();
    ASSERT_EQ(lines.size(), 1u) << operation_;
    const vesk::TokenizedText read = vesk::tokenize(lines[0]);
    ASSERT_EQ(read.statements.size(), 1u) << operation_ << ": " << lines[0];
    Words end = wordsOf(read.statements[0]);
    ASSERT_GE(end.size(), words.size()) << lines[0];
    end.erase(end.begin(), end.end() - static_cast<std::ptrdiff_t>(words.size()));
    EXPECT_EQ(end, words) << operation_ << ": " << lines[0];
  }

  template <class Make>
  void call(const char* operation, Make make, const Words& words) {
    operation_ = operation;
    make(road_.edits());
    expectWords(words);
  }

  /// The graph and the queue as they were.
  void goBack() {
    while (road_.steps() > 0) road_.host().session().undoQueue().undo();
    road_.host().session().undoQueue().clear();
    road_.host().takeMessages();
    road_.host().takeEchoes();
  }

  void nodes(const QString& one, const QString& two);
  void published(const QString& one, const QString& two);
  void ports(const QString& one, const QString& two);
  void portProperties(const QString& one, const QString& two);
  void portValues(const QString& one, const QString& two);
  void metadata(const QString& one, const QString& two);
  void annotations(const QString& one, const QString& two);
  void services(const QString& one, const QString& two);

  Road road_;
  RandomObjects::NodeHandle node_;
  RandomObjects::CompoundHandle compound_;
  RandomObjects::PortHandle port_;
  const char* operation_ = nullptr;
};

void TokensOfTexts::nodes(const QString& one, const QString& two) {
  const std::string a = utf8(one), b = utf8(two);
  const auto nodes = ORV_v1::NodeList::createNew(nullptr);
  const auto notes = ORV_v1::AnnotationList::createNew();
  const bool connects = !two.isEmpty();
  call(
      "addNode", [&](CommandHook& hook) { hook.addNode(compound_, one, two); },
      connects ? Words{"-addNode", a, "-connectTo", b} : Words{"-addNode", a});
  call(
      "addIONode",
      [&](CommandHook& hook) { hook.addIONode(compound_, ORV_v1::NodeFlags::kInputNode, two); },
      connects ? Words{"true", "-connectTo", b} : Words{"-addIONode", "true"});
  call("renameNode", [&](CommandHook& hook) { hook.renameNode(node_, one); },
       {"-renameNode", "add"s, a});
  RandomObjects::CompoundHandle made;
  call("createCompound",
       [&](CommandHook& hook) {
         hook.createCompound(a.c_str(), {compound_, nodes.get(), notes.get()}, made);
       },
       {"-create", a, "g"s, "/group"s});
}

/// There is no published compound of the name to replace, and no library of it: nothing is written.
void TokensOfTexts::published(const QString& one, const QString& two) {
  const std::string a = utf8(one), b = utf8(two), library = "1" + a;
  call("publish",
       [&](CommandHook& hook) {
         hook.publish(compound_, b.c_str(), library.c_str(), a.c_str(), true);
       },
       {"-publish", b, library, a, "true"});
  call("publishGraph",
       [&](CommandHook& hook) {
         hook.publishGraph(compound_, b.c_str(), library.c_str(), a.c_str(), b.c_str());
       },
       {"-publishGraph", b, library, a, b});
}

ORV_v1::NewPortHints hintsOf(const std::string& name, const std::string& type) {
  ORV_v1::NewPortHints hints;
  hints.setNameHint(name.c_str());
  hints.setTypeHint(type.c_str());
  return hints;
}

void TokensOfTexts::ports(const QString& one, const QString& two) {
  const std::string a = utf8(one), b = utf8(two);
  RandomObjects::PortHandle port;
  call("createNodePort",
       [&](CommandHook& hook) { hook.createNodePort(node_, false, hintsOf(a, b), port); },
       {"-createInputPort", a, b});
  port = {};
  call("createCompoundPort",
       [&](CommandHook& hook) { hook.createCompoundPort(compound_, true, hintsOf(a, b), port); },
       {"-createOutputPort", a, b});
  call("setPortDataType", [&](CommandHook& hook) { hook.setPortDataType(1, port_, one); },
       {"-setPortDataType", "size"s, a});
  call("movePortToIONode", [&](CommandHook& hook) { hook.movePortToIONode(port_, one); },
       {"-movePortToIONode", "size"s, a});
  call("setPortMetaDataValue",
       [&](CommandHook& hook) { hook.setPortMetaDataValue(1, port_, one, two); },
       {"-setPortMetaDataValue", "size"s, a, b});
  call("editWatchPoint",
       [&](CommandHook& hook) {
         hook.editWatchPoint(CommandHook::kSetWatchPointMetaData, port_, one, two);
       },
       {"-setMetaData", a, b});
  call("renamePort", [&](CommandHook& hook) { hook.renamePort(port_, one); },
       {"-renamePort", "size"s, a});
}

/// A list as one text, from which the same list is read again.
std::string joined(const QList<QString>& values) {
  const std::string text = ORV_v1::fromQStringList(values)
                               .serialize(ORV_v1::StringArray::kSerializeWithTags,
                                          ORV_v1::StringArray::kDefaultSerializationTags)
                               .toChar();
  ORV_v1::StringArray read;
  EXPECT_TRUE(ORV_v1::Port::unserializePortValuesString(text.c_str(), read, {}));
  EXPECT_EQ(ORV_v1::toQStringList(read), values) << text;
  return text;
}

/// Lists and sets are read back in two steps, as the commands do. A set comes from a node's
/// metadata.
void TokensOfTexts::portProperties(const QString& one, const QString& two) {
  const QString key = "k" + one;
  road_.edits().setMetaData(0, node_, key, two);
  const ORV_v1::PropertyList options = node_->getMetadata();
  road_.takeLines();
  ORV_v1::PortProperties properties;
  properties.setFlags(4);
  properties.defaultValues().setValues(ORV_v1::fromQStringList({one, two}));
  properties.options() = options;
  ORV_v1::NewPortHints hints = hintsOf("p", "int");
  hints.setPropertiesHint(properties);

  const std::string set = options.serialize(ORV_v1::PropertyList::kSerializeAll).toChar();
  const Words words = {"p"s,           "int"s, "-portFlags", "4", "-portValues", joined({one, two}),
                       "-portOptions", set};
  RandomObjects::PortHandle port;
  call(
      "createNodePort", [&](CommandHook& hook) { hook.createNodePort(node_, false, hints, port); },
      words);
  port = {};
  call(
      "createCompoundPort",
      [&](CommandHook& hook) { hook.createCompoundPort(compound_, false, hints, port); }, words);
}

void TokensOfTexts::portValues(const QString& one, const QString& two) {
  const QList<QString> values = {one, two};
  call("setPortDefaultValues",
       [&](CommandHook& hook) { hook.setPortDefaultValues(port_, values, false); },
       {"-setPortDefaultValues", port_->getName() + ""s, joined(values)});
}

void TokensOfTexts::metadata(const QString& one, const QString& two) {
  const std::string a = utf8(one), b = utf8(two);
  call("setMetaData", [&](CommandHook& hook) { hook.setMetaData(0, node_, one, two); },
       {"-setMetaData", a, b});
  call("addMetaData", [&](CommandHook& hook) { hook.addMetaData(1, node_, one, two); },
       {"-addMetaData", a, b});
  call("addMetaData", [&](CommandHook& hook) { hook.addMetaData(0, node_, two, one); },
       {"-addMetaData", b, a});
  const ORV_v1::PropertyList all = node_->getMetadata();
  const std::string text = all.serialize(ORV_v1::PropertyList::kSerializeAll).toChar();
  call("setMetaDataFromString",
       [&](CommandHook& hook) { hook.setMetaDataFromString(0, node_, all); },
       {"-setMetaDataFromString", text});
  EXPECT_EQ(node_->getMetadata().serialize(ORV_v1::PropertyList::kSerializeAll).toChar(), text);
  call("removeMetaData", [&](CommandHook& hook) { hook.removeMetaData(0, node_, one, two); },
       {"-removeMetaData", a, b});
  call("clearMetaData", [&](CommandHook& hook) { hook.clearMetaData(0, node_, one); },
       {"-clearMetaData", a});
}

void TokensOfTexts::annotations(const QString& one, const QString& two) {
  const std::string a = utf8(one), b = utf8(two);
  const std::pair<const char*, Words> rows[] = {{"-addBackdrop", {a}},
                                                {"-addStickyNote", {a}},
                                                {"-renameAnnotation", {a, b}},
                                                {"-removeAnnotation", {a}},
                                                {"-setAnnotationMetaDataValue", {a, b, a}}};
  for (unsigned operation = 0; operation < std::size(rows); ++operation) {
    Words words = {rows[operation].first};
    words.insert(words.end(), rows[operation].second.begin(), rows[operation].second.end());
    call(
        rows[operation].first,
        [&](CommandHook& hook) {
          hook.editAnnotation(operation, compound_, a.c_str(), b.c_str(), a.c_str());
        },
        words);
  }
}

/// The name of a chunk has no blanks.
void TokensOfTexts::services(const QString& one, const QString& two) {
  QString chunk = one;
  chunk.replace(' ', '_');
  operation_ = "openUndoChunk";
  road_.services().openUndoChunk(one);
  expectWords(one.isEmpty() ? Words{"undoInfo", "-openChunk"} : Words{"-chunkName", utf8(chunk)});
  road_.services().closeUndoChunk();
  road_.takeLines();

  operation_ = "syncUserPrefs";
  const QJsonDocument preferences(QJsonObject{{one, two}});
  orvUI_v1::setUserPrefs(preferences);
  road_.services().syncUserPrefs(orvUI_v1::AppServicesHook::kSavePrefs);
  expectWords({"orvUIUserPrefs"s, preferences.toJson(QJsonDocument::Compact).toStdString()});
}

TEST_F(TokensOfTexts, AreTheTextsThatWereGiven) {
  RandomTexts texts(1);
  for (unsigned i = 0; i < kTexts && !HasFailure(); ++i) {
    const QString one = texts.any(), two = texts.any();
    nodes(one, two);
    published(one, two);
    goBack();
    ports(one, two);
    goBack();
    portProperties(one, two);
    goBack();
    portValues(one, two);
    metadata(one, two);
    annotations(one, two);
    goBack();
    services(one, two);
    goBack();
  }
}

TEST_F(TokensOfTexts, AreTheFlagOfEveryCharacter) {
  for (int code = 1; code < 256; ++code) {
    const char flag = static_cast<char>(code);
    call("setStateFlag", [&](CommandHook& hook) { hook.setStateFlag(node_, flag, true); },
         {"-setStateFlag", utf8(QString(QLatin1Char(flag))), "true"});
  }
  road_.host().takeMessages();
}

/// Within a text of Qt it ends the line, which then cannot be read: nothing is edited by half a
/// text.
TEST_F(TokensOfTexts, EndAtAZeroCharacter) {
  const QString text = QStringLiteral("a") + QChar(0) + "b";
  const std::string before = road_.stored();
  road_.edits().renameNode(node_, text);
  road_.edits().setMetaData(0, node_, text, "value");
  EXPECT_THAT(road_.takeLines(), testing::IsEmpty());
  EXPECT_THAT(road_.host().takeMessages(),
              testing::Each(testing::HasSubstr("the quoted text has no end")));
  EXPECT_EQ(road_.stored(), before);

  road_.edits().setPortDefaultValues(port_, {text, "c"}, false);
  expectWords({"{a,c}"s});
  road_.host().takeMessages();
}

}  // namespace
