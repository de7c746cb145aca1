#pragma once

#include <QIcon>
#include <QRect>
#include <QString>

class QPainter;

namespace benevix {

// The program's pictures, by name: images/NAME.svg. They are drawn anew at every size.

// As large as the rectangle has room for, at that side of it.
void PaintPicture(const QString& name, const QRect& rect, Qt::Alignment side, QPainter& painter);

[[nodiscard]] QIcon PictureIcon(const QString& name);

}  // namespace benevix
