#include "standalone/graph/edits/FaultPoints.h"

#include <algorithm>
#include <string>

namespace orvlib {

constinit int detail::faultPointsArmed = 0;

namespace {

// Constant from the start: fault points of other files register before this file's own objects, if
// it had any, were made.
constinit FaultPoint* firstPoint = nullptr;

struct Plan {
  std::string name;  ///< Empty: any.
  unsigned nth = 0;
  unsigned asked = 0;
  std::vector<std::string_view> names = {};  ///< that were asked, while any is armed
};

Plan& plan() {
  static Plan the;
  return the;
}

void begin(Plan fresh) {
  plan() = std::move(fresh);
  detail::faultPointsArmed = 1;
}

}  // namespace

FaultPoint::FaultPoint(const char* name) : name_(name), next_(firstPoint) { firstPoint = this; }

FaultPoint::~FaultPoint() {
  FaultPoint** link = &firstPoint;
  while (*link != this) link = &(*link)->next_;
  *link = next_;
}

bool FaultPoint::refusesArmed() const {
  Plan& armed = plan();
  if (armed.name.empty()) {
    armed.names.push_back(name_);
  } else if (armed.name != name_) {
    return false;
  }
  return ++armed.asked == armed.nth;
}

std::vector<std::string_view> FaultPoints::names() {
  std::vector<std::string_view> all;
  for (const FaultPoint* point = firstPoint; point; point = point->next_) {
    all.push_back(point->name_);
  }
  std::sort(all.begin(), all.end());
  all.erase(std::unique(all.begin(), all.end()), all.end());
  return all;
}

bool FaultPoints::arm(std::string_view name, unsigned nth) {
  disarm();
  const auto known = names();
  if (nth == 0 || !std::binary_search(known.begin(), known.end(), name)) return false;
  begin({std::string(name), nth});
  return true;
}

void FaultPoints::armAny(unsigned nth) { begin({"", nth}); }

void FaultPoints::disarm() { detail::faultPointsArmed = 0; }

unsigned FaultPoints::asked() { return plan().asked; }

const std::vector<std::string_view>& FaultPoints::askedNames() { return plan().names; }

bool FaultPoints::refused() { return plan().nth > 0 && plan().asked >= plan().nth; }

}  // namespace orvlib
