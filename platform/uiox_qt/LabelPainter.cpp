#include <uiox_qt/LabelPainter.h>

#include <uiox_qt/Contrast.h>
#include <uiox_qt/Icons.h>
#include <uiox_qt/Markup.h>

#include <QFontMetrics>
#include <QTextLayout>

#include <algorithm>
#include <vector>

namespace uiox_qt {
namespace {

/// More characters than any screen shows in a line; what is beyond is not laid out.
constexpr qsizetype kMostCharacters = 1024;
constexpr int kImageGap = 2;

/// One line: line ends and other controls are blanks.
QString OneLine(const QString& text) {
  QString line = text.left(kMostCharacters);
  for (QChar& c : line) {
    if (c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator) c = u' ';
  }
  return line;
}

bool IsPlain(const QString& label, bool markup) { return !markup || !HasMarkup(label); }

/// Neighbouring pieces of text, laid out together, so that text of both directions is in order.
class TextSegment {
 public:
  void Add(const MarkupRun& run, bool own_colors) {
    QTextLayout::FormatRange range;
    range.start = static_cast<int>(text_.size());
    text_ += run.text;
    range.length = static_cast<int>(text_.size()) - range.start;
    if (run.bold) range.format.setFontWeight(QFont::Bold);
    if (run.italic) range.format.setFontItalic(true);
    if (run.underline) range.format.setFontUnderline(true);
    if (own_colors && run.background.isValid()) {
      range.format.setBackground(run.background);
      // A text without a colour of its own must be readable on whatever is behind it.
      if (!run.color.isValid()) range.format.setForeground(QColor(ReadableOn(run.background.rgb())));
    }
    if (own_colors && run.color.isValid()) range.format.setForeground(run.color);
    formats_.append(range);
  }

  bool Empty() const { return text_.isEmpty(); }
  qreal Width() const { return width_; }

  void LayOut(const QFont& font) {
    Build(layout_, OneLine(text_), font);
    width_ = layout_.lineAt(0).naturalTextWidth();
  }

  /// Draws no more than `room`, the ellipsis included.
  void Paint(QPainter& painter, QPointF at, qreal room, const QFont& font) {
    if (width_ <= room) {
      layout_.draw(&painter, at);
      return;
    }
    const QString ellipsis(QChar(0x2026));
    const qreal left = room - QFontMetricsF(font).horizontalAdvance(ellipsis);
    const int end = left > 0 ? layout_.lineAt(0).xToCursor(left, QTextLine::CursorOnCharacter) : 0;
    QTextLayout cut;
    Build(cut, OneLine(text_).left(end) + ellipsis, font);
    cut.draw(&painter, at);
  }

 private:
  void Build(QTextLayout& layout, const QString& text, const QFont& font) {
    layout.setText(text);
    layout.setFont(font);
    layout.setFormats(formats_);
    layout.setCacheEnabled(true);
    layout.beginLayout();
    layout.createLine().setLineWidth(1e6);
    layout.endLayout();
  }

  QString text_;
  QList<QTextLayout::FormatRange> formats_;
  QTextLayout layout_;
  qreal width_ = 0;
};

/// A label's images and texts, one after the other.
class LabelPieces {
 public:
  LabelPieces(const QString& label, const LabelStyle& style, qreal ratio) : style_(style) {
    qsizetype characters = 0;
    std::vector<MarkupRun> texts;
    for (MarkupRun& run : ParseMarkup(label)) {
      if (!run.image.isEmpty()) {
        AddText(texts);
        AddImage(run.image.toUtf8(), ratio);
      } else if (characters < kMostCharacters) {
        characters += run.text.size();
        texts.push_back(std::move(run));
      }
    }
    AddText(texts);
  }

  qreal Width() const {
    qreal width = 0;
    for (const Piece& piece : pieces_) width += piece.width;
    return width;
  }

  void Paint(QPainter& painter, const QRect& rect) {
    const qreal height = QFontMetricsF(style_.font).height();
    qreal x = rect.left();
    if (style_.center) x += std::max(0.0, (rect.width() - Width()) / 2);
    const qreal end = rect.left() + rect.width();
    for (Piece& piece : pieces_) {
      if (x >= end) break;
      if (piece.text) {
        piece.text->Paint(painter, {x, rect.top() + (rect.height() - height) / 2}, end - x, style_.font);
      } else {
        const QSizeF size = piece.image.deviceIndependentSize();
        const QRectF place(QPointF(qRound(x), qRound(rect.top() + (rect.height() - size.height()) / 2)), size);
        if (style_.ground.isValid()) painter.fillRect(place.adjusted(-1, -1, 1, 1), style_.ground);
        painter.drawPixmap(place.topLeft(), piece.image);
      }
      x += piece.width;
    }
  }

 private:
  struct Piece {
    std::unique_ptr<TextSegment> text;
    QPixmap image;
    qreal width;
  };

  void AddText(std::vector<MarkupRun>& runs) {
    if (runs.empty()) return;
    auto segment = std::make_unique<TextSegment>();
    for (const MarkupRun& run : runs) segment->Add(run, style_.own_colors);
    runs.clear();
    segment->LayOut(style_.font);
    const qreal width = segment->Width();
    pieces_.push_back({std::move(segment), {}, width});
  }

  void AddImage(const QByteArray& name, qreal ratio) {
    const QPixmap image = ImagePixmap({name.constData(), static_cast<std::size_t>(name.size())}, kIconSide, ratio);
    if (image.isNull()) return;
    const qreal gap = pieces_.empty() ? 0 : kImageGap;
    pieces_.push_back({nullptr, image, image.deviceIndependentSize().width() + gap});
  }

  const LabelStyle& style_;
  std::vector<Piece> pieces_;
};

}  // namespace

void PaintLabel(QPainter& painter, const QRect& rect, const QString& label, bool markup, const LabelStyle& style) {
  if (label.isEmpty() || rect.width() <= 0) return;
  painter.save();
  painter.setFont(style.font);
  painter.setPen(style.color);
  if (IsPlain(label, markup)) {
    const QString text = QFontMetrics(style.font).elidedText(OneLine(label), Qt::ElideRight, rect.width());
    const int align = style.center ? Qt::AlignHCenter : Qt::AlignLeft;
    painter.drawText(rect, align | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip, text);
  } else {
    painter.setClipRect(rect, Qt::IntersectClip);
    LabelPieces(label, style, painter.device()->devicePixelRatioF()).Paint(painter, rect);
  }
  painter.restore();
}

int LabelWidth(const QString& label, bool markup, const QFont& font) {
  if (label.isEmpty()) return 0;
  if (IsPlain(label, markup)) return QFontMetrics(font).horizontalAdvance(OneLine(label));
  LabelStyle style;
  style.font = font;
  return static_cast<int>(LabelPieces(label, style, 1).Width() + 0.999);
}

}  // namespace uiox_qt
