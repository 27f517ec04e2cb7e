#pragma once

#include <QString>

#include "platform/orvUI_1_0/AppServicesHook.h"
#include "platform/orvUI_1_0/CommandHook.h"
#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/scene/LevelScene.h"

namespace orvuilib {

/// The way from an editor to the edits of the level that it shows. It changes no graph: it calls
/// the hooks that are installed.
class ORVUI_EXPORT EditSession {
 public:
  using CompoundHandle = orvUI_v1::CommandHook::CompoundHandle;
  using NodeHandle = orvUI_v1::CommandHook::NodeHandle;
  using PortHandle = orvUI_v1::CommandHook::PortHandle;

  explicit EditSession(LevelScene& scene) : scene_(scene) {}

  LevelScene& scene() const { return scene_; }

  /// Why the level cannot be edited, as a text to show; empty when it can.
  QString refusal() const;

  /// Whether a graph is shown that somebody takes requests for.
  bool hasHook() const;

  /// Only while `hasHook`.
  orvUI_v1::CommandHook& hook() const { return *findHook(); }

  /// Null when nobody keeps undo steps.
  orvUI_v1::AppServicesHook* services() const;

  orvlib::CompoundObject& level() const { return *scene_.level(); }
  CompoundHandle levelHandle() const { return CompoundHandle(scene_.level()); }
  orvlib::ContainerObject& container() const { return *scene_.levelNode()->container(); }

  static NodeHandle handle(orvlib::NodeObject& node) { return NodeHandle(&node); }
  static PortHandle handle(orvlib::PortObject& port) { return PortHandle(&port); }
  static orvlib::NodeObject* object(const NodeHandle& node) {
    return static_cast<orvlib::NodeObject*>(node.get());
  }
  static orvlib::PortObject* object(const PortHandle& port) {
    return static_cast<orvlib::PortObject*>(port.get());
  }

 private:
  orvUI_v1::CommandHook* findHook() const;

  LevelScene& scene_;
};

/// Edits that are one step of undo, and one change for whoever follows the graph. Empty ones are
/// not to be opened: they would leave an empty step.
class ORVUI_EXPORT EditStep {
 public:
  EditStep(const EditSession& session, const QString& name);
  EditStep(const EditStep&) = delete;
  EditStep& operator=(const EditStep&) = delete;
  ~EditStep();

 private:
  orvUI_v1::CommandHook& hook_;
  orvUI_v1::AppServicesHook* services_;
  orvlib::CoreRef core_;
};

}  // namespace orvuilib
