#include "bench/compound_editor/Report.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

double now() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

}  // namespace

double milliseconds(const std::function<void()>& work) {
  const double start = now();
  work();
  return now() - start;
}

void Report::addFrames(const std::string& what, std::vector<double> frames) {
  std::ranges::sort(frames);
  put(what, {frames[frames.size() / 2], frames[frames.size() * 95 / 100], true});
}

void Report::put(const std::string& what, const Entry& entry) {
  auto row = std::ranges::find(rows_, what, &Row::what);
  if (row == rows_.end()) row = rows_.insert(row, {what, {}});
  row->entries.push_back(entry);
}

double Report::last(const std::string& what) const {
  return std::ranges::find(rows_, what, &Row::what)->entries.back().median;
}

void Report::print() const {
  std::printf("%-44s", "milliseconds, or median / 95th percentile");
  for (const int size : sizes_) std::printf(" %15d", size);
  std::printf("   last : first\n");
  for (const Row& row : rows_) {
    std::printf("%-44s", row.what.c_str());
    for (const Entry& entry : row.entries) {
      if (entry.isFrames) {
        std::printf(" %6.2f / %6.2f", entry.median, entry.percentile95);
      } else {
        std::printf(" %15.2f", entry.median);
      }
    }
    std::printf("   %.1f\n", row.entries.back().median / row.entries.front().median);
  }
}
