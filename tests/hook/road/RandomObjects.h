#pragma once

#include <string>
#include <vector>

#include "platform/ORV_1_0/Compound.h"
#include "platform/ORV_1_0/Container.h"
#include "platform/ORV_1_0/PortList.h"
#include "platform/orvUI_1_0/CommandHook.h"
#include "tests/hook/road/RandomTexts.h"

/// Picks what calls are about from what a graph holds at the time, the same for the same seed.
class RandomObjects : public RandomTexts {
 public:
  using CompoundHandle = orvUI_v1::CommandHook::CompoundHandle;
  using NodeHandle = orvUI_v1::CommandHook::NodeHandle;
  using PortHandle = orvUI_v1::CommandHook::PortHandle;
  using Ports = std::vector<PortHandle>;

  RandomObjects(ORV_v1::Container& graph, unsigned seed) : RandomTexts(seed), graph_(graph) {}

  /// Those of all levels but the top one.
  std::vector<NodeHandle> nodes() const;

  /// Mostly one that can be edited.
  CompoundHandle compound();

  /// Null without any.
  NodeHandle node();
  NodeHandle nodeOf(const CompoundHandle& compound);
  NodeHandle compoundNode();

  /// A port of a compound, as one of its faces; null without any.
  PortHandle innerFace();
  PortHandle compoundPort();

  /// Any port, also a component or a member; null without any.
  PortHandle port();

  /// Every port of every level, as `port` gives them.
  Ports ports() const;

  /// One that is as wanted, of any level; null without any.
  template <class Predicate>
  PortHandle portThat(Predicate wanted) {
    Ports found = ports();
    std::erase_if(found, [&](const PortHandle& port) { return !wanted(port); });
    return one(found);
  }

  /// Two that look as if they could be connected, of one level; null without any.
  PortHandle source(const CompoundHandle& level);
  PortHandle destination(const CompoundHandle& level);

  /// One with a connection of its own; null without any.
  PortHandle connectedDestination(const CompoundHandle& level);

  /// An input that takes members; null without any.
  PortHandle fanInPort();

  /// Some of the level, in their order.
  ORV_v1::AddRefWrapper<ORV_v1::NodeList> someNodes(const CompoundHandle& level, bool compounds);
  ORV_v1::AddRefWrapper<ORV_v1::AnnotationList> someAnnotations(const CompoundHandle& level);

  /// The name of an annotation of the level, or another.
  std::string annotation(const CompoundHandle& level);

  /// A new name, one that is taken, or any text.
  QString name();
  QString type();
  QString nodeType();
  QString key();

  /// One text a component.
  QList<QString> values();

  template <class Value>
  Value one(const std::vector<Value>& values) {
    return values.empty() ? Value() : values[below(static_cast<unsigned>(values.size()))];
  }

 private:
  std::vector<CompoundHandle> compounds() const;

  ORV_v1::Container& graph_;
  unsigned number_ = 0;
};
