// -createInputPort and -createOutputPort, with -portFlags, -portValues and -portOptions.

#include "tests/commands/compound/CompoundTesting.h"

using hosttest::Texts;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

class PortCreation : public CompoundTest {
 protected:
  PortCreation() { run("/", "-create group"); }

  std::string ports() { return run("/group", "-listPorts"); }
  std::string inputs() { return run("/group", "-listPorts -inputPort"); }
  std::string outputs() { return run("/group", "-listPorts -outputPort"); }
};

TEST_F(PortCreation, PortsAreMadeInTheOrderOfTheirUses) {
  run("/group", "-createInputPort b float -createInputPort a float");
  run("/group", "-createInputPort c float");
  EXPECT_EQ(inputs(), R"(["b","a","c"])");
}

TEST_F(PortCreation, AnInputIsMadeAmongTheInputsAndAnOutputAmongTheOutputs) {
  run("/group", "-createInputPort in float -createOutputPort out float");
  EXPECT_EQ(inputs(), R"(["in"])");
  EXPECT_EQ(outputs(), R"(["out"])");
}

TEST_F(PortCreation, APortIsOfTheTypeThatItsUseNames) {
  run("/group", "-createInputPort a color3 -createInputPort b array<string>");
  EXPECT_EQ(run("/group", "-queryPortDataType a"), "\"color3\"");
  EXPECT_EQ(run("/group", "-queryPortDataType b"), "\"array<string>\"");
}

TEST_F(PortCreation, APortOfTheTopCompoundCanBeMade) {
  run("/", "-createInputPort a float");
  EXPECT_EQ(run("/", "-listPorts"), R"(["a"])");
}

TEST_F(PortCreation, TheNewPortIsNoResult) {
  EXPECT_EQ(run("/group", "-createInputPort a float"), "");
}

TEST_F(PortCreation, ATakenNameGetsANumber) {
  run("/group", "-createInputPort a float -createInputPort a float");
  run("/group", "-createInputPort a float");
  EXPECT_EQ(inputs(), R"(["a","a1","a2"])");
}

TEST_F(PortCreation, InputsAreMadeAheadOfOutputsWhereverTheyStand) {
  run("/group", "-createOutputPort p float -createInputPort p float");
  EXPECT_EQ(inputs(), R"(["p"])");
  EXPECT_EQ(outputs(), R"(["p1"])");
}

TEST_F(PortCreation, TheShortFlagsDoTheSame) {
  run("/group", "-cip a float -cop b float -cpf 1 -cpv 2.5 -cpo {k=v}");
  EXPECT_EQ(inputs(), R"(["a"])");
  EXPECT_EQ(outputs(), R"(["b"])");
  EXPECT_EQ(run("/group", "-queryPortDefaultValues a"), "\"2.5\"");
  EXPECT_EQ(run("/group", "-queryPortMetaDataValue a k"), "\"v\"");
  EXPECT_THAT(stored(), HasSubstr("flags a hidden\n"));
}

TEST_F(PortCreation, AllPortsOfALineGetTheSameFlags) {
  run("/group",
      "-createInputPort a float -createInputPort b int -createOutputPort c float "
      "-portFlags 1");
  EXPECT_THAT(stored(), HasSubstr("flags a hidden\n"));
  EXPECT_THAT(stored(), HasSubstr("flags b hidden\n"));
  EXPECT_THAT(stored(), HasSubstr("flags c hidden\n"));
}

TEST_F(PortCreation, FlagBitsWithoutANameAreKept) {
  run("/group", "-createInputPort a float -portFlags 4294967292");
  EXPECT_THAT(stored(), HasSubstr("flags a 4294967292\n"));
}

TEST_F(PortCreation, APortHasNoFlagsWithoutPortFlags) {
  run("/group", "-createInputPort a float");
  EXPECT_THAT(stored(), Not(HasSubstr("flags")));
}

TEST_F(PortCreation, AllPortsOfALineGetTheSameValues) {
  run("/group",
      "-createInputPort a float -createInputPort b int -createOutputPort c string "
      "-portValues 7");
  EXPECT_EQ(run("/group", "-queryPortDefaultValues a"), "\"7\"");
  EXPECT_EQ(run("/group", "-queryPortDefaultValues b"), "\"7\"");
  EXPECT_EQ(run("/group", "-queryPortDefaultValues c"), "\"7\"");
}

TEST_F(PortCreation, PortValuesAreOneTextAComponent) {
  run("/group", "-createInputPort a color3 -portValues {0.25,0.5,1}");
  EXPECT_EQ(run("/group", "-queryPortDefaultValues a"), R"(["0.25","0.5","1"])");
}

TEST_F(PortCreation, PortValuesThatCannotBeReadAreNotToldOf) {
  for (const char* values : {"{1,2", "nonsense", "\"\"", "{1,2,3}"}) {
    run("/group", std::string("-createInputPort a float -portValues ") + values);
    EXPECT_EQ(run("/group", "-queryPortDefaultValues a"), "\"0\"") << values;
    undo();
  }
}

TEST_F(PortCreation, APortWithoutANameGetsOne) {
  run("/group", "-createInputPort \"\" float -createOutputPort \"\" float");
  EXPECT_EQ(run("/group", "-listPorts"), R"(["port","port1"])");
}

TEST_F(PortCreation, APortHasTheValueOfItsTypeWithoutPortValues) {
  run("/group", "-createInputPort a float");
  EXPECT_EQ(run("/group", "-queryPortDefaultValues a"), "\"0\"");
  EXPECT_THAT(stored(), Not(HasSubstr("value a")));
}

TEST_F(PortCreation, AllPortsOfALineGetTheSameOptions) {
  run("/group",
      "-createInputPort a float -createOutputPort b float "
      "-portOptions {niceName=Size,tags={x,y}}");
  for (const std::string port : {"a", "b"}) {
    EXPECT_EQ(run("/group", "-queryPortMetaDataValue " + port + " niceName"), "\"Size\"");
    EXPECT_EQ(run("/group", "-queryPortMetaDataValue " + port + " tags"), "\"{x,y}\"");
  }
}

TEST_F(PortCreation, OptionsMayBeEmpty) {
  run("/group", "-createInputPort a float -portOptions \"\"");
  EXPECT_EQ(inputs(), R"(["a"])");
}

TEST_F(PortCreation, FlagsValuesAndOptionsDoNothingByThemselves) {
  const std::string before = stored();
  const Texts steps = host.steps();
  run("/group", "-portFlags 1 -portValues 2 -portOptions {k=v}");
  EXPECT_EQ(stored(), before);
  EXPECT_EQ(host.steps(), steps);
}

TEST_F(PortCreation, OptionsAreNotReadWithoutAPort) {
  run("/group", "-addNode core::math::add -portOptions {bad");
  EXPECT_EQ(run("/group", "-listNodes"), R"(["add"])");
}

TEST_F(PortCreation, BadOptionsFailTheWholeLineBeforeAnythingRuns) {
  const std::string before = stored();
  EXPECT_THAT(refusal("/group",
                      "-createInputPort a float -portOptions {k "
                      "-addNode core::math::add -setMetaData k v"),
              ElementsAre("! Invalid port options \"{k\""));
  EXPECT_EQ(stored(), before);
}

TEST_F(PortCreation, BadOptionsAreToldOnceForManyPorts) {
  EXPECT_THAT(refusal("/group",
                      "-createInputPort a float -createInputPort b float "
                      "-createOutputPort c float -portOptions x=1"),
              ElementsAre("! Invalid port options \"x=1\""));
}

TEST_F(PortCreation, OptionsThatTheLibraryRefusesAreInvalid) {
  const orvlib::ArmedFault fault("PropertyList unserialize");
  EXPECT_THAT(refusal("/group", "-createInputPort a float -portOptions {k=v}"),
              ElementsAre("! Invalid port options \"{k=v}\""));
}

TEST_F(PortCreation, OptionsAreReadAheadOfTheType) {
  EXPECT_THAT(refusal("/group", "-createInputPort a nosuch -portOptions {k"),
              ElementsAre("! Invalid port options \"{k\""));
}

TEST_F(PortCreation, AnUnknownTypeIsToldAndIsNoFailure) {
  const std::string before = stored();
  EXPECT_EQ(run("/group", "-createInputPort a nosuch"), "");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Unknown port type nosuch"));
  EXPECT_EQ(stored(), before);
}

TEST_F(PortCreation, AnUnknownTypeOfAnOutputIsToldAndIsNoFailure) {
  run("/group", "-createOutputPort a nosuch");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Unknown port type nosuch"));
}

TEST_F(PortCreation, AnEmptyTypeIsUnknown) {
  run("/group", "-createInputPort a \"\"");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Unknown port type "));
}

TEST_F(PortCreation, ALineWithAnUnknownTypeAloneIsNotUndoable) {
  const Texts before = host.steps();
  run("/group", "-createInputPort a nosuch -createOutputPort b nosuch");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! Unknown port type nosuch", "! Unknown port type nosuch"));
  EXPECT_EQ(host.steps(), before);
}

TEST_F(PortCreation, OnlyTheUseOfAnUnknownTypeIsDropped) {
  run("/group",
      "-createInputPort a float -createInputPort b nosuch -createInputPort c float "
      "-createOutputPort d float");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Unknown port type nosuch"));
  EXPECT_EQ(ports(), R"(["a","c","d"])");
}

TEST_F(PortCreation, UnknownTypesAreToldInTheOrderInWhichPortsAreMade) {
  run("/group", "-createOutputPort a second -createInputPort b first");
  EXPECT_THAT(host.takeMessages(),
              ElementsAre("! Unknown port type first", "! Unknown port type second"));
}

TEST_F(PortCreation, AnUnknownTypeIsToldAlsoWithValuesAndOptions) {
  run("/group", "-createInputPort a nosuch -portValues 2.5 -portOptions {k=v} -portFlags 1");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Unknown port type nosuch"));
}

TEST_F(PortCreation, AUseThatTheLibraryDoesNotRecordIsToldAsAnUnknownType) {
  const orvlib::ArmedFault fault("ModifyCompoundPortCommand createPort", 2);
  run("/group", "-createInputPort a float -createInputPort b int -createInputPort c float");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Unknown port type int"));
  EXPECT_EQ(ports(), R"(["a","c"])");
}

TEST_F(PortCreation, APortCannotBeMadeInACompoundThatIsNotEditable) {
  run("/group", "-setMetaData locked true");
  const std::string before = stored();
  EXPECT_THAT(refusal("/group", "-createInputPort a float"),
              ElementsAre("! The compound is not editable"));
  EXPECT_EQ(stored(), before);
}

TEST_F(PortCreation, AMemberOfAFanInPortIsMadeByItsPath) {
  run("/group", "-createInputPort many array<float> -portFlags 2");
  run("/group", "-createInputPort many.item float");
  EXPECT_THAT(stored(), HasSubstr("member many item\n"));
}

TEST_F(PortCreation, UndoTakesNewPortsOutAndRedoBringsThemBack) {
  sweep("/group", "-createInputPort a float");
  sweep("/group", "-createOutputPort a color3");
  sweep("/group", "-createInputPort a float -createInputPort a float -createOutputPort a float");
}

TEST_F(PortCreation, RedoBringsFlagsValuesAndOptionsBack) {
  sweep("/group",
        "-createInputPort a float -createOutputPort b float -portFlags 5 "
        "-portValues 2.5 -portOptions {k=v}");
}

TEST_F(PortCreation, UndoTakesOutOnlyWhatWasMade) {
  run("/group", "-createInputPort kept float");
  run("/group", "-createInputPort a float -createInputPort b nosuch");
  EXPECT_THAT(host.takeMessages(), ElementsAre("! Unknown port type nosuch"));
  undo();
  EXPECT_EQ(ports(), R"(["kept"])");
  redo();
  EXPECT_EQ(ports(), R"(["kept","a"])");
  EXPECT_THAT(host.takeMessages(), IsEmpty()) << "redo does not read the line again";
}

}  // namespace
