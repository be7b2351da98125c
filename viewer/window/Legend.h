/// \file
/// What the colours and signs mean.
#ifndef OXECAD_VIEWER_WINDOW_LEGEND_H
#define OXECAD_VIEWER_WINDOW_LEGEND_H

#include <viewer/trees/LayerPalette.h>

#include <QDialog>
#include <QString>

#include <vector>

class QGridLayout;

namespace oxviewer {

/// A colour and what has it.
struct LegendColor {
  Color color;
  QString meaning;
};

/// A window with the colours of the layers, those of a comparison, and the signs of show modes, each with its words. It
/// shows what it was given when it was made.
class Legend : public QDialog {
  Q_OBJECT

 public:
  Legend(const std::vector<LegendColor>& layers, QWidget* parent);

 private:
  void AddHeading(const QString& text);
  void AddColor(const LegendColor& color);
  void AddSign(const char* image, const QString& meaning);
  void AddRow(const QPixmap& picture, const QString& meaning);

  QGridLayout* grid_;
  int column_ = 0;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_LEGEND_H
