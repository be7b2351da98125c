#include "bench/reporting/Curves.h"

#include <algorithm>
#include <cmath>

#include "bench/reporting/Measure.h"
#include "bench/reporting/Numbers.h"

namespace oxecad_bench {

namespace {

constexpr int kMostRuns = 5;
constexpr double kMostNanoseconds = 1e9;  // for all runs of one operation at one size

double MeasureOperation(const Operation& operation) {
  std::vector<double> times;
  double sum = 0;
  for (int run = 0; run < kMostRuns && sum < kMostNanoseconds; ++run) {
    operation.prepare();
    Meter meter(Meter::Mode::Time);
    meter.Run(operation.run);
    operation.restore();
    times.push_back(meter.Nanoseconds() / static_cast<double>(operation.calls));
    sum += meter.Nanoseconds();
  }
  return Median(times);
}

const std::vector<Family>& Families() {
  static const std::vector<Family> families = {{"One node among n siblings", TreeOperations},
                                               {"All n nodes of a tree", WholeTreeOperations},
                                               {"ColorTree, n siblings", ColorOperations},
                                               {"CompareColorTree, n siblings", CompareOperations},
                                               {"UserDataTree, n leaves of one branch", UserDataOperations}};
  return families;
}

/// How a cost grows from one size to the one ten times as large: the exponent of n.
std::string Growth(const Curve& curve) {
  const std::size_t last = curve.nanoseconds.size() - 1;
  const double exponent = std::log10(curve.nanoseconds[last] / curve.nanoseconds.front()) / static_cast<double>(last);
  return "n^" + Fixed(std::max(0.0, exponent), 2);
}

std::string TimeText(double nanoseconds) {
  if (nanoseconds < 1e3) return Measured(nanoseconds) + " ns";
  if (nanoseconds < 1e6) return Measured(nanoseconds / 1e3) + " µs";
  if (nanoseconds < 1e9) return Measured(nanoseconds / 1e6) + " ms";
  return Measured(nanoseconds / 1e9) + " s";
}

}  // namespace

Curves MeasureCurves(bool quick) {
  Curves curves;
  curves.sizes = quick ? std::vector<std::size_t>{1'000, 10'000, 100'000}
                       : std::vector<std::size_t>{1'000, 10'000, 100'000, 1'000'000};
  for (const Family& family : Families()) {
    CurveFamily& measured = curves.families.emplace_back();
    measured.name = family.name;
    for (const std::size_t size : curves.sizes) {
      const std::vector<Operation> operations = family.operations(size);
      if (measured.curves.empty()) {
        for (const Operation& operation : operations) measured.curves.push_back({operation.name, {}});
      }
      for (std::size_t index = 0; index < operations.size(); ++index) {
        measured.curves[index].nanoseconds.push_back(MeasureOperation(operations[index]));
      }
    }
  }
  return curves;
}

std::string TableOf(const Curves& curves) {
  std::string text;
  for (const CurveFamily& family : curves.families) {
    text += "| " + family.name + " |";
    std::string rule = "| --- |";
    for (const std::size_t size : curves.sizes) {
      text += " n = " + Grouped(size) + " |";
      rule += " ---: |";
    }
    text += " growth |\n" + rule + " --- |\n";
    for (const Curve& curve : family.curves) {
      text += "| `" + curve.operation + "` |";
      for (const double time : curve.nanoseconds) text += ' ' + TimeText(time) + " |";
      text += ' ' + Growth(curve) + " |\n";
    }
    text += '\n';
  }
  return text;
}

}  // namespace oxecad_bench
