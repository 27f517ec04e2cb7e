// What the editors are told when they are made.

#include "standalone/widgets/look/Scale.h"
#include "tests/editors/EditorSpies.h"
#include "tests/editors/EditorTesting.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NewEditors : public EditorTest {
 protected:
  ~NewEditors() override { orvUI_v1::setCustomDPIScaling(orvUI_v1::DPIPreset::kScale100); }

  /// What a new editor hears when the interface is scaled to so many percent.
  hosttest::Texts callsAt(int percent, const std::string& line, const std::string& panel) {
    host.run("optionVar -intValue interfaceScale " + std::to_string(percent));
    host.run(line);
    closeByUser(panel);
    return spies_.takeCalls();
  }

  EditorSpies spies_;
};

struct ScaleRow {
  int interface;
  int editors;
};

/// Only two of the scales have a preset; each of the others follows one that has.
constexpr ScaleRow kScales[] = {{150, 150}, {100, 100}, {200, 200}, {125, 100},
                                {150, 150}, {175, 100}, {200, 200}, {110, 100}};

TEST_F(NewEditors, OfGraphsAreDrawnAtTheScaleOfTheInterface) {
  for (const auto& [interface, editors] : kScales) {
    EXPECT_THAT(callsAt(interface, "orvCompoundEditor -name \"a\"", "a"),
                ElementsAre("compound editor at " + std::to_string(editors)))
        << interface;
  }
}

TEST_F(NewEditors, OfParametersAreDrawnAtTheScaleOfTheInterface) {
  for (const auto& [interface, editors] : kScales) {
    EXPECT_THAT(callsAt(interface, "orvParameterEditor", "orvParameterEditorControl"),
                ElementsAre("parameter editor at " + std::to_string(editors)))
        << interface;
  }
}

TEST_F(NewEditors, HearWhichRuntimeComesFirst) {
  host.run("orvCompoundEditor -name \"a\" -runtimeHint \"core\"");
  EXPECT_THAT(spies_.takeCalls(), ElementsAre("compound editor at 100", "hint core"));
  const hosttest::Texts lines = panelLines();
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[1],
            "workspaceControl -e -uiScript \"orvCompoundEditor -name \\\"a\\\" -title "
            "\\\"Compound Editor\\\" -reload\" \"a\"")
      << "the next session knows nothing of it";
}

TEST_F(NewEditors, HearOfNoRuntimeWhereNoneIsNamed) {
  host.run("orvCompoundEditor -name \"a\" -runtimeHint \"\"");
  EXPECT_THAT(spies_.takeCalls(), ElementsAre("compound editor at 100"));
}

TEST_F(NewEditors, OnlyANewOneHearsOfARuntime) {
  host.run("orvCompoundEditor -name \"a\"");
  spies_.takeCalls();
  host.run("orvCompoundEditor -name \"a\" -runtimeHint \"core\"");
  EXPECT_THAT(spies_.takeCalls(), IsEmpty());
}

TEST_F(NewEditors, ThatTheHostMakesAgainHearOfARuntimeToo) {
  QWidget restored;
  workspace.setCurrentParent(&restored);
  host.run("orvCompoundEditor -name \"a\" -reload -runtimeHint \"core\"");
  EXPECT_THAT(spies_.takeCalls(), ElementsAre("compound editor at 100", "hint core"));
}

TEST_F(NewEditors, OfParametersKeepTheModeThatTheyHave) {
  host.run("orvParameterEditor");
  EXPECT_THAT(spies_.takeCalls(), ElementsAre("parameter editor at 100"));
}

TEST_F(NewEditors, OfInformationAreToldTheirMode) {
  host.run("orvParameterEditor -info");
  EXPECT_THAT(spies_.takeCalls(), ElementsAre("parameter editor at 100", "mode 1"));
  closeByUser("orvInfoPanelControl");
  QWidget restored;
  workspace.setCurrentParent(&restored);
  host.run("orvParameterEditor -info -reload");
  EXPECT_THAT(spies_.takeCalls(), ElementsAre("parameter editor at 100", "mode 1"));
}

TEST_F(NewEditors, GetTheKeyAsItIsWritten) {
  host.run("orvCompoundEditor -name \"a\"");
  spies_.takeCalls();
  host.run("orvCompoundEditor -name \"a\" -sendKey 16777220 -1");
  host.run("orvCompoundEditor -name \"a\" -sendKey 0 100663296");
  EXPECT_THAT(spies_.takeCalls(), ElementsAre("key 16777220 -1", "key 0 100663296"));
}

}  // namespace
