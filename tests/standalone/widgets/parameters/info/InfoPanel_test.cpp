#include "standalone/widgets/parameters/info/InfoPanel.h"

#include <QHeaderView>
#include <QLabel>
#include <QListView>
#include <QScrollBar>
#include <QTableView>
#include <QToolButton>

#include "standalone/widgets/parameters/info/MetadataTable.h"
#include "standalone/widgets/parameters/info/Plot.h"
#include "standalone/widgets/parameters/info/PortsModel.h"
#include "standalone/widgets/parameters/info/WatchView.h"
#include "tests/standalone/widgets/hooks/IdleHooks.h"
#include "tests/standalone/widgets/parameters/ParameterTesting.h"

namespace orvuilib {
namespace {

using orvUI_v1::ParameterEditorMode;
using testing::ElementsAre;
using testing::IsEmpty;

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

TEST_F(InfoPanelTest, OffersEditsOnlyWhereTheyAreAllowed) {
  host.run("orvCompound g \"/\" -create box -moveNodeIn sum");
  host.run("orvNode g \"/box/sum\" -setMetaData note kept");
  select({"/box/sum"});
  auto* box = editor.findChild<QCheckBox*>("flag f");
  const QModelIndex cell = table("node metadata")->model()->index(0, 1);
  const QModelIndex watch = table("ports")->model()->index(2, PortsModel::kWatch);
  clickWatchBox(2);
  auto* adder = editor.findChild<QWidget*>("add watch metadata");
  auto* remover = editor.findChild<QWidget*>("remove watch point");
  EXPECT_TRUE(adder->isEnabled() && remover->isEnabled());
  EXPECT_TRUE(box->isEnabled());
  EXPECT_TRUE(cell.flags() & Qt::ItemIsEditable);
  EXPECT_TRUE(watch.flags() & Qt::ItemIsUserCheckable);
  EXPECT_FALSE(editor.findChild<QLabel*>("readOnly")->isVisible());
  host.run("orvCompound g \"/box\" -setMetaData locked true");
  settle();
  host.takeEchoes();
  EXPECT_FALSE(adder->isEnabled() || remover->isEnabled());
  EXPECT_FALSE(box->isEnabled());
  EXPECT_FALSE(cell.flags() & Qt::ItemIsEditable);
  EXPECT_FALSE(watch.flags() & Qt::ItemIsUserCheckable);
  EXPECT_EQ(text("readOnly"), "Read-only: /box is locked");
  clickWatchBox(2);
  QTest::mouseClick(box, Qt::LeftButton, {}, {8, box->height() / 2});
  EXPECT_THAT(lines(), IsEmpty());
}

TEST_F(InfoPanelTest, ALockCanBeTakenOff) {
  host.run("orvCompound g \"/\" -create box");
  host.run("orvCompound g \"/box\" -setMetaData locked true");
  select({"/box"});
  enterCell(table("compound metadata"), 0, 1, "false");
  EXPECT_EQ(host.run("orvCompound g \"/box\" -queryMetaDataAsString"), "\"{locked=false}\"");
}

TEST_F(InfoPanelTest, ARefusedEditIsSaid) {
  host.run("orvNode g \"/sum\" -setMetaData note kept");
  settle();
  IdleCommandHook idle;
  orvUI_v1::setCommandHook(&idle, nullptr);
  auto* box = editor.findChild<QCheckBox*>("flag f");
  QTest::mouseClick(box, Qt::LeftButton, {}, {8, box->height() / 2});
  EXPECT_EQ(text("notice"), "The graph refused to switch \"Frozen\"");
  EXPECT_FALSE(box->isChecked());
  clickWatchBox(2);
  EXPECT_EQ(text("notice"), "The graph refused to watch result");
  enterCell(table("node metadata"), 0, 1, "other");
  EXPECT_EQ(text("notice"), "The graph refused the edit");
}

TEST_F(InfoPanelTest, MetadataOfAPortAreAddedChangedAndRemoved) {
  EXPECT_FALSE(table("port metadata")->isVisible());
  QTableView* ports = table("ports");
  ports->setFocus();
  ports->setCurrentIndex(ports->model()->index(0, PortsModel::kName));
  QTableView* metadataTable = table("port metadata");
  ASSERT_TRUE(metadataTable->isVisible());
  const std::string before = stored();
  enterCell(metadataTable, 0, 0, "max");
  EXPECT_THAT(lines(), IsEmpty()) << "it waits for a value";
  enterCell(metadataTable, 0, 1, "10");
  EXPECT_THAT(lines(),
              ElementsAre("orvNode \"g\" \"/sum\" -setPortMetaDataValue \"a\" \"max\" \"10\""));
  expectOneStep(before);
  enterCell(metadataTable, 0, 1, "20");
  EXPECT_EQ(host.run("orvNode g \"/sum\" -queryPortMetaDataValue a max"), "\"20\"");
  metadataTable->setCurrentIndex(metadataTable->model()->index(0, 0));
  QTest::keyClick(metadataTable, Qt::Key_Delete);
  settle();
  EXPECT_EQ(stored(), before);
}

TEST_F(InfoPanelTest, AKindThatEveryGraphHasIsNamedOnce) {
  EXPECT_TRUE(editor.findChild<QLabel*>("typeName")->isVisible());
  host.run("orvCompound g \"/\" -create box");
  select({"/box"});
  EXPECT_EQ(text("type"), "Compound");
  EXPECT_FALSE(editor.findChild<QLabel*>("typeName")->isVisible());
}

TEST_F(InfoPanelTest, ManyPortsAreNotScrolledInTheirTable) {
  host.run("orvCompound g \"/\" -create box");
  std::string line = "orvCompound g \"/box\"";
  for (int i = 0; i < 60; ++i) line += " -createInputPort p" + std::to_string(i) + " float";
  host.run(line);
  select({"/box"});
  EXPECT_EQ(table("ports")->verticalScrollBar()->maximum(), 0);
  EXPECT_GT(editor.info()->verticalScrollBar()->maximum(), 0);
}

TEST_F(InfoPanelTest, ValuesHaveTheMostRoom) {
  editor.resize(260, 620);
  host.run("orvNode g \"/sum\" -createInputPort aPortOfALongName \"array<color4>\"");
  settle();
  const QHeaderView& header = *table("ports")->horizontalHeader();
  EXPECT_GT(header.sectionSize(PortsModel::kValue), header.sectionSize(PortsModel::kName));
  EXPECT_GT(header.sectionSize(PortsModel::kName), header.sectionSize(PortsModel::kType));
  EXPECT_FALSE(header.isSectionHidden(PortsModel::kType));
  editor.resize(200, 620);
  settle();
  EXPECT_TRUE(header.isSectionHidden(PortsModel::kType)) << "names need its room";
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
  host.run("orvNode g /other -setPortDefaultValues a 0.48999998");
  settle();
  QLabel* latest = watch->findChild<QLabel*>("latest");
  EXPECT_TRUE(latest->text().endsWith("now 0.49")) << latest->text().toStdString();
  EXPECT_EQ(latest->toolTip(), "0.48999998");
}

/// Whether any pixel of the picture has about the colour.
bool shows(const QImage& picture, const QColor& colour) {
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QColor here = picture.pixelColor(x, y);
      const int apart = std::abs(here.red() - colour.red()) +
                        std::abs(here.green() - colour.green()) +
                        std::abs(here.blue() - colour.blue());
      if (apart < 45) return true;
    }
  }
  return false;
}

TEST_F(InfoPanelTest, NumbersAreDrawnWithANameForEachCurve) {
  add("core::vector::vector3::add", "vec");
  select({"/vec"});
  clickWatchBox(2);
  auto* plot = find<Plot>();
  ASSERT_NE(plot, nullptr);
  EXPECT_TRUE(plot->isVisible());
  const int height = plot->height();
  EXPECT_EQ(height, plot->sizeHint().height());
  host.run("orvNode g \"/vec\" -setPortDefaultValues a \"{1,2,3}\"");
  host.run("orvNode g \"/vec\" -setPortDefaultValues a \"{3,-2,1}\"");
  settle();
  const QImage picture = plot->grab().toImage();
  const QImage names = picture.copy(0, 0, picture.width(), plot->fontMetrics().height());
  for (std::size_t curve = 0; curve < 3; ++curve) {
    EXPECT_TRUE(shows(names, plot->colourOf(curve))) << curve;
    EXPECT_TRUE(shows(picture.copy(0, names.height(), picture.width(), picture.height()),
                      plot->colourOf(curve)))
        << curve;
  }
}

TEST_F(InfoPanelTest, ASingleCurveHasNoName) {
  clickWatchBox(2);
  host.run("orvNode g \"/sum\" -setPortDefaultValues a 4");
  settle();
  auto* plot = find<Plot>();
  EXPECT_EQ(plot->height(), plot->fontMetrics().height() * 4);
  EXPECT_TRUE(shows(plot->grab().toImage(), plot->colourOf(0)));
}

TEST_F(InfoPanelTest, TextsAreListedAsTheyAreRecorded) {
  add("core::string::concatenate", "words");
  select({"/words"});
  const auto ports = table("ports")->model();
  const int line = ports->rowCount() - 1;
  clickWatchBox(line);
  const std::string name = ports->index(0, PortsModel::kName).data().toString().toStdString();
  host.run("orvNode g \"/words\" -setPortDefaultValues " + name + " \"one\"");
  settle();
  auto* watch = find<WatchView>();
  ASSERT_NE(watch, nullptr);
  auto* list = watch->findChild<QListView*>();
  EXPECT_TRUE(list->isVisible());
  EXPECT_FALSE(find<Plot>()->isVisible());
  ASSERT_EQ(list->model()->rowCount(), 2);
  EXPECT_TRUE(list->model()->index(1, 0).data().toString().contains("one"));
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Home);
  EXPECT_EQ(list->currentIndex().row(), 0);
}

TEST_F(InfoPanelTest, ChangesOfOtherNodesLeadToNewRecordsOnly) {
  add("core::math::add", "source");
  host.run("orvConnect g \"/source.result\" \"/sum.a\"");
  settle();
  clickWatchBox(2);
  QLabel* name = editor.findChild<QLabel*>("name");
  name->setText("as it is");
  host.run("orvNode g \"/source\" -setPortDefaultValues a 7");
  settle();
  EXPECT_EQ(table("ports")->model()->index(2, PortsModel::kValue).data(), "7");
  EXPECT_EQ(name->text(), "as it is") << "nothing else is read again";
  host.run("orvNode g \"/sum\" -setPortDefaultValues b 1");
  settle();
  EXPECT_EQ(name->text(), "sum");
}

TEST_F(InfoPanelTest, MetadataOfAWatchPointHaveATableOnceThereAreSome) {
  clickWatchBox(2);
  auto* watch = find<WatchView>();
  auto* metadataTable = watch->findChild<MetadataTable*>();
  EXPECT_FALSE(metadataTable->isVisible());
  QTest::mouseClick(watch->findChild<QWidget*>("add watch metadata"), Qt::LeftButton);
  EXPECT_TRUE(metadataTable->isVisible());
  enterCell(metadataTable, 0, 0, "note");
  const QModelIndex key = metadataTable->model()->index(0, 0);
  EXPECT_EQ(key.data(), "note");
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
