#include "tests/commands/compound/CompoundTesting.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

/// A compound /group with a backdrop "back" and a sticky note "note".
class Annotations : public CompoundTest {
 protected:
  Annotations() {
    run("/", "-create group");
    run("/group", "-addBackdrop back -addStickyNote text");
  }

  /// Their lines of the stored graph, without what is said about them.
  std::string annotations() const {
    std::string lines;
    std::istringstream text(stored());
    for (std::string word, name; text >> word;) {
      if (word != "backdrop" && word != "note") continue;
      text >> name;
      lines += word + ' ' + name + '\n';
    }
    return lines;
  }

  std::string value(const std::string& annotation, const std::string& key) {
    return run("/group", "-queryAnnotationMetaDataValue " + annotation + " " + key);
  }

  void expectRefusal(const std::string& flags, const std::string& message) {
    const std::string before = stored();
    EXPECT_THAT(refusal("/group", flags), ElementsAre("! " + message)) << flags;
    EXPECT_EQ(stored(), before) << flags;
  }
};

TEST_F(Annotations, EachUseMakesOne) {
  run("/group", "-addBackdrop b -addBackdrop a -addStickyNote x -addStickyNote y");
  EXPECT_EQ(annotations(),
            "backdrop back\nnote note\nbackdrop b\nbackdrop a\nnote note1\nnote note2\n");
}

TEST_F(Annotations, ATakenNameGetsANumber) {
  run("/group", "-addBackdrop back -addBackdrop note");
  EXPECT_THAT(annotations(), HasSubstr("backdrop back1\nbackdrop note1\n"));
}

TEST_F(Annotations, TheTextOfAStickyNoteIsDropped) {
  const std::string before = stored();
  run("/group", "-addStickyNote \"some text\"");
  EXPECT_THAT(stored(), Not(HasSubstr("some")));
  EXPECT_THAT(annotations(), HasSubstr("note note1\n"));
}

TEST_F(Annotations, AStickyNoteTakesAnEmptyTextToo) {
  run("/group", "-addStickyNote \"\"");
  EXPECT_THAT(annotations(), HasSubstr("note note1\n"));
}

TEST_F(Annotations, BackdropsAreMadeAheadOfStickyNotes) {
  run("/group", "-addStickyNote x -addBackdrop note");
  EXPECT_THAT(annotations(), HasSubstr("backdrop note1\nnote note2\n"));
}

TEST_F(Annotations, EachUseOfRemoveAnnotationTakesOneOut) {
  run("/group", "-removeAnnotation note -removeAnnotation back");
  EXPECT_EQ(annotations(), "");
}

TEST_F(Annotations, WhatTheLineMakesItRemovesAgain) {
  const std::string before = stored();
  run("/group", "-removeAnnotation a -addBackdrop a");
  EXPECT_EQ(stored(), before);
  run("/group", "-removeAnnotation note1 -addStickyNote x");
  EXPECT_EQ(stored(), before);
}

TEST_F(Annotations, RemovingComesAheadOfRenaming) {
  run("/group", "-renameAnnotation note back -removeAnnotation back");
  EXPECT_EQ(annotations(), "note back\n");
}

TEST_F(Annotations, RenamesAreDoneInTheOrderOfTheirUses) {
  run("/group", "-renameAnnotation back b -renameAnnotation b c -renameAnnotation note back");
  EXPECT_EQ(annotations(), "backdrop c\nnote back\n");
}

TEST_F(Annotations, ARenameToATakenNameGetsANumber) {
  run("/group", "-renameAnnotation back note");
  EXPECT_EQ(annotations(), "backdrop note1\nnote note\n");
}

TEST_F(Annotations, MetadataIsSetByItsKey) {
  run("/group", "-setAnnotationMetaDataValue back color \"dark red\"");
  EXPECT_EQ(value("back", "color"), "\"dark red\"");
}

TEST_F(Annotations, AnEmptyMetadataValueRemovesTheKey) {
  run("/group", "-setAnnotationMetaDataValue back color red");
  run("/group", "-setAnnotationMetaDataValue back color \"\"");
  EXPECT_THAT(stored(), Not(HasSubstr("color")));
}

TEST_F(Annotations, MetadataComesAfterRenaming) {
  run("/group", "-setAnnotationMetaDataValue b k v -renameAnnotation back b");
  EXPECT_EQ(value("b", "k"), "\"v\"");
}

TEST_F(Annotations, TheShortFlagsDoTheSame) {
  run("/group", "-ab a -asn x -rma note -ra a b -sam b k v");
  EXPECT_EQ(annotations(), "backdrop back\nbackdrop b\nnote note1\n");
  EXPECT_EQ(run("/group", "-qam b k"), "\"v\"");
}

TEST_F(Annotations, TheEditsAreNoResult) {
  EXPECT_EQ(run("/group",
                "-addBackdrop a -addStickyNote x -removeAnnotation back "
                "-renameAnnotation a b -setAnnotationMetaDataValue b k v"),
            "");
}

TEST_F(Annotations, AnAnnotationThatIsNotThereIsPassedOver) {
  const std::string before = stored();
  run("/group", "-removeAnnotation nosuch");
  run("/group", "-renameAnnotation nosuch a");
  run("/group", "-setAnnotationMetaDataValue nosuch k v");
  EXPECT_EQ(stored(), before);
}

TEST_F(Annotations, AnEditOfOneThatIsNotThereIsAnEditAllTheSame) {
  const auto before = host.steps().size();
  run("/group", "-removeAnnotation nosuch");
  run("/group", "-renameAnnotation nosuch a");
  run("/group", "-setAnnotationMetaDataValue nosuch k v");
  EXPECT_EQ(host.steps().size(), before + 3);
}

TEST_F(Annotations, OneThatIsNotThereDoesNotKeepTheOthersFromTheirEdits) {
  run("/group", "-removeAnnotation nosuch -removeAnnotation back");
  EXPECT_EQ(annotations(), "note note\n");
}

TEST_F(Annotations, OnlyThoseOfTheCompoundAreMeant) {
  run("/", "-removeAnnotation back -renameAnnotation note a");
  EXPECT_EQ(annotations(), "backdrop back\nnote note\n");
}

TEST_F(Annotations, EmptyNamesAreNoRefusalWhereNothingIsSet) {
  run("/group", "-removeAnnotation \"\" -renameAnnotation \"\" a -renameAnnotation back \"\"");
  EXPECT_EQ(annotations(), "backdrop back\nnote note\n");
}

TEST_F(Annotations, AnEmptyAnnotationOrKeyToSetIsToldWithBoth) {
  expectRefusal("-setAnnotationMetaDataValue \"\" k v",
                "The backdrop/sticky name  and the metadata name k cannot be empty");
  expectRefusal("-setAnnotationMetaDataValue back \"\" v",
                "The backdrop/sticky name back and the metadata name  cannot be empty");
  expectRefusal("-setAnnotationMetaDataValue \"\" \"\" v",
                "The backdrop/sticky name  and the metadata name  cannot be empty");
}

TEST_F(Annotations, NothingOfARefusedLineIsCarriedOut) {
  expectRefusal("-addBackdrop a -addNode core::math::add -setAnnotationMetaDataValue \"\" k v",
                "The backdrop/sticky name  and the metadata name k cannot be empty");
}

TEST_F(Annotations, InACompoundThatIsNotEditableTheyAreEditedAheadOfTheRefusal) {
  run("/group", "-setMetaData locked true");
  EXPECT_THAT(refusal("/group", "-addBackdrop a"), ElementsAre("! The compound is not editable"));
  EXPECT_EQ(annotations(), "backdrop back\nnote note\nbackdrop a\n");
  EXPECT_THAT(refusal("/group",
                      "-addStickyNote x -removeAnnotation back -renameAnnotation a b "
                      "-setAnnotationMetaDataValue b k v"),
              ElementsAre("! The compound is not editable"));
  EXPECT_EQ(annotations(), "note note\nbackdrop b\nnote note1\n");
  EXPECT_EQ(value("b", "k"), "\"v\"");
}

TEST_F(Annotations, TheRefusedLineIsNotAStepToUndo) {
  run("/group", "-setMetaData locked true");
  const auto before = host.steps();
  EXPECT_THAT(refusal("/group", "-addBackdrop a"), ElementsAre("! The compound is not editable"));
  EXPECT_EQ(host.steps(), before);
}

TEST_F(Annotations, EditsThatTheLibraryDoesNotRecordArePassedOver) {
  const std::string before = stored();
  const std::pair<const char*, const char*> operations[] = {
      {"createBackdrop", "-addBackdrop a"},
      {"createStickyNote", "-addStickyNote x"},
      {"deleteAnnotation", "-removeAnnotation back"},
      {"renameAnnotation", "-renameAnnotation back a"},
      {"setAnnotationMetaDataValue", "-setAnnotationMetaDataValue back k v"}};
  for (const auto& [operation, flags] : operations) {
    const orvlib::ArmedFault fault(std::string("ModifyCompoundAnnotationCommand ") + operation);
    run("/group", flags);
    EXPECT_TRUE(fault.refused()) << operation;
    EXPECT_EQ(stored(), before) << operation;
  }
}

TEST_F(Annotations, EditsThatCannotBeDoneFailNothing) {
  const std::string before = annotations();
  const orvlib::ArmedFault fault("ModifyCompoundAnnotationCommand redo");
  EXPECT_EQ(run("/group", "-addBackdrop a -addNode core::math::add"), R"(["add"])");
  EXPECT_TRUE(fault.refused());
  EXPECT_EQ(annotations(), before);
}

TEST_F(Annotations, OneEditThatCannotBeDoneTakesTheOthersBack) {
  const std::string before = stored();
  const orvlib::ArmedFault fault("edit renameAnnotation");
  run("/group", "-addBackdrop a -removeAnnotation note -renameAnnotation back b");
  EXPECT_TRUE(fault.refused());
  EXPECT_EQ(stored(), before);
}

TEST_F(Annotations, EditsOfAnnotationsAreNotCarriedOutWithoutAny) {
  const orvlib::ArmedFault fault("ModifyCompoundAnnotationCommand redo");
  run("/group", "-addNode core::math::add");
  EXPECT_EQ(fault.asked(), 0u);
}

TEST_F(Annotations, UndoTakesNewOnesOut) {
  sweep("/group", "-addBackdrop a");
  sweep("/group", "-addStickyNote x");
  sweep("/group", "-addBackdrop back -addBackdrop back -addStickyNote x");
}

TEST_F(Annotations, UndoBringsRemovedOnesBackToTheirPlaceWithTheirMetadata) {
  run("/group", "-setAnnotationMetaDataValue back color red -addBackdrop last");
  sweep("/group", "-removeAnnotation back");
  sweep("/group", "-removeAnnotation note -removeAnnotation back");
}

TEST_F(Annotations, UndoGivesThemTheirFormerNames) {
  sweep("/group", "-renameAnnotation back a");
  sweep("/group", "-renameAnnotation back note -renameAnnotation note back");
}

TEST_F(Annotations, UndoGivesTheirFormerMetadataBack) {
  sweep("/group", "-setAnnotationMetaDataValue note k v");
  run("/group", "-setAnnotationMetaDataValue note k v");
  sweep("/group", "-setAnnotationMetaDataValue note k w");
  sweep("/group", "-setAnnotationMetaDataValue note k \"\"");
}

TEST_F(Annotations, ManyEditsOfOneLineAreUndoneTogether) {
  sweep("/group",
        "-addBackdrop a -addStickyNote x -removeAnnotation back "
        "-renameAnnotation note n -setAnnotationMetaDataValue n k v");
}

TEST_F(Annotations, UndoLeavesAloneWhatCouldNotBeDone) {
  const std::string before = stored();
  {
    const orvlib::ArmedFault fault("ModifyCompoundAnnotationCommand redo");
    run("/group", "-addBackdrop a -setMetaData k v");
  }
  undo();
  EXPECT_EQ(stored(), before);
}

TEST_F(Annotations, AQueryGivesTheValueOfTheKey) {
  run("/group", "-setAnnotationMetaDataValue note text \"Ask first.\"");
  EXPECT_EQ(value("note", "text"), "\"Ask first.\"");
}

TEST_F(Annotations, AnUnknownKeyIsAnEmptyText) { EXPECT_EQ(value("back", "nosuch"), "\"\""); }

TEST_F(Annotations, AQueryOfOneThatIsNotThereHasNoResult) {
  EXPECT_EQ(value("nosuch", "k"), "");
  EXPECT_EQ(run("/", "-queryAnnotationMetaDataValue back k"), "");
}

TEST_F(Annotations, AQueryAloneIsNoStepToUndo) {
  const auto before = host.steps();
  value("back", "k");
  EXPECT_EQ(host.steps(), before);
}

TEST_F(Annotations, AQuerySeesTheEditsOfItsLine) {
  EXPECT_EQ(run("/group",
                "-queryAnnotationMetaDataValue a k -addBackdrop a "
                "-setAnnotationMetaDataValue a k v"),
            "\"v\"");
}

TEST_F(Annotations, AQueryOfTheTopCompoundFindsItsOwn) {
  run("/", "-addBackdrop top -setAnnotationMetaDataValue top k v");
  EXPECT_EQ(run("/", "-queryAnnotationMetaDataValue top k"), "\"v\"");
}

/// The key is not handed to the message, so its place holder shows.
TEST_F(Annotations, AnEmptyAnnotationOrKeyToQueryIsToldWithTheAnnotationAlone) {
  expectRefusal("-queryAnnotationMetaDataValue \"\" k",
                "The backdrop/sticky name  and the metadata name ^2s cannot be empty");
  expectRefusal("-queryAnnotationMetaDataValue back \"\"",
                "The backdrop/sticky name back and the metadata name ^2s cannot be empty");
}

TEST_F(Annotations, TheEditIsRefusedAheadOfTheQuery) {
  expectRefusal("-queryAnnotationMetaDataValue \"\" \"\" -setAnnotationMetaDataValue \"\" k v",
                "The backdrop/sticky name  and the metadata name k cannot be empty");
}

}  // namespace
