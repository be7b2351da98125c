/// \file
/// The markup of labels.
#ifndef OXECAD_UIOX_QT_MARKUP_H
#define OXECAD_UIOX_QT_MARKUP_H

#include <uiox_qt/Export.h>

#include <QColor>
#include <QString>

#include <vector>

namespace uiox_qt {

/// A piece of a label that looks the same throughout: text, or one image.
struct MarkupRun {
  QString text;
  QString image;  ///< name of an image of the suite; then `text` is empty
  bool bold = false;
  bool italic = false;
  bool underline = false;
  QColor color;       ///< invalid: the view's
  QColor background;  ///< invalid: none
};

/// Takes a label apart. The tags are a closed list, their names in any case:
///
///     <b> <i> <u>  <font color=#rrggbb>  <span style="background:rrggbb; color:#rrggbb">  <img src="name">  <br>
///     <mix>  <mix_show> <both_show> <a_show> <b_show> <a-b_show> <b-a_show> <overlap_show> <diff_show>
///
/// The latter are images. `<br>` is a blank. A colour is digits with or without "#", three or six of them, or a
/// colour's name. Other tags leave nothing, their contents stay; a "<" that begins no tag is text. `&lt; &gt; &amp;
/// &quot; &apos; &nbsp; &#n; &#xn;` are characters; another "&" is text. Never fails; linear time.
OXECAD_UIOX_QT_API std::vector<MarkupRun> ParseMarkup(const QString& label);

/// What a person reads of a label: the text of all runs.
OXECAD_UIOX_QT_API QString PlainText(const QString& label);

/// Writes plain text as markup, so that `PlainText` gives it back.
OXECAD_UIOX_QT_API QString EscapeMarkup(const QString& text);

/// Whether there can be markup in it at all.
inline bool HasMarkup(const QString& label) {
  return label.contains(QLatin1Char('<')) || label.contains(QLatin1Char('&'));
}

}  // namespace uiox_qt

#endif
