#include "mirror/look/pictures.h"

#include <QIconEngine>
#include <QPainter>
#include <QStyle>
#include <QSvgRenderer>
#include <memory>
#include <utility>

namespace benevix {
namespace {

// Draws the picture itself, where the toolkit's own engine would draw it into an image first and
// keep that.
class PictureEngine : public QIconEngine {
 public:
  explicit PictureEngine(QString name) : name_(std::move(name)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
             QIcon::State /*state*/) override {
    painter->save();
    if (mode == QIcon::Disabled) painter->setOpacity(painter->opacity() / 2);
    PaintPicture(name_, rect, Qt::AlignCenter, *painter);
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, pixmap.rect(), mode, state);
    return pixmap;
  }

  [[nodiscard]] QIconEngine* clone() const override {
    return std::make_unique<PictureEngine>(name_).release();
  }

 private:
  QString name_;
};

}  // namespace

void PaintPicture(const QString& name, const QRect& rect, Qt::Alignment side, QPainter& painter) {
  QSvgRenderer picture(QStringLiteral(":/images/%1.svg").arg(name));
  const QSize size = picture.defaultSize().scaled(rect.size(), Qt::KeepAspectRatio);
  picture.render(&painter, QStyle::alignedRect(Qt::LeftToRight, side, size, rect));
}

QIcon PictureIcon(const QString& name) {
  return QIcon(std::make_unique<PictureEngine>(name).release());  // the icon owns it
}

}  // namespace benevix
