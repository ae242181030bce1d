#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <utility>

namespace standin {

// Where a listener is kept: set and called from any thread.
template <typename Event>
class ListenerSlot {
public:
  using Listener = std::function<void(const Event&)>;

  void Set(Listener listener) {
    auto next = listener ? std::make_shared<const Listener>(std::move(listener)) : nullptr;
    const std::lock_guard lock(mutex_);
    current_.swap(next);
  }

  // False when nobody listens. What the listener throws ends here: the callers are functions of the
  // operating system, through which nothing can be thrown. The listener is called without the lock, so
  // that it may replace itself.
  bool Tell(const Event& event) noexcept {
    std::shared_ptr<const Listener> listener;
    {
      const std::lock_guard lock(mutex_);
      listener = current_;
    }
    if (!listener) return false;
    try {
      (*listener)(event);
    } catch (...) {
    }
    return true;
  }

private:
  std::mutex mutex_;
  std::shared_ptr<const Listener> current_;
};

}  // namespace standin
