#include <uiox_qt/TextViews.h>

#include <uiox_qt/Icons.h>
#include <uiox_qt/Text.h>

#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace uiox_qt {
namespace {

/// The text mode of wrapped text.
constexpr int kWrapped = 2;
/// The width of wrapped text, in average characters.
constexpr int kWrappedWidth = 48;

constexpr int kSignSide = 32;
constexpr int kSignGap = 4;

}  // namespace

TextView::TextView(uiox::Widget& component) : ComponentView(component) {
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void TextView::FollowOwn(uiox::WidgetChange change) {
  if (change != uiox::WidgetChange::Label && change != uiox::WidgetChange::TextMode) return;
  setWordWrap(Component()->TextMode() == kWrapped);
  setText(FromWide(Component()->Label()));
}

/// Lays the text out in lines of this width and gives its height.
int TextView::LayOut(QTextLayout& layout, int width) const {
  QString lines = text();
  lines.replace(u'\n', QChar(QChar::LineSeparator));
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setText(lines);
  layout.setFont(font());
  layout.setTextOption(option);
  layout.beginLayout();
  qreal height = 0;
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    line.setPosition({0, height});
    height += line.height();
  }
  layout.endLayout();
  return static_cast<int>(std::ceil(height));
}

int TextView::heightForWidth(int width) const {
  if (!wordWrap()) return QLabel::heightForWidth(width);
  QTextLayout layout;
  return LayOut(layout, width);
}

QSize TextView::sizeHint() const {
  if (!wordWrap()) return QLabel::sizeHint();
  const int widest = kWrappedWidth * fontMetrics().averageCharWidth();
  const int width = std::min(widest, fontMetrics().size(0, text()).width() + 1);
  return {width, heightForWidth(width)};
}

QSize TextView::minimumSizeHint() const { return wordWrap() ? sizeHint() : QLabel::minimumSizeHint(); }

void TextView::paintEvent(QPaintEvent* event) {
  if (!wordWrap()) {
    QLabel::paintEvent(event);
    return;
  }
  QTextLayout layout;
  const int text_height = LayOut(layout, width());
  QPainter painter(this);
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
  layout.draw(&painter, QPointF(0, std::max(0, (height() - text_height) / 2)));
}

IconView::IconView(uiox::Widget& component) : ComponentView(component) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize IconView::sizeHint() const {
  const int count = Component() ? std::max(1, static_cast<int>(Component()->Images().size())) : 1;
  return {count * kSignSide + (count - 1) * kSignGap, kSignSide};
}

void IconView::FollowOwn(uiox::WidgetChange change) {
  if (change != uiox::WidgetChange::Images) return;
  QStringList names;
  for (const std::string& name : Component()->Images()) names += FromName(name);
  setAccessibleName(names.join(QLatin1String(", ")));
  updateGeometry();
  update();
}

void IconView::paintEvent(QPaintEvent*) {
  if (!Component()) return;
  QPainter painter(this);
  int x = 0;
  for (const std::string& name : Component()->Images()) {
    const QPixmap image = ImagePixmap(name, kSignSide, devicePixelRatioF());
    const QSizeF size = image.deviceIndependentSize();
    painter.drawPixmap(QPointF(x + (kSignSide - size.width()) / 2, (kSignSide - size.height()) / 2), image);
    x += kSignSide + kSignGap;
  }
}

}  // namespace uiox_qt
