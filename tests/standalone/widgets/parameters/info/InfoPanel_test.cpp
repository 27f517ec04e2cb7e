#include "standalone/widgets/parameters/info/InfoPanel.h"

#include <QLabel>
#include <QTableView>
#include <QToolButton>

#include "standalone/widgets/parameters/info/Plot.h"
#include "standalone/widgets/parameters/info/PortsModel.h"
#include "standalone/widgets/parameters/info/WatchView.h"
#include "tests/standalone/widgets/parameters/ParameterTesting.h"

namespace orvuilib {
namespace {

using orvUI_v1::ParameterEditorMode;
using testing::ElementsAre;

class InfoPanelTest : public ParameterTest {
 protected:
  InfoPanelTest() {
    add("core::math::add", "sum");
    editor.setMode(ParameterEditorMode::kInfo);
    select({"/sum"});
  }

  QString text(const char* name) { return editor.findChild<QLabel*>(name)->text(); }

  QTableView* table(const char* name) { return editor.findChild<QTableView*>(name); }

  /// Edits a cell as a user does.
  void enterCell(QTableView* in, int line, int column, const QString& text) {
    in->setFocus();
    in->setCurrentIndex(in->model()->index(line, column));
    QTest::keyClick(in, Qt::Key_F2);
    auto* cell = in->findChild<QLineEdit*>();
    ASSERT_NE(cell, nullptr);
    cell->selectAll();
    QTest::keyClicks(cell, text);
    QTest::keyClick(cell, Qt::Key_Return);
    settle();
  }

  void clickWatchBox(int line) {
    QTableView* ports = table("ports");
    const QRect place = ports->visualRect(ports->model()->index(line, PortsModel::kWatch));
    QTest::mouseClick(ports->viewport(), Qt::LeftButton, {},
                      {place.left() + 9, place.center().y()});
    settle();
  }

  std::string metadata() { return host.run("orvNode g \"/sum\" -queryMetaDataAsString"); }
};

TEST_F(InfoPanelTest, TellsWhatTheNodeIs) {
  EXPECT_EQ(text("name"), "sum");
  EXPECT_EQ(text("type"), "Add");
  EXPECT_EQ(text("typeName"), "core::math::add");
  EXPECT_EQ(text("path"), "/sum");
  EXPECT_EQ(text("description"), "Gives a + b.");
}

TEST_F(InfoPanelTest, FollowsANewName) {
  host.run("orvCompound g \"/\" -renameNode \"sum\" \"total\"");
  settle();
  EXPECT_EQ(text("name"), "total");
  EXPECT_EQ(text("path"), "/total");
}

TEST_F(InfoPanelTest, ADeletedNodeLeavesItBlank) {
  host.run("orvCompound g \"/\" -removeNode \"sum\"");
  settle();
  EXPECT_EQ(editor.info()->node(), nullptr);
  undo();
  settle();
  EXPECT_STREQ(editor.info()->node()->getName(), "sum");
}

TEST_F(InfoPanelTest, LeadsFromNodeToNode) {
  add("core::math::add", "other");
  select({"/sum", "/other"});
  EXPECT_EQ(text("place"), "1 of 2");
  for (QToolButton* button : editor.findChildren<QToolButton*>()) {
    if (button->toolTip() == "The next node") QTest::mouseClick(button, Qt::LeftButton);
  }
  EXPECT_EQ(text("name"), "other");
  EXPECT_EQ(text("place"), "2 of 2");
}

TEST_F(InfoPanelTest, AStateIsSwitchedByALine) {
  const std::string before = stored();
  auto* box = editor.findChild<QCheckBox*>("flag f");
  ASSERT_NE(box, nullptr);
  EXPECT_FALSE(box->isChecked());
  QTest::mouseClick(box, Qt::LeftButton, {}, {8, box->height() / 2});
  settle();
  EXPECT_THAT(lines(), ElementsAre("orvNode \"g\" \"/sum\" -setStateFlag \"f\" true"));
  EXPECT_TRUE(box->isChecked());
  expectOneStep(before);
}

TEST_F(InfoPanelTest, ListsPortsWithTheirValues) {
  const QAbstractItemModel& ports = *table("ports")->model();
  ASSERT_EQ(ports.rowCount(), 3);
  EXPECT_EQ(ports.index(0, PortsModel::kName).data(), "a");
  EXPECT_EQ(ports.index(2, PortsModel::kName).data(), "result");
  add("core::math::add", "other");
  host.run("orvConnect g \"/other.result\" \"/sum.b\"");
  host.run("orvNode g \"/sum\" -setPortDefaultValues \"a\" \"2.5\"");
  settle();
  EXPECT_EQ(ports.index(0, PortsModel::kValue).data(), "2.5");
  EXPECT_TRUE(ports.index(1, PortsModel::kValue).data().toString().endsWith("other.result"));
}

TEST_F(InfoPanelTest, MetadataAreAddedChangedAndRemoved) {
  QTableView* metadataTable = table("node metadata");
  ASSERT_EQ(metadataTable->model()->rowCount(), 1);
  enterCell(metadataTable, 0, 0, "note");
  EXPECT_EQ(metadata(), "\"{note={,}}\"");
  enterCell(metadataTable, 0, 1, "a \"word\"");
  host.session().undoQueue().clear();
  lines();
  const std::string before = stored();
  enterCell(metadataTable, 0, 1, "other");
  EXPECT_THAT(lines(), ElementsAre("orvNode \"g\" \"/sum\" -setMetaData \"note\" \"other\""));
  expectOneStep(before);
  metadataTable->setFocus();
  metadataTable->setCurrentIndex(metadataTable->model()->index(0, 0));
  QTest::keyClick(metadataTable, Qt::Key_Delete);
  settle();
  EXPECT_EQ(metadata(), "\"{}\"");
}

TEST_F(InfoPanelTest, OneOfSeveralValuesIsChangedInItsPlace) {
  host.run("orvNode g \"/sum\" -setMetaDataFromString \"{tags={a,b,c}}\"");
  settle();
  enterCell(table("node metadata"), 1, 1, "x");
  EXPECT_EQ(metadata(), "\"{tags={a,x,c}}\"");
  enterCell(table("node metadata"), 0, 0, "marks");
  EXPECT_EQ(metadata(), "\"{marks={a,x,c}}\"");
}

TEST_F(InfoPanelTest, ACompoundHasMetadataOfItsOwn) {
  EXPECT_FALSE(table("compound metadata")->isVisible());
  host.run("orvCompound g \"/\" -create \"box\"");
  select({"/box"});
  EXPECT_TRUE(table("compound metadata")->isVisible());
  enterCell(table("compound metadata"), 0, 0, "kind");
  EXPECT_EQ(host.run("orvCompound g \"/box\" -queryMetaDataAsString"), "\"{kind={,}}\"");
}

TEST_F(InfoPanelTest, AWatchPointIsCreatedAndRemovedByItsBox) {
  const std::string before = stored();
  clickWatchBox(2);
  EXPECT_THAT(lines(), ElementsAre("orvWatchPoint \"g\" \"/sum\" \"result\" -create"));
  EXPECT_NE(find<WatchView>(), nullptr);
  expectOneStep(before);
  clickWatchBox(2);
  EXPECT_EQ(find<WatchView>(), nullptr);
}

TEST_F(InfoPanelTest, RecordsAreShownAsTheyCome) {
  add("core::math::add", "other");
  host.run("orvConnect g \"/other.result\" \"/sum.a\"");
  settle();
  clickWatchBox(2);
  host.run("orvNode g \"/other\" -setPortDefaultValues \"a\" \"7\"");
  settle();
  auto* watch = find<WatchView>();
  ASSERT_NE(watch, nullptr);
  QStringList texts;
  for (QLabel* label : watch->findChildren<QLabel*>()) texts.append(label->text());
  EXPECT_TRUE(texts.join("\n").contains("2 recorded, now 7")) << texts.join("\n").toStdString();
  EXPECT_TRUE(watch->findChild<QWidget*>("remove watch point") != nullptr);
}

TEST_F(InfoPanelTest, AButtonRemovesAWatchPoint) {
  clickWatchBox(2);
  QTest::mouseClick(editor.findChild<QWidget*>("remove watch point"), Qt::LeftButton);
  settle();
  EXPECT_EQ(find<WatchView>(), nullptr);
  undo();
  settle();
  EXPECT_NE(find<WatchView>(), nullptr);
}

}  // namespace
}  // namespace orvuilib
