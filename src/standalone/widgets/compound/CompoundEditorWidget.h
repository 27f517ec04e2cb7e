#pragma once

#include <memory>

#include "platform/orvUI_1_0/CompoundEditor.h"
#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/graph/model/Changes.h"
#include "standalone/widgets/compound/input/Interaction.h"
#include "standalone/widgets/compound/parts/Breadcrumb.h"
#include "standalone/widgets/compound/parts/FindList.h"
#include "standalone/widgets/compound/parts/HelpOverlay.h"
#include "standalone/widgets/compound/parts/InlineEditor.h"
#include "standalone/widgets/compound/parts/NodeMenu.h"
#include "standalone/widgets/compound/view/Navigator.h"

class QMenu;

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

  // CompoundEditorWidget.cpp
  void listenTo(orvlib::ContainerObject* container);
  void showCurrentLevel();
  void keepView();
  void fitAll();
  void fit(const QRectF& area);
  void fitAgain();
  void closeOverlays();
  void openNodeMenu(const edits::NodePlace& place);
  void addPicked(const edits::NewNode& what);
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
  void nudge(const QPointF& steps);
  void arrange(const std::vector<edits::Moved>& moved);
  void autoLayout();
  void addBackdrop();
  void toggleWatch(const Hit& hit);
  void disconnectSelection();
  void removeHovered();

  // EditorMenus.cpp
  void addNodeActions(QMenu& menu);
  void addPortActions(QMenu& menu, orvlib::PortObject& port);
  void addCompoundActions(QMenu& menu, const Hit& hit);
  void addAction(QMenu& menu, Action action, const QString& text);
  void addHiddenPorts(QMenu& menu, const BoxItem& box);
  void renameNode(BoxItem& box);
  void renamePort(BoxItem& box, const PortSlot& slot);
  void changeText(NoteItem& note);

  Theme theme_;
  EditorPreferences preferences_;
  LevelScene scene_{theme_};
  EditSession session_{scene_};
  Navigator navigator_;
  orvlib::ContainerObject* container_ = nullptr;  ///< that it listens to
  Breadcrumb* breadcrumb_;
  Canvas* canvas_;
  NodeMenu* nodeMenu_;
  FindList* findList_;
  InlineEditor* inlineEditor_;
  HelpOverlay* help_;
  std::unique_ptr<Workbench> bench_;
  std::unique_ptr<Interaction> interaction_;
  QString runtimeHint_;
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
