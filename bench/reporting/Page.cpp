#include "bench/reporting/Page.h"

#include <QtGlobal>

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>

namespace oxecad_bench {

namespace {

std::string ProcessorName() {
  std::ifstream file("/proc/cpuinfo");
  for (std::string line; std::getline(file, line);) {
    if (line.rfind("model name", 0) != 0) continue;
    const std::size_t name = line.find_first_not_of(" \t", line.find(':') + 1);
    if (name != std::string::npos) return line.substr(name);
  }
  return "unknown processor";
}

}  // namespace

std::string WithSection(const std::string& page, const std::string& name, const std::string& text) {
  const std::string open = "<!-- " + name + " -->\n";
  const std::string close = "<!-- end of " + name + " -->";
  const std::size_t begin = page.find(open);
  const std::size_t end = page.find(close);
  if (begin == std::string::npos || end == std::string::npos || end < begin) {
    throw std::runtime_error("the page has no section \"" + name + '"');
  }
  return page.substr(0, begin + open.size()) + text + page.substr(end);
}

std::string MachineLine() {
  return ProcessorName() + ", " + std::to_string(std::thread::hardware_concurrency()) + " cores; GCC " __VERSION__ +
         ", Qt " + qVersion() + '\n';
}

std::string ReadText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(file), {}};
  if (!file) throw std::runtime_error(path + ": cannot be read");
  return text;
}

void WriteText(const std::string& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file << text << std::flush;
  if (!file) throw std::runtime_error(path + ": cannot be written");
}

}  // namespace oxecad_bench
