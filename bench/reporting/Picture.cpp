// Draws the cost curves.
#include <algorithm>
#include <array>
#include <cmath>

#include "bench/reporting/Curves.h"
#include "bench/reporting/Numbers.h"

namespace oxecad_bench {

namespace {

// Told apart with any kind of colour vision; lines of one colour differ by their dashes.
constexpr std::array<const char*, 7> kColors = {"#0072b2", "#d55e00", "#009e73", "#cc79a7",
                                                "#8a6d00", "#56b4e9", "#333333"};
constexpr std::array<const char*, 2> kDashes = {"", "6 4"};

constexpr double kWidth = 860;
constexpr double kPanelHeight = 340;
constexpr double kLeft = 70;
constexpr double kTop = 40;
constexpr double kPlotWidth = 500;
constexpr double kPlotHeight = 250;
constexpr double kLegend = kLeft + kPlotWidth + 20;

std::string At(const char* name, double value) { return std::string(" ") + name + "=\"" + Fixed(value, 1) + '"'; }

std::string Escaped(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '<') {
      escaped += "&lt;";
    } else if (c == '&') {
      escaped += "&amp;";
    } else {
      escaped += c;
    }
  }
  return escaped;
}

std::string Text(double x, double y, const std::string& text, const std::string& more = {}) {
  return "<text" + At("x", x) + At("y", y) + more + '>' + Escaped(text) + "</text>\n";
}

std::string Line(double x1, double y1, double x2, double y2, const std::string& more) {
  return "<line" + At("x1", x1) + At("y1", y1) + At("x2", x2) + At("y2", y2) + ' ' + more + "/>\n";
}

std::string StrokeOf(std::size_t curve) {
  const std::string dash = kDashes[curve / kColors.size() % kDashes.size()];
  return std::string("stroke=\"") + kColors[curve % kColors.size()] + "\" stroke-width=\"2\" fill=\"none\"" +
         (dash.empty() ? "" : " stroke-dasharray=\"" + dash + '"');
}

std::string PowerOfTen(int exponent) {
  static const std::array<const char*, 12> names = {"1 ns", "10 ns", "100 ns", "1 µs", "10 µs", "100 µs",
                                                    "1 ms", "10 ms", "100 ms", "1 s",  "10 s",  "100 s"};
  return names[static_cast<std::size_t>(std::clamp(exponent, 0, static_cast<int>(names.size()) - 1))];
}

/// A diagram of one family.
class Panel {
 public:
  Panel(const std::vector<std::size_t>& sizes, const CurveFamily& family, double y)
      : sizes_(sizes), family_(family), y_(y) {
    double least = 1e12;
    double most = 1;
    for (const Curve& curve : family.curves) {
      for (const double time : curve.nanoseconds) {
        least = std::min(least, time);
        most = std::max(most, time);
      }
    }
    first_ = static_cast<int>(std::floor(std::log10(std::max(1.0, least))));
    last_ = std::max(first_ + 1, static_cast<int>(std::ceil(std::log10(most))));
  }

  std::string Draw() const {
    std::string text = Text(kLeft, y_ + 24, family_.name, " font-weight=\"bold\" font-size=\"15\"") + Axes();
    for (std::size_t curve = 0; curve < family_.curves.size(); ++curve) text += DrawCurve(curve);
    return text;
  }

 private:
  double X(std::size_t size) const {
    const double first = std::log10(static_cast<double>(sizes_.front()));
    const double last = std::log10(static_cast<double>(sizes_.back()));
    return kLeft + kPlotWidth * (std::log10(static_cast<double>(size)) - first) / (last - first);
  }
  double Y(double time) const {
    const double part = (std::log10(std::max(1.0, time)) - first_) / (last_ - first_);
    return y_ + kTop + kPlotHeight * (1 - part);
  }

  std::string Axes() const {
    const std::string grid = "stroke=\"#d0d0d0\"";
    std::string text;
    for (int exponent = first_; exponent <= last_; ++exponent) {
      const double y = Y(std::pow(10.0, exponent));
      text += Line(kLeft, y, kLeft + kPlotWidth, y, grid) +
              Text(kLeft - 8, y + 4, PowerOfTen(exponent), " text-anchor=\"end\"");
    }
    for (const std::size_t size : sizes_) {
      const double x = X(size);
      text += Line(x, y_ + kTop, x, y_ + kTop + kPlotHeight, grid) +
              Text(x, y_ + kTop + kPlotHeight + 18, Grouped(size), " text-anchor=\"middle\"");
    }
    return text + Text(kLeft + kPlotWidth / 2, y_ + kTop + kPlotHeight + 36, "nodes (n)", " text-anchor=\"middle\"");
  }

  std::string DrawCurve(std::size_t index) const {
    const Curve& curve = family_.curves[index];
    std::string points;
    for (std::size_t size = 0; size < sizes_.size(); ++size) {
      points += (points.empty() ? "" : " ") + Fixed(X(sizes_[size]), 1) + ',' + Fixed(Y(curve.nanoseconds[size]), 1);
    }
    const double y = y_ + kTop + 10 + 20 * static_cast<double>(index);
    return "<polyline points=\"" + points + "\" " + StrokeOf(index) + "/>\n" +
           Line(kLegend, y, kLegend + 26, y, StrokeOf(index)) + Text(kLegend + 34, y + 4, curve.operation);
  }

  const std::vector<std::size_t>& sizes_;
  const CurveFamily& family_;
  double y_;
  int first_ = 0;
  int last_ = 1;
};

}  // namespace

std::string PictureOf(const Curves& curves) {
  const double height = kPanelHeight * static_cast<double>(curves.families.size());
  std::string text = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " + Fixed(kWidth, 0) + ' ' +
                     Fixed(height, 0) +
                     "\" font-family=\"DejaVu Sans, sans-serif\" font-size=\"12\" fill=\"#202020\">\n" +
                     "<title>Time of one call by the number of nodes, both axes logarithmic</title>\n" +
                     "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n";
  for (std::size_t family = 0; family < curves.families.size(); ++family) {
    text += Panel(curves.sizes, curves.families[family], kPanelHeight * static_cast<double>(family)).Draw();
  }
  return text + "</svg>\n";
}

}  // namespace oxecad_bench
