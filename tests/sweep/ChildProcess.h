#pragma once

#include <functional>
#include <string>

/// Does something in a process of its own and gives what it says; `ended` tells when it did not end
/// by itself, as by a signal or because of what a sanitizer found.
struct ChildResult {
  std::string text;
  std::string ended;
};
ChildResult inChild(const std::function<std::string()>& work);
