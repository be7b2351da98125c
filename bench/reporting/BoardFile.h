/// \file
/// A board file of any size.
#ifndef OXECAD_BENCH_REPORTING_BOARDFILE_H
#define OXECAD_BENCH_REPORTING_BOARDFILE_H

#include <cstddef>
#include <string>

namespace oxecad_bench {

/// Writes a board in the format that the viewer reads. Of each five nets there is a component with ten pads, two to a
/// net; a net has two pieces of track, and every other one a via.
void WriteBoard(const std::string& path, std::size_t nets);

}  // namespace oxecad_bench

#endif
