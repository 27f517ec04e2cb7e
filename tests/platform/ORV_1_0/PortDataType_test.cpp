#include "platform/ORV_1_0/PortDataType.h"

#include <gtest/gtest.h>

#include "standalone/graph/api/GraphAccess.h"

namespace {

ORV_v1::AddRefWrapper<ORV_v1::PortDataType> makeFloat() {
  orvlib::ValueType type;
  type.name = "float";
  type.niceName = "Float";
  return ORV_v1::GraphAccess::makePortType(std::make_shared<orvlib::ValueType>(type));
}

TEST(PortDataType, AnswersWithItsTypeName) {
  const auto type = makeFloat();
  const ORV_v1::Namable& namable = *type;
  EXPECT_STREQ(namable.getName(), "float");
}

TEST(PortDataType, AnswersWithItsNiceName) { EXPECT_STREQ(makeFloat()->getNiceName(), "Float"); }

TEST(PortDataType, KeepsItsNameWhenAskedToChangeIt) {
  const auto type = makeFloat();
  type->appendNodeName("x");
  type->appendPortName("y");
  type->setName("z");
  EXPECT_STREQ(type->getName(), "float");
}

TEST(PortDataType, ACopyOfItsNameCanBeExtended) {
  ORV_v1::Namable name(*makeFloat());
  name.appendPortName("x");
  EXPECT_STREQ(name.getName(), "float.x");
}

TEST(PortDataType, ACopyOfItsNameCanBeReplaced) {
  ORV_v1::Namable name(*makeFloat());
  name.setName("x");
  EXPECT_STREQ(name.getName(), "x");
}

}  // namespace
