#pragma once

#include <functional>

class QWidget;

namespace benevix {

// Runs the toolkit's events until it is done; gives false when it is not in 30 seconds.
bool WaitUntil(const std::function<bool()>& done);

// Waits until the page of a window stands still and holds more than its ground; gives false when it
// does not. A window that shows no page has nothing to wait for.
bool WaitForPage(QWidget& window);

}  // namespace benevix
