#pragma once

#include <functional>

class QUrl;
class QWidget;

namespace benevix {

// Runs the toolkit's events until it is done; gives false when it is not in 30 seconds.
bool WaitUntil(const std::function<bool()>& done);

// Waits until the page of a window stands still and holds more than its ground; gives false when it
// does not. A window that shows no page has nothing to wait for.
bool WaitForPage(QWidget& window);

// Leads the page that the page viewer shows to an address, as the page itself could, and waits
// until it has arrived there; gives false when no page is shown or it does not arrive.
bool LeadPage(const QWidget& viewer, const QUrl& address, const std::function<bool()>& arrived);

}  // namespace benevix
