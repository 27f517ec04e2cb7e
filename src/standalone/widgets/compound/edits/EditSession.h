#pragma once

#include <QString>
#include <functional>

#include "platform/orvUI_1_0/AppServicesHook.h"
#include "platform/orvUI_1_0/CommandHook.h"
#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/scene/LevelScene.h"

namespace orvuilib {

class EditStep;

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

  /// Where it is said that an edit could not be made; at first nowhere.
  void setNotice(std::function<void(const QString&)> notice) { notice_ = std::move(notice); }
  void tell(const QString& text) const {
    if (notice_) notice_(text);
  }

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
  friend class EditStep;

  orvUI_v1::CommandHook* findHook() const;

  LevelScene& scene_;
  EditStep* openStep_ = nullptr;  ///< the innermost one
  std::function<void(const QString&)> notice_;
};

/// Edits that are one step of undo, and one change for whoever follows the graph. It is made whole
/// or not at all: when a part that is required was not made, or nothing came of any, the step is
/// taken back as soon as the program undoes, and the user is told. Without undo steps what was
/// made stays, and the user is told too. A step within another one is a part of that: when it is
/// not made, the whole is not.
class ORVUI_EXPORT EditStep {
 public:
  /// `name` is said to the user, and names the step.
  EditStep(EditSession& session, const QString& name);
  EditStep(const EditStep&) = delete;
  EditStep& operator=(const EditStep&) = delete;
  ~EditStep();

  /// Whether a part of the step was made. Gives back what it is given.
  bool require(bool made) {
    if (!made) ++failures_;
    return made;
  }

  /// What is said when the step is taken back, instead of that it could not be done.
  void setReason(const QString& reason) { reason_ = reason; }

 private:
  void open();
  void close(bool fails, bool nothing);
  void passUp(bool fails);
  bool changedNothing() const;
  QString report(bool takenBack) const;

  EditSession& session_;
  EditStep* outer_;  ///< null for the outermost, which alone is a step of undo
  orvUI_v1::CommandHook& hook_;
  orvUI_v1::AppServicesHook* services_;
  orvlib::CoreRef core_;
  QString name_;
  QString reason_;
  std::uint64_t revision_ = 0;
  int failures_ = 0;
};

}  // namespace orvuilib
