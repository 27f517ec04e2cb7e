// What becomes of a flag whose edit the graph does not take: some are dropped, some end the line.

#include "tests/commands/compound/CompoundReading.h"

namespace {

using orvlib::ArmedFault;
using testing::ElementsAre;
using Cmd = orvCompoundCmd;

struct Recording {
  const char* name;
  const char* fault;  ///< the operation that says false
  const char* flags;
  unsigned edit;
};

void PrintTo(const Recording& recording, std::ostream* out) { *out << recording.name; }

std::string nameOf(const testing::TestParamInfo<Recording>& test) { return test.param.name; }

class CompoundRecording : public CompoundReadingTest,
                          public testing::WithParamInterface<Recording> {
 protected:
  CompoundRecording() {
    run("/", "-create n -ab b");
    host.session().undoQueue().clear();
  }
};

/// Those whose answer is not looked at.
class CompoundDroppedEdit : public CompoundRecording {};

constexpr Recording kDropped[] = {
    {"addNode", "NodeCommand createNode", "-an core::math::add", Cmd::kEditAddNodes},
    {"addIONode", "NodeCommand createIONode", "-aio true", Cmd::kEditAddNodes},
    {"removeNode", "NodeCommand removeNode", "-rmn n", Cmd::kEditRemoveNodes},
    {"addBackdrop", "ModifyCompoundAnnotationCommand createBackdrop", "-ab b",
     Cmd::kEditAnnotations},
    {"addStickyNote", "ModifyCompoundAnnotationCommand createStickyNote", "-asn b",
     Cmd::kEditAnnotations},
    {"removeAnnotation", "ModifyCompoundAnnotationCommand deleteAnnotation", "-rma b",
     Cmd::kEditAnnotations},
    {"renameAnnotation", "ModifyCompoundAnnotationCommand renameAnnotation", "-ra b c",
     Cmd::kEditAnnotations},
    {"setAnnotationMetaDataValue", "ModifyCompoundAnnotationCommand setAnnotationMetaDataValue",
     "-sam b k v", Cmd::kEditAnnotations},
    {"setPortMetaDataValue", "ModifyCompoundPortCommand setPortMetaDataValue", "-spm p k v",
     Cmd::kEditPorts},
};

INSTANTIATE_TEST_SUITE_P(All, CompoundDroppedEdit, testing::ValuesIn(kDropped), nameOf);

TEST_P(CompoundDroppedEdit, SetsItsBitAllTheSameAndIsNotToldOf) {
  const ArmedFault fault(GetParam().fault);
  ASSERT_TRUE(fault.isArmed());
  const ReadCompound& read = this->read(GetParam().flags);
  EXPECT_TRUE(fault.refused());
  EXPECT_EQ(read.edit, GetParam().edit);
  EXPECT_TRUE(read.undoable);
}

TEST_P(CompoundDroppedEdit, ChangesNothingAndIsAStepAllTheSame) {
  const ArmedFault fault(GetParam().fault);
  const std::string before = stored();
  run("/", GetParam().flags);
  EXPECT_TRUE(fault.refused());
  EXPECT_EQ(stored(), before);
  EXPECT_THAT(host.steps(), testing::SizeIs(1));
}

/// Those whose answer says that there is no such port.
class CompoundRefusedEdit : public CompoundRecording {};

constexpr Recording kRefused[] = {
    {"renamePort", "ModifyCompoundPortCommand renamePort", "-rp p r", 0},
    {"movePort", "ModifyCompoundPortCommand movePort", "-mp p 0", 0},
    {"movePortToIONode", "ModifyCompoundPortCommand movePort", "-mpn p input", 0},
    {"hidePort", "ModifyCompoundPortCommand hidePort", "-hp p false", 0},
    {"setPortDataType", "ModifyCompoundPortCommand setPortDataType", "-spt p int", 0},
    {"setPortDefaultValues", "ModifyCompoundPortCommand setPortValues", "-spv p 1", 0},
    {"resetPortDefaultValues", "ModifyCompoundPortCommand resetPortValues", "-rpv p", 0},
    {"deletePort", "ModifyCompoundPortCommand deletePort", "-dp p", 0},
};

INSTANTIATE_TEST_SUITE_P(All, CompoundRefusedEdit, testing::ValuesIn(kRefused), nameOf);

TEST_P(CompoundRefusedEdit, IsToldOfAsAPortThatIsNotThereAndEndsTheLine) {
  const ArmedFault fault(GetParam().fault);
  ASSERT_TRUE(fault.isArmed());
  const ReadCompound& read = readRefused(GetParam().flags);
  EXPECT_TRUE(fault.refused());
  EXPECT_EQ(read.edit, 0u);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! A port named p was not found on top"));
}

class CompoundBinding : public CompoundReadingTest {};

TEST_F(CompoundBinding, APortThatCannotBeRecordedIsToldOfAsAnUnknownType) {
  const ArmedFault fault("ModifyCompoundPortCommand createPort");
  EXPECT_EQ(read("-cip w float").edit, 0u);
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Unknown port type float"));
}

// The line goes on without a word; what it records for a command that is bound to nothing is lost.
TEST_F(CompoundBinding, WhetherTheCommandsCouldBeBoundIsNotLookedAt) {
  for (const unsigned nth : {1u, 2u}) {
    const ArmedFault fault("ModifyCompoundPortCommand setParentCompound", nth);
    EXPECT_EQ(read("-an core::math::add").edit, Cmd::kEditAddNodes);
    EXPECT_TRUE(fault.refused());
  }
  const ArmedFault fault("ModifyCompoundAnnotationCommand setParentCompound");
  EXPECT_EQ(read("-ab b").edit, Cmd::kEditAnnotations);
  EXPECT_TRUE(fault.refused());
}

TEST_F(CompoundBinding, ThePortCommandsAreBoundAheadOfThatOfAnnotationsAndEachToItsPorts) {
  {
    const ArmedFault fault("ModifyCompoundPortCommand setParentCompound", 1);
    EXPECT_EQ(readRefused("-dp p").edit, 0u) << "the first is that of the ports";
  }
  {
    const ArmedFault fault("ModifyCompoundPortCommand setParentCompound", 2);
    EXPECT_EQ(readRefused("-rpv p").edit, 0u) << "the second is that of their values";
  }
  EXPECT_THAT(host.takeMessages(), ElementsAre("! A port named p was not found on top",
                                               "! A port named p was not found on top"));
}

}  // namespace
