/// \file
/// A piece of work in a process of its own.
#ifndef OXECAD_TESTS_TORTURE_CHILDPROCESS_H
#define OXECAD_TESTS_TORTURE_CHILDPROCESS_H

#include <functional>
#include <string>
#include <vector>

namespace torture {

/// Does the work in a copy of this process and gives the lines that it gave; one more line tells of a process that did
/// not end well. What the work changes is gone with that process.
std::vector<std::string> InChild(const std::function<std::vector<std::string>()>& work);

}  // namespace torture

#endif
