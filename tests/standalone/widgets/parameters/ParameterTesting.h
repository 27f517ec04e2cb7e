#pragma once

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QTest>

#include "hook/orvVeskCommandHook.h"
#include "plugin/orvChangeBracketCmd.h"
#include "standalone/widgets/parameters/ParameterEditorWidget.h"
#include "standalone/widgets/parameters/ParameterPanel.h"
#include "standalone/widgets/parameters/RowView.h"
#include "standalone/widgets/parameters/fields/EntryField.h"
#include "standalone/widgets/parameters/fields/RangeSlider.h"
#include "standalone/widgets/parameters/info/InfoPanel.h"
#include "standalone/widgets/parameters/rows/RowWidget.h"
#include "standalone/widgets/preferences/Preferences.h"
#include "standalone/widgets/selection/SelectionModel.h"
#include "tests/commands/CommandTesting.h"

namespace orvuilib {

/// A parameter editor over the graph "g", with the hook that makes edits into lines.
class ParameterTest : public CommandTest {
 protected:
  ParameterTest() {
    addCommand("orvChangeBracket", orvChangeBracketCmd::creator,
               orvChangeBracketCmd::createSyntax());
    Preferences::instance().replaceAll({});
    editor.resize(320, 620);
    editor.show();
    editor.activateWindow();
    settle();
  }
  ~ParameterTest() override {
    SelectionModel::instance().select({});
    Preferences::instance().replaceAll({});
  }

  /// Lets happen what was put off.
  static void settle() {
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  /// A node of that type under that name; gives its path.
  std::string add(const std::string& type, const std::string& name) {
    const std::string made = host.run("orvCompound g \"/\" -addNode \"" + type + "\"");
    const std::string former = made.substr(2, made.size() - 4);
    if (former != name) host.run("orvCompound g \"/\" -renameNode " + former + " " + name);
    return "/" + name;
  }

  ORV_v1::AddRefWrapper<ORV_v1::Node> node(const std::string& path) {
    return graph.findNodeFromPath(path.c_str());
  }

  void select(const std::vector<std::string>& paths) {
    SelectionModel::Nodes nodes;
    for (const std::string& path : paths) nodes.push_back(node(path));
    SelectionModel::instance().select(nodes);
    settle();
    host.takeEchoes();
    host.session().undoQueue().clear();
  }

  RowView& rows() { return editor.parameters()->rows(); }

  RowWidget* row(const char* label) {
    RowWidget* found = rows().rowOf(label);
    EXPECT_NE(found, nullptr) << label;
    return found;
  }

  /// The part of that class and name in the row.
  template <class Part>
  Part* part(const char* label, const QString& name = {}) {
    for (QWidget* widget : row(label)->findChildren<QWidget*>(name)) {
      if (auto* found = dynamic_cast<Part*>(widget)) return found;
    }
    ADD_FAILURE() << "no such part in " << label;
    return nullptr;
  }

  /// The first widget of that class in the editor; null when there is none.
  template <class Part>
  Part* find() {
    for (QWidget* widget : editor.findChildren<QWidget*>()) {
      if (auto* found = dynamic_cast<Part*>(widget)) return found;
    }
    return nullptr;
  }

  EntryField* entry(const char* label, const QString& name = {}) {
    return part<EntryField>(label, name);
  }

  /// Clicks into the field, replaces its text and presses Return.
  void enter(EntryField* field, const QString& text) {
    QTest::mouseClick(field, Qt::LeftButton);
    field->selectAll();
    if (text.isEmpty()) QTest::keyClick(field, Qt::Key_Delete);
    for (const QChar character : text) {
      QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, character, Qt::NoModifier);
    }
    QTest::keyClick(field, Qt::Key_Return);
    settle();
  }

  /// The lines that ran since it was last asked, without the brackets' silent ones.
  hosttest::Texts lines() { return host.takeEchoes(); }

  /// The values of a port, as a list.
  std::string value(const std::string& path) {
    ORV_v1::StringArray values;
    const auto port = graph.findPortFromPath(path.c_str(), ORV_v1::Container::kSearchEither,
                                             ORV_v1::Container::kSearchOuter);
    if (!port || !port->getPortDefaultValues(values)) return "none";
    return values
        .serialize(ORV_v1::StringArray::kSerializeWithTags,
                   ORV_v1::StringArray::kDefaultSerializationTags)
        .toChar();
  }

  /// Undo leads to `before`, redo back to what is there now, and all of it is one step.
  void expectOneStep(const std::string& before) {
    const std::string after = stored();
    EXPECT_NE(before, after);
    EXPECT_EQ(host.steps().size(), 1u);
    undo();
    EXPECT_EQ(stored(), before);
    redo();
    EXPECT_EQ(stored(), after);
    settle();
  }

  orvVeskCommandHook hook;
  ParameterEditorWidget editor{nullptr};
};

}  // namespace orvuilib
