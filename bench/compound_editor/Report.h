#pragma once

#include <functional>
#include <string>
#include <vector>

/// Milliseconds of the processor that `work` takes: other programs may be busy too.
double milliseconds(const std::function<void()>& work);

/// What was measured: a row a thing, a column a size of graph, and how many times more the last
/// size takes than the first.
class Report {
 public:
  void begin(int nodes) { sizes_.push_back(nodes); }
  void add(const std::string& what, double time) { put(what, {time, time, false}); }

  /// Gives the median and the 95th percentile.
  void addFrames(const std::string& what, std::vector<double> frames);
  void print() const;

  /// The last time, or median, of a row.
  double last(const std::string& what) const;

 private:
  struct Entry {
    double median;
    double percentile95;
    bool isFrames;
  };
  struct Row {
    std::string what;
    std::vector<Entry> entries;
  };
  void put(const std::string& what, const Entry& entry);

  std::vector<int> sizes_;
  std::vector<Row> rows_;
};
