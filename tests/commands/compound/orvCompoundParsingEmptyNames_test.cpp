// Empty texts where a name is wanted.

#include "tests/commands/compound/CompoundNames.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A graph with the compound "n", the input "p" and the backdrop "b".
class CompoundEmptyNames : public CompoundTest {
 protected:
  CompoundEmptyNames() {
    run("/", "-create n -cip p float -ab b");
    host.session().undoQueue().clear();
  }
  CompoundNames names() { return {graph, "/"}; }
};

TEST_F(CompoundEmptyNames, ACompoundGetsANameOfItsOwn) {
  EXPECT_EQ(run("/", "-create \"\""), "\"/compound\"");
  undo();
  sweep("/", "-create \"\"");
}

TEST_F(CompoundEmptyNames, AreNoNodeAndNoAnnotationToMoveIn) {
  EXPECT_EQ(run("/", "-create c -mi \"\" -mai \"\""), "\"/c\"");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("? Node named  was not found and will not be moved into c",
                          "? Backdrop/Sticky named  was not found and will not be moved into c"));
}

TEST_F(CompoundEmptyNames, AreNoCompoundToExplode) {
  EXPECT_THAT(refusal("/", "-explode \"\""), ElementsAre("! Node named  was not found in /"));
}

TEST_F(CompoundEmptyNames, AreNoNodeTypeAndNoNodeToRemove) {
  EXPECT_EQ(run("/", "-an \"\" -rmn \"\""), "[]");
  EXPECT_THAT(names().nodes(), ElementsAre("n"));
}

TEST_F(CompoundEmptyNames, ConnectToNothing) {
  EXPECT_EQ(run("/", "-an core::math::add -cot \"\""), "[\"add\"]");
}

TEST_F(CompoundEmptyNames, AreNoAnnotationToRemoveOrRename) {
  const std::string before = stored();
  run("/", "-rma \"\" -ra \"\" x");
  EXPECT_EQ(stored(), before);
}

TEST_F(CompoundEmptyNames, ABackdropGetsANameAllTheSame) {
  run("/", "-ab \"\"");
  EXPECT_THAT(names().annotations(), ElementsAre("b", testing::Not(IsEmpty())));
}

TEST_F(CompoundEmptyNames, AnAnnotationOrKeyForMetadataIsRefusedWithBoth) {
  EXPECT_THAT(refusal("/", "-sam \"\" k v"),
              ElementsAre("! The backdrop/sticky name  and the metadata name k cannot be empty"));
  EXPECT_THAT(refusal("/", "-sam b \"\" v"),
              ElementsAre("! The backdrop/sticky name b and the metadata name  cannot be empty"));
}

// The message has the place of the key and is given none.
TEST_F(CompoundEmptyNames, AnAnnotationOrKeyToQueryIsRefusedWithTheAnnotationAlone) {
  EXPECT_THAT(refusal("/", "-qam \"\" k"),
              ElementsAre("! The backdrop/sticky name  and the metadata name ^2s cannot be empty"));
  EXPECT_THAT(
      refusal("/", "-qam b \"\""),
      ElementsAre("! The backdrop/sticky name b and the metadata name ^2s cannot be empty"));
}

TEST_F(CompoundEmptyNames, AValueOfMetadataMayBeEmpty) {
  run("/", "-sam b k \"\" -spm p k \"\"");
  EXPECT_EQ(run("/", "-qam b k"), "\"\"");
  EXPECT_EQ(run("/", "-qpm p k"), "\"\"");
}

TEST_F(CompoundEmptyNames, APortToQueryIsRefused) {
  for (const char* flags : {"-qpt \"\"", "-qpv \"\"", "-lpc \"\"", "-qpm \"\" k"}) {
    EXPECT_THAT(refusal("/", flags), ElementsAre("! The port name  cannot be empty")) << flags;
  }
}

// The port is named, though it is the key that is missing.
TEST_F(CompoundEmptyNames, AKeyOfAPortToQueryIsRefusedInTheNameOfThePort) {
  EXPECT_THAT(refusal("/", "-qpm p \"\""), ElementsAre("! The port name p cannot be empty"));
}

TEST_F(CompoundEmptyNames, APortThatMustBeThereIsNotFound) {
  for (const char* flags :
       {"-rp \"\" x", "-mp \"\" 0", "-mpn \"\" x", "-hp \"\" true", "-dp \"\""}) {
    EXPECT_THAT(refusal("/", flags), ElementsAre("! A port named  was not found on top")) << flags;
  }
}

TEST_F(CompoundEmptyNames, APortOrTypeOrKeyToSetIsRefused) {
  EXPECT_THAT(refusal("/", "-spt \"\" float"),
              ElementsAre("! The port name  and the data type float cannot be empty"));
  EXPECT_THAT(refusal("/", "-spt p \"\""),
              ElementsAre("! The port name p and the data type  cannot be empty"));
  EXPECT_THAT(refusal("/", "-spm \"\" k v"),
              ElementsAre("! The port name  and the metadata name k cannot be empty"));
  EXPECT_THAT(refusal("/", "-spm p \"\" v"),
              ElementsAre("! The port name p and the metadata name  cannot be empty"));
  EXPECT_THAT(refusal("/", "-spv \"\" 1"), ElementsAre("! The port name  cannot be empty"));
  EXPECT_THAT(refusal("/", "-rpv \"\""), ElementsAre("! The port name  cannot be empty"));
}

TEST_F(CompoundEmptyNames, AreAnUnknownPortType) {
  run("/", "-cip x \"\" -cop y \"\" -asp i o \"\"");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! Unknown port type ", "! Unknown port type ", "! Unknown port type "));
  EXPECT_THAT(names().inputs(), ElementsAre("p"));
}

TEST_F(CompoundEmptyNames, AreNoNodeToRenameOrReset) {
  run("/", "-rn \"\" x -rtf \"\"");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! Node named  was not found in /", "! Node named  was not found in /"));
}

TEST_F(CompoundEmptyNames, AreNoTypeAndNoPortToFilterBy) {
  EXPECT_EQ(run("/", "-listNodes -nodeType \"\""), "");
  EXPECT_EQ(run("/", "-listNodes -connectedTo \"\""), "");
}

// The name is itself the message.
TEST_F(CompoundEmptyNames, OfANodeThatMightBeResetGiveAnEmptyMessage) {
  run("/", "-canResetToFactory \"\"");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! "));
}

}  // namespace
