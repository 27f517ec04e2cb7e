#pragma once

#include <string>

#include "platform/ORV_1_0/AnnotationList.h"
#include "platform/ORV_1_0/NodeList.h"
#include "tests/commands/compound/CompoundTesting.h"

/// The names of what a compound of a graph holds, in order.
class CompoundNames {
 public:
  CompoundNames(ORV_v1::Container& graph, const char* path)
      : compound_(graph.findNodeFromPath(path)->asCompound()) {}

  hosttest::Texts nodes() const { return namesOf(compound_->getChildNodes()); }
  hosttest::Texts annotations() const { return namesOf(compound_->getAnnotations()); }
  hosttest::Texts inputs() const { return namesOf(compound_->compoundInputs()); }
  hosttest::Texts outputs() const { return namesOf(compound_->compoundOutputs()); }

 private:
  template <class List>
  static hosttest::Texts namesOf(const List& list) {
    hosttest::Texts names;
    for (const auto& element : list) names.emplace_back(element->getName());
    return names;
  }

  ORV_v1::AddRefWrapper<ORV_v1::Compound> compound_;
};

/// The text as a line writes it in quotes.
inline std::string quoted(const std::string& text) {
  std::string line = "\"";
  for (const char character : text) {
    switch (character) {
      case '"':
        line += "\\\"";
        break;
      case '\\':
        line += "\\\\";
        break;
      case '\n':
        line += "\\n";
        break;
      case '\r':
        line += "\\r";
        break;
      case '\t':
        line += "\\t";
        break;
      default:
        line += character;
    }
  }
  return line + "\"";
}
