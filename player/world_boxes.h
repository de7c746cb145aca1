#pragma once

#include <deque>
#include <string>

#include "platform/message_boxes.h"
#include "player/recorded.h"

namespace benevix {

struct ShownBox {
  std::string title;
  std::string text;
  BoxIcon icon = BoxIcon::None;
  BoxButtons buttons = BoxButtons::OK;
};

// Records the message boxes that are shown and knows the user's answers.
class BoxAnswers {
 public:
  // Records the box and gives the button that answers it: the next queued answer, No without one.
  BoxAnswer Take(ShownBox box) {
    const bool asks = box.buttons == BoxButtons::YesNo;
    shown.Add(std::move(box));
    if (!asks) return BoxAnswer::OK;
    if (queue_.empty()) return BoxAnswer::No;
    const BoxAnswer answer = queue_.front();
    queue_.pop_front();
    return answer;
  }

  // A box with OK alone takes no answer of the queue, so an OK is not queued.
  void Queue(BoxAnswer answer) {
    if (answer != BoxAnswer::OK) queue_.push_back(answer);
  }

  Recorded<ShownBox> shown;

 private:
  std::deque<BoxAnswer> queue_;
};

}  // namespace benevix
