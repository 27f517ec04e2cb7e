#include "standalone/graph/model/PortObject.h"

#include "platform/ORV_1_0/Compound.h"
#include "standalone/graph/types/ValueText.h"
#include "tests/standalone/graph/GraphFixture.h"

namespace orvlib {
namespace {

using ORV_v1::GraphAccess;

class PortObjectTest : public GraphFixture {
 protected:
  std::vector<std::string> defaultValues(const PortObject& port) {
    ORV_v1::StringArray values;
    EXPECT_TRUE(port.getPortDefaultValues(values));
    return GraphAccess::textsOf(values);
  }

  void setValue(PortObject& port, const std::vector<std::string>& texts) {
    auto parsed = parseValue(port.valueType(), texts);
    ASSERT_TRUE(parsed.value) << parsed.reason;
    ASSERT_TRUE(edits_.run(
        SetPortValue{PortRef(&port), std::make_unique<const Value>(std::move(*parsed.value))}));
  }

  using Texts = std::vector<std::string>;
};

TEST_F(PortObjectTest, OfAPlainNodeAnswersAsItsDefinitionSays) {
  NodeObject* node = add(top(), "core::math::multiply", "times");
  PortObject& input = *node->port("a");
  EXPECT_EQ(input.getPortIOType(), ORV_v1::PortIOType::kInput);
  EXPECT_EQ(node->port("result")->getPortIOType(), ORV_v1::PortIOType::kOutput);
  EXPECT_STREQ(input.getName(), "a");
  EXPECT_STREQ(input.getFullName().getName(), "a");
  EXPECT_STREQ(input.getFullPathName().getName(), "/times.a");
  EXPECT_STREQ(input.getDataType()->getName(), "float");
  EXPECT_EQ(input.getParentNode().get(), node);
  EXPECT_TRUE(input.getParentCompound() == nullptr);
  EXPECT_EQ(input.getParentPort(), nullptr);
  EXPECT_FALSE(input.isConnected());
  EXPECT_FALSE(input.isFanIn());
  EXPECT_FALSE(input.isMemberFanIn());
  EXPECT_FALSE(input.isCompoundInternalPort());
  EXPECT_TRUE(input.getWatchPoint() == nullptr);
  EXPECT_TRUE(input.children() == nullptr);
  EXPECT_EQ(input.connectedTo().size(), 0u);
}

TEST_F(PortObjectTest, HasTheDefaultOfItsDefinitionUntilAValueIsSet) {
  PortObject& input = *add(top(), "core::math::multiply", "times")->port("a");
  EXPECT_EQ(defaultValues(input), printValue(input.defaultValue()));
  setValue(input, {"2.5"});
  EXPECT_EQ(defaultValues(input), Texts{"2.5"});
}

TEST_F(PortObjectTest, ThatComputesHasNoDefaultValues) {
  ORV_v1::StringArray values;
  values.add("kept");
  EXPECT_FALSE(add(top(), "core::math::add", "sum")->port("result")->getPortDefaultValues(values));
  EXPECT_EQ(values.size(), 1u);
}

TEST_F(PortObjectTest, HasAChildForEachComponent) {
  PortObject& outer = *addPort(top(), PortDirection::Input, "tint", "color3");
  ASSERT_TRUE(outer.children() != nullptr);
  ORV_v1::PortList& children = *outer.children();
  ASSERT_EQ(children.size(), 3u);
  EXPECT_STREQ(children[2]->getName(), "b");
  EXPECT_STREQ(children[2]->getFullName().getName(), "tint.b");
  EXPECT_STREQ(children[2]->getFullPathName().getName(), "/.tint.b");
  EXPECT_EQ(children[2]->getParentPort(), &outer);
  EXPECT_STREQ(children[2]->getDataType()->getName(), "float");
  EXPECT_FALSE(children[2]->isMemberFanIn());
}

TEST_F(PortObjectTest, BelowAnotherHasItsPartOfTheValue) {
  PortObject& outer = *addPort(top(), PortDirection::Input, "tint", "color3");
  setValue(outer, {"0.25", "0.5", "1"});
  EXPECT_EQ(defaultValues(*outer.child("g")), Texts{"0.5"});
}

TEST_F(PortObjectTest, OfACompoundHasTwoFaces) {
  CompoundObject* group = addCompound(top(), "group");
  PortObject& outer = *addPort(*group, PortDirection::Input, "in", "float");
  PortObject& inner = *outer.twin();
  EXPECT_EQ(inner.getPortIOType(), ORV_v1::PortIOType::kOutput);
  EXPECT_TRUE(inner.isCompoundInternalPort());
  EXPECT_FALSE(outer.isCompoundInternalPort());
  EXPECT_EQ(inner.getParentCompound().get(), group);
  EXPECT_TRUE(outer.getParentCompound() == nullptr);
  EXPECT_EQ(inner.getParentNode().get(), group->node());
  EXPECT_STREQ(inner.getFullPathName().getName(), "/group.in");
  EXPECT_EQ(group->compoundInputs()[0u].get(), &inner);
  EXPECT_EQ(group->node()->inputs()[0u].get(), &outer);
}

TEST_F(PortObjectTest, BelowAnInnerFaceIsInsideToo) {
  CompoundObject* group = addCompound(top(), "group");
  PortObject& outer = *addPort(*group, PortDirection::Output, "out", "color3");
  PortObject* child = outer.twin()->child("r");
  EXPECT_TRUE(child->isCompoundInternalPort());
  EXPECT_EQ(child->getParentCompound().get(), group);
  EXPECT_TRUE(child->isInput());
}

TEST_F(PortObjectTest, SharesItsNameItsFlagsAndItsValueWithItsOtherFace) {
  PortObject& outer = *addPort(top(), PortDirection::Input, "in", "float");
  PortObject& inner = *outer.twin();
  inner.setName("size");
  EXPECT_STREQ(outer.getName(), "size");
  inner.setFlag(ORV_v1::kPortHidden);
  EXPECT_EQ(outer.getFlags(), 1u);
  setValue(inner, {"4"});
  EXPECT_EQ(defaultValues(outer), Texts{"4"});
}

TEST_F(PortObjectTest, ChangesItsFlags) {
  PortObject& input = *add(top(), "core::math::add", "sum")->port("a");
  EXPECT_FALSE(input.anyFlagSet());
  input.setFlag(ORV_v1::PortFlags(0x80000001u));
  EXPECT_EQ(input.getFlags(), 0x80000001u);
  EXPECT_TRUE(input.isFlagSet(ORV_v1::kPortHidden));
  input.clearFlag(ORV_v1::PortFlags(0x80000000u));
  EXPECT_EQ(input.getFlags(), 1u);
}

TEST_F(PortObjectTest, OfADefinitionKeepsItsName) {
  PortObject& input = *add(top(), "core::math::add", "sum")->port("a");
  input.setName("other");
  EXPECT_STREQ(input.getName(), "a");
}

TEST_F(PortObjectTest, GetsAFreeAndCleanName) {
  addPort(top(), PortDirection::Output, "size", "float");
  PortObject& port = *addPort(top(), PortDirection::Input, "in", "float");
  port.setName("size");
  EXPECT_STREQ(port.getName(), "size1");
  port.setName("my size");
  EXPECT_STREQ(port.getName(), "my_size");
  port.setName("");
  port.setName(nullptr);
  EXPECT_STREQ(port.getName(), "my_size");
}

TEST_F(PortObjectTest, ConnectsDirectlyInEitherOrder) {
  PortObject& from = *add(top(), "core::math::add", "one")->port("result");
  PortObject& to = *add(top(), "core::math::add", "two")->port("a");
  EXPECT_TRUE(to.addConnection(ORV_v1::AddRefWrapper<ORV_v1::Port>(&from), false));
  EXPECT_TRUE(from.isConnected());
  EXPECT_EQ(to.connectedTo()[0u].get(), &from);
  EXPECT_EQ(from.connectedTo().findPort(ORV_v1::AddRefWrapper<ORV_v1::Port>(&to)), 0u);
}

TEST_F(PortObjectTest, ListsItsConnectionsAsTheyComeAndGo) {
  PortObject& from = *add(top(), "core::math::add", "one")->port("result");
  NodeObject& node = *add(top(), "core::math::add", "two");
  ASSERT_TRUE(connect(&from, node.port("a")));
  const ORV_v1::PortList& list = from.connectedTo();
  ASSERT_TRUE(connect(&from, node.port("b")));
  ASSERT_EQ(list.size(), 2u);
  EXPECT_EQ(list[1u].get(), node.port("b"));
  Mutator::disconnect(from, *node.port("a"));
  ASSERT_EQ(list.size(), 1u);
  EXPECT_EQ(list[0u].get(), node.port("b"));
  Mutator::connect(from, *node.port("a"), {0, 0});
  EXPECT_EQ(list[0u].get(), node.port("a"));
}

TEST_F(PortObjectTest, IsNotTakenFromItsSourceUnlessAskedTo) {
  PortObject& first = *add(top(), "core::math::add", "one")->port("result");
  PortObject& second = *add(top(), "core::math::add", "two")->port("result");
  PortObject& to = *add(top(), "core::math::add", "three")->port("a");
  ASSERT_TRUE(connect(&first, &to));
  EXPECT_FALSE(to.addConnection(ORV_v1::AddRefWrapper<ORV_v1::Port>(&second), false));
  EXPECT_EQ(to.source(), &first);
  EXPECT_TRUE(to.addConnection(ORV_v1::AddRefWrapper<ORV_v1::Port>(&second), true));
  EXPECT_EQ(to.source(), &second);
  EXPECT_FALSE(first.isConnected());
}

TEST_F(PortObjectTest, DoesNotConnectToNothing) {
  PortObject& to = *add(top(), "core::math::add", "one")->port("a");
  EXPECT_FALSE(to.addConnection(ORV_v1::AddRefWrapper<ORV_v1::Port>(), true));
}

TEST_F(PortObjectTest, GivesItsMetadataAsText) {
  PortObject& port = *addPort(top(), PortDirection::Input, "in", "float");
  Properties set;
  set.set("unit", {"mm"});
  set.set("range", {"0", "1"});
  ASSERT_TRUE(edits_.run(SetMetadata{PortRef(&port), set}));
  EXPECT_STREQ(port.twin()->getPortMetaDataValue("unit").toChar(), "mm");
  EXPECT_STREQ(port.getPortMetaDataValue("range").toChar(), "{0,1}");
  EXPECT_TRUE(port.getPortMetaDataValue("none").empty());
  EXPECT_TRUE(port.getPortMetaDataValue(nullptr).empty());
}

TEST_F(PortObjectTest, OutlivesItsNode) {
  ORV_v1::AddRefWrapper<ORV_v1::Port> kept;
  {
    const NodeRef node =
        factory().makePlain(*graph_.core().findDefinition("core::math::add"), "gone");
    kept = ORV_v1::AddRefWrapper<ORV_v1::Port>(node->port("a"));
  }
  EXPECT_TRUE(kept->getParentNode() == nullptr);
  EXPECT_STREQ(kept->getName(), "a");
  EXPECT_STREQ(kept->getFullPathName().getName(), "a");
  EXPECT_FALSE(kept->isConnected());
}

TEST_F(PortObjectTest, OfEitherFaceOutlivesItsCompound) {
  PortRef outer;
  PortRef inner;
  {
    const NodeRef node = factory().makeCompound("gone");
    const PortRef port =
        factory().makeCompoundPort(PortDirection::Input, "in", graph_.core().findType("color3"));
    Mutator::insertPort(*node, *port, 0);
    inner = PortRef(port->twin());
    outer = PortRef(port->child("r"));
  }
  EXPECT_STREQ(inner->getName(), "in");
  EXPECT_TRUE(inner->getParentNode() == nullptr);
  EXPECT_TRUE(inner->getParentCompound() == nullptr);
  EXPECT_STREQ(outer->getFullName().getName(), "r");
}

TEST_F(PortObjectTest, ReadsValuesAsTextByType) {
  using ORV_v1::Port;
  ORV_v1::StringArray values;
  const TypeRef color = graph_.core().findType("color3");
  EXPECT_TRUE(Port::unserializePortValuesString("{1,0,0}", values, color));
  EXPECT_EQ(values.size(), 3u);
  EXPECT_FALSE(Port::unserializePortValuesString("{1,0}", values, color));
  EXPECT_EQ(values.size(), 3u);
  EXPECT_FALSE(Port::unserializePortValuesString(nullptr, values, color));
  EXPECT_TRUE(Port::unserializePortValuesString("", values, TypeRef()));
  EXPECT_EQ(values.size(), 0u);
}

}  // namespace
}  // namespace orvlib
