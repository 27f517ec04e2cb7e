#pragma once

/// While it lives, `new (std::nothrow)` finds no memory. Build tests/support/FailingNew.cpp.
class FailingNew {
 public:
  FailingNew();
  ~FailingNew();
  FailingNew(const FailingNew&) = delete;
  FailingNew& operator=(const FailingNew&) = delete;
};
