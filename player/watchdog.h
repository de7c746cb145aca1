#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace benevix {

// Barks, on a thread of its own, when it is still there after the time.
class Watchdog {
 public:
  Watchdog(std::chrono::seconds time, std::function<void()> bark)
      : thread_([this, time, bark = std::move(bark)] {
          std::unique_lock lock(mutex_);
          if (!leaving_.wait_for(lock, time, [this] { return left_; })) bark();
        }) {}
  ~Watchdog() {
    {
      const std::lock_guard lock(mutex_);
      left_ = true;
    }
    leaving_.notify_one();
    thread_.join();
  }
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;

 private:
  std::mutex mutex_;
  std::condition_variable leaving_;
  bool left_ = false;
  std::thread thread_;
};

}  // namespace benevix
