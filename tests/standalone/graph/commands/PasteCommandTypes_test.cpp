// Types that only the clipboard knows are in the graph as long as what was pasted is.

#include "platform/ORV_1_0/PasteCommand.h"
#include "standalone/graph/clipboard/Clipboard.h"
#include "standalone/graph/edits/FaultPoints.h"
#include "standalone/graph/storage/SelectionSeal.h"
#include "tests/standalone/graph/commands/CommandFixture.h"

namespace orvlib {
namespace {

using Texts = std::vector<std::string>;

class PasteCommandTypes : public CommandFixture {
 protected:
  static void setClipboard(const std::string& lines) { Clipboard::setText(sealOf(lines) + lines); }

  /// Puts the node "n" on the clipboard, whose port "p" is of a type that the runtime does not
  /// know, and has these components and this value; `more` are lines after it.
  static void copyNode(const std::string& components, const std::string& value,
                       const std::string& more = "") {
    setClipboard("from \"\"\ntype lost::point float " + components +
                 "\ntype lost::points array lost::point\n"
                 "definition lost::move\nin p lost::point\nin many lost::points fan-in\n"
                 "nodes\n  node n lost::move\n    value p " +
                 value + "\n    member many item\n" + more + "end\n");
  }

  bool paste(ORV_v1::PasteCommand& command, const char* path = "/") {
    return command.setParentCompound(&graph_, path) && command.doit();
  }

  /// Whether a node whose type of that name is another one can be pasted, and comes out as it is.
  void expectAnotherTypeFits() {
    copyNode("x y z", "1 2 3");
    ORV_v1::PasteCommand command;
    ASSERT_TRUE(paste(command));
    EXPECT_EQ(values("/n.p"), (Texts{"1", "2", "3"}));
    ASSERT_TRUE(command.undo());
  }

  ORV_v1::PasteCommand command_;
};

TEST_F(PasteCommandTypes, GoWithAPasteThatIsUndone) {
  copyNode("x y", "1 2");
  ASSERT_TRUE(paste(command_));
  EXPECT_EQ(values("/n.p"), (Texts{"1", "2"}));
  ASSERT_TRUE(command_.undo());
  expectAnotherTypeFits();
}

TEST_F(PasteCommandTypes, ComeBackWithAPasteThatIsRedone) {
  copyNode("x y", "1 2");
  const std::string before = text();
  ASSERT_TRUE(paste(command_));
  const std::string after = text();
  for (int times = 0; times < 2; ++times) {
    ASSERT_TRUE(command_.undo());
    expectAnotherTypeFits();
    EXPECT_EQ(text(), before);
    ASSERT_TRUE(command_.redo());
    EXPECT_EQ(text(), after);
  }
  const PortObject& many = *port("/n.many");
  EXPECT_EQ(ORV_v1::GraphAccess::typeOf(*graph_.core().elementType(many.valueType()))->name,
            "lost::point")
      << "members can be made";
}

TEST_F(PasteCommandTypes, OfAPasteThatStaysHoldForThoseAfterIt) {
  copyNode("x y", "1 2");
  ASSERT_TRUE(paste(command_));
  ORV_v1::PasteCommand second;
  ASSERT_TRUE(paste(second));
  ASSERT_TRUE(second.undo());
  EXPECT_NE(graph_.core().elementType(port("/n.many")->valueType()), nullptr);
}

TEST_F(PasteCommandTypes, StayOutWhenTheTextIsRefused) {
  copyNode("x y", "1 2", "  nonsense\n");
  EXPECT_FALSE(paste(command_));
  expectAnotherTypeFits();
}

TEST_F(PasteCommandTypes, StayOutWhenAnEditIsRefused) {
  copyNode("x y", "1 2");
  for (const char* fault : {"PasteCommand redo", "edit moveNode"}) {
    const ArmedFault armed(fault);
    ASSERT_TRUE(armed.isArmed());
    EXPECT_FALSE(paste(command_));
    FaultPoints::disarm();
    expectAnotherTypeFits();
    copyNode("x y", "1 2");
  }
  EXPECT_TRUE(paste(command_)) << "and it can be tried again";
}

TEST_F(PasteCommandTypes, StayOutWhenItWouldBeTooDeep) {
  const CompoundObject& deepest = *addNested(top(), "deep", CompoundObject::kDeepest);
  copyNode("x y", "1 2", "  compound c\n  end\n");
  EXPECT_FALSE(paste(command_, deepest.node()->fullPath().c_str()));
  expectAnotherTypeFits();
}

TEST_F(PasteCommandTypes, AreThoseOfTheGraphWhereItHasThem) {
  copyNode("x y", "1 2");
  ASSERT_TRUE(paste(command_));
  copyNode("x y z", "1 2 3");
  const std::string before = text();
  ORV_v1::PasteCommand second;
  EXPECT_FALSE(paste(second)) << "the value does not fit the type that the graph has";
  EXPECT_EQ(text(), before);
}

}  // namespace
}  // namespace orvlib
