/// \file
/// The look of the program's widgets.
#ifndef OXECAD_VIEWER_WINDOW_THEMESTYLE_H
#define OXECAD_VIEWER_WINDOW_THEMESTYLE_H

#include <QProxyStyle>

namespace oxviewer {

/// Qt's own style for all desktops, with check boxes whose frames can be seen on dark backgrounds and in selected rows.
class ThemeStyle : public QProxyStyle {
 public:
  ThemeStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_THEMESTYLE_H
