#include <uiox_qt/Markup.h>

#include <QStringView>

#include <algorithm>
#include <array>
#include <optional>

namespace uiox_qt {
namespace {

/// Longer runs of characters between "<" and ">", or "&" and ";", are no tag and no entity.
constexpr qsizetype kLongestTag = 1024;
constexpr qsizetype kLongestEntity = 12;
/// Styles within each other; further ones change nothing, so that a hostile label costs no more than a long one.
constexpr std::size_t kDeepestStyle = 32;

struct NamedImage {
  const char16_t* tag;
  const char16_t* image;
};

constexpr NamedImage kImageTags[] = {
    {u"mix", u"mix.png"},
    {u"mix_show", u"mix.png"},
    {u"both_show", u"ecad_compare_show_both.png"},
    {u"a_show", u"ecad_compare_show_a.png"},
    {u"b_show", u"ecad_compare_show_b.png"},
    {u"a-b_show", u"ecad_compare_show_a-b.png"},
    {u"b-a_show", u"ecad_compare_show_b-a.png"},
    {u"overlap_show", u"ecad_compare_show_overlap.png"},
    {u"diff_show", u"ecad_compare_show_diff.png"},
};

bool Same(QStringView a, QStringView b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

QColor ParseColor(QStringView text) {
  text = text.trimmed();
  if (text.startsWith(u'#')) text = text.mid(1);
  const bool digits = std::all_of(text.begin(), text.end(), [](QChar c) {
    const char16_t u = c.toLower().unicode();
    return (u >= u'0' && u <= u'9') || (u >= u'a' && u <= u'f');
  });
  if (digits && (text.size() == 3 || text.size() == 6)) return QColor(u'#' + text.toString());
  const bool letters = std::all_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
  return letters && !text.isEmpty() ? QColor(text.toString()) : QColor();
}

/// The value of an attribute in what follows a tag's name; null when it is not there.
QStringView Attribute(QStringView rest, QStringView name) {
  while (true) {
    rest = rest.trimmed();
    qsizetype end = 0;
    while (end < rest.size() && rest[end] != u'=' && !rest[end].isSpace()) ++end;
    if (end == 0) return {};
    const QStringView key = rest.left(end);
    rest = rest.mid(end).trimmed();
    QStringView value;
    if (rest.startsWith(u'=')) {
      rest = rest.mid(1).trimmed();
      const QChar quote = rest.isEmpty() ? QChar() : rest[0];
      if (quote == u'"' || quote == u'\'') {
        const qsizetype close = rest.indexOf(quote, 1);
        value = close < 0 ? rest.mid(1) : rest.mid(1, close - 1);
        rest = close < 0 ? QStringView() : rest.mid(close + 1);
      } else {
        qsizetype stop = 0;
        while (stop < rest.size() && !rest[stop].isSpace()) ++stop;
        value = rest.left(stop);
        rest = rest.mid(stop);
      }
    }
    if (Same(key, name)) return value;
  }
}

QStringView StyleValue(QStringView style, QStringView name) {
  for (const QStringView part : style.split(u';')) {
    const qsizetype colon = part.indexOf(u':');
    if (colon >= 0 && Same(part.left(colon).trimmed(), name)) return part.mid(colon + 1);
  }
  return {};
}

std::optional<QString> NumberedCharacter(QStringView digits) {
  const bool hexadecimal = digits.startsWith(u'x') || digits.startsWith(u'X');
  bool valid = false;
  const uint code = hexadecimal ? digits.mid(1).toUInt(&valid, 16) : digits.toUInt(&valid, 10);
  if (!valid || code == 0 || code > 0x10FFFF || QChar::isSurrogate(code)) return std::nullopt;
  const auto character = static_cast<char32_t>(code);
  return QString::fromUcs4(&character, 1);
}

std::optional<QString> Entity(QStringView name) {
  if (name.startsWith(u'#')) return NumberedCharacter(name.mid(1));
  if (name == u"lt") return QStringLiteral("<");
  if (name == u"gt") return QStringLiteral(">");
  if (name == u"amp") return QStringLiteral("&");
  if (name == u"quot") return QStringLiteral("\"");
  if (name == u"apos") return QStringLiteral("'");
  if (name == u"nbsp") return QString(QChar(QChar::Nbsp));
  return std::nullopt;
}

class Parser {
 public:
  explicit Parser(const QString& label) : label_(label) {}

  std::vector<MarkupRun> Run() {
    const QStringView label(label_);
    while (at_ < label.size()) {
      const QChar c = label[at_];
      if (c == u'<' && TakeTag()) continue;
      if (c == u'&' && TakeEntity()) continue;
      text_ += c;
      ++at_;
    }
    EndRun();
    return std::move(runs_);
  }

 private:
  struct Style {
    QStringView tag;
    QColor color;
    QColor background;
  };

  bool TakeTag() {
    const QStringView rest = QStringView(label_).mid(at_ + 1, kLongestTag);
    const bool closing = rest.startsWith(u'/');
    const qsizetype name_at = closing ? 1 : 0;
    if (name_at >= rest.size() || !rest[name_at].isLetter()) return false;
    const qsizetype end = TagEnd(rest, name_at);
    if (end < 0) return false;
    qsizetype name_end = name_at;
    while (name_end < end && !rest[name_end].isSpace() && rest[name_end] != u'/') ++name_end;
    const QStringView name = rest.mid(name_at, name_end - name_at);
    at_ += end + 2;
    if (closing) {
      Close(name);
    } else {
      Open(name, rest.mid(name_end, end - name_end));
    }
    return true;
  }

  /// Where the ">" of the tag is: one within quotes does not count, nor does a tag reach over a "<".
  static qsizetype TagEnd(QStringView rest, qsizetype from) {
    QChar quote;
    for (qsizetype i = from; i < rest.size(); ++i) {
      const QChar c = rest[i];
      if (!quote.isNull()) {
        if (c == quote) quote = QChar();
      } else if (c == u'"' || c == u'\'') {
        quote = c;
      } else if (c == u'>') {
        return i;
      } else if (c == u'<') {
        return -1;
      }
    }
    return -1;
  }

  bool TakeEntity() {
    const QStringView rest = QStringView(label_).mid(at_ + 1, kLongestEntity);
    const qsizetype end = rest.indexOf(u';');
    if (end < 1) return false;
    const std::optional<QString> character = Entity(rest.left(end));
    if (!character) return false;
    text_ += *character;
    at_ += end + 2;
    return true;
  }

  void Open(QStringView name, QStringView attributes) {
    if (Same(name, u"b") || Same(name, u"i") || Same(name, u"u")) {
      Push({name, {}, {}});
    } else if (Same(name, u"font")) {
      Push({name, ParseColor(Attribute(attributes, u"color")), {}});
    } else if (Same(name, u"span")) {
      const QStringView style = Attribute(attributes, u"style");
      QStringView background = StyleValue(style, u"background");
      if (background.isNull()) background = StyleValue(style, u"background-color");
      Push({name, ParseColor(StyleValue(style, u"color")), ParseColor(background)});
    } else if (Same(name, u"br")) {
      text_ += u' ';
    } else if (Same(name, u"img")) {
      AddImage(Attribute(attributes, u"src").toString());
    } else {
      for (const NamedImage& known : kImageTags) {
        if (Same(name, known.tag)) AddImage(QString::fromUtf16(known.image));
      }
    }
  }

  void Close(QStringView name) {
    const auto opened =
        std::find_if(styles_.rbegin(), styles_.rend(), [name](const Style& style) { return Same(style.tag, name); });
    if (opened == styles_.rend()) return;
    EndRun();
    styles_.erase(std::next(opened).base());
  }

  void Push(const Style& style) {
    if (styles_.size() == kDeepestStyle) return;
    EndRun();
    styles_.push_back(style);
  }

  void AddImage(const QString& image) {
    EndRun();
    if (image.isEmpty()) return;
    runs_.push_back({});
    runs_.back().image = image;
  }

  void EndRun() {
    if (text_.isEmpty()) return;
    MarkupRun run;
    run.text = std::move(text_);
    text_.clear();
    for (const Style& style : styles_) {
      if (Same(style.tag, u"b")) run.bold = true;
      if (Same(style.tag, u"i")) run.italic = true;
      if (Same(style.tag, u"u")) run.underline = true;
      if (style.color.isValid()) run.color = style.color;
      if (style.background.isValid()) run.background = style.background;
    }
    runs_.push_back(std::move(run));
  }

  const QString& label_;
  qsizetype at_ = 0;
  QString text_;
  std::vector<Style> styles_;
  std::vector<MarkupRun> runs_;
};

}  // namespace

std::vector<MarkupRun> ParseMarkup(const QString& label) { return Parser(label).Run(); }

QString PlainText(const QString& label) {
  if (!HasMarkup(label)) return label;
  QString text;
  for (const MarkupRun& run : ParseMarkup(label)) text += run.text;
  return text;
}

QString EscapeMarkup(const QString& text) {
  QString markup = text;
  markup.replace(u'&', QLatin1String("&amp;")).replace(u'<', QLatin1String("&lt;"));
  return markup.replace(u'>', QLatin1String("&gt;"));
}

}  // namespace uiox_qt
