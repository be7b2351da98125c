/// \file
/// Puts what was measured into a page.
#ifndef OXECAD_BENCH_REPORTING_PAGE_H
#define OXECAD_BENCH_REPORTING_PAGE_H

#include <string>

namespace oxecad_bench {

/// Gives the page with another text between the lines "<!-- NAME -->" and "<!-- end of NAME -->". Throws
/// std::runtime_error when it does not have both lines.
std::string WithSection(const std::string& page, const std::string& name, const std::string& text);

/// What it was measured with: the processor, compiler and Qt's version.
std::string MachineLine();

/// Both throw std::runtime_error, which names the file.
std::string ReadText(const std::string& path);
void WriteText(const std::string& path, const std::string& text);

}  // namespace oxecad_bench

#endif
