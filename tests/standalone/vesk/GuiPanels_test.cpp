// The module's panels in the window: what is left of them.

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QPushButton>
#include <QTest>
#include <algorithm>
#include <set>

#include "platform/orvUI_1_0/CompoundEditor.h"
#include "platform/orvUI_1_0/ParameterEditor.h"
#include "standalone/vesk/Gui.h"
#include "standalone/vesk/Startup.h"
#include "testPaths.h"
#include "tests/standalone/graph/TemporaryFolder.h"

namespace {

using testing::IsEmpty;
using vesk::Panel;
using Texts = std::vector<std::string>;

/// Notes results, errors and warnings.
class Listener final : public vesk::LineListener {
 public:
  void lineBegins(std::string_view) override {}
  void message(const vesk::Message& message) override {
    const bool bad =
        message.kind == vesk::MessageKind::Error || message.kind == vesk::MessageKind::Warning;
    if (bad) messages.emplace_back(message.text);
  }
  void lineEnded(const vesk::ResultValue& value, KStatus) override { result = vesk::toJson(value); }

  Texts messages;
  std::string result;
};

void settle() {
  for (int i = 0; i < 4; ++i) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
}

template <class Editor>
int living() {
  return static_cast<int>(std::ranges::count_if(
      QApplication::allWidgets(),
      [](const QWidget* widget) { return dynamic_cast<const Editor*>(widget) != nullptr; }));
}

int graphEditors() { return living<orvUI_v1::CompoundEditor>(); }
int parameterEditors() { return living<orvUI_v1::ParameterEditor>(); }

struct PanelRow {
  const char* name;
  const char* line;
};

constexpr PanelRow kPanels[] = {
    {"graph", "orvCompoundEditor -name graph -edit g"},
    {"orvParameterEditorControl", "orvParameterEditor"},
    {"orvInfoPanelControl", "orvParameterEditor -info"},
};

/// A window with the module, and a graph "g" with a node that is selected.
class GuiPanels : public testing::Test {
 protected:
  static void SetUpTestSuite() { gui = std::make_unique<vesk::Gui>(); }
  static void TearDownTestSuite() { gui.reset(); }

  GuiPanels() : platform_(options(), listener_, false) {
    EXPECT_EQ(platform_.problem(), "");
    window_ = gui->open(platform_.session(), options());
    run("createNode orvGraph -name g");
    run("orvCompound g / -addNode core::math::add");
    before_ = allWidgets();
  }

  ~GuiPanels() override {
    EXPECT_THAT(listener_.messages, IsEmpty());
    window_.reset();
    EXPECT_EQ(graphEditors() + parameterEditors(), 0) << "the window owns them";
  }

  vesk::ProgramOptions options() const {
    vesk::ProgramOptions options;
    options.batch = true;
    options.plugins = {VESK_BUILD_DIR "/plug-ins/veskOrvPlugin.so"};
    options.preferencesFolder = folder_.path().string();
    return options;
  }

  static std::set<QWidget*> allWidgets() {
    const QWidgetList widgets = QApplication::allWidgets();
    return {widgets.begin(), widgets.end()};
  }

  /// The classes of the widgets that have come since the beginning and are still there.
  Texts left() {
    settle();
    Texts classes;
    for (QWidget* widget : allWidgets()) {
      if (!before_.contains(widget)) classes.emplace_back(widget->metaObject()->className());
    }
    return classes;
  }

  /// Runs a line that must work; gives its result as JSON.
  std::string run(const std::string& line) {
    listener_.result.clear();
    EXPECT_TRUE(platform_.runLine(line, listener_)) << line;
    settle();
    return listener_.result;
  }

  void openAll() {
    for (const PanelRow& row : kPanels) run(row.line);
    EXPECT_EQ(graphEditors(), 1);
    EXPECT_EQ(parameterEditors(), 2);
  }

  Panel& panel(const std::string& name) { return *window_->panels().find(name); }

  std::string editors() { return run("orvCompoundEditor -q -listEditors"); }

  static std::unique_ptr<vesk::Gui> gui;

  TemporaryFolder folder_;
  Listener listener_;
  vesk::Platform platform_;
  std::unique_ptr<vesk::MainWindow> window_;
  std::set<QWidget*> before_;
};

std::unique_ptr<vesk::Gui> GuiPanels::gui;

TEST_F(GuiPanels, NothingIsLeftOfOneThatTheUserCloses) {
  for (const char* floating : {"on", "off"}) {
    for (const PanelRow& row : kPanels) {
      run(row.line);
      run(std::string("workspaceControl -e -floating ") + floating + " " + row.name);
      auto* button = panel(row.name).findChild<QAbstractButton*>("qt_dockwidget_closebutton");
      ASSERT_NE(button, nullptr);
      QTest::mouseClick(button, Qt::LeftButton);
      EXPECT_THAT(left(), IsEmpty()) << row.name << ", floating " << floating;
    }
  }
}

TEST_F(GuiPanels, NothingIsLeftOfOneThatALineCloses) {
  for (const PanelRow& row : kPanels) {
    run(row.line);
    run(std::string("workspaceControl -e -close ") + row.name);
    EXPECT_THAT(left(), IsEmpty()) << row.name;
    EXPECT_FALSE(
        platform_.runLine(std::string("workspaceControl -e -close ") + row.name, listener_))
        << "twice";
    listener_.messages.clear();
  }
  EXPECT_EQ(editors(), "");
}

TEST_F(GuiPanels, NothingIsLeftOfThoseThatTheHostCloses) {
  openAll();
  run("workspaceControl -e -visible off graph");
  run("workspace -reset");
  EXPECT_THAT(left(), IsEmpty());
  EXPECT_EQ(editors(), "");
}

TEST_F(GuiPanels, OneThatAButtonOfItsOwnClosesCanBeBroughtBack) {
  run("orvCompoundEditor -name graph -edit g");
  auto* button = new QPushButton("close", panel("graph").content());
  button->show();
  QObject::connect(button, &QPushButton::clicked, [] {
    vesk::runLine("workspaceControl -e -close graph; orvCompoundEditor -name graph -edit g");
  });
  QTest::mouseClick(button, Qt::LeftButton);
  settle();
  EXPECT_EQ(editors(), R"(["graph"])") << "it was brought back";
  EXPECT_EQ(graphEditors(), 1);
  run("workspaceControl -e -close graph");
  EXPECT_THAT(left(), IsEmpty());
}

TEST_F(GuiPanels, OpeningTwiceMakesOneEditor) {
  openAll();
  settle();
  before_ = allWidgets();
  run("orvCompoundEditor -name graph");
  run("orvParameterEditor");
  run("orvParameterEditor -info");
  EXPECT_THAT(left(), IsEmpty()) << "nothing has come";
}

TEST_F(GuiPanels, TheModuleGoesWithAllOfThem) {
  openAll();
  run("orvCompoundEditor -name hidden -edit g");
  run("workspaceControl -e -visible off hidden");
  run("orvCompoundEditor -name docked -edit g");
  run("workspaceControl -e -floating off docked");
  run("orvCompoundEditor -name tab -edit g");
  run("workspaceControl -e -floating off tab");
  EXPECT_EQ(graphEditors(), 4);
  run("unloadPlugin veskOrvPlugin");
  EXPECT_EQ(run("workspaceControl -ls"), R"(["outliner","undoHistory","commandPanel"])");
  EXPECT_EQ(graphEditors() + parameterEditors(), 0);
  EXPECT_EQ(run("workspaceControl -q -visible outliner"), "true");
}

TEST_F(GuiPanels, TheModuleGoesWhileAMenuAndAFieldAreOpen) {
  openAll();
  run("orvCompoundEditor -name other -edit g");
  run("orvCompoundEditor -name graph -sendKey " + std::to_string(Qt::Key_Tab) + " 0");
  run("orvCompoundEditor -name other -selectNodes add");
  run("orvCompoundEditor -name other -sendKey " + std::to_string(Qt::Key_F2) + " 0");
  run("unloadPlugin veskOrvPlugin");
  EXPECT_EQ(graphEditors() + parameterEditors(), 0);
}

TEST_F(GuiPanels, RestoredOnesRunTheirLines) {
  openAll();
  run("workspace -save");
  run("workspace -reset");
  EXPECT_THAT(left(), IsEmpty());
  run("workspace -restore");
  EXPECT_EQ(graphEditors(), 1);
  EXPECT_EQ(parameterEditors(), 2);
  EXPECT_EQ(editors(), R"(["graph"])");
  for (const PanelRow& row : kPanels) {
    EXPECT_FALSE(panel(row.name).isEmpty()) << row.name;
    EXPECT_TRUE(panel(row.name).isShown()) << row.name;
  }
  EXPECT_EQ(run("orvCompoundEditor -q -name graph -dgContainer"), R"([""])") << "it shows nothing";
  run("orvCompoundEditor -name graph -edit g");
  EXPECT_EQ(run("orvCompoundEditor -q -name graph -dgContainer"), "\"g\"");
  EXPECT_EQ(graphEditors(), 1);
}

TEST_F(GuiPanels, RestoringTakesTheFormerOnesAway) {
  openAll();
  run("workspace -save");
  run("orvCompoundEditor -name more -edit g");
  run("workspace -restore");
  EXPECT_EQ(graphEditors(), 1);
  EXPECT_EQ(parameterEditors(), 2);
  run("workspace -reset");
  EXPECT_THAT(left(), IsEmpty());
}

TEST_F(GuiPanels, RestoredOnesBringTheModule) {
  openAll();
  run("workspace -save");
  run("unloadPlugin veskOrvPlugin");
  run("workspace -restore");
  EXPECT_EQ(graphEditors(), 1);
  EXPECT_EQ(parameterEditors(), 2);
  EXPECT_EQ(editors(), R"(["graph"])");
}

TEST_F(GuiPanels, LinesWithoutAPanelLeaveNoEditor) {
  run("orvCompoundEditor -name alone -edit g -reload");
  run("orvParameterEditor -reload");
  run("orvParameterEditor -info -reload");
  EXPECT_THAT(left(), IsEmpty());
  EXPECT_EQ(editors(), "");
}

TEST_F(GuiPanels, APanelThatIsRefusedPutsNoEditorIntoAnother) {
  run("orvCompoundEditor -name graph -edit g");
  for (const char* name : {"outliner", R"(q\"uote)", R"(back\\slash)"}) {
    run(std::string("orvCompoundEditor -name \"") + name + '"');
    EXPECT_EQ(graphEditors(), 1) << name;
  }
  EXPECT_EQ(editors(), R"(["graph"])");
  listener_.messages.clear();
  run("unloadPlugin veskOrvPlugin");
  EXPECT_EQ(run("workspaceControl -q -visible outliner"), "true");
}

}  // namespace
