#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "platform/OpenVesk/KStatus.h"
#include "standalone/host/engine/Observers.h"
#include "standalone/host/scene/NodeNames.h"
#include "standalone/host/scene/NodeTypes.h"
#include "standalone/host/scene/SceneNode.h"
#include "standalone/host/scene/SceneStore.h"
#include "standalone/host/scene/Selection.h"

namespace vesk {

class MessageChannel;
class SceneEvents;

/// The nodes that a user works on, their selection, and the file they come from.
///
/// Nodes stand in creation order. A node that is taken out keeps its place in that order, so
/// inserting it again puts it back where it was.
class Scene {
 public:
  using NodesInOrder = std::map<std::uint64_t, SceneNodePtr>;

  Scene(MessageChannel& messages, SceneEvents& events);
  ~Scene();
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;

  NodeTypes& types() { return types_; }
  const NodeTypes& types() const { return types_; }

  /// The nodes by their place.
  const NodesInOrder& nodes() const { return nodes_; }
  std::size_t size() const { return nodes_.size(); }

  /// Null when there is none.
  SceneNodePtr find(std::string_view name) const { return names_.find(name); }
  SceneNodePtr findByUuid(std::string_view uuid) const;

  /// A node of that type, not yet in the scene, with a free name made of the wanted one or else of
  /// the type's.
  SceneNodePtr makeNode(const NodeType& type, std::string_view wantedName);

  /// Puts a node into the scene: a new one behind all others, one that was here at its old place.
  /// False, with nothing changed, when the node is here or its name or UUID is taken.
  bool insert(const SceneNodePtr& node);

  /// Takes a node out, and out of the selection. False when it is not here.
  bool remove(const SceneNodePtr& node);

  /// Gives a node of this scene the free name nearest to the wanted one. Empty: that of its type.
  void rename(const SceneNodePtr& node, std::string_view wantedName);

  /// Gives exactly this name. False, with nothing changed, when the node is not here or another
  /// node has the name.
  bool setName(const SceneNodePtr& node, const std::string& name);

  Selection& selection() { return selection_; }
  const Selection& selection() const { return selection_; }

  /// Whether there is something that the file lacks. Undo is a change too; the selection is not.
  bool isModified() const { return modified_; }
  void setModified(bool modified);

  /// Who hears that nodes have come or gone or have another name, and of another path or state of
  /// the scene as a whole. The selection has observers of its own.
  Observers<>& changed() { return changed_; }

  /// Absolute; empty for a scene without a file.
  const std::string& path() const { return path_; }

  // The scene as a whole. A refusal is shown and changes nothing. Each sends its events: "before"
  // when nothing can refuse it any more (save: ahead of the writing), "after" when it is done.
  KStatus startNew();
  KStatus open(const std::string& path);

  /// The scene's file from now on is `path`.
  KStatus save(const std::string& path);

  /// Where scenes come from and go to, at first the files. It is borrowed.
  SceneStore& store() const { return *store_; }
  void setStore(SceneStore& store) { store_ = &store; }

 private:
  class Busy;

  KStatus refuse(std::string_view what, const std::string& path, std::string_view reason);
  KStatus refuseWhenBusy();
  void clear();
  void replaceName(const SceneNodePtr& node, const std::string& name);

  MessageChannel& messages_;
  SceneEvents& events_;
  NodeTypes types_;
  NodesInOrder nodes_;
  NodeNames names_;
  StringMap<SceneNodePtr> byUuid_;
  Selection selection_;
  std::uint64_t nextPlace_ = 1;
  std::string path_;
  SceneStore* store_ = &SceneStore::files();
  Observers<> changed_;
  bool modified_ = false;
  bool busy_ = false;  ///< a new, open or save is under way
};

}  // namespace vesk
