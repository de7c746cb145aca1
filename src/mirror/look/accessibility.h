#pragma once

class QWidget;

namespace benevix {

// Tells screen readers what the toolkit does not know: labels and pictures that show the pointing
// hand are links that can be pressed, and the marked widgets are indicators.
void InstallAccessibility();

// The widget shows something by its look alone; its accessible description is read as its value.
void MarkAsIndicator(QWidget& widget);

}  // namespace benevix
