#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "tests/support/ProbeCommand.h"

namespace {

using namespace hosttest;

/// What an undo queue does, said as simply as can be: lists of lists of names.
class Model {
 public:
  using Step = std::vector<std::string>;

  void edit(const std::string& name) {
    if (depth_ > 0) {
      chunk_.push_back(name);
    } else {
      close({name});
    }
  }
  void open() { ++depth_; }
  bool closeChunk() {
    if (depth_ == 0) return false;
    if (--depth_ == 0) close(std::exchange(chunk_, {}));
    return true;
  }
  bool undo() { return move(done, undone); }
  bool redo() { return move(undone, done); }

  /// The edits that are in force.
  Step inForce() const {
    Step edits;
    for (const Step& step : done) edits.insert(edits.end(), step.begin(), step.end());
    edits.insert(edits.end(), chunk_.begin(), chunk_.end());
    return edits;
  }

  std::vector<Step> done;
  std::vector<Step> undone;

 private:
  void close(Step step) {
    if (!step.empty()) undone.clear();
    done.push_back(std::move(step));
  }
  bool move(std::vector<Step>& from, std::vector<Step>& to) const {
    if (depth_ > 0 || from.empty()) return false;
    to.push_back(from.back());
    from.pop_back();
    return true;
  }

  int depth_ = 0;
  Step chunk_;
};

/// A host whose command `put NAME` keeps a list of the names in force.
class ModelledHost : public ProbeHost {
 public:
  explicit ModelledHost(Model& model) : model_(model) {
    addProbe(*this, "put",
             {.doIt =
                  [this](KPxCommand&, const KArgList& arguments) {
                    inForce.emplace_back(arguments.asString(0).asUTF8());
                    return KStatus();
                  },
              .undoIt =
                  [this] {
                    waiting_.push_back(inForce.back());
                    inForce.pop_back();
                    return KStatus();
                  },
              .redoIt =
                  [this] {
                    inForce.push_back(waiting_.back());
                    waiting_.pop_back();
                    return KStatus();
                  },
              .undoable = true});
  }

  /// One operation on both; returns whether they agree on it.
  bool step(unsigned choice, int number) {
    const std::string name = "e" + std::to_string(number);
    switch (choice) {
      case 0:
      case 1:
      case 2:
        model_.edit(name);
        return works("put " + name);
      case 3:
      case 4:
        return model_.undo() == works("undo");
      case 5:
      case 6:
        return model_.redo() == works("redo");
      case 7:
        model_.open();
        return works("undoInfo -openChunk");
      default:
        return model_.closeChunk() == works("undoInfo -closeChunk");
    }
  }

  Texts inForce;

 private:
  bool works(const std::string& line) {
    const bool worked = status(line) == StatusSuccess;
    EXPECT_EQ(takeMessages().empty(), worked) << line;
    return worked;
  }

  Model& model_;
  Texts waiting_;
};

TEST(UndoQueueModel, TwoThousandRandomOperationsDoAsTheModelDoes) {
  std::mt19937 random(20250000);
  Model model;
  ModelledHost host(model);
  for (int i = 0; i < 2000; ++i) {
    ASSERT_TRUE(host.step(random() % 9, i)) << "operation " << i;
    ASSERT_EQ(host.inForce, model.inForce()) << "operation " << i;
    ASSERT_EQ(host.session().undoQueue().doneNames().size(), model.done.size()) << i;
    ASSERT_EQ(host.session().undoQueue().undoneNames().size(), model.undone.size()) << i;
  }
}

TEST(UndoQueueModel, EveryStepCanBeUndoneAndRedone) {
  std::mt19937 random(4711);
  Model model;
  ModelledHost host(model);
  for (int i = 0; i < 300; ++i) host.step(random() % 9, i);
  while (model.closeChunk()) host.run("undoInfo -closeChunk");
  const Texts all = host.inForce;
  const std::size_t steps = host.steps().size();
  for (std::size_t i = 0; i < steps; ++i) host.run("undo");
  EXPECT_TRUE(host.inForce.empty());
  for (std::size_t i = 0; i < steps; ++i) host.run("redo");
  EXPECT_EQ(host.inForce, all);
}

}  // namespace
