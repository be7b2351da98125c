#include <uiox_qt/Icons.h>

#include <uiox/Suite.h>
#include <uiox_qt/Contrast.h>
#include <uiox_qt/ImageScaling.h>
#include <uiox_qt/ImageWords.h>
#include <uiox_qt/SignIcons.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>
#include <vector>

namespace uiox_qt {
namespace {

/// Images with pixmaps that are remembered; then all are forgotten.
constexpr qsizetype kMostImages = 16384;

struct Made {
  int side;
  qreal ratio;
  QRgb ground;
  QPixmap pixmap;
};

QHash<QByteArray, std::vector<Made>>& Cache() {
  static QHash<QByteArray, std::vector<Made>> cache;
  // No pixmap may outlive the application.
  [[maybe_unused]] static const bool cleared_at_the_end = (qAddPostRoutine([] { cache.clear(); }), true);
  return cache;
}

QByteArray Key(std::string_view name) { return QByteArray(name.data(), static_cast<qsizetype>(name.size())); }

/// Whether an image is the one that comes with the toolkit, and not one that was put in its place.
bool IsBuiltIn(std::string_view name, const uiox::Image& image) {
  uiox::Image original;
  return uiox::DrawBuiltInImage(name, image.width, original) && original.height == image.height &&
         original.pixels == image.pixels;
}

QImage Fitted(const QImage& image, int side, qreal ratio) {
  const int longest = std::max(image.width(), image.height());
  const qreal factor = longest > side ? side * ratio / longest : ratio;
  const QSize size(std::max(1, qRound(image.width() * factor)), std::max(1, qRound(image.height() * factor)));
  if (size == image.size()) return image;
  return factor > 1 ? Enlarged(image, size) : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage SignImage(std::string_view word, int pixels) {
  QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  PaintSign(painter, QRectF(0, 0, pixels, pixels), word);
  return image;
}

bool letters_in_squares = false;

/// The first letter of the colour's word, readable on the colour.
void PaintLetter(QImage& image, QRgb color) {
  QPainter painter(&image);
  QFont font = QApplication::font();
  font.setPixelSize(std::max(1, image.height() * 3 / 4));
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(QColor(ReadableOn(color)));
  painter.drawText(QRectF(0, 0, image.width(), image.height()), Qt::AlignCenter, ColorWord(color).left(1).toUpper());
}

/// What squares lie on, as long as nothing else is painted behind them.
QRgb Ground() { return QApplication::palette().color(QPalette::Base).rgb(); }

/// A frame in the colour of texts around a square that could hardly be seen on the ground, itself and its edge.
void FrameWherePale(QImage& image, QRgb color, qreal ratio) {
  const QColor edge = image.pixelColor(0, image.height() / 2);
  const bool edge_seen = edge.alpha() == 255 && Contrast(edge.rgb(), Ground()) >= kLeastSignContrast;
  if (edge_seen || Contrast(color, Ground()) >= kLeastSignContrast) return;
  const int width = std::max(1, qRound(ratio));
  QPainter painter(&image);
  QRegion frame(image.rect());
  frame -= image.rect().adjusted(width, width, -width, -width);
  painter.setClipRegion(frame);
  painter.fillRect(image.rect(), QApplication::palette().color(QPalette::Text));
}

QImage MakeImage(std::string_view name, int side, qreal ratio) {
  const int pixels = qRound(side * ratio);
  const uiox::Image* found = uiox::Suite::Get().Images().Find(name);
  if (!found) return IsSign(name) ? SignImage(name, pixels) : QImage();
  uiox::Image drawn;
  if (IsBuiltIn(name, *found) && uiox::DrawBuiltInImage(name, pixels, drawn)) return ToQImage(drawn);
  QImage image = Fitted(ToQImage(*found), side, ratio);
  const auto color = ColorOfSquare(name);
  if (!color) return image;
  image = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  FrameWherePale(image, *color, ratio);
  if (letters_in_squares) PaintLetter(image, *color);
  return image;
}

/// Asks for the image anew for each size and device, so that it is crisp on all of them.
class ImageEngine final : public QIconEngine {
 public:
  explicit ImageEngine(QByteArray name) : name_(std::move(name)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1;
    const QPixmap pixmap = Styled(ImagePixmap(Name(), std::min(rect.width(), rect.height()), ratio), mode);
    const QSizeF size = pixmap.deviceIndependentSize();
    painter->drawPixmap(
        QPointF(rect.x() + (rect.width() - size.width()) / 2, rect.y() + (rect.height() - size.height()) / 2), pixmap);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return scaledPixmap(size, mode, state, 1);
  }

  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale) override {
    const int side = qRound(std::min(size.width(), size.height()) / scale);
    return Styled(ImagePixmap(Name(), side, scale), mode);
  }

  QIconEngine* clone() const override { return new ImageEngine(name_); }
  QString key() const override { return QStringLiteral("uiox_qt::ImageEngine"); }
  bool isNull() override { return ImagePixmap(Name(), kIconSide, 1).isNull(); }

 private:
  std::string_view Name() const { return {name_.constData(), static_cast<std::size_t>(name_.size())}; }

  static QPixmap Styled(const QPixmap& pixmap, QIcon::Mode mode) {
    if (mode != QIcon::Disabled || pixmap.isNull()) return pixmap;
    QStyleOption option;
    option.palette = QApplication::palette();
    return QApplication::style()->generatedIconPixmap(mode, pixmap, &option);
  }

  QByteArray name_;
};

}  // namespace

QPixmap ImagePixmap(std::string_view name, int side, qreal ratio) {
  if (name.empty() || side < 1 || !(ratio > 0)) return {};
  const QByteArray key = Key(name);
  const auto known = Cache().constFind(key);
  if (known != Cache().constEnd()) {
    for (const Made& made : *known) {
      if (made.side == side && made.ground == Ground() && qFuzzyCompare(made.ratio, ratio)) return made.pixmap;
    }
  }
  const QImage image = MakeImage(name, side, ratio);
  if (image.isNull()) return {};
  QPixmap pixmap = QPixmap::fromImage(image);
  pixmap.setDevicePixelRatio(ratio);
  if (Cache().size() >= kMostImages) Cache().clear();
  Cache()[key].push_back({side, ratio, Ground(), pixmap});
  return pixmap;
}

void ForgetImage(std::string_view name) { Cache().remove(Key(name)); }

void ForgetImages() { Cache().clear(); }

void ShowLettersInSquares(bool shown) {
  if (letters_in_squares == shown) return;
  letters_in_squares = shown;
  ForgetImages();
  for (QWidget* window : QApplication::topLevelWidgets()) {
    for (QAbstractItemView* view : window->findChildren<QAbstractItemView*>()) view->viewport()->update();
  }
}

QIcon ImageIcon(std::string_view name) {
  if (ImagePixmap(name, kIconSide, 1).isNull()) return {};
  return QIcon(new ImageEngine(Key(name)));
}

}  // namespace uiox_qt
