#include <uiox_qt/TextViews.h>

#include <uiox_qt/Icons.h>
#include <uiox_qt/Text.h>

#include <QPainter>

#include <algorithm>

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
  setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void TextView::FollowOwn(uiox::WidgetChange change) {
  if (change != uiox::WidgetChange::Label && change != uiox::WidgetChange::TextMode) return;
  const QString text = FromWide(Component()->Label());
  const bool wrapped = Component()->TextMode() == kWrapped;
  setWordWrap(wrapped);
  if (!wrapped) {
    setTextFormat(Qt::PlainText);
    setMinimumWidth(0);
    setText(text);
    return;
  }
  // As rich text without a single tag, because plain text is wrapped between words only.
  setTextFormat(Qt::RichText);
  const int widest = kWrappedWidth * fontMetrics().averageCharWidth();
  setMinimumWidth(std::min(widest, fontMetrics().size(0, text).width() + 1));
  setText(text.toHtmlEscaped().replace(u'\n', QLatin1String("<br>")));
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
