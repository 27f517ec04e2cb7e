#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "standalone/host/engine/Messages.h"
#include "standalone/host/scene/Scene.h"
#include "standalone/host/scene/SceneFile.h"
#include "tests/support/HostTest.h"

namespace vesk::testing {

/// Hears errors as "! text" and warnings as "? text". A message that the test did not take fails
/// it.
class MessageLog {
 public:
  explicit MessageLog(MessageChannel& channel) : channel_(channel) {
    sink_ = channel.addSink([this](const Message& message) { hear(message); });
  }
  ~MessageLog() {
    channel_.removeSink(sink_);
    EXPECT_THAT(texts_, ::testing::IsEmpty()) << "messages that were not expected";
  }
  MessageLog(const MessageLog&) = delete;
  MessageLog& operator=(const MessageLog&) = delete;

  std::vector<std::string> take() { return std::exchange(texts_, {}); }

 private:
  void hear(const Message& message) {
    if (message.kind == MessageKind::Error) texts_.push_back("! " + std::string(message.text));
    if (message.kind == MessageKind::Warning) texts_.push_back("? " + std::string(message.text));
  }

  MessageChannel& channel_;
  MessageChannel::SinkId sink_;
  std::vector<std::string> texts_;
};

/// A payload that holds any text, refuses one with a line "bad", and notes what it is told.
class NotePayload : public NodePayload {
 public:
  explicit NotePayload(std::vector<std::string>* diary = nullptr) : diary_(diary) {}

  std::string save() const override { return text; }
  std::optional<TextError> load(std::string_view stored) override {
    text = stored;
    const std::size_t bad = ("\n" + text + "\n").find("\nbad\n");
    if (bad == std::string::npos) return {};
    const auto before = text.begin() + static_cast<std::ptrdiff_t>(bad);
    return TextError{1 + static_cast<std::size_t>(std::count(text.begin(), before, '\n')),
                     "a bad line"};
  }
  void enteredScene(SceneNode& node) override { write("entered", node); }
  void leftScene(SceneNode& node) override { write("left", node); }
  void renamed(SceneNode& node) override { write("renamed", node); }

  std::string text;

 private:
  void write(const char* event, const SceneNode& node) {
    if (diary_) diary_->push_back(std::string(event) + " " + node.name());
  }

  std::vector<std::string>* diary_;
};

inline NodeType noteType(std::vector<std::string>* diary = nullptr) {
  return {"note", "Holds a text.", [diary] { return std::make_unique<NotePayload>(diary); }};
}

inline SceneNodePtr addNode(Scene& scene, std::string_view type, std::string_view name,
                            const std::string& text = {}) {
  const SceneNodePtr node = scene.makeNode(*scene.types().find(type), name);
  if (auto* note = dynamic_cast<NotePayload*>(node->payload())) note->text = text;
  scene.insert(node);
  return node;
}

inline std::vector<std::string> namesOf(const std::vector<SceneNodePtr>& nodes) {
  std::vector<std::string> names;
  for (const SceneNodePtr& node : nodes) names.push_back(node->name());
  return names;
}

inline std::vector<std::string> namesIn(const Scene& scene) {
  std::vector<std::string> names;
  for (const auto& [place, node] : scene.nodes()) names.push_back(node->name());
  return names;
}

/// All that an edit of the scene can change, as text.
inline std::string stateOf(const Scene& scene) {
  std::string state = writeSceneText(scene) + "selected:";
  for (const std::string& name : namesOf(scene.selection().nodes())) state += " " + name;
  return state;
}

class TemporaryFolder {
 public:
  std::string path(std::string_view name) const {
    return folder_.filePath(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())))
        .toStdString();
  }

 private:
  QTemporaryDir folder_;
};

inline std::string readFile(const std::string& path) {
  QFile file(QString::fromStdString(path));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
  return file.readAll().toStdString();
}

inline void writeFile(const std::string& path, std::string_view bytes) {
  QFile file(QString::fromStdString(path));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path;
  file.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

/// A host with the node type `note`.
class LineHost : public hosttest::Host {
 public:
  explicit LineHost(SessionOptions options = {}) : Host(std::move(options)) {
    scene().types().add(noteType());
  }

  /// Runs a line that must work; gives its result with its type.
  ResultValue value(std::string_view line) {
    ResultValue result;
    EXPECT_TRUE(session().runLine(line, result)) << line;
    return result;
  }

  /// Runs a line that must work and leaves no undo step.
  void runWithoutUndo(std::string_view line) {
    ResultValue result;
    EXPECT_TRUE(session().engine().run(line, result, {.undo = false})) << line;
  }

  Scene& scene() { return session().scene(); }
};

}  // namespace vesk::testing
