#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace vesk {

/// The end of watching something: while it lives, the observer hears. It may outlive what is
/// watched.
class Observation {
 public:
  Observation() = default;
  explicit Observation(std::function<void()> end) : end_(std::move(end)) {}
  ~Observation() {
    if (end_) end_();
  }
  Observation(Observation&& other) noexcept : end_(std::exchange(other.end_, nullptr)) {}
  Observation& operator=(Observation&& other) noexcept {
    std::swap(end_, other.end_);
    return *this;
  }

 private:
  std::function<void()> end_;
};

/// Those who hear of something that happens here. They may come and go while they are told.
template <class... Args>
class Observers {
 public:
  using Observer = std::function<void(const Args&...)>;

  [[nodiscard]] Observation add(Observer observer) {
    const unsigned id = ++state_->lastId;
    state_->entries.emplace_back(id, std::move(observer));
    return Observation([state = std::weak_ptr<State>(state_), id] {
      const auto kept = state.lock();
      if (kept)
        std::erase_if(kept->entries, [id](const Entry& entry) { return entry.first == id; });
    });
  }

  void tell(const Args&... args) const {
    if (state_->entries.empty()) return;
    const std::shared_ptr<State> state = state_;
    const std::vector<Entry> atStart = state->entries;
    for (const auto& [id, observer] : atStart) {
      const bool stays = std::any_of(state->entries.begin(), state->entries.end(),
                                     [id = id](const Entry& entry) { return entry.first == id; });
      if (stays) observer(args...);
    }
  }

 private:
  using Entry = std::pair<unsigned, Observer>;
  struct State {
    std::vector<Entry> entries;
    unsigned lastId = 0;
  };

  std::shared_ptr<State> state_ = std::make_shared<State>();
};

}  // namespace vesk
