/// \file
/// A name that is compared in constant time: equal texts share one interned copy.
#ifndef OXECAD_OXKUTILS_SYMBOL_H
#define OXECAD_OXKUTILS_SYMBOL_H

#include <cstddef>
#include <functional>
#include <string>

#include <oxkutils/Export.h>

namespace oxkutils {

/// An interned narrow string (UTF-8 where it carries text). Copying and comparing cost a pointer; making one from a
/// text costs a look-up. The interned texts live as long as the process, so that a symbol may be used while static
/// objects are made and destroyed. Making symbols is safe from several threads.
class OXECAD_PLATFORM_EXPORT Symbol {
 public:
  /// The symbol of the empty text, which every other way to make an empty symbol equals.
  static const Symbol EMPTY;

  constexpr Symbol() noexcept = default;
  /// Null counts as the empty text.
  explicit Symbol(const char* text);
  /// The whole text counts, zero bytes inside it included.
  explicit Symbol(const std::string& text);

  /// The text, zero-terminated; good until the process ends, never null.
  const char* c_str() const noexcept { return m_text ? m_text->c_str() : ""; }
  /// Whether it is the symbol of the empty text.
  bool empty() const noexcept { return m_text == nullptr; }

  /// Whether both stand for the same text, byte for byte. Constant time.
  friend bool operator==(const Symbol& a, const Symbol& b) noexcept { return a.m_text == b.m_text; }
  /// Whether they stand for different texts. Constant time.
  friend bool operator!=(const Symbol& a, const Symbol& b) noexcept { return a.m_text != b.m_text; }
  /// A strict order by identity: the same throughout a process, not alphabetical, and another one in the next run.
  friend bool operator<(const Symbol& a, const Symbol& b) noexcept {
    return std::less<const std::string*>()(a.m_text, b.m_text);
  }

 private:
  friend struct std::hash<Symbol>;

  const std::string* m_text = nullptr;  // null stands for the empty text, so that EMPTY needs no initialisation
};

}  // namespace oxkutils

/// Hashes by identity, for unordered containers; the numbers differ from run to run.
template <>
struct std::hash<oxkutils::Symbol> {
  /// The symbol's hash. Constant time.
  std::size_t operator()(const oxkutils::Symbol& symbol) const noexcept {
    return std::hash<const std::string*>()(symbol.m_text);
  }
};

#endif
