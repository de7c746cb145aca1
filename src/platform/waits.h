#pragma once

namespace benevix {

// Called before and after everything that blocks the program's only thread (a request, a message
// box), so that the windows are up to date and ignore input meanwhile. Calls may be nested.
class Waits {
 public:
  virtual ~Waits() = default;
  virtual void Begin() = 0;
  virtual void End() = 0;
  // Processes the pending window events, so that windows are painted.
  virtual void DoEvents() = 0;
};

class WaitScope {
 public:
  explicit WaitScope(Waits& waits) : waits_(waits) { waits_.Begin(); }
  ~WaitScope() { waits_.End(); }
  WaitScope(const WaitScope&) = delete;
  WaitScope& operator=(const WaitScope&) = delete;

 private:
  Waits& waits_;
};

}  // namespace benevix
