// A platform with nothing but the members that every platform has: what is used beyond them does not compile.
#ifndef OXECAD_TESTS_MINIMAL_OXKUTILS_SYMBOL_H
#define OXECAD_TESTS_MINIMAL_OXKUTILS_SYMBOL_H

#include <string>

namespace oxkutils {

class Symbol {
 public:
  static const Symbol EMPTY;
  Symbol();
  explicit Symbol(const char* text);
  explicit Symbol(const std::string& text);
  const char* c_str() const;
  bool empty() const;

 private:
  const void* identity_;
};

bool operator==(const Symbol& a, const Symbol& b);
bool operator!=(const Symbol& a, const Symbol& b);
bool operator<(const Symbol& a, const Symbol& b);

}  // namespace oxkutils

#endif
