#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace vesk {

class SceneNode;

/// Where and why a text cannot be read; the line counts from 1.
struct TextError {
  std::size_t line;
  std::string reason;
};

/// What a node carries: data of its type, which the scene saves and loads as text.
class NodePayload {
 public:
  NodePayload() = default;
  NodePayload(const NodePayload&) = delete;
  NodePayload& operator=(const NodePayload&) = delete;
  virtual ~NodePayload() = default;

  /// Any bytes. The same data gives the same text.
  virtual std::string save() const = 0;

  /// Reads what `save` wrote into a new payload. Called before the node is in the scene; after an
  /// error the payload is dropped.
  virtual std::optional<TextError> load(std::string_view text) = 0;

  /// The node came into the scene, also again by undo or redo. `node` owns this payload and so
  /// outlives it.
  virtual void enteredScene(SceneNode& node);

  /// The node left the scene. It may come back.
  virtual void leftScene(SceneNode& node);

  /// The node, in the scene, has a new name.
  virtual void renamed(SceneNode& node);
};

/// Keeps the data of a node whose type nobody registered, byte for byte.
class ForeignPayload final : public NodePayload {
 public:
  std::string save() const override { return text_; }
  std::optional<TextError> load(std::string_view text) override;

 private:
  std::string text_;
};

}  // namespace vesk
