/// \file
/// How the cost of operations grows with the tree.
#ifndef OXECAD_BENCH_REPORTING_CURVES_H
#define OXECAD_BENCH_REPORTING_CURVES_H

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace oxecad_bench {

/// An operation on a tree that is there: `run` calls it so many times, `prepare` and `restore` are not measured.
struct Operation {
  std::string name;
  std::size_t calls = 1;
  std::function<void()> run;
  std::function<void()> prepare = [] {};
  std::function<void()> restore = [] {};
};

/// A kind of tree with its operations.
struct Family {
  std::string name;
  /// Makes a tree of so many nodes and gives the operations on it, always the same ones; the tree lives as long.
  std::function<std::vector<Operation>(std::size_t nodes)> operations;
};

std::vector<Operation> TreeOperations(std::size_t nodes);
std::vector<Operation> WholeTreeOperations(std::size_t nodes);
std::vector<Operation> ColorOperations(std::size_t nodes);
std::vector<Operation> CompareOperations(std::size_t nodes);
std::vector<Operation> UserDataOperations(std::size_t nodes);

struct Curve {
  std::string operation;
  std::vector<double> nanoseconds;  ///< of one call, for each size
};

struct CurveFamily {
  std::string name;
  std::vector<Curve> curves;
};

struct Curves {
  std::vector<std::size_t> sizes;  ///< numbers of nodes
  std::vector<CurveFamily> families;
};

/// Measures all operations at 1,000 nodes and ten, a hundred and a thousand times as many; when quick, less.
Curves MeasureCurves(bool quick);

/// A Markdown table of them.
std::string TableOf(const Curves& curves);
/// An SVG picture: a diagram for each family, both axes logarithmic.
std::string PictureOf(const Curves& curves);

}  // namespace oxecad_bench

#endif
