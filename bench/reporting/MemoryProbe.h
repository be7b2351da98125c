/// \file
/// How much memory nodes take, measured in a process that does nothing else.
#ifndef OXECAD_BENCH_REPORTING_MEMORYPROBE_H
#define OXECAD_BENCH_REPORTING_MEMORYPROBE_H

#include <cstddef>
#include <string>
#include <vector>

namespace oxecad_bench {

/// What holds the nodes.
const std::vector<std::string>& ProbeKinds();

/// Starts the program anew to hold so many nodes, and gives by how many resident bytes it grew for each.
double BytesPerNode(const std::string& program, const std::string& kind, std::size_t count);

/// Whether the arguments ask for what `BytesPerNode` starts.
bool IsProbe(const std::vector<std::string>& arguments);
/// Does it and prints the number; gives the exit status.
int RunProbe(const std::vector<std::string>& arguments);

}  // namespace oxecad_bench

#endif
