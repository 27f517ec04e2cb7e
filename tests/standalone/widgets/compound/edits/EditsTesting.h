#pragma once

#include "tests/standalone/widgets/compound/EditorTesting.h"

/// Edits by keys, each compared with its undo and redo.
class EditsTest : public EditorTest {
 protected:
  /// Lines that a script would have run: what they make has no positions.
  void script(std::initializer_list<const char*> lines) {
    for (const char* line : lines) host.run(line);
    forget();
  }
  void forget() {
    host.takeEchoes();
    host.session().undoQueue().clear();
  }

  void select(std::initializer_list<const char*> names) {
    auto list = ORV_v1::NodeList::createNew(nullptr);
    const std::string level = scene().levelNode()->fullPath();
    for (const char* name : names) {
      const std::string path = (level == "/" ? level : level + "/") + name;
      list->add(ORV_v1::AddRefWrapper<ORV_v1::Node>(node(path)));
    }
    editor->setSelectedNodes(list);
  }

  /// Presses a key and gives the lines of what must be one undo step.
  Lines step(Qt::Key pressed, Qt::KeyboardModifiers modifiers = {}) {
    forget();
    const std::string before = stored();
    key(pressed, modifiers);
    return oneStep(before);
  }

  QPointF placeOf(const char* name) { return box(name)->bounds.topLeft(); }

  /// No two boxes lie on each other.
  void expectNoOverlap() {
    scene().forEachBox([this](const orvuilib::BoxItem& one) {
      scene().forEachBox([&one](const orvuilib::BoxItem& other) {
        if (&one == &other) return;
        EXPECT_FALSE(one.bounds.intersects(other.bounds))
            << one.node->name() << " and " << other.node->name();
      });
    });
  }
};
