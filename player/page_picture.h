#pragma once

class QWidget;

namespace benevix {

// Waits until the page of a window stands still and holds more than its ground. Gives false when it
// does not in 30 seconds; a window that shows no page has nothing to wait for.
bool AwaitPage(QWidget& window);

}  // namespace benevix
