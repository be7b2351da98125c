/// \file
/// Labels as designs have them, the same ones on every machine.
#ifndef OXECAD_BENCH_LABELS_H
#define OXECAD_BENCH_LABELS_H

#include <cstddef>
#include <string>
#include <vector>

namespace oxecad_bench {

/// Net names of several tools' manners ("N$123", "DDR_DQ17", "Net-(R105-Pad2)", "/sheet/sub/VCC3V3"), one in twenty
/// with characters beyond ASCII, in random order. All differ.
std::vector<std::wstring> NetLabels(std::size_t count, unsigned seed = 1);

/// The ASCII form of labels, for peers that compare narrow strings; other characters become '?'.
std::vector<std::string> Narrow(const std::vector<std::wstring>& labels);

}  // namespace oxecad_bench

#endif
