#pragma once

#include <fstream>
#include <iterator>

#include "standalone/graph/storage/GraphText.h"
#include "testPaths.h"
#include "tests/standalone/graph/GraphFixture.h"

namespace orvlib {

/// A graph, and the texts that it is stored as.
class StorageFixture : public GraphFixture {
 protected:
  /// The example of docs/graph-format.md, which has a bit of everything that is common.
  static std::string example() {
    std::ifstream file(VESK_SOURCE_DIR "/docs/graph-format.md");
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const std::size_t begin = text.find("```\n") + 4;
    return text.substr(begin, text.find("```\n", begin) - begin);
  }

  /// A text in which every kind of line stands.
  static std::string rich() {
    return R"(vesk-graph 1
runtime standard
type float float
type string string
type vector3 float x y z
type array<float> array float
definition core::math::add
in a float
in b float
out result float
definition core::vector::vector3::add
in a vector3
in b vector3
out result vector3
definition lost::blend
in base float
out result float
definition lost::blend 2
in many array<float> fan-in
out result float
graph
  state frozen
  metadata k v w
  compound-metadata k v
  port in v vector3
  port in t string
  port out o float
  watch .v.x all 4
  watch-metadata .v.x k v
  value t "a\nb \"c\""
  io in i
    show t
    show v
  node n core::vector::vector3::add
    state disabled bypassed
    metadata k v
    port in more float
    port out other string
    order in b more a
    flags b.y hidden 12
    value a 1 2 3
    port-metadata a.x k v
  node p lost::blend
    value base 1
  node q lost::blend 2
    member many item
  compound c
    metadata k v
    origin my::own
    port in si float
    port out so float
    pair si so
    watch si changes 7 off format fixed digits 2
    watch so all 100 format scientific
    node m core::math::add
    io out z
      show so
    wire .si m.b
    wire m.result .so
  end
  note x
    metadata k v
  backdrop y
  wire .v n.b
  wire .v.x c.si
  wire n.result.z .o
  wire c.so q.many.item
  wire c.so p.base
end
)";
  }

  /// A text of a graph whose block has these lines; the head states what they are likely to need.
  static std::string withBlock(std::string_view lines) {
    return "vesk-graph 1\nruntime standard\n"
           "type float float\ntype string string\ntype vector3 float x y z\n"
           "type array<float> array float\n"
           "definition core::math::add\nin a float\nin b float\nout result float\n"
           "definition core::vector::vector3::add\nin a vector3\nin b vector3\n"
           "out result vector3\n"
           "graph\n" +
           std::string(lines) + "end\n";
  }

  void load(std::string_view text) { expectNoError(readGraph(text, graph_)); }

  static void expectNoError(const std::optional<StorageError>& error) {
    EXPECT_FALSE(error) << "line " << error->line << ": " << error->reason;
  }

  /// "line 3: reason"; empty when the text is read.
  std::string refusal(std::string_view text) {
    const auto error = readGraph(text, graph_);
    return error ? "line " + std::to_string(error->line) + ": " + error->reason : "";
  }

  /// The text of a graph that was read from the text.
  std::string again(std::string_view text) {
    ContainerObject other("other");
    expectNoError(readGraph(text, other));
    return writeGraph(other);
  }
};

}  // namespace orvlib
