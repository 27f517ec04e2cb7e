// What is refused of a stored text, where and why.

#include <gmock/gmock.h>

#include "tests/standalone/graph/storage/StorageFixture.h"

namespace orvlib {
namespace {

class DamagedGraphText : public StorageFixture {
 protected:
  /// Expects that a text of a block with these lines is refused at that line of them, from 1.
  void expectRefused(std::string_view lines, std::size_t line, const std::string& reason) {
    static const std::size_t before = countLines(withBlock("")) - 1;
    EXPECT_EQ(refusal(withBlock(lines)), "line " + std::to_string(before + line) + ": " + reason)
        << lines;
  }

  static std::size_t countLines(std::string_view text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
  }

  static std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t end = text.find('\n', at) + 1;
      lines.push_back(text.substr(at, end - at));
      at = end;
    }
    return lines;
  }

  /// A text without its end is never a graph; any other that is read must be one that comes back.
  void expectRefusedOrRoundTrip(const std::string& text) {
    ContainerObject other("standard");
    if (readGraph(text, other)) return;
    const std::string stored = writeGraph(other);
    EXPECT_EQ(again(stored), stored) << text;
  }
};

TEST_F(DamagedGraphText, ChangesNothing) {
  load(example());
  const std::string before = writeGraph(graph_);
  const std::uint64_t revision = graph_.revision();
  EXPECT_NE(refusal(withBlock("  node n core::math::add\n  wire n.result n.c\n")), "");
  EXPECT_EQ(writeGraph(graph_), before);
  EXPECT_EQ(graph_.revision(), revision);
}

TEST_F(DamagedGraphText, ChangesNoRuntime) {
  EXPECT_NE(refusal("vesk-graph 1\nruntime lost\ngraph\n"), "");
  EXPECT_EQ(graph_.core().runtime(), "standard");
}

TEST_F(DamagedGraphText, OfNothing) { EXPECT_EQ(refusal(""), "line 1: the text ends too early"); }

TEST_F(DamagedGraphText, OfAnotherFormat) {
  EXPECT_EQ(refusal("vesk-scene 1\n"), "line 1: a text of the format 'vesk-graph' was expected");
}

TEST_F(DamagedGraphText, OfAnotherVersion) {
  EXPECT_EQ(refusal("vesk-graph 2\n"),
            "line 1: the format version '2' is not known; it should be 1");
}

TEST_F(DamagedGraphText, WithoutARuntime) {
  EXPECT_EQ(refusal("vesk-graph 1\ngraph\nend\n"), "line 2: the name of the runtime was expected");
}

TEST_F(DamagedGraphText, OfBadHeads) {
  const auto expect = [this](const std::string& lines, const std::string& reason) {
    EXPECT_EQ(
        refusal("vesk-graph 1\nruntime standard\ntype float float\n" + lines + "graph\nend\n"),
        reason);
  };
  expect("type a\n", "line 4: a type needs a name and what its values are");
  expect("type \"\" float\n", "line 4: the name of a type is empty");
  expect("type float float\n", "line 4: the type 'float' is stated twice");
  expect("type a real\n", "line 4: 'real' is no kind of value");
  expect("type a float x x\n", "line 4: the component 'x' comes twice");
  expect("type a float 1\n", "line 4: '1' is no name");
  expect("type a array\n", "line 4: an array needs the type of its elements");
  expect("type a array b\n", "line 4: the type 'b' is not stated before");
  expect("type a array float\ntype b array a\n", "line 5: an array cannot have arrays as elements");
  expect("definition\n", "line 4: a definition needs a name");
  expect("definition \"\"\n", "line 4: the name of a definition is empty");
  expect("definition d 2\n",
         "line 4: the definition 'd' number 2 is stated, but number 1 is the next");
  expect("definition d\ndefinition d\n",
         "line 5: the definition 'd' number 1 is stated, but number 2 is the next");
  expect("in a float\n", "line 4: a port is stated, but no definition");
  expect("definition d\nin a\n", "line 5: a port needs a name and a type");
  expect("definition d\nin a float fan-out\n", "line 5: a port needs a name and a type");
  expect("definition d\nin 1 float\n", "line 5: '1' is no name");
  expect("definition d\nin a real\n", "line 5: the type 'real' is not stated");
  expect("definition d\nin a float\nout a float\n", "line 6: the port 'a' is stated twice");
  expect("node n d\n", "line 4: unknown statement 'node'");
}

TEST_F(DamagedGraphText, OfBadLines) {
  expectRefused("\n", 1, "the line is empty");
  expectRefused("  node  n\n", 1, "a word begins with a character that needs quotes");
  expectRefused("  note n \n", 1, "the line ends with a blank");
  expectRefused("  note \"n\n", 1, "a quote is not closed");
  expectRefused("  note \"n\"x\n", 1, "a blank was expected between two words");
  expectRefused("  note \"\\n\\t\"\n", 1, "a backslash stands before a character that needs none");
}

TEST_F(DamagedGraphText, OfBadStatements) {
  expectRefused("  nodes n\n", 1, "unknown statement 'nodes'");
  expectRefused("  node n\n", 1, "the form is: node NAME TYPE [NUMBER]");
  expectRefused("  wire a.b\n", 1, "the form is: wire SOURCE TARGET");
  expectRefused("  note n\n  state frozen\n", 2,
                "'state' does not belong to what stands before it");
  expectRefused("  compound c\n  end\n  metadata a 1\n", 3,
                "'metadata' does not belong to what stands before it");
  expectRefused("  incoming n.a /b.c\n", 1, "'incoming' does not belong to what stands before it");
}

TEST_F(DamagedGraphText, OfBadNodes) {
  expectRefused("  node 1 core::math::add\n", 1, "'1' is no name");
  expectRefused("  note \"\"\n", 1, "'' is no name");
  expectRefused("  node n core::math::nothing\n", 1,
                "the definition 'core::math::nothing' is not stated");
  expectRefused("  node n core::math::add 2\n", 1,
                "the definition 'core::math::add' is not stated");
  expectRefused("  node n core::math::add two\n", 1, "'two' is no number of a definition");
  expectRefused("  io in n\n  compound n\n", 2, "a second node has the name 'n'");
  expectRefused("  note n\n  backdrop n\n", 2, "a second annotation has the name 'n'");
  expectRefused("  io inout n\n", 1, "'inout' is neither in nor out");
  expectRefused("  state happy\n", 1, "'happy' is no state, or comes twice");
  expectRefused("  state frozen frozen\n", 1, "'frozen' is no state, or comes twice");
  expectRefused("  metadata a 1\n  metadata a 2\n", 2, "the metadata 'a' comes twice");
  expectRefused("  metadata \"\" 1\n", 1, "the key of the metadata is empty");
  expectRefused("  origin a\n  origin b\n", 2, "the origin comes twice");
  expectRefused("  origin \"\"\n", 1, "the origin is empty");
}

TEST_F(DamagedGraphText, OfBadPorts) {
  const std::string add = "  node n core::math::add\n";
  expectRefused("  port up x float\n", 1, "'up' is neither in nor out");
  expectRefused("  port in 1 float\n", 1, "'1' is no name");
  expectRefused("  port in x real\n", 1, "the type 'real' is not stated");
  expectRefused(add + "  port out a float\n", 2, "a second port has the name 'a'");
  expectRefused(add + "  order up a\n", 2, "'up' is neither in nor out");
  expectRefused(add + "  order in a a\n", 2, "there is no further port 'a'");
  expectRefused(add + "  order in b a c\n", 2, "there is no further port 'c'");
  expectRefused(add + "  order in result\n", 2, "there is no further port 'result'");
  expectRefused(add + "  flags c hidden\n", 2, "there is no port 'c'");
  expectRefused(add + "  flags a shy\n", 2, "'shy' is no flag");
  expectRefused(add + "  flags a 4294967296\n", 2, "'4294967296' is no flag");
  expectRefused(add + "  flags a hidden 1\n", 2, "the flag '1' comes twice");
  expectRefused(add + "  member a m\n", 2, "the port 'a' takes no members");
  expectRefused(add + "  port-metadata .a k v\n", 2, "there is no port '.a'");
}

TEST_F(DamagedGraphText, OfBadMembers) {
  const std::string many = "  port in many array<float>\n  flags many fan-in\n  member many m\n";
  expectRefused(many + "  member many m\n", 4, "a second member has the name 'm'");
  expectRefused(many + "  member many 1\n", 4, "'1' is no name");
  expectRefused(many + "  flags many hidden\n", 4,
                "the port 'many' has members or connections already");
}

TEST_F(DamagedGraphText, OfBadValues) {
  const std::string add = "  node n core::math::add\n";
  expectRefused(add + "  value a 1.5.2\n", 2,
                "value of 'a': '1.5.2' is not a number (type 'float')");
  expectRefused(add + "  value a\n", 2, "value of 'a': type 'float' takes 1 value, not 0");
  expectRefused(add + "  value a 1e999\n", 2,
                "value of 'a': '1e999' is out of range (type 'float')");
  expectRefused(add + "  value result 1\n", 2, "the port 'result' takes no value");
  expectRefused(add + "  value a 1\n  value a 1\n", 3, "the value of 'a' comes twice");
  expectRefused("  port in v vector3\n  value v.x 1\n", 2, "the port 'v.x' takes no value");
  expectRefused("  port in v vector3\n  value .v 1 2 3\n", 2, "the port '.v' takes no value");
}

TEST_F(DamagedGraphText, OfBadCompoundPorts) {
  const std::string ports = "  port in i float\n  port out o float\n";
  expectRefused(ports + "  pair o i\n", 3, "there is no input 'o'");
  expectRefused(ports + "  pair i i\n", 3, "there is no output 'i'");
  expectRefused(ports + "  pair i o\n  pair i o\n", 4, "'i' is paired already");
  expectRefused(ports + "  port in j float\n  pair i o\n  pair j o\n", 5, "'o' is paired already");
  expectRefused(ports + "  io in n\n  show o\n", 4, "the compound has no such port 'o' to show");
  expectRefused(ports + "  io in n\n  show i\n  show i\n", 5, "the port 'i' is shown already");
}

TEST_F(DamagedGraphText, OfBadWatchPoints) {
  const std::string add = "  node n core::math::add\n";
  expectRefused(add + "  watch a some 1\n", 2, "'some' cannot be recorded");
  expectRefused(add + "  watch a all 0\n", 2, "'0' is no limit");
  expectRefused(add + "  watch a all 1 on\n", 2, "'on' is not off");
  expectRefused(add + "  watch a all 1 on format fixed\n", 2, "'on' is not off");
  expectRefused(add + "  watch a all 1 off format\n", 2, "'off' is no further parameter");
  expectRefused(add + "  watch a all 1 limit 2\n", 2, "'limit' is no further parameter");
  expectRefused(add + "  watch a all 1 format long\n", 2,
                "the parameter 'format' cannot be 'long'");
  expectRefused(add + "  watch a all 1 digits 21\n", 2, "the parameter 'digits' cannot be '21'");
  expectRefused(add + "  watch a all 1 digits 2 digits 2\n", 2,
                "the parameter 'digits' comes twice");
  expectRefused(add + "  watch a all 1\n  watch a all 1\n", 3, "'a' is watched already");
  expectRefused(add + "  watch-metadata a k v\n", 2, "'a' is not watched");
}

TEST_F(DamagedGraphText, OfBadConnections) {
  const std::string two =
      "  port in t string\n  io in i\n    show t\n"
      "  node m core::math::add\n  node n core::math::add\n";
  const std::string no = "no connection leads from ";
  expectRefused(two + "  wire m n.a\n", 6, "there is no port 'm'");
  expectRefused(two + "  wire m.c n.a\n", 6, "there is no port 'm.c'");
  expectRefused(two + "  wire o.result n.a\n", 6, "there is no port 'o.result'");
  expectRefused(two + "  wire i.t n.a\n", 6, "there is no port 'i.t'");
  expectRefused(two + "  wire .u n.a\n", 6, "there is no port '.u'");
  expectRefused(two + "  wire m.a n.a\n", 6, no + "'m.a' to 'n.a': the source takes values");
  expectRefused(two + "  wire m.result n.result\n", 6,
                no + "'m.result' to 'n.result': the target gives values");
  expectRefused(two + "  wire .t n.a\n", 6,
                no + "'.t' to 'n.a': a value of type 'string' is none of type 'float'");
  expectRefused(two + "  wire m.result n.a\n  wire m.result n.a\n", 7,
                no + "'m.result' to 'n.a': the target is connected already");
  expectRefused(two + "  wire m.result n.a\n  wire n.result m.b\n", 7,
                "the connection from 'n.result' to 'm.b' closes a cycle");
  expectRefused(two + "  wire m.result m.a\n", 6,
                "the connection from 'm.result' to 'm.a' closes a cycle");
}

TEST_F(DamagedGraphText, OfTooManyLevels) {
  const auto nested = [](std::size_t levels) {
    std::string lines;
    for (std::size_t i = 0; i < levels; ++i) lines += "  compound c\n";
    for (std::size_t i = 0; i < levels; ++i) lines += "  end\n";
    return lines;
  };
  EXPECT_EQ(refusal(withBlock(nested(5000))), "");
  expectRefused(nested(5001), 5001, "compounds are nested more than 5000 deep");
  expectRefused(nested(30000), 5001, "compounds are nested more than 5000 deep");
}

TEST_F(DamagedGraphText, WithSomethingAfterTheEnd) {
  EXPECT_EQ(refusal("vesk-graph 1\nruntime standard\ngraph\nend\nend\n"),
            "line 5: something follows the end");
}

TEST_F(DamagedGraphText, CutOffAnywhere) {
  const std::string whole = rich();
  for (std::size_t length = 0; length < whole.size(); ++length) {
    ASSERT_NE(refusal(whole.substr(0, length)), "") << length;
  }
  EXPECT_EQ(refusal(whole), "");
}

TEST_F(DamagedGraphText, WithoutALineOrWithOneTwice) {
  const std::vector<std::string> lines = linesOf(rich());
  for (std::size_t at = 0; at < lines.size(); ++at) {
    std::string without;
    std::string twice;
    for (std::size_t i = 0; i < lines.size(); ++i) {
      if (i != at) without += lines[i];
      twice += i == at ? lines[i] + lines[i] : lines[i];
    }
    expectRefusedOrRoundTrip(without);
    expectRefusedOrRoundTrip(twice);
  }
}

TEST_F(DamagedGraphText, WithTwoLinesExchanged) {
  std::vector<std::string> lines = linesOf(rich());
  for (std::size_t at = 0; at + 1 < lines.size(); ++at) {
    std::swap(lines[at], lines[at + 1]);
    std::string text;
    for (const std::string& line : lines) text += line;
    expectRefusedOrRoundTrip(text);
    std::swap(lines[at], lines[at + 1]);
  }
}

TEST_F(DamagedGraphText, WithAnyByteChanged) {
  const std::string whole = rich();
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (const char other : {'\n', ' ', '"', '\0', 'x', '.', '\\'}) {
      std::string text = whole;
      text[at] = other;
      expectRefusedOrRoundTrip(text);
    }
  }
}

}  // namespace
}  // namespace orvlib
