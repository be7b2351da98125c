#include <viewer/trees/CompareTree.h>
#include <viewer/window/Legend.h>

#include <QGridLayout>
#include <QLabel>
#include <QPixmap>

#include <uicomps/color/ColorIconBag.h>
#include <uiox_qt/Icons.h>
#include <uiox_qt/ImageWords.h>

namespace oxviewer {
namespace {

constexpr int kSide = 16;
constexpr int kColumnGap = 24;
constexpr int kRowsAtMost = 20;  // of layers; the others are in the tree

constexpr const char* kShowModes[] = {"ecad_compare_show_both.png", "ecad_compare_show_a.png",
                                      "ecad_compare_show_b.png",    "ecad_compare_show_a-b.png",
                                      "ecad_compare_show_b-a.png",  "ecad_compare_show_overlap.png",
                                      "ecad_compare_show_diff.png"};

// The same as in the trees.
QPixmap Square(Color color, qreal ratio) {
  const char* const icon = oxecad_ui::ColorIconBag::Get().GetColorIcon("color_square.png", color);
  return icon ? uiox_qt::ImagePixmap(icon, kSide, ratio) : QPixmap();
}

}  // namespace

Legend::Legend(const std::vector<LegendColor>& layers, QWidget* parent)
    : QDialog(parent), grid_(new QGridLayout(this)) {
  setWindowTitle(tr("Legend"));
  setAttribute(Qt::WA_DeleteOnClose);
  grid_->setHorizontalSpacing(8);
  if (!layers.empty()) {
    AddHeading(tr("Layers"));
    for (std::size_t i = 0; i < layers.size() && i < kRowsAtMost; ++i) AddColor(layers[i]);
  }
  AddHeading(tr("Comparison"));
  AddColor({CompareTree::kColorA, tr("Only in A")});
  AddColor({CompareTree::kColorB, tr("Only in B")});
  AddColor({CompareTree::kColorOverlap, tr("In both")});
  AddSign("mix.png", tr("Mixed: what is below differs"));
  AddHeading(tr("Shown of a comparison"));
  for (const char* mode : kShowModes) AddSign(mode, uiox_qt::ImageWords(mode));
}

void Legend::AddHeading(const QString& text) {
  if (grid_->count() > 0) {
    grid_->setColumnMinimumWidth(column_ + 2, kColumnGap);
    column_ += 3;
  }
  auto* heading = new QLabel(text);
  QFont font = heading->font();
  font.setBold(true);
  heading->setFont(font);
  grid_->addWidget(heading, 0, column_, 1, 2);
  grid_->setColumnStretch(column_ + 1, 1);
}

void Legend::AddColor(const LegendColor& color) {
  const QRgb rgb = qRgb(RedOf(color.color), GreenOf(color.color), BlueOf(color.color));
  AddRow(Square(color.color, devicePixelRatioF()), tr("%1 (%2)").arg(color.meaning, uiox_qt::ColorWord(rgb)));
}

void Legend::AddSign(const char* image, const QString& meaning) {
  AddRow(uiox_qt::ImagePixmap(image, kSide, devicePixelRatioF()), meaning);
}

void Legend::AddRow(const QPixmap& picture, const QString& meaning) {
  int row = 1;
  while (grid_->itemAtPosition(row, column_)) ++row;
  auto* sign = new QLabel;
  sign->setPixmap(picture);
  sign->setAccessibleName(meaning);
  auto* words = new QLabel(meaning);
  words->setTextFormat(Qt::PlainText);
  grid_->addWidget(sign, row, column_);
  grid_->addWidget(words, row, column_ + 1);
}

}  // namespace oxviewer
