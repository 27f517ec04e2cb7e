#include <set>

#include "tests/standalone/graph/commands/CommandFixture.h"
#include "tests/standalone/graph/commands/GraphInvariants.h"
#include "tests/standalone/graph/commands/RandomCommands.h"

namespace orvlib {
namespace {

class RecordedCommandHistory : public CommandFixture,
                               public testing::WithParamInterface<unsigned> {};

TEST_P(RecordedCommandHistory, UndoingAllGivesTheFirstFormAndRedoingAllTheLast) {
  constexpr int kEdits = 2000;
  const std::string first = text();
  RandomCommands random(graph_, GetParam());
  std::vector<DoneEdit> done;
  for (int i = 0; i < kEdits; ++i) {
    DoneEdit edit = random.next();
    if (edit.undo) done.push_back(std::move(edit));
    ASSERT_EQ(brokenRule(graph_), "") << i;
  }
  EXPECT_GT(done.size(), kEdits / 4u);
  const std::string last = text();
  for (auto edit = done.rbegin(); edit != done.rend(); ++edit) ASSERT_TRUE(edit->undo());
  EXPECT_EQ(text(), first);
  for (const DoneEdit& edit : done) ASSERT_TRUE(edit.redo());
  EXPECT_EQ(text(), last);
  EXPECT_EQ(brokenRule(graph_), "");
}

INSTANTIATE_TEST_SUITE_P(Seeds, RecordedCommandHistory, testing::Values(1u, 2u, 3u, 4u, 5u));

}  // namespace
}  // namespace orvlib
