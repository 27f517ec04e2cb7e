// The order in which a line with every kind of edit asks the graph library for its work: what the
// library then makes of the order does not always show it.

#include <algorithm>

#include "tests/commands/compound/CompoundEditTesting.h"

namespace {

using hosttest::Texts;
using testing::ElementsAre;

/// The library commands that were asked while it lives.
class AskedCommands {
 public:
  Texts take() const {
    Texts names;
    for (const std::string_view name : orvlib::FaultPoints::askedNames()) {
      const bool command = name.ends_with(" redo") || name.ends_with(" undo");
      if (command || name.starts_with("Compound ")) names.emplace_back(name);
    }
    return names;
  }

 private:
  static constexpr unsigned kNever = 1'000'000;
  const orvlib::ArmedFault counting_{kNever};
};

class CompoundOrderOfWork : public CompoundEditTest {
 protected:
  CompoundOrderOfWork() {
    addNodes("/", {"a", "b"});
    addCompounds("/", {"old"});
    run("/", "-createInputPort size float");
    run("/",
        "-setMetaData k v -setPortDefaultValues size 2 -addBackdrop frame -create new -explode old "
        "-addNode core::math::negate -removeNode b -hidePort size true -addStatePorts s t float");
  }
};

TEST_F(CompoundOrderOfWork, OfARedo) {
  undo();
  const AskedCommands asked;
  redo();
  EXPECT_THAT(asked.take(),
              ElementsAre("MetadataCommand redo", "ModifyCompoundPortCommand redo",
                          "ModifyCompoundAnnotationCommand redo", "CreateCompoundCommand redo",
                          "ExplodeCompoundCommand redo", "NodeCommand redo", "NodeCommand redo",
                          "ModifyCompoundPortCommand redo", "Compound addStatePorts"));
}

TEST_F(CompoundOrderOfWork, OfAnUndoIsNoMirror) {
  const AskedCommands asked;
  undo();
  EXPECT_THAT(
      asked.take(),
      ElementsAre("ModifyCompoundPortCommand undo", "ModifyCompoundAnnotationCommand undo",
                  "ModifyCompoundPortCommand undo", "MetadataCommand undo", "NodeCommand undo",
                  "NodeCommand undo", "CreateCompoundCommand undo", "ExplodeCompoundCommand undo",
                  "Compound removePort", "Compound removePort"));
}

}  // namespace
