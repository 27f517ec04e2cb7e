#pragma once

#include <unistd.h>

/// While it lives, a test that runs as root has the rights of a plain user, so that files can be
/// out of its reach.
class Unprivileged {
 public:
  Unprivileged() : user_(geteuid()) {
    if (user_ == 0) changed_ = seteuid(kNobody) == 0;
  }
  ~Unprivileged() {
    if (changed_ && seteuid(user_) != 0) _exit(1);
  }
  Unprivileged(const Unprivileged&) = delete;
  Unprivileged& operator=(const Unprivileged&) = delete;

 private:
  static constexpr uid_t kNobody = 65534;

  const uid_t user_;
  bool changed_ = false;
};
