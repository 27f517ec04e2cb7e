#pragma once

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "tests/commands/compound/CompoundEditTesting.h"

/// Makes lines of `orvCompound` with many flags at random, the same ones for the same seed. Most
/// names are of what is there, some of what is not.
class RandomLines {
 public:
  RandomLines(ORV_v1::Container& graph, unsigned seed) : graph_(graph), random_(seed) {}

  unsigned below(unsigned count) { return static_cast<unsigned>(random_() % count); }

  /// The path of the line, as `/group`.
  std::string anyLevel() {
    std::vector<std::string> levels = {"/"};
    collectLevels("", levels);
    return any(levels);
  }

  /// Some flags of edits.
  std::string flags(const std::string& path) {
    look(path);
    flags_.clear();
    renamed_.clear();
    using Edit = void (RandomLines::*)();
    static constexpr Edit kEdits[] = {
        &RandomLines::metadata,  &RandomLines::values,      &RandomLines::annotations,
        &RandomLines::create,    &RandomLines::explode,     &RandomLines::addNodes,
        &RandomLines::addNodes,  &RandomLines::removeNodes, &RandomLines::createPorts,
        &RandomLines::editPorts, &RandomLines::editPorts,   &RandomLines::deletePorts,
        &RandomLines::renames,   &RandomLines::statePorts,  &RandomLines::queries,
    };
    const unsigned percent = below(3) == 0 ? 85 : 30;
    for (const Edit edit : kEdits) {
      if (below(100) < percent) (this->*edit)();
    }
    // The order of the flags on the line says nothing but among those of one kind.
    std::ranges::shuffle(flags_, random_);
    std::string line;
    for (const std::string& flag : flags_) line += (line.empty() ? "" : " ") + flag;
    return line;
  }

 private:
  using Names = std::vector<std::string>;

  static std::string quote(const std::string& text) { return "\"" + text + "\""; }

  std::string any(const Names& names) {
    return names.empty() ? "nobody" : names[below(static_cast<unsigned>(names.size()))];
  }
  /// Now and then a name of nothing.
  std::string some(const Names& names) { return below(12) == 0 ? "nobody" : any(names); }
  std::string fresh() { return "n" + std::to_string(number_++); }

  void add(const char* flag, const Names& words) {
    std::string text = flag;
    for (const std::string& word : words) text += ' ' + quote(word);
    flags_.push_back(text);
  }

  void collectLevels(const std::string& path, Names& levels) {
    const auto node = graph_.findNodeFromPath(path.empty() ? "/" : path.c_str());
    for (const auto& child : node->asCompound()->getChildNodes()) {
      if (!child->isCompound()) continue;
      levels.push_back(path + '/' + child->getName());
      collectLevels(std::string(levels.back()), levels);
    }
  }

  /// Notes the names of what is there.
  void look(const std::string& path) {
    for (Names* names : {&nodes_, &compounds_, &ioNodes_, &ports_, &annotations_, &giving_}) {
      names->clear();
    }
    const auto compound = graph_.findNodeFromPath(path.c_str())->asCompound();
    for (const auto& child : compound->getChildNodes()) lookAt(*child);
    for (const auto& port : compound->compoundInputs()) ports_.emplace_back(port->getName());
    for (const auto& port : compound->compoundOutputs()) ports_.emplace_back(port->getName());
    for (const auto& one : compound->getAnnotations()) annotations_.emplace_back(one->getName());
    giving_.insert(giving_.end(), ports_.begin(), ports_.end());
  }

  void lookAt(ORV_v1::Node& child) {
    const std::string name = child.getName();
    nodes_.push_back(name);
    const bool computes = std::string(child.getTypeName().toChar()).find("::") != std::string::npos;
    if (child.isCompound()) {
      compounds_.push_back(name);
    } else if (!computes) {
      ioNodes_.push_back(name);
    }
    for (const auto& port : child.outputs()) giving_.push_back(name + '.' + port->getName());
    for (const auto& port : child.inputs()) giving_.push_back(name + '.' + port->getName());
  }

  std::string type() {
    return any({"float", "int", "bool", "string", "color3", "vector3", "matrix4", "array<float>",
                "array<color3>"});
  }
  std::string value() { return any({"1", "2.5", "{1,2,3}", "true", "{1,0.5,0.25,4}", "", "x y"}); }

  void metadata() {
    if (below(2)) add("-setMetaData", {any({"k", "m"}), value()});
    if (below(2)) add("-addMetaData", {any({"k", "m"}), value()});
    if (below(3) == 0) add("-removeMetaData", {any({"k", "m"}), value()});
    if (below(5) == 0) add("-removeMetaData", {"locked", "true"});
    if (below(25) == 0) add("-addMetaData", {"locked", "true"});
    if (below(4) == 0) add("-clearMetaData", {any({"k", "m"})});
    if (below(6) == 0) add("-setMetaDataFromString", {any({"{k=1,m={a,b}}", "{}", "{z={,}}"})});
  }

  void values() {
    if (ports_.empty()) return;
    if (below(2)) add("-resetPortDefaultValues", {any(ports_)});
    if (below(2)) add("-setPortDefaultValues", {any(ports_), "1"});
  }

  void annotations() {
    if (below(2)) add("-addBackdrop", {below(2) ? fresh() : "b"});
    if (below(3) == 0) add("-addStickyNote", {"text"});
    Names known = annotations_;
    known.insert(known.end(), {"b", "note", "note1"});
    if (below(2)) add("-removeAnnotation", {some(known)});
    if (below(2)) add("-renameAnnotation", {some(known), some(known)});
    if (below(2)) add("-renameAnnotation", {some(known), fresh()});
    if (below(2)) add("-setAnnotationMetaDataValue", {some(known), "k", value()});
  }

  void create() {
    add("-create", {below(2) ? fresh() : below(2) ? "" : "group"});
    for (unsigned left = below(4); left > 0; --left) add("-moveNodeIn", {some(nodes_)});
    for (unsigned left = below(2); left > 0; --left) add("-moveAnnotationIn", {some(annotations_)});
  }

  void explode() {
    if (!compounds_.empty() && below(2)) add("-explode", {any(compounds_)});
    if (compounds_.size() > 1 && below(3) == 0) add("-explode", {any(compounds_)});
  }

  void addNodes() {
    if (below(3) == 0) add("-connectTo", {some(giving_)});
    for (unsigned left = 1 + below(2); left > 0; --left) {
      add("-addNode", {any({"core::math::add", "core::math::negate", "core::color::mix3",
                            "core::array::build", "core::color::combine3", "nothing"})});
    }
    if (below(3) == 0) add("-addIONode", {below(2) ? "true" : "false"});
  }

  void removeNodes() {
    for (unsigned left = 1 + below(2); left > 0; --left) add("-removeNode", {some(nodes_)});
  }

  void createPorts() {
    for (unsigned left = 1 + below(2); left > 0; --left) {
      add(below(2) ? "-createInputPort" : "-createOutputPort",
          {ports_.emplace_back(fresh()), type()});
    }
    if (below(4) == 0) add("-portFlags", {std::to_string(below(4))});
    if (below(4) == 0) add("-portValues", {value()});
    if (below(4) == 0) add("-portOptions", {"{k=v}"});
  }

  /// Mostly of what is there; a port that is not there refuses the line.
  std::string port() { return below(60) == 0 ? "nobody" : any(ports_); }

  void editPorts() {
    if (ports_.empty()) return;
    if (below(3) == 0) {
      const std::string from = port();
      const std::string to = fresh();
      add("-renamePort", {from, to});
      if (below(8)) std::erase(ports_, from);
      ports_.push_back(to);
    }
    if (below(6) == 0) add("-renamePort", {port(), any(ports_)});
    if (below(3) == 0) add("-movePort", {port(), std::to_string(below(4))});
    if (below(3) == 0 && !ioNodes_.empty()) add("-movePortToIONode", {port(), any(ioNodes_)});
    if (below(3) == 0) add("-hidePort", {port(), below(2) ? "true" : "false"});
    if (below(3) == 0) add("-setPortDataType", {port(), type()});
    if (below(3) == 0) add("-setPortMetaDataValue", {some(ports_), "k", value()});
  }

  void deletePorts() {
    if (!ports_.empty()) add("-deletePort", {any(ports_)});
  }

  /// Each to a name of its own: the names of one line that change places do not all come back.
  void renames() {
    for (unsigned left = 1 + below(2); left > 0; --left) {
      const std::string node = some(nodes_);
      if (std::ranges::find(renamed_, node) != renamed_.end()) continue;
      renamed_.push_back(node);
      add("-renameNode", {node, fresh()});
    }
  }

  void statePorts() { add("-addStatePorts", {stateName(), stateName(), below(9) ? type() : "no"}); }
  std::string stateName() { return below(3) ? fresh() : some(ports_); }

  void queries() {
    if (below(2)) add("-listNodes", {});
    if (below(2)) add("-listPorts", {});
    if (below(2)) add("-queryPortDefaultValues", {some(ports_)});
    if (below(2)) add("-queryMetaDataAsString", {});
    if (below(2)) add("-queryIsEditable", {});
    if (below(3) == 0) add("-connectedTo", {some(ports_)});
    if (below(3) == 0) add("-nodeType", {"core::math::add"});
  }

  ORV_v1::Container& graph_;
  std::mt19937 random_;
  unsigned number_ = 0;
  Names nodes_, compounds_, ioNodes_, ports_, annotations_, giving_;
  Names renamed_, flags_;
};
