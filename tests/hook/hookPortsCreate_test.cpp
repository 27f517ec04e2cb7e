// Creating ports, and how a new port is found.

#include "platform/ORV_1_0/ModifyNodePortCommand.h"
#include "tests/hook/HookTesting.h"

namespace {

using ORV_v1::NewPortHints;
using ORV_v1::PortProperties;
using testing::ElementsAre;

class HookPortsCreate : public HookTest {
 protected:
  static NewPortHints hints(const char* name, const char* type) {
    NewPortHints wishes;
    wishes.setNameHint(name);
    wishes.setTypeHint(type);
    return wishes;
  }

  static NewPortHints hints(const char* name, const char* type, const PortProperties& properties) {
    NewPortHints wishes = hints(name, type);
    wishes.setPropertiesHint(properties);
    return wishes;
  }

  static ORV_v1::StringArray texts(const Texts& list) {
    ORV_v1::StringArray array;
    for (const std::string& text : list) array.add(text.c_str());
    return array;
  }

  /// Lets a line of `orvNode` add that many inputs to "/a" and end with this status.
  void replaceByGrowth(unsigned int inputs, KStatusCode status) {
    replace("orvNode", {.doIt = [this, inputs, status](auto&, auto&) -> KStatus {
              for (unsigned int i = 0; i < inputs; ++i) grow("/a", "grown");
              return status;
            }});
  }

  bool createOnA(PortHandle& made) {
    return hook().createNodePort(node("/a"), false, hints("p", "float"), made);
  }

  /// Past the host.
  void grow(const std::string& path, const char* name) {
    ORV_v1::ModifyNodePortCommand command;
    command.createPort(node(path), ORV_v1::PortIOType::kInput, name, "float", {});
    EXPECT_TRUE(command.doit());
  }
};

TEST_F(HookPortsCreate, OnANode) {
  PortHandle made;
  bool done = false;
  EXPECT_EQ(editTraceOf([&] {
              done = hook().createNodePort(node("/a"), false, hints("p", "float"), made);
            }),
            edit(R"(orvNode "g" "/a" -createInputPort "p" "float")"));
  EXPECT_TRUE(done);
  EXPECT_EQ(made.get(), port("/a.p").get());

  EXPECT_EQ(
      editTraceOf([&] { done = hook().createNodePort(node("/a"), true, hints("q", "int"), made); }),
      edit(R"(orvNode "g" "/a" -createOutputPort "q" "int")"));
  EXPECT_TRUE(done);
  EXPECT_EQ(made.get(), port("/a.q").get()) << "what the handle held is replaced";
}

TEST_F(HookPortsCreate, OnACompoundGivesTheInnerFace) {
  PortHandle made = port("/a.value");
  bool done = false;
  EXPECT_EQ(editTraceOf([&] {
              done =
                  hook().createCompoundPort(compound("/group"), false, hints("p", "float"), made);
            }),
            edit(R"(orvCompound "g" "/group" -createInputPort "p" "float")"));
  EXPECT_TRUE(done);
  EXPECT_EQ(made.get(), inner("/group.p").get());

  EXPECT_EQ(editTraceOf([&] {
              done = hook().createCompoundPort(compound("/group"), true, hints("q", "int"), made);
            }),
            edit(R"(orvCompound "g" "/group" -createOutputPort "q" "int")"));
  EXPECT_TRUE(done);
  EXPECT_EQ(made.get(), inner("/group.q").get());
}

TEST_F(HookPortsCreate, AmongTheMembersOfAFanInPort) {
  PortHandle made = port("/list.elements");
  bool done = false;
  EXPECT_EQ(editTraceOf([&] {
              done =
                  hook().createNodePort(node("/list"), false, hints("elements.one", "float"), made);
            }),
            edit(R"(orvNode "g" "/list" -createInputPort "elements.one" "float")"));
  EXPECT_TRUE(done);
  EXPECT_EQ(made.get(), port("/list.elements.one").get());
  EXPECT_TRUE(made);
}

/// The members are watched, whatever the direction.
TEST_F(HookPortsCreate, AnOutputIsNotFoundAmongTheMembersOfAFanInPort) {
  PortHandle made = port("/list.elements");
  bool done = true;
  EXPECT_EQ(editTraceOf([&] {
              done = hook().createNodePort(node("/list"), true, hints("more", "float"), made);
            }),
            edit(R"(orvNode "g" "/list" -createOutputPort "more" "float")"));
  EXPECT_FALSE(done);
  EXPECT_FALSE(made);
  EXPECT_TRUE(port("/list.more"));
}

TEST_F(HookPortsCreate, AMemberIsFoundAlsoByALineForAnOutput) {
  replace("orvNode", {.doIt = [this](auto&, auto&) -> KStatus {
            grow("/list", "elements.one");
            return StatusSuccess;
          }});
  PortHandle made = port("/list.elements");
  EXPECT_TRUE(hook().createNodePort(node("/list"), true, hints("p", "float"), made));
  EXPECT_EQ(made.get(), port("/list.elements.one").get());
}

TEST_F(HookPortsCreate, BesideAPortThatIsNoFanInPort) {
  PortHandle made = port("/a.value");
  EXPECT_TRUE(createOnA(made));
  EXPECT_EQ(made.get(), port("/a.p").get());
}

TEST_F(HookPortsCreate, OnACompoundAFanInPortIsNotRead) {
  PortHandle made = port("/list.elements");
  EXPECT_TRUE(hook().createCompoundPort(compound("/group"), false, hints("p", "float"), made));
  EXPECT_EQ(made.get(), inner("/group.p").get());
}

TEST_F(HookPortsCreate, WithoutHintsWritesEmptyTexts) {
  PortHandle made = port("/list.elements");
  bool done = true;
  const Trace trace =
      traceOf([&] { done = hook().createNodePort(node("/list"), false, NewPortHints(), made); });
  EXPECT_EQ(trace.journal.back(), R"(orvNode "g" "/list" -createInputPort "" "")");
  EXPECT_FALSE(done);
  EXPECT_FALSE(made) << "also when it was a fan-in port";
  EXPECT_THAT(host.takeMessages(), testing::Not(testing::IsEmpty()));
}

TEST_F(HookPortsCreate, WithProperties) {
  PortProperties properties;
  properties.setFlags(12);
  properties.defaultValues().setValues(texts({"1", "2", "3"}));
  properties.options().unserialize("{color=red,tags={a,b}}", ORV_v1::PropertyList::kSerializeAll);
  PortHandle made;
  EXPECT_EQ(editTraceOf([&] {
              hook().createNodePort(node("/a"), false, hints("p", "vector3", properties), made);
            }),
            edit(R"(orvNode "g" "/a" -createInputPort "p" "vector3" -portFlags 12 )"
                 R"(-portValues "{1,2,3}" -portOptions "{color=red,tags={a,b}}")"));
  EXPECT_EQ(made->getFlags(), 12u);
  EXPECT_THAT(values(made), ElementsAre("1", "2", "3"));
  EXPECT_STREQ(made->getPortMetaDataValue("color").toChar(), "red");
}

TEST_F(HookPortsCreate, WithEmptyPropertiesEndsAfterTheType) {
  PortHandle made;
  EXPECT_EQ(
      editTraceOf([&] { hook().createNodePort(node("/a"), false, hints("p", "float", {}), made); }),
      edit(R"(orvNode "g" "/a" -createInputPort "p" "float")"));
}

TEST_F(HookPortsCreate, WithEachOfTheProperties) {
  const auto traceWith = [this](const PortProperties& properties) {
    PortHandle made;
    return editTraceOf(
        [&] { hook().createNodePort(node("/a"), false, hints("p", "string", properties), made); });
  };
  const std::string start = R"(orvNode "g" "/a" -createInputPort "p" "string")";
  PortProperties flags;
  flags.setFlags(4294967292u);
  EXPECT_EQ(traceWith(flags), edit(start + " -portFlags 4294967292"));
  PortProperties values;
  values.defaultValues().setValues(texts({"x\"y"}));
  EXPECT_EQ(traceWith(values), edit(start + R"( -portValues "x\"y")"));
  PortProperties options;
  ASSERT_TRUE(options.options().unserialize("{key=a\"b}", ORV_v1::PropertyList::kSerializeAll));
  EXPECT_EQ(traceWith(options), edit(start + R"( -portOptions "{key=a\"b}")"));
}

TEST_F(HookPortsCreate, WithNoValuesIsNotWithoutValues) {
  PortProperties properties;
  properties.defaultValues().setValues({});
  PortHandle made;
  EXPECT_EQ(editTraceOf([&] {
              hook().createNodePort(node("/a"), false, hints("p", "array<int>", properties), made);
            }),
            edit(R"(orvNode "g" "/a" -createInputPort "p" "array<int>" -portValues "{}")"));
}

TEST_F(HookPortsCreate, ALineThatAddsNoneIsFalseAndClearsTheHandle) {
  replaceByGrowth(0, StatusSuccess);
  PortHandle made = port("/a.value");
  EXPECT_FALSE(createOnA(made));
  EXPECT_FALSE(made);
}

TEST_F(HookPortsCreate, ALineThatAddsTwoIsFalseAndClearsTheHandle) {
  replaceByGrowth(2, StatusSuccess);
  PortHandle made = port("/a.value");
  EXPECT_FALSE(createOnA(made));
  EXPECT_FALSE(made);
}

TEST_F(HookPortsCreate, NeitherStatusNorNameAreLookedAt) {
  replaceByGrowth(1, StatusFailure);
  PortHandle made;
  EXPECT_TRUE(createOnA(made));
  EXPECT_EQ(made.get(), port("/a.grown").get());
}

TEST_F(HookPortsCreate, AFailedLineOfACompoundIsFalse) {
  build("/group", "-setMetaData locked true");
  PortHandle made = port("/a.value");
  EXPECT_FALSE(hook().createCompoundPort(compound("/group"), false, hints("p", "float"), made));
  EXPECT_FALSE(made);
  EXPECT_THAT(host.takeMessages(), testing::Not(testing::IsEmpty()));
}

}  // namespace
