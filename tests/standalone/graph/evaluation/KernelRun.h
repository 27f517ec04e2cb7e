#pragma once

#include <gtest/gtest.h>

#include "standalone/graph/api/GraphAccess.h"
#include "standalone/graph/evaluation/Kernel.h"
#include "standalone/graph/library/LoadedRuntime.h"
#include "testPaths.h"

/// The definitions of the standard runtime.
inline const orvlib::LoadedRuntime& standardRuntime() {
  static orvlib::Diagnostics diagnostics;
  static const auto runtime =
      orvlib::LoadedRuntime::load(VESK_SOURCE_DIR "/library/standard", diagnostics);
  return *runtime;
}

using Values = std::vector<orvlib::Value>;

inline Values defaultInputs(const orvlib::NodeDescription& node) {
  Values inputs;
  for (const auto& port : node.ports) {
    if (port.direction == orvlib::PortDirection::Input) inputs.push_back(port.defaultValue);
  }
  return inputs;
}

/// What the node's kernel gives. Outputs hold `before` when it is called.
inline Values runKernel(const orvlib::NodeDescription& node, const Values& inputs,
                        const orvlib::Value& before = {}) {
  const orvlib::Kernel kernel = orvlib::findKernel(node);
  if (!kernel) return {};
  std::vector<const orvlib::Value*> pointers;
  for (const orvlib::Value& input : inputs) pointers.push_back(&input);
  Values outputs(node.ports.size() - inputs.size(), before);
  kernel({pointers, outputs});
  return outputs;
}

/// That each output has the kind and the number of components of its type.
inline void expectLayouts(const orvlib::NodeDescription& node, const Values& outputs) {
  const std::size_t inputs = node.ports.size() - outputs.size();
  for (std::size_t i = 0; i < outputs.size(); ++i) {
    const orvlib::PortDescription& port = node.ports[inputs + i];
    EXPECT_EQ(orvlib::scalarKindOf(outputs[i]), port.type->scalar) << node.name << "." << port.name;
    const auto count = std::visit([](const auto& all) { return all.size(); }, outputs[i]);
    const std::size_t components = port.type->componentCount();
    EXPECT_EQ(port.type->isArray() ? count % components : count,
              port.type->isArray() ? 0 : components)
        << node.name << "." << port.name;
  }
}
