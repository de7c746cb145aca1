#pragma once

class QString;
class QWidget;

namespace benevix {

// Lets screen readers know what the toolkit does not: labels and pictures with a pointing-hand
// cursor are links that can be pressed, and the marked widgets are what they are marked as.
void InstallAccessibility();

// Marks a widget that shows something by its look alone; screen readers read its accessible
// description as its value.
void MarkAsIndicator(QWidget& widget);

// Marks a window beside the main one; screen readers read a dialog's texts when it opens.
void MarkAsDialog(QWidget& window);

// Sets the accessible description, and tells screen readers if it is another one.
void Describe(QWidget& widget, const QString& description);

}  // namespace benevix
