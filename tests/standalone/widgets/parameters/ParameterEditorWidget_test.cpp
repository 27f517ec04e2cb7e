#include "standalone/widgets/parameters/ParameterEditorWidget.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QPointer>

#include "standalone/widgets/colour/ColourDialog.h"
#include "standalone/widgets/colour/ColourSlider.h"
#include "standalone/widgets/parameters/GroupHeader.h"
#include "standalone/widgets/parameters/fields/ColourButton.h"
#include "standalone/widgets/parameters/fields/RangePopup.h"
#include "tests/standalone/widgets/colour/ColourTesting.h"
#include "tests/standalone/widgets/parameters/ParameterTesting.h"

namespace orvuilib {
namespace {

using orvUI_v1::ParameterEditor;
using orvUI_v1::ParameterEditorMode;
using testing::ElementsAre;
using testing::IsEmpty;

class ParameterEditorWidgetTest : public ParameterTest {};

TEST_F(ParameterEditorWidgetTest, ShowsARowForEachInputOfWhatIsSelected) {
  select({add("core::math::add", "sum")});
  EXPECT_EQ(row("a")->row().ports.size(), 1u);
  EXPECT_EQ(row("b")->row().ports.size(), 1u);
  EXPECT_EQ(rows().rowOf("result"), nullptr);
}

TEST_F(ParameterEditorWidgetTest, IsBlankWithoutASelection) {
  EXPECT_TRUE(rows().isEmpty());
  select({add("core::math::add", "sum")});
  EXPECT_FALSE(rows().isEmpty());
  select({});
  EXPECT_TRUE(rows().isEmpty());
}

TEST_F(ParameterEditorWidgetTest, FollowsScripts) {
  select({add("core::math::add", "sum")});
  host.run("orvNode g \"/sum\" -setPortDefaultValues \"a\" \"2.5\"");
  settle();
  EXPECT_EQ(entry("a")->text(), "2.5");
}

TEST_F(ParameterEditorWidgetTest, ADeletedNodeLeavesItBlankUntilUndoBringsItBack) {
  select({add("core::math::add", "sum")});
  host.run("orvCompound g \"/\" -removeNode \"sum\"");
  settle();
  EXPECT_TRUE(rows().isEmpty());
  undo();
  settle();
  EXPECT_FALSE(rows().isEmpty());
}

TEST_F(ParameterEditorWidgetTest, AGraphThatGoesLeavesItBlank) {
  select({add("core::math::add", "sum")});
  host.run("delete g");
  host.session().undoQueue().clear();
  settle();
  EXPECT_TRUE(rows().isEmpty());
}

TEST_F(ParameterEditorWidgetTest, ANewGraphInThePlaceOfTheOldLeavesItBlank) {
  select({add("core::math::add", "sum")});
  host.run("file -new -force");
  settle();
  EXPECT_TRUE(rows().isEmpty());
}

TEST_F(ParameterEditorWidgetTest, FollowsPortsThatComeAndGo) {
  host.run("orvCompound g \"/\" -create \"box\"");
  select({"/box"});
  EXPECT_EQ(rows().rowOf("size"), nullptr);
  host.run("orvCompound g \"/box\" -createInputPort \"size\" \"float\"");
  settle();
  EXPECT_NE(rows().rowOf("size"), nullptr);
  undo();
  settle();
  EXPECT_EQ(rows().rowOf("size"), nullptr);
}

TEST_F(ParameterEditorWidgetTest, KeepsTheFocusAndWhatIsBeingTypedWhenValuesChange) {
  select({add("core::math::add", "sum")});
  EntryField* field = entry("a");
  QTest::mouseClick(field, Qt::LeftButton);
  field->selectAll();
  QTest::keyClicks(field, "7");
  host.run("orvNode g \"/sum\" -setPortDefaultValues \"a\" \"2.5\"");
  host.run("orvNode g \"/sum\" -setPortDefaultValues \"b\" \"3\"");
  settle();
  EXPECT_TRUE(field->hasFocus());
  EXPECT_EQ(field->text(), "7");
  EXPECT_EQ(entry("b")->text(), "3");
}

TEST_F(ParameterEditorWidgetTest, KeepsTheFocusWhenAPortComes) {
  host.run("orvCompound g \"/\" -create \"box\"");
  host.run("orvCompound g \"/box\" -createInputPort \"size\" \"float\"");
  select({"/box"});
  EntryField* field = entry("size");
  QTest::mouseClick(field, Qt::LeftButton);
  host.run("orvCompound g \"/box\" -createInputPort \"other\" \"float\"");
  settle();
  EXPECT_EQ(entry("size"), field);
  EXPECT_TRUE(field->hasFocus());
}

TEST_F(ParameterEditorWidgetTest, UndoAndRedoKeysReachTheProgram) {
  select({add("core::math::add", "sum")});
  enter(entry("a"), "4");
  EXPECT_EQ(value("/sum.a"), "4");
  QTest::keyClick(&editor, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_TRUE(host.session().runIdleLines());
  settle();
  EXPECT_EQ(value("/sum.a"), "0");
  EXPECT_EQ(entry("a")->text(), "0");
}

TEST_F(ParameterEditorWidgetTest, TheInfoModeHasAPanelOfItsOwn) {
  const std::string sum = add("core::math::add", "sum");
  editor.setMode(ParameterEditorMode::kInfo);
  select({sum});
  EXPECT_EQ(editor.parameters(), nullptr);
  ASSERT_NE(editor.info(), nullptr);
  EXPECT_STREQ(editor.info()->node()->getName(), "sum");
  editor.setMode(ParameterEditorMode::kParameters);
  EXPECT_EQ(editor.info(), nullptr);
  EXPECT_FALSE(rows().isEmpty());
}

TEST_F(ParameterEditorWidgetTest, IsMadeByItsInterface) {
  QWidget parent;
  ParameterEditor* made = ParameterEditor::create(&parent);
  EXPECT_EQ(made->parentWidget(), &parent);
  made->setMode(ParameterEditorMode::kInfo);
  const std::unique_ptr<ParameterEditor> owned(ParameterEditor::create(nullptr));
  EXPECT_EQ(owned->parentWidget(), nullptr);
}

// Preferences.

class StoredPreferences : public ParameterTest {
 protected:
  void store(const std::string& json) {
    std::string text;
    for (const char c : json) text += (c == '"' ? "\\" : "") + std::string(1, c);
    host.run("optionVar -stringValue orvUIUserPrefs \"" + text + "\"");
    // As when the module is loaded anew.
    orvUI_v1::setAppServicesHook(&hook);
  }

  QJsonObject storedObject() {
    const std::string json = host.run("optionVar -query orvUIUserPrefs");
    const QByteArray list = "[" + QByteArray::fromStdString(json) + "]";
    const QByteArray text = QJsonDocument::fromJson(list).array().at(0).toString().toUtf8();
    return QJsonDocument::fromJson(text).object();
  }
};

TEST_F(StoredPreferences, AreThoseOfAParameterEditorAloneToo) {
  store(R"({"compoundEditor":{"showGrid":false},"parameterEditor":{"decimals":1}})");
  select({add("core::math::add", "sum")});
  host.run("orvNode g \"/sum\" -setPortDefaultValues a 0.123");
  settle();
  EXPECT_EQ(entry("a")->text(), "0.1");
  QTest::mouseClick(find<GroupHeader>(), Qt::LeftButton);
  settle();
  EXPECT_EQ(storedObject().value("compoundEditor").toObject(), (QJsonObject{{"showGrid", false}}));
  EXPECT_EQ(storedObject().value("parameterEditor").toObject().value("decimals"), 1);
  EXPECT_TRUE(storedObject().value("parameterEditor").toObject().contains("closedGroups"));
}

TEST_F(StoredPreferences, OfColoursAreTakenUpWhenTheyAreLoaded) {
  HalvingHandler colours;
  store(R"({"colorManagement":{"mixingSpace":"Other","enabled":false}})");
  static_cast<orvUI_v1::AppServicesHook&>(hook).syncUserPrefs(1);
  EXPECT_EQ(colours.mixingSpace(), "Other");
  EXPECT_FALSE(colours.enabled());
}

// What is going on when something else happens.

class Interruption : public ParameterTest {
 protected:
  Interruption() {
    add("core::math::add", "sum");
    host.run("orvCompound g \"/\" -create box");
    host.run("orvCompound g \"/box\" -createInputPort tint color3");
    host.run("orvNode g \"/sum\" -setPortDefaultValues a 0.25");
    before = stored();
  }

  void startDrag() {
    select({"/sum"});
    auto* slider = part<RangeSlider>("a");
    slider->setFocus();
    QTest::mousePress(slider, Qt::LeftButton, {}, {5, 5});
    QTest::mouseMove(slider, {slider->width() / 2, 5});
    EXPECT_NE(stored(), before);
  }

  void startPick() {
    select({"/box"});
    QTest::mouseClick(part<ColourButton>("tint"), Qt::LeftButton);
    picker = row("tint")->findChild<ColourDialog*>("picker");
    ASSERT_TRUE(picker);
    auto* slider = picker->findChildren<ColourSlider*>().at(0);
    QTest::mouseClick(slider, Qt::LeftButton, {}, {slider->width() - 4, 5});
    EXPECT_NE(stored(), before);
  }

  void startRange() {
    select({"/sum"});
    part<RangeSlider>("a")->setFocus();
    QTest::keyClick(part<RangeSlider>("a"), Qt::Key_Menu);
    popup = part<RangePopup>("a");
    ASSERT_TRUE(popup);
  }

  void startTyping() {
    select({"/sum"});
    QTest::mouseClick(entry("a"), Qt::LeftButton);
    entry("a")->selectAll();
    QTest::keyClicks(entry("a"), "7");
  }

  void remove(const char* name) {
    host.run("orvCompound g \"/\" -removeNode " + std::string(name));
    settle();
  }

  std::string before;
  QPointer<ColourDialog> picker;
  QPointer<RangePopup> popup;
};

TEST_F(Interruption, ByTheEndOfTheNodeLeavesNothingOpen) {
  startDrag();
  remove("sum");
  undo();
  settle();
  EXPECT_EQ(stored(), before) << "the drag is over";
  startPick();
  remove("box");
  EXPECT_FALSE(picker);
  undo();
  settle();
  EXPECT_EQ(stored(), before);
  startRange();
  remove("sum");
  EXPECT_FALSE(popup);
  undo();
  startTyping();
  remove("sum");
  undo();
  settle();
  EXPECT_EQ(stored(), before);
}

TEST_F(Interruption, ByTheEndOfThePanelPutsAllBack) {
  const std::function<void()> starts[] = {[this] { startDrag(); }, [this] { startPick(); },
                                          [this] { startRange(); }, [this] { startTyping(); }};
  for (const auto& start : starts) {
    start();
    editor.setMode(ParameterEditorMode::kInfo);
    settle();
    EXPECT_EQ(stored(), before);
    EXPECT_FALSE(picker);
    EXPECT_FALSE(popup);
    editor.setMode(ParameterEditorMode::kParameters);
    settle();
  }
}

TEST_F(Interruption, ByAnEditOfTheValueLeavesADragToItsEnd) {
  startDrag();
  host.run("orvNode g \"/sum\" -setPortDefaultValues a 0.75");
  settle();
  const std::string after = stored();
  auto* slider = part<RangeSlider>("a");
  QTest::mouseMove(slider, {slider->width() - 5, 5});
  QTest::mouseRelease(slider, Qt::LeftButton, {}, {slider->width() - 5, 5});
  settle();
  EXPECT_NE(stored(), after);
  undo();
  settle();
  EXPECT_EQ(stored(), after) << "what others did meanwhile stays";
}

TEST_F(Interruption, ByTheUndoKeyGivesUpADrag) {
  startDrag();
  host.run("orvNode g \"/sum\" -setPortDefaultValues b 1");
  QTest::keyClick(part<RangeSlider>("a"), Qt::Key_Z, Qt::ControlModifier);
  host.session().runIdleLines();
  settle();
  EXPECT_EQ(value("/sum.a"), "0.25");
  EXPECT_EQ(value("/sum.b"), "1") << "nothing else is undone";
}

TEST_F(Interruption, ByUndoLeavesWhatIsOpen) {
  select({"/sum"});
  enter(entry("a"), "0.5");
  QTest::mouseClick(entry("a"), Qt::LeftButton);
  entry("a")->selectAll();
  QTest::keyClicks(entry("a"), "7");
  undo();
  settle();
  EXPECT_EQ(entry("a")->text(), "7");
  EXPECT_EQ(value("/sum.a"), "0.25");
  QTest::keyClick(entry("a"), Qt::Key_Escape);
  EXPECT_EQ(entry("a")->text(), "0.25");
  startRange();
  host.run("orvNode g \"/sum\" -setPortDefaultValues a 0.6");
  settle();
  EXPECT_TRUE(popup);
  undo();
  settle();
  EXPECT_TRUE(popup);
  QTest::keyClick(popup, Qt::Key_Escape);
  settle();
}

TEST_F(ParameterEditorWidgetTest, WhyNothingCanBeEditedStandsAtTheLowerEdge) {
  add("core::math::add", "kept");
  host.run("orvCompound g / -create box -moveNodeIn kept");
  host.run("orvCompound g /box -setMetaData locked true");
  using orvUI_v1::ParameterEditorMode;
  for (const auto mode : {ParameterEditorMode::kInfo, ParameterEditorMode::kParameters}) {
    editor.setMode(mode);
    select({"/box/kept"});
    auto* note = editor.findChild<QLabel*>("readOnly");
    ASSERT_TRUE(note->isVisible());
    EXPECT_EQ(note->mapTo(&editor, QPoint(0, note->height())), QPoint(0, editor.height()));
    EXPECT_EQ(note->width(), editor.width());
  }
}

TEST_F(ParameterEditorWidgetTest, LeavesNoWidgetWhenItGoes) {
  select({add("core::math::add", "sum")});
  const auto countAfterAnother = [] {
    {
      ParameterEditorWidget other(nullptr);
      other.resize(300, 500);
      other.show();
      settle();
      other.setMode(ParameterEditorMode::kInfo);
      settle();
    }
    settle();
    return QApplication::allWidgets().size();
  };
  // The first may leave what widgets share.
  const auto before = countAfterAnother();
  EXPECT_EQ(countAfterAnother(), before);
}

}  // namespace
}  // namespace orvuilib
