#include "editors/orvParameterEditorCmd.h"

#include "tests/editors/EditorTesting.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string making(const std::string& label, const std::string& name) {
  return "workspaceControl -label \"" + label +
         "\" -retain false -deleteLater false -loadImmediately true -floating true -initialWidth "
         "300 -initialHeight 600 -requiredPlugin \"the plug-in\" " +
         name;
}

class ParameterEditorCmd : public EditorTest {};

TEST_F(ParameterEditorCmd, OpensThePanelOfParameters) {
  host.run("orvParameterEditor");
  EXPECT_THAT(panelLines(),
              ElementsAre(making("Parameters", "orvParameterEditorControl"),
                          "workspaceControl -e -uiScript \"orvParameterEditor -reload \" "
                          "orvParameterEditorControl"));
  ASSERT_TRUE(parameterEditors[0]);
  EXPECT_EQ(parameterEditors[0]->parentWidget(), panels["orvParameterEditorControl"]);
  EXPECT_FALSE(parameterEditors[0]->isHidden());
  EXPECT_FALSE(parameterEditors[1]);
}

TEST_F(ParameterEditorCmd, OpensThePanelOfInformation) {
  host.run("orvParameterEditor -info");
  EXPECT_THAT(panelLines(),
              ElementsAre(making("Info", "orvInfoPanelControl"),
                          "workspaceControl -e -uiScript \"orvParameterEditor -info -reload \" "
                          "orvInfoPanelControl"));
  EXPECT_FALSE(parameterEditors[0]);
  ASSERT_TRUE(parameterEditors[1]);
}

TEST_F(ParameterEditorCmd, BringsAPanelBackThatIsThere) {
  host.run("orvParameterEditor");
  const auto* editor = parameterEditors[0].data();
  panelLines();
  host.run("orvParameterEditor");
  host.run("orvParameterEditor -reload");
  EXPECT_THAT(panelLines(), ElementsAre("workspaceControl -e -restore orvParameterEditorControl",
                                        "workspaceControl -e -restore orvParameterEditorControl"));
  EXPECT_EQ(parameterEditors[0], editor);
}

TEST_F(ParameterEditorCmd, ReloadingFillsThePanelThatTheHostMade) {
  QWidget restored;
  workspace.setCurrentParent(&restored);
  host.run("orvParameterEditor -info -reload");
  EXPECT_THAT(panelLines(), IsEmpty());
  ASSERT_TRUE(parameterEditors[1]);
  EXPECT_EQ(parameterEditors[1]->parentWidget(), &restored);
}

TEST_F(ParameterEditorCmd, OpensAgainWhatTheUserClosed) {
  host.run("orvParameterEditor");
  closeByUser("orvParameterEditorControl");
  EXPECT_FALSE(parameterPanels[0]);
  EXPECT_FALSE(parameterEditors[0]);
  panelLines();
  host.run("orvParameterEditor");
  EXPECT_THAT(panelLines(), testing::SizeIs(2));
  EXPECT_TRUE(parameterEditors[0]);
}

TEST_F(ParameterEditorCmd, WorksAlsoWhenTheHostRefusesThePanel) {
  refusesPanels = true;
  host.run("orvParameterEditor");
  EXPECT_FALSE(parameterPanels[0]);
}

TEST_F(ParameterEditorCmd, ALineThatDoesNotFitOpensThePanelAllTheSame) {
  EXPECT_EQ(host.status("orvParameterEditor -mud"), StatusSuccess);
  EXPECT_THAT(host.takeMessages(), testing::SizeIs(1)) << "the host's own";
  EXPECT_TRUE(parameterEditors[0]);
}

TEST_F(ParameterEditorCmd, ClosesThePanelsWhoseEditorIsThere) {
  host.run("orvParameterEditor");
  host.run("orvParameterEditor -info");
  delete parameterEditors[0];
  panelLines();
  closeParameterEditors();
  EXPECT_THAT(panelLines(), ElementsAre("workspaceControl -e -close orvInfoPanelControl"));
  closeParameterEditors();
  EXPECT_THAT(panelLines(), IsEmpty());
}

TEST_F(ParameterEditorCmd, ClosesAlsoThePanelOfAnEditorThatStandsElsewhere) {
  host.run("orvParameterEditor");
  panelLines();
  parameterEditors[0]->setParent(nullptr);
  delete parameterPanels[0];
  closeParameterEditors();
  EXPECT_THAT(panelLines(), ElementsAre("workspaceControl -e -close orvParameterEditorControl"));
}

TEST_F(ParameterEditorCmd, APanelWithoutItsEditorIsOnlyBroughtBack) {
  host.run("orvParameterEditor -info");
  delete parameterEditors[1];
  panelLines();
  host.run("orvParameterEditor -info -reload");
  EXPECT_THAT(panelLines(), ElementsAre("workspaceControl -e -restore orvInfoPanelControl"));
  EXPECT_FALSE(parameterEditors[1]);
}

}  // namespace
