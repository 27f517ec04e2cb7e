// Metadata, state flags, annotations and watch points.

#include "platform/ORV_1_0/WatchPoint.h"
#include "tests/hook/HookTesting.h"
#include "tests/support/Latin1Locale.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class HookMetadata : public HookTest {
 protected:
  /// The values of a key of a node, or of the compound that it is the node of.
  static Texts valuesOf(const ORV_v1::Metadata& object, const char* key) {
    ORV_v1::StringArray texts;
    object.getMetadataValues(key, texts);
    Texts found;
    for (unsigned int i = 0; i < texts.size(); ++i) found.emplace_back(texts[i]);
    return found;
  }
  Texts ofNode(const std::string& path, const char* key) { return valuesOf(*node(path), key); }
  Texts ofCompound(const char* key) { return valuesOf(*compound("/group"), key); }
};

TEST_F(HookMetadata, SetMetaDataOfANode) {
  EXPECT_EQ(editTraceOf([&] { hook().setMetaData(0, node("/a"), "key", "value"); }),
            edit(R"(orvNode "g" "/a" -setMetaData "key" "value")"));
  EXPECT_THAT(ofNode("/a", "key"), ElementsAre("value"));
}

TEST_F(HookMetadata, SetMetaDataOfACompoundForEveryKindButNought) {
  for (const int kind : {1, 2, -1}) {
    const QString value = QString::number(kind);
    EXPECT_EQ(
        traceOf([&] { hook().setMetaData(kind, node("/group"), "key", value); }),
        edit(R"(orvCompound "g" "/group" -setMetaData "key" ")" + value.toStdString() + "\""));
    EXPECT_THAT(ofCompound("key"), ElementsAre(value.toStdString()));
  }
}

TEST_F(HookMetadata, ANodeIsTakenAsItIsAlsoThatOfACompound) {
  EXPECT_EQ(editTraceOf([&] { hook().setMetaData(0, node("/group"), "key", "value"); }),
            edit(R"(orvNode "g" "/group" -setMetaData "key" "value")"));
  EXPECT_THAT(ofNode("/group", "key"), ElementsAre("value"));
  EXPECT_THAT(ofCompound("key"), IsEmpty());
}

TEST_F(HookMetadata, AddMetaData) {
  hook().setMetaData(0, node("/a"), "key", "one");
  EXPECT_EQ(editTraceOf([&] { hook().addMetaData(0, node("/a"), "key", "two"); }),
            edit(R"(orvNode "g" "/a" -addMetaData "key" "two")"));
  EXPECT_THAT(ofNode("/a", "key"), ElementsAre("one", "two"));
  EXPECT_EQ(editTraceOf([&] { hook().addMetaData(2, node("/group"), "key", "two"); }),
            edit(R"(orvCompound "g" "/group" -addMetaData "key" "two")"));
}

TEST_F(HookMetadata, RemoveMetaDataTakesKeyAndValue) {
  for (const char* value : {"one", "two"}) {
    hook().addMetaData(0, node("/a"), "key", value);
    hook().addMetaData(1, node("/group"), "key", value);
  }
  EXPECT_EQ(editTraceOf([&] { hook().removeMetaData(0, node("/a"), "key", "one"); }),
            edit(R"(orvNode "g" "/a" -removeMetaData "key" "one")"));
  EXPECT_THAT(ofNode("/a", "key"), ElementsAre("two"));
  EXPECT_EQ(editTraceOf([&] { hook().removeMetaData(2, node("/group"), "key", "two"); }),
            edit(R"(orvCompound "g" "/group" -removeMetaData "key" "two")"));
}

TEST_F(HookMetadata, ClearMetaDataTakesTheKeyAlone) {
  for (const char* value : {"one", "two"}) {
    hook().addMetaData(0, node("/a"), "key", value);
    hook().addMetaData(1, node("/group"), "key", value);
  }
  EXPECT_EQ(editTraceOf([&] { hook().clearMetaData(0, node("/a"), "key"); }),
            edit(R"(orvNode "g" "/a" -clearMetaData "key")"));
  EXPECT_THAT(ofNode("/a", "key"), IsEmpty());
  EXPECT_EQ(editTraceOf([&] { hook().clearMetaData(2, node("/group"), "key"); }),
            edit(R"(orvCompound "g" "/group" -clearMetaData "key")"));
}

TEST_F(HookMetadata, SetMetaDataFromStringWritesTheListAsOneText) {
  ORV_v1::PropertyList list;
  ASSERT_TRUE(list.unserialize("{color=red,tags={a,b}}", ORV_v1::PropertyList::kSerializeAll));
  EXPECT_EQ(editTraceOf([&] { hook().setMetaDataFromString(0, node("/a"), list); }),
            edit(R"(orvNode "g" "/a" -setMetaDataFromString "{color=red,tags={a,b}}")"));
  EXPECT_THAT(ofNode("/a", "tags"), ElementsAre("a", "b"));
  EXPECT_EQ(editTraceOf([&] { hook().setMetaDataFromString(2, node("/group"), list); }),
            edit(R"(orvCompound "g" "/group" -setMetaDataFromString "{color=red,tags={a,b}}")"));
}

TEST_F(HookMetadata, SetMetaDataFromStringKeepsAwkwardTexts) {
  hook().setMetaData(0, node("/b"), "key", "a \"b\" \\ {c},\nd=\t数据🙂");
  hook().setMetaDataFromString(0, node("/a"), node("/b")->getMetadata());
  EXPECT_THAT(ofNode("/a", "key"), ElementsAre("a \"b\" \\ {c},\nd=\t数据🙂"));
}

TEST_F(HookMetadata, TextsAreUtf8WhateverTheLocale) {
  const hosttest::Latin1Locale locale;
  EXPECT_EQ(editTraceOf([&] { hook().setMetaData(0, node("/a"), "Größe", "数据🙂"); }),
            edit(R"(orvNode "g" "/a" -setMetaData "Größe" "数据🙂")"));
  hook().editAnnotation(4, top(), "note", "text", "Größe 数据🙂");
  EXPECT_STREQ(graph.findAnnotationFromPath("/note")->getAnnotationMetaDataValue("text").toChar(),
               "Größe 数据🙂");
}

// State flags.

TEST_F(HookMetadata, SetStateFlagIsALineOfTheNodeWhateverItIs) {
  for (const std::string path : {"/a", "/group"}) {
    bool done = false;
    EXPECT_EQ(editTraceOf([&] { done = hook().setStateFlag(node(path), 'f', true); }),
              edit("orvNode \"g\" \"" + path + "\" -setStateFlag \"f\" true"));
    EXPECT_TRUE(done);
    EXPECT_EQ(editTraceOf([&] { done = hook().setStateFlag(node(path), 'f', false); }),
              edit("orvNode \"g\" \"" + path + "\" -setStateFlag \"f\" false"));
  }
}

TEST_F(HookMetadata, SetStateFlagEscapesItsLetter) {
  bool done = true;
  const std::string line = R"(orvNode "g" "/a" -setStateFlag "\"" true)";
  const Trace trace = traceOf([&] { done = hook().setStateFlag(node("/a"), '"', true); });
  EXPECT_EQ(trace.journal.back(), line);
  EXPECT_THAT(trace.echoes, ElementsAre(line));
  host.takeMessages();
}

TEST_F(HookMetadata, SetStateFlagTellsTheStatusAlone) {
  replaceByFailure("orvNode");
  bool done = true;
  EXPECT_EQ(traceOf([&] { done = hook().setStateFlag(node("/a"), 'f', true); }),
            failed(R"(orvNode "g" "/a" -setStateFlag "f" true)"));
  EXPECT_FALSE(done);
}

// Metadata of ports.

TEST_F(HookMetadata, SetPortMetaDataValueIsOfACompoundForOneAlone) {
  EXPECT_EQ(editTraceOf([&] { hook().setPortMetaDataValue(1, port("/group.in"), "unit", "mm"); }),
            edit(R"(orvCompound "g" "/group" -setPortMetaDataValue "in" "unit" "mm")"));
  EXPECT_STREQ(port("/group.in")->getPortMetaDataValue("unit").toChar(), "mm");
  for (const int kind : {0, 2, -1}) {
    const QString value = QString::number(kind);
    EXPECT_EQ(
        editTraceOf([&] { hook().setPortMetaDataValue(kind, port("/a.value"), "unit", value); }),
        edit(R"(orvNode "g" "/a" -setPortMetaDataValue "value" "unit" ")" + value.toStdString() +
             "\""));
  }
}

TEST_F(HookMetadata, SetPortMetaDataValueNamesThePortAlone) {
  const Trace trace =
      traceOf([&] { hook().setPortMetaDataValue(0, port("/vec.vector.x"), "unit", "mm"); });
  EXPECT_EQ(trace.journal.back(), R"(orvNode "g" "/vec" -setPortMetaDataValue "x" "unit" "mm")");
  host.takeMessages();
}

// Annotations.

TEST_F(HookMetadata, EditAnnotationAdds) {
  EXPECT_EQ(editTraceOf([&] { hook().editAnnotation(0, top(), "back", "no", "no"); }),
            edit(R"(orvCompound "g" "/" -addBackdrop "back")"));
  EXPECT_EQ(editTraceOf([&] { hook().editAnnotation(1, compound("/group"), "memo", "n", "n"); }),
            edit(R"(orvCompound "g" "/group" -addStickyNote "memo")"));
  EXPECT_THAT(annotations("/"), ElementsAre("frame", "note", "back"));
  EXPECT_THAT(annotations("/group"), ElementsAre("note")) << "the graph names its notes itself";
}

TEST_F(HookMetadata, EditAnnotationRenamesAndRemoves) {
  EXPECT_EQ(editTraceOf([&] { hook().editAnnotation(2, top(), "frame", "back", "no"); }),
            edit(R"(orvCompound "g" "/" -renameAnnotation "frame" "back")"));
  EXPECT_THAT(annotations("/"), ElementsAre("back", "note"));
  EXPECT_EQ(editTraceOf([&] { hook().editAnnotation(3, top(), "back", nullptr, nullptr); }),
            edit(R"(orvCompound "g" "/" -removeAnnotation "back")"));
  EXPECT_THAT(annotations("/"), ElementsAre("note"));
}

TEST_F(HookMetadata, EditAnnotationSetsMetadata) {
  EXPECT_EQ(editTraceOf([&] { hook().editAnnotation(4, top(), "note", "text", "Hello"); }),
            edit(R"(orvCompound "g" "/" -setAnnotationMetaDataValue "note" "text" "Hello")"));
  EXPECT_STREQ(graph.findAnnotationFromPath("/note")->getAnnotationMetaDataValue("text").toChar(),
               "Hello");
}

TEST_F(HookMetadata, EditAnnotationTakesNullForEmptyText) {
  hook().editAnnotation(4, top(), "note", "text", "Hello");
  const Trace trace = traceOf([&] { hook().editAnnotation(4, top(), "note", "text", nullptr); });
  EXPECT_EQ(trace.journal.back(),
            R"(orvCompound "g" "/" -setAnnotationMetaDataValue "note" "text" "")");
}

TEST_F(HookMetadata, EditAnnotationOfAnotherNumberRunsALineWithoutAFlag) {
  for (const unsigned int operation : {5u, 7u, 4294967295u}) {
    EXPECT_EQ(traceOf([&] { hook().editAnnotation(operation, top(), "frame", "b", "c"); }),
              shown(R"(orvCompound "g" "/")"))
        << operation;
  }
}

// Watch points.

TEST_F(HookMetadata, EditWatchPointCreatesAndRemoves) {
  bool done = false;
  EXPECT_EQ(editTraceOf([&] { done = hook().editWatchPoint(0, port("/a.result"), "k", "v"); }),
            edit(R"(orvWatchPoint "g" "/a" "result" -create)"));
  EXPECT_TRUE(done);
  EXPECT_TRUE(port("/a.result")->getWatchPoint());
  done = false;
  EXPECT_EQ(editTraceOf([&] { done = hook().editWatchPoint(1, port("/a.result"), "k", "v"); }),
            edit(R"(orvWatchPoint "g" "/a" "result" -remove)"));
  EXPECT_TRUE(done);
  EXPECT_FALSE(port("/a.result")->getWatchPoint());
}

TEST_F(HookMetadata, EditWatchPointSetsMetadata) {
  hook().editWatchPoint(0, port("/a.result"), "", "");
  EXPECT_EQ(editTraceOf([&] { hook().editWatchPoint(2, port("/a.result"), "key", "value"); }),
            edit(R"(orvWatchPoint "g" "/a" "result" -setMetaData "key" "value")"));
  EXPECT_THAT(valuesOf(*port("/a.result")->getWatchPoint(), "key"), ElementsAre("value"));
}

TEST_F(HookMetadata, EditWatchPointOfAChildGoesByTheFullName) {
  bool done = false;
  EXPECT_EQ(editTraceOf([&] { done = hook().editWatchPoint(0, port("/vec.vector.y"), "", ""); }),
            edit(R"(orvWatchPoint "g" "/vec" "vector.y" -create)"));
  EXPECT_TRUE(done);
}

TEST_F(HookMetadata, EditWatchPointOfAnotherNumberRunsALineWithoutAFlag) {
  for (const unsigned int operation : {3u, 4294967295u}) {
    const Trace trace =
        traceOf([&] { hook().editWatchPoint(operation, port("/a.result"), "k", "v"); });
    EXPECT_EQ(trace.journal.back(), R"(orvWatchPoint "g" "/a" "result")") << operation;
    EXPECT_THAT(trace.steps, IsEmpty());
  }
  host.takeMessages();
}

TEST_F(HookMetadata, EditWatchPointThatFailsIsFalseUnlessItGaveOne) {
  bool givesOne = false;
  replace("orvWatchPoint", {.doIt = [&](KPxCommand& command, auto&) -> KStatus {
            command.setResult(givesOne);
            return StatusFailure;
          }});
  EXPECT_FALSE(hook().editWatchPoint(1, port("/a.result"), "", ""));
  givesOne = true;
  EXPECT_TRUE(hook().editWatchPoint(1, port("/a.result"), "", ""));
}

// Failures of operations without an answer.

TEST_F(HookMetadata, WhatIsRefusedIsTheHostsToTell) {
  const std::string before = stored();
  hook().editAnnotation(3, top(), "nobody", nullptr, nullptr);
  hook().setMetaData(1, node("/a"), "key", "value");
  hook().setPortMetaDataValue(1, port("/a.value"), "key", "value");
  EXPECT_EQ(stored(), before);
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! /a is not a compound name", "! /a is not a compound name"));
}

}  // namespace
