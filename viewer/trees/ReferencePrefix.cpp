#include <viewer/trees/ReferencePrefix.h>

namespace oxviewer {

std::string_view ReferencePrefix(std::string_view reference) {
  return reference.substr(0, reference.find_first_of("0123456789?*"));
}

}  // namespace oxviewer
