#pragma once

class QWidget;

namespace benevix {

// Lets screen readers know what the toolkit does not: labels and pictures with a pointing-hand
// cursor are links that can be pressed, and the marked widgets are indicators.
void InstallAccessibility();

// Marks a widget that shows something by its look alone; screen readers read its accessible
// description as its value.
void MarkAsIndicator(QWidget& widget);

}  // namespace benevix
