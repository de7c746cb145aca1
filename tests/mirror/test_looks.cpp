// How the windows look: the contrast of every text, both schemes, the arrangement they keep.

#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QProgressBar>
#include <QRadioButton>
#include <QTableView>
#include <QTemporaryDir>
#include <cmath>
#include <gtest/gtest.h>
#include <map>

#include "core/settings_store.h"
#include "every_window.h"
#include "mirror/mirror/window_layout.h"
#include "platform/linux/linux_files.h"
#include "platform/qt/settings_file.h"

namespace benevix {
namespace {

// Relative luminance and contrast as the Web Content Accessibility Guidelines 2.1 define them.
double Luminance(QRgb color) {
  const auto linear = [](int channel) {
    const double c = channel / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) +
         0.0722 * linear(qBlue(color));
}

// Between the ground, which is the most frequent colour, and the pixel that differs most from it.
double ContrastIn(const QImage& picture) {
  std::map<QRgb, int> count;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) ++count[picture.pixel(x, y)];
  }
  const auto ground = std::max_element(
      count.begin(), count.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
  double best = 1;
  for (const auto& [color, pixels] : count) {
    const double a = Luminance(color);
    const double b = Luminance(ground->first);
    best = std::max(best, (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05));
  }
  return best;
}

// Where a widget draws its own text, or nothing when it has none.
QRect TextRect(const QWidget& widget) {
  if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
    return label->text().isEmpty() ? QRect() : label->contentsRect();
  }
  if (qobject_cast<const QRadioButton*>(&widget) != nullptr ||
      qobject_cast<const QCheckBox*>(&widget) != nullptr) {
    return widget.rect().adjusted(26, 2, -2, -2);  // behind the mark
  }
  if (const auto* const box = qobject_cast<const QGroupBox*>(&widget)) {
    const QString look = box->property("look").toString();
    const bool titled = !box->title().isEmpty() && look != QLatin1String("plain") &&
                        look != QLatin1String("untitled");
    return titled ? QRect(8, 4, box->width() - 16, box->fontMetrics().height() + 4) : QRect();
  }
  for (const char* const kind : {"QPushButton", "QLineEdit", "QPlainTextEdit", "QComboBox",
                                 "QMenuBar", "QHeaderView", "benevix::MoneyBarWidget"}) {
    if (widget.inherits(kind)) return widget.rect().adjusted(6, 4, -6, -4);
  }
  return {};
}

TEST(LooksTest, EveryTextStandsOutOnItsGround) {
  for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
    EveryWindow shown(scheme);
    for (const bool enabled : {true, false}) {
      int texts = 0;
      for (const Desk::Entry& entry : shown.desk.Entries()) {
        shown.input.Enter([&] {
          for (const NamedControl& control : entry.controls) control.Base().enabled = enabled;
        });
        QWidget& top = shown.mirror.BindingOf(*entry.window)->Widget();
        const QImage picture = top.grab().toImage();
        for (const QWidget* const widget : top.findChildren<QWidget*>()) {
          const QRect rect = TextRect(*widget) & widget->visibleRegion().boundingRect();
          if (!widget->isVisibleTo(&top) || rect.width() < 8 || rect.height() < 8) continue;
          const QPoint place = widget->mapTo(&top, rect.topLeft());
          const qreal scale = picture.devicePixelRatio();
          const QImage part = picture.copy(QRect(place * scale, rect.size() * scale));
          EXPECT_GE(ContrastIn(part), 4.5)
              << entry.name << "." << widget->objectName().toStdString()
              << (scheme == Scheme::Light ? " light" : " dark") << (enabled ? "" : " disabled");
          ++texts;
        }
      }
      EXPECT_GT(texts, 100);
    }
  }
}

// Pictures of all windows, made in the first scheme, after the others.
std::map<std::string, QImage> PicturesAfter(std::initializer_list<Scheme> schemes) {
  QApplication::setCursorFlashTime(0);
  EveryWindow shown(*schemes.begin());
  for (const Scheme scheme : schemes) {
    ApplyScheme(*qApp, scheme);
    shown.mirror.SetScheme(scheme);
    QTest::qWait(0);
  }
  std::map<std::string, QImage> pictures;
  for (const Desk::Entry& entry : shown.desk.Entries()) {
    QWidget& window = shown.mirror.BindingOf(*entry.window)->Widget();
    for (auto* const bar : window.findChildren<QProgressBar*>()) bar->setRange(0, 1);  // no motion
    pictures[entry.name] = window.grab().toImage();
  }
  return pictures;
}

TEST(LooksTest, ShownWindowsFollowTheDesktopsScheme) {
  const auto dark = PicturesAfter({Scheme::Dark});
  for (const auto& [name, picture] : PicturesAfter({Scheme::Light, Scheme::Dark})) {
    EXPECT_TRUE(picture == dark.at(name)) << name;
  }
}

TEST(LooksTest, TheMainWindowKeepsItsArrangement) {
  const QTemporaryDir folder;
  LinuxFiles files;
  SettingsFile file(files, folder.filePath("user").toStdString(),
                    folder.filePath("machine").toStdString());
  SettingsStore settings(file);
  const WindowLayout layout(settings);
  EveryWindow shown(Scheme::Light);
  auto& window =
      dynamic_cast<QMainWindow&>(shown.mirror.BindingOf(shown.forms.Get<frmBVX>())->Widget());
  window.resize(1100, 700);
  auto& view = *window.findChild<QTableView*>("ListView1");
  view.setColumnWidth(2, 77);
  view.setColumnHidden(6, false);
  layout.Save(window);
  EXPECT_EQ(layout.Place(), window.geometry().topLeft());
  view.setColumnWidth(2, 99);
  view.setColumnHidden(6, true);
  EXPECT_EQ(settings.GetString(Root::CurrentUser, kSettingsPath + "\\Window", "Size"),
            "1100,700,0");
  layout.Restore(window);
  EXPECT_EQ(view.columnWidth(2), 77);
  EXPECT_FALSE(view.isColumnHidden(6));
  for (const char* const damaged : {"", "x", "1,2", "-5,3,0", "99999999999,1,1", "1,1,1,1,1,1,1"}) {
    for (const char* const name : {"Size", "Splitter", "Columns", "Place"}) {
      settings.SaveString(Root::CurrentUser, kSettingsPath + "\\Window", name, damaged);
    }
    layout.Restore(window);
    EXPECT_EQ(view.columnWidth(2), 77) << damaged;
  }
}

}  // namespace
}  // namespace benevix
