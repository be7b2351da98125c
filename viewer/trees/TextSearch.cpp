#include <viewer/trees/TextSearch.h>

#include <algorithm>

namespace oxviewer {
namespace {

char LowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

bool HoldsText(std::string_view text, std::string_view part) {
  return std::search(text.begin(), text.end(), part.begin(), part.end(),
                     [](char a, char b) { return LowerCase(a) == LowerCase(b); }) != text.end();
}

}  // namespace oxviewer
