/// \file
/// A process that writes numbers as many users do: 1.234,5.
#ifndef OXECAD_TESTS_SUPPORT_DECIMALCOMMA_H
#define OXECAD_TESTS_SUPPORT_DECIMALCOMMA_H

#include <clocale>
#include <locale>
#include <string>

namespace test_support {

/// While it lives, every stream that is made takes a decimal comma and groups digits by points, and so does the C
/// library where such a locale is installed.
class DecimalComma {
 public:
  DecimalComma() : c_before_(std::setlocale(LC_ALL, nullptr)) {
    const std::locale narrow(std::locale::classic(), new Punctuation<char>);
    cpp_before_ = std::locale::global(std::locale(narrow, new Punctuation<wchar_t>));
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "de_DE"}) {
      if (std::setlocale(LC_ALL, name)) break;
    }
  }
  ~DecimalComma() {
    std::locale::global(cpp_before_);
    std::setlocale(LC_ALL, c_before_.c_str());
  }
  DecimalComma(const DecimalComma&) = delete;
  DecimalComma& operator=(const DecimalComma&) = delete;

 private:
  template <class Char>
  struct Punctuation : std::numpunct<Char> {
    Char do_decimal_point() const override { return ','; }
    Char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };

  std::string c_before_;
  std::locale cpp_before_;
};

}  // namespace test_support

#endif
