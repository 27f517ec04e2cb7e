#pragma once

#include <memory>

#include "platform/orvUI_1_0/CompoundEditor.h"
#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/Changes.h"
#include "standalone/widgets/compound/edits/WireEdits.h"
#include "standalone/widgets/compound/input/Interaction.h"
#include "standalone/widgets/compound/parts/Breadcrumb.h"
#include "standalone/widgets/compound/parts/Overlays.h"
#include "standalone/widgets/compound/view/Navigator.h"

namespace orvuilib {

/// The compound editor: a breadcrumb above a canvas, and what opens over it.
class ORVUI_EXPORT CompoundEditorWidget final : public orvUI_v1::CompoundEditor,
                                                private orvlib::ChangeListener,
                                                private InteractionTarget {
 public:
  explicit CompoundEditorWidget(QWidget* parent);
  ~CompoundEditorWidget() override;

  // CompoundEditor
  void setRuntimeNameHint(const char* name) override;
  ORV_v1::AddRefWrapper<ORV_v1::Compound> currentCompound() const override;
  void editCompound(const ORV_v1::AddRefWrapper<ORV_v1::Node>& topNode) override;
  bool diveInCompound(const ORV_v1::AddRefWrapper<ORV_v1::Compound>& compound) override;
  void sendKeyEvent(int key, QFlags<Qt::KeyboardModifier> modifiers) override;
  bool getSelectedNodes(ORV_v1::AddRefWrapper<ORV_v1::NodeList>& nodes) const override;
  bool getSelectedAnnotations(
      ORV_v1::AddRefWrapper<ORV_v1::AnnotationList>& annotations) const override;
  void setSelectedNodes(const ORV_v1::AddRefWrapper<ORV_v1::NodeList>& nodes) override;

  Canvas& canvas() { return *canvas_; }
  const LevelScene& scene() const { return scene_; }
  const Breadcrumb& breadcrumb() const { return *breadcrumb_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  // ChangeListener
  void graphChanged(orvlib::ContainerObject& container,
                    std::span<const orvlib::NodeChange> changes) override;
  void graphGoes(orvlib::ContainerObject& container) override;

  // InteractionTarget
  void perform(Action action) override;
  void selectionMayHaveChanged() override;
  void renameInPlace(const Hit& hit) override;
  void diveInto(orvlib::NodeObject& node) override;
  void openContextMenu(const Hit& hit, const QPoint& globalPosition) override;
  void addPortAt(const BoxItem& box) override;
  void viewHasChanged() override;

  // CompoundEditorWidget.cpp
  void listenTo(orvlib::ContainerObject* container);
  void showCurrentLevel();
  void keepView();
  void fitAll();
  void fit(const QRectF& area);
  void fitAgain();
  void leaveLevel();
  void reveal(orvlib::NodeObject& node);
  void followSelection();
  void revealIfAsked(orvlib::NodeObject* node, bool mayLeaveLevel, bool& revealed);
  void readPreferences();

  // EditorActions.cpp
  bool performView(Action action);
  bool performSelection(Action action);
  bool performPreference(Action action);
  void performEdit(Action action);
  void performOnSelection(Action action);
  void fitSelection();
  void selectConnected(bool upstream);
  void invertSelection();
  void select(const std::vector<orvlib::NodeRef>& nodes);
  void nudge(const QPointF& by);
  void growNotes(const QSizeF& by);
  void arrange(const std::vector<edits::Moved>& moved);
  void autoLayout();
  void addBackdrop();
  void toggleWatch(const Hit& hit);
  void disconnectSelection();
  void removeCurrentWire();
  void pasteAt(const QPointF& place);

  // EditorPorts.cpp
  bool performWalk(Action action);
  bool performPort(Action action);
  void editPort(Action action, orvlib::PortObject& port);
  void walk(PortCursor::Way way);
  void wireByKey(orvlib::PortObject& port);
  void addPort(orvlib::CompoundObject& compound, bool output, const QPointF& at);
  void choosePortType(orvlib::PortObject& port);
  void showAllPorts();
  void showPorts(const std::vector<orvlib::PortRef>& ports);
  orvlib::CompoundObject& compoundForPorts() const;
  QPointF placeForPorts(bool output) const;

  // EditorFields.cpp: what opens over the canvas
  void connectOverlays();
  SearchList::Place placeAt(const QPointF& scenePoint) const;
  bool canStillEdit() const { return session_.refusal().isEmpty(); }
  void openNodeMenu(const edits::NodePlace& place, const std::vector<Action>& actions = {});
  void openNodeMenuFor(const edits::Joint& wire, const QPointF& at);
  void addByKey();
  void addPicked(const edits::NewNode& what);
  void performAt(Action action, const QPointF& place);
  void openFind();
  void addNote(const std::function<void()>& add);
  void renameNode(BoxItem& box);
  void renamePort(orvlib::PortObject& port);
  void changeText(NoteItem& note);
  void chooseColour();

  // EditorMenus.cpp
  class MenuMaker;
  void selectFor(const Hit& hit);
  void dress(QMenu& menu) const;
  void popUp(QMenu& menu, const QPoint& globalPosition, std::function<bool()> isFor);
  void openMenuByKey();

  Theme theme_;
  EditorPreferences preferences_;
  LevelScene scene_{theme_};
  EditSession session_{scene_};
  Navigator navigator_;
  orvlib::ContainerObject* container_ = nullptr;  ///< that it listens to
  Breadcrumb* breadcrumb_;
  Canvas* canvas_;
  Overlays overlays_;
  std::unique_ptr<Workbench> bench_;
  std::unique_ptr<Interaction> interaction_;
  QString runtimeHint_;
  QString usualType_ = QStringLiteral("float");  ///< that was last chosen for a port
  std::uint64_t toldSelection_ = 0;

  struct Fitted {
    std::optional<QRectF> area;  ///< nothing for all that there is
    QPointF corner;              ///< where the corner of the view was then
    qreal zoom = 0;
  };

  /// What was fitted into the view last; nothing when the view was restored.
  std::optional<Fitted> fitted_;
};

}  // namespace orvuilib
