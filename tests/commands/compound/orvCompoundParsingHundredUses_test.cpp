// A hundred uses of each flag that may be repeated.

#include "tests/commands/compound/CompoundNames.h"

namespace {

using hosttest::Texts;
using testing::Each;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::SizeIs;

/// In each text "#" stands for the number of the use: nothing, then 1 to 99, as names are numbered.
struct Hundred {
  const char* name;
  const char* setUp;  ///< what each use needs; may be empty
  const char* prefix;
  const char* use;
  const char* path;  ///< of the compound in which the names are then to be found
  Texts (CompoundNames::*names)() const;
  const char* expected;  ///< empty when there is nothing left
};

constexpr Hundred kHundreds[] = {
    {"addNode", "", "", "-an core::math::add", "/", &CompoundNames::nodes, "add#"},
    {"addIONode", "", "", "-aio true", "/", &CompoundNames::nodes, "input#"},
    {"removeNode", "-an core::math::add", "", "-rmn add#", "/", &CompoundNames::nodes, ""},
    {"renameNode", "-an core::math::add", "", "-rn add# sum#", "/", &CompoundNames::nodes, "sum#"},
    {"moveNodeIn", "-an core::math::add", "-create c ", "-mi add#", "/c", &CompoundNames::nodes,
     "add#"},
    {"addBackdrop", "", "", "-ab b#", "/", &CompoundNames::annotations, "b#"},
    {"addStickyNote", "", "", "-asn text", "/", &CompoundNames::annotations, "note#"},
    {"removeAnnotation", "-ab b#", "", "-rma b#", "/", &CompoundNames::annotations, ""},
    {"renameAnnotation", "-ab b#", "", "-ra b# c#", "/", &CompoundNames::annotations, "c#"},
    {"moveAnnotationIn", "-ab b#", "-create c ", "-mai b#", "/c", &CompoundNames::annotations,
     "b#"},
    {"createInputPort", "", "", "-cip i# float", "/", &CompoundNames::inputs, "i#"},
    {"createOutputPort", "", "", "-cop o# float", "/", &CompoundNames::outputs, "o#"},
    {"renamePort", "-cip i# float", "", "-rp i# j#", "/", &CompoundNames::inputs, "j#"},
    {"deletePort", "-cip i# float", "", "-dp i#", "/", &CompoundNames::inputs, ""},
};

void PrintTo(const Hundred& hundred, std::ostream* out) { *out << hundred.name; }

std::string numbered(std::string text, int number) {
  for (std::size_t at; (at = text.find('#')) != std::string::npos;) {
    text.replace(at, 1, number == 0 ? "" : std::to_string(number));
  }
  return text;
}

Texts hundred(const char* text) {
  Texts texts;
  for (int i = 0; i < 100; ++i) texts.push_back(numbered(text, i));
  return texts;
}

std::string lineOf(const char* use) {
  std::string line;
  for (const std::string& text : hundred(use)) line += text + " ";
  return line;
}

class CompoundHundred : public CompoundTest, public testing::WithParamInterface<Hundred> {
 protected:
  CompoundHundred() {
    if (*GetParam().setUp) run("/", lineOf(GetParam().setUp));
    host.session().undoQueue().clear();
  }
  std::string hundredLine() const { return GetParam().prefix + lineOf(GetParam().use); }
};

INSTANTIATE_TEST_SUITE_P(All, CompoundHundred, testing::ValuesIn(kHundreds),
                         [](const auto& test) { return std::string(test.param.name); });

TEST_P(CompoundHundred, AreCarriedOutInTheOrderOfTheLine) {
  run("/", hundredLine());
  const Texts names = (CompoundNames(graph, GetParam().path).*GetParam().names)();
  if (*GetParam().expected) {
    EXPECT_THAT(names, ElementsAreArray(hundred(GetParam().expected)));
  } else {
    EXPECT_THAT(names, IsEmpty());
  }
}

TEST_P(CompoundHundred, AreOneStepThatCanBeUndoneAndRedone) {
  sweep("/", hundredLine());
  EXPECT_THAT(host.steps(), IsEmpty());
}

class CompoundHundreds : public CompoundTest {};

TEST_F(CompoundHundreds, OfCompoundsAreExplodedInOneStep) {
  for (int i = 0; i < 100; ++i) run("/", numbered("-create c#", i));
  for (int i = 0; i < 100; ++i) run(numbered("/c#", i), "-an core::math::add");
  host.session().undoQueue().clear();
  const std::string before = stored();
  run("/", lineOf("-ec c#"));
  EXPECT_THAT(CompoundNames(graph, "/").nodes(), ElementsAreArray(hundred("add#")));
  undo();
  EXPECT_EQ(stored(), before);
}

TEST_F(CompoundHundreds, OfNamesToResetAreEachToldOf) {
  run("/", lineOf("-rtf c#"));
  EXPECT_THAT(host.takeMessages(), ElementsAreArray(hundred("! Node named c# was not found in /")));
}

TEST_F(CompoundHundreds, OfNodesToRenameThatAreNotThereAreEachToldOf) {
  run("/", lineOf("-rn c# d#"));
  EXPECT_THAT(host.takeMessages(), ElementsAreArray(hundred("! Node named c# was not found in /")));
}

TEST_F(CompoundHundreds, OfThingsToMoveInThatAreNotThereAreEachWarnedOf) {
  run("/", "-create n " + lineOf("-mi c#"));
  EXPECT_THAT(
      host.takeMessages(),
      ElementsAreArray(hundred("? Node named c# was not found and will not be moved into n")));
}

TEST_F(CompoundHundreds, OfUnknownTypesAreEachToldOfAndTheOthersAreMade) {
  run("/", lineOf("-cip i# t#") + "-cip last float");
  EXPECT_THAT(host.takeMessages(), ElementsAreArray(hundred("! Unknown port type t#")));
  EXPECT_EQ(run("/", "-listPorts"), "[\"last\"]");
}

}  // namespace
