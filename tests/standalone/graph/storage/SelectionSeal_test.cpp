#include "standalone/graph/storage/SelectionSeal.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "tests/standalone/graph/storage/StorageFixture.h"

namespace orvlib {
namespace {

TEST(SelectionSeal, HasTheLengthAndTheChecksum) {
  EXPECT_EQ(sealOf(""), "vesk-nodes 2 0 cbf29ce484222325\n");
  EXPECT_EQ(sealOf("a"), "vesk-nodes 2 1 af63dc4c8601ec8c\n");
  EXPECT_EQ(sealOf("foobar"), "vesk-nodes 2 6 85944171f73967e8\n");
}

/// A selection of everything that a text can have.
class DamagedSelection : public StorageFixture {
 protected:
  DamagedSelection() {
    load(rich());
    const auto& nodes = top().nodes().items();
    const auto& notes = top().annotations().items();
    whole_ = writeSelection(top(), std::vector<NodeObject*>(nodes.begin(), nodes.end()),
                            std::vector<AnnotationObject*>(notes.begin(), notes.end()));
  }

  /// Empty for one that is read.
  std::string reason(std::string_view text) {
    Selection selection;
    const auto error = readSelection(text, graph_.core(), selection);
    EXPECT_EQ(error.has_value(), selection.carrier == nullptr);
    return error ? error->reason : "";
  }

  static std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t at = 0, end; at < text.size(); at = end) {
      end = text.find('\n', at) + 1;
      lines.push_back(text.substr(at, end - at));
    }
    return lines;
  }

  static std::string textOf(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line;
    return text;
  }

  std::string whole_;
};

TEST_F(DamagedSelection, IsReadWhenItIsWhole) {
  EXPECT_GT(whole_.size(), 1000u);
  EXPECT_EQ(reason(whole_), "");
}

TEST_F(DamagedSelection, WithAnyBitFlippedIsRefused) {
  for (std::size_t at = 0; at < whole_.size(); ++at) {
    for (unsigned bit = 0; bit < 8; ++bit) {
      std::string text = whole_;
      text[at] ^= static_cast<char>(1u << bit);
      ASSERT_NE(reason(text), "") << at;
    }
  }
}

TEST_F(DamagedSelection, CutOffAnywhereIsRefused) {
  for (std::size_t at = 0; at < whole_.size(); ++at) {
    ASSERT_NE(reason(whole_.substr(0, at)), "") << at;
    ASSERT_TRUE(at == 0 || reason(whole_.substr(at)) != "") << at;
    ASSERT_NE(reason(whole_.substr(0, at) + whole_.substr(at + 1)), "") << at;
  }
}

TEST_F(DamagedSelection, WithLinesExchangedGoneOrTwiceIsRefused) {
  const std::vector<std::string> lines = linesOf(whole_);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    std::vector<std::string> without = lines;
    without.erase(without.begin() + static_cast<std::ptrdiff_t>(i));
    ASSERT_NE(reason(textOf(without)), "") << lines[i];
    std::vector<std::string> twice = lines;
    twice.insert(twice.begin() + static_cast<std::ptrdiff_t>(i), lines[i]);
    ASSERT_NE(reason(textOf(twice)), "") << lines[i];
    for (std::size_t j = i + 1; j < lines.size(); ++j) {
      if (lines[i] == lines[j]) continue;
      std::vector<std::string> exchanged = lines;
      std::swap(exchanged[i], exchanged[j]);
      ASSERT_NE(reason(textOf(exchanged)), "") << lines[i] << lines[j];
    }
  }
}

TEST_F(DamagedSelection, WithSomethingAddedIsRefused) {
  for (const char* more : {"\n", " ", "end\n", "\r\n"}) {
    EXPECT_NE(reason(whole_ + more), "") << more;
    EXPECT_NE(reason(more + whole_), "") << more;
  }
}

TEST_F(DamagedSelection, IsToldApartFromAnotherText) {
  EXPECT_EQ(reason("vesk-graph 1\n"), "a text of the format 'vesk-nodes' was expected");
  EXPECT_EQ(reason("vesk-nodes 1\nnodes\nend\n"),
            "the format version '1' is not known; it should be 2");
  EXPECT_EQ(reason(whole_ + "\n"), "the text is damaged: it is not what was written");
  EXPECT_EQ(reason("vesk-nodes 2\n"), "the text is damaged: it is not what was written");
  EXPECT_EQ(reason(sealOf("nodes\nend\n") + "nodes\nend\n"),
            "the graph that the nodes are from was expected");
}

}  // namespace
}  // namespace orvlib
