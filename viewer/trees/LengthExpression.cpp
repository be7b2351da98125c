#include <viewer/trees/LengthExpression.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include <oxecadutils/StringConversion.h>
#include <oxg/LengthUnit.h>

namespace oxviewer {
namespace {

using oxg::LengthUnit;

constexpr int kDeepest = 32;
constexpr std::size_t kLongest = 200;

struct Unit {
  std::string_view name;
  unsigned char code;
};
constexpr Unit kUnits[] = {
    {"mm", LengthUnit::Millimetre}, {"um", LengthUnit::Micrometre}, {"mil", LengthUnit::Mil}, {"in", LengthUnit::Inch}};

bool IsDigit(char c) { return (c >= '0' && c <= '9') || c == '.'; }
bool IsLetter(char c) { return c >= 'a' && c <= 'z'; }
bool IsSign(char c) { return std::string_view("+-*/()").find(c) != std::string_view::npos; }

/// Digits with one decimal point at most.
std::string_view TakeDigits(std::string_view& text) {
  std::size_t length = 0;
  while (length < text.size() && IsDigit(text[length])) ++length;
  const std::string_view digits = text.substr(0, length);
  text.remove_prefix(length);
  return digits;
}

std::string_view TakeLetters(std::string_view& text) {
  std::size_t length = 0;
  while (length < text.size() && IsLetter(text[length])) ++length;
  const std::string_view letters = text.substr(0, length);
  text.remove_prefix(length);
  return letters;
}

/// A number, or a length in millimetres.
struct Quantity {
  double value = 0;
  bool length = false;
};
using Maybe = std::optional<Quantity>;

/// Reads from the left; what an operation does not take stays for the one that called it.
class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) {}

  Maybe Whole() {
    const Maybe sum = Sum();
    SkipBlanks();
    return rest_.empty() ? sum : std::nullopt;
  }

 private:
  void SkipBlanks() {
    while (!rest_.empty() && rest_.front() == ' ') rest_.remove_prefix(1);
  }

  bool Take(char sign) {
    SkipBlanks();
    if (rest_.empty() || rest_.front() != sign) return false;
    rest_.remove_prefix(1);
    return true;
  }

  Maybe Sum() {
    Maybe sum = Product();
    while (sum) {
      const bool plus = Take('+');
      if (!plus && !Take('-')) break;
      const Maybe next = Product();
      if (!next) return std::nullopt;
      sum = Quantity{plus ? sum->value + next->value : sum->value - next->value, sum->length || next->length};
    }
    return sum;
  }

  Maybe Product() {
    Maybe product = Factor();
    while (product) {
      const bool times = Take('*');
      if (!times && !Take('/')) break;
      const Maybe next = Factor();
      if (!next || (times && product->length && next->length)) return std::nullopt;
      if (!times && (next->value == 0 || (next->length && !product->length))) return std::nullopt;
      product = times ? Quantity{product->value * next->value, product->length || next->length}
                      : Quantity{product->value / next->value, product->length && !next->length};
    }
    return product;
  }

  Maybe Factor() {
    bool negative = false;
    while (Take('-')) negative = !negative;
    Maybe factor = Take('(') ? Parenthesis() : Number();
    if (factor && negative) factor->value = -factor->value;
    return factor;
  }

  Maybe Parenthesis() {
    if (depth_ == kDeepest) return std::nullopt;
    ++depth_;
    const Maybe sum = Sum();
    --depth_;
    return Take(')') ? sum : std::nullopt;
  }

  Maybe Number() {
    SkipBlanks();
    const std::string_view digits = TakeDigits(rest_);
    double value = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed);
    if (digits.empty() || error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
    SkipBlanks();
    const std::string_view letters = TakeLetters(rest_);
    if (letters.empty()) return Quantity{value, false};
    for (const Unit& unit : kUnits) {
      if (letters == unit.name) return Quantity{LengthUnit::Convert(unit.code, LengthUnit::Millimetre, value, 1), true};
    }
    return std::nullopt;
  }

  std::string_view rest_;
  int depth_ = 0;
};

/// A unit, or the beginning of one.
bool MayBecomeUnit(std::string_view letters) {
  return std::any_of(std::begin(kUnits), std::end(kUnits),
                     [&](const Unit& unit) { return unit.name.starts_with(letters); });
}

}  // namespace

std::optional<double> ValueOfLength(std::string_view text) {
  if (text.size() > kLongest) return std::nullopt;
  const Maybe whole = Reader(text).Whole();
  if (!whole || !std::isfinite(whole->value)) return std::nullopt;
  return whole->value;
}

bool LengthExpressionTest::CanBeAPartOfValidInput(const wchar_t* text) const {
  const std::string typed = text ? oxecadutils::WideStrToUtf8(text) : std::string();
  if (typed.size() > kLongest) return false;
  for (std::string_view rest = typed; !rest.empty();) {
    const char c = rest.front();
    if (c == ' ' || IsSign(c)) {
      rest.remove_prefix(1);
    } else if (IsDigit(c)) {
      const std::string_view digits = TakeDigits(rest);
      if (std::count(digits.begin(), digits.end(), '.') > 1) return false;
    } else if (!IsLetter(c) || !MayBecomeUnit(TakeLetters(rest))) {
      return false;
    }
  }
  return true;
}

bool LengthExpressionTest::GetValidInput(const wchar_t* text, std::wstring& out) const {
  const auto value = ValueOfLength(text ? oxecadutils::WideStrToUtf8(text) : std::string());
  if (!value) return false;
  std::array<char, 64> digits{};
  constexpr int kDigits = 6;
  const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), std::clamp(*value, min_, max_),
                                          std::chars_format::general, kDigits);
  out = oxecadutils::Utf8ToWideStr(std::string(digits.data(), end));
  return true;
}

}  // namespace oxviewer
