#include "tests/editors/EditorSpies.h"

#include <utility>

#include "platform/orvUI_1_0/CompoundEditor.h"
#include "platform/orvUI_1_0/ParameterEditor.h"
#include "standalone/widgets/compound/CompoundEditorWidget.h"
#include "standalone/widgets/look/Scale.h"
#include "standalone/widgets/parameters/ParameterEditorWidget.h"

namespace {

bool spies = false;
std::vector<std::string> calls;

void note(const std::string& call) { calls.push_back(call); }

void noteMaking(const std::string& what, const QWidget* parent) {
  const int percent = static_cast<int>(100 * orvuilib::currentScale());
  note(what + (parent ? " with a parent" : "") + " at " + std::to_string(percent));
}

class SpyCompoundEditor final : public orvUI_v1::CompoundEditor {
 public:
  SpyCompoundEditor() : CompoundEditor(nullptr) {}

  void setRuntimeNameHint(const char* name) override { note("hint " + std::string(name)); }
  ORV_v1::AddRefWrapper<ORV_v1::Compound> currentCompound() const override { return {}; }
  void editCompound(const ORV_v1::AddRefWrapper<ORV_v1::Node>& topNode) override {
    note(topNode ? "edit" : "edit nothing");
  }
  bool diveInCompound(const ORV_v1::AddRefWrapper<ORV_v1::Compound>&) override { return false; }
  void sendKeyEvent(int key, QFlags<Qt::KeyboardModifier> modifiers) override {
    note("key " + std::to_string(key) + " " + std::to_string(int(modifiers)));
  }
  bool getSelectedNodes(ORV_v1::AddRefWrapper<ORV_v1::NodeList>&) const override { return false; }
  bool getSelectedAnnotations(ORV_v1::AddRefWrapper<ORV_v1::AnnotationList>&) const override {
    return false;
  }
  void setSelectedNodes(const ORV_v1::AddRefWrapper<ORV_v1::NodeList>&) override {}
};

class SpyParameterEditor final : public orvUI_v1::ParameterEditor {
 public:
  SpyParameterEditor() : ParameterEditor(nullptr) {}

  void setMode(orvUI_v1::ParameterEditorMode mode) override {
    note("mode " + std::to_string(static_cast<int>(mode)));
  }
};

}  // namespace

EditorSpies::EditorSpies() { spies = true; }

EditorSpies::~EditorSpies() {
  spies = false;
  calls.clear();
}

std::vector<std::string> EditorSpies::takeCalls() { return std::exchange(calls, {}); }

// In place of the functions of the library.

orvUI_v1::CompoundEditor* orvUI_v1::CompoundEditor::create(QWidget* parent) {
  if (!spies) return new orvuilib::CompoundEditorWidget(parent);
  noteMaking("compound editor", parent);
  return new SpyCompoundEditor;
}

orvUI_v1::ParameterEditor* orvUI_v1::ParameterEditor::create(QWidget* parent) {
  if (!spies) return new orvuilib::ParameterEditorWidget(parent);
  noteMaking("parameter editor", parent);
  return new SpyParameterEditor;
}
