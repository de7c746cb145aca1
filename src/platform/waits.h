#pragma once

namespace benevix {

// Told around everything that keeps the program's one thread waiting (a request, a question), so
// that the windows stand as they should and take no input meanwhile.
class Waits {
 public:
  virtual ~Waits() = default;
  virtual void Begin() = 0;
  virtual void End() = 0;
  // Lets pending window events run once: the windows paint.
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
