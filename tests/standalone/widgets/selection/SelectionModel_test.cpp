#include "standalone/widgets/selection/SelectionModel.h"

#include <QObject>

#include "tests/standalone/graph/GraphFixture.h"

namespace orvuilib {
namespace {

using Handle = ORV_v1::AddRefWrapper<ORV_v1::Node>;

class SelectionModelTest : public orvlib::GraphFixture {
 protected:
  SelectionModelTest() {
    QObject::connect(&model, &SelectionModel::changed, &receiver, [this] { ++changes; });
  }
  ~SelectionModelTest() override { model.select({}); }

  SelectionModel& model = SelectionModel::instance();
  QObject receiver;
  int changes = 0;
};

TEST_F(SelectionModelTest, TellsOfAnotherSelectionOnce) {
  const Handle sum(add(top(), "core::math::add", "sum"));
  model.select({sum});
  model.select({sum});
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(model.nodes().size(), 1u);
  model.select({});
  EXPECT_EQ(changes, 2);
}

TEST_F(SelectionModelTest, LeavesOutNullHandles) {
  const Handle sum(add(top(), "core::math::add", "sum"));
  model.select({Handle(), sum, Handle()});
  ASSERT_EQ(model.nodes().size(), 1u);
  EXPECT_EQ(model.nodes()[0].get(), sum.get());
}

TEST_F(SelectionModelTest, TheOrderCounts) {
  const Handle one(add(top(), "core::math::add", "one"));
  const Handle two(add(top(), "core::math::add", "two"));
  model.select({one, two});
  model.select({two, one});
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(model.nodes()[0].get(), two.get());
}

}  // namespace
}  // namespace orvuilib
