#include "platform/ORV_1_0/PortList.h"

#include "tests/standalone/graph/GraphFixture.h"

namespace {

using ORV_v1::AddRefWrapper;
using ORV_v1::Port;
using ORV_v1::PortList;

constexpr unsigned int kAllOnes = 0xFFFFFFFFu;

class PortListTest : public orvlib::GraphFixture {
 protected:
  ORV_v1::Node& node_ = *add(top(), "core::math::add", "add");
  ORV_v1::Node& other_ = *add(top(), "core::math::add", "other");
  PortList& inputs_ = node_.inputs();
};

TEST_F(PortListTest, FindsEachOfItsPortsAtItsIndex) {
  ASSERT_EQ(inputs_.size(), 2u);
  for (unsigned int i = 0; i < inputs_.size(); ++i) EXPECT_EQ(inputs_.findPort(inputs_[i]), i);
}

TEST_F(PortListTest, GivesAllOnesForAStranger) {
  EXPECT_EQ(inputs_.findPort(node_.outputs()[0u]), kAllOnes);
  EXPECT_EQ(inputs_.findPort(other_.inputs()[0u]), kAllOnes);
}

TEST_F(PortListTest, GivesAllOnesForANullHandle) {
  EXPECT_EQ(inputs_.findPort(AddRefWrapper<Port>()), kAllOnes);
}

TEST_F(PortListTest, GivesAllOnesWhenItIsEmpty) {
  const PortList& none = inputs_[0u]->connectedTo();
  ASSERT_EQ(none.size(), 0u);
  EXPECT_EQ(none.findPort(inputs_[0u]), kAllOnes);
  EXPECT_EQ(none.findPort(AddRefWrapper<Port>()), kAllOnes);
}

TEST_F(PortListTest, ItsAnswerForAStrangerHasAName) { EXPECT_EQ(+PortList::kNotFound, kAllOnes); }

TEST_F(PortListTest, FindsAPortByItsName) {
  EXPECT_EQ(inputs_["b"].get(), inputs_[1u].get());
  EXPECT_STREQ(inputs_["b"]->getName(), "b");
}

TEST_F(PortListTest, GivesANullHandleForAnUnknownNameAndForNull) {
  for (const char* name : {"none", "", "result", "/add.a", "A"}) {
    EXPECT_FALSE(inputs_[name]) << name;
  }
  EXPECT_FALSE(inputs_[static_cast<const char*>(nullptr)]);
}

TEST_F(PortListTest, GivesANullHandlePastTheEnd) {
  EXPECT_FALSE(inputs_[2u]);
  EXPECT_FALSE(inputs_[kAllOnes]);
}

TEST_F(PortListTest, IsWalkedInOrder) {
  std::string names;
  for (const AddRefWrapper<Port>& port : inputs_) names += port->getName();
  EXPECT_EQ(names, "ab");
}

}  // namespace
