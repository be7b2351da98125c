#include <viewer/board/SexprCursor.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

namespace oxviewer {

namespace {

constexpr double kNmPerMm = 1e6;
constexpr double kMaxMm = 2147.483647;
constexpr double kMaxDegrees = 1e9;

// Of a decimal number whose magnitude no double can hold: whether it is too small for that rather than too large.
bool IsTiny(std::string_view number) {
  const std::size_t e = std::min(number.find_first_of("eE"), number.size());
  const std::string_view digits = number.substr(0, e);
  const std::size_t leading = digits.find_first_of("123456789");
  const std::size_t point = std::min(digits.find('.'), digits.size());
  long long exponent = 0;
  std::string_view power = number.substr(std::min(e + 1, number.size()));
  if (!power.empty() && power[0] == '+') power.remove_prefix(1);
  const auto status = std::from_chars(power.data(), power.data() + power.size(), exponent).ec;
  if (status == std::errc::result_out_of_range) return power[0] == '-';
  return exponent < static_cast<long long>(leading) - static_cast<long long>(point);
}

}  // namespace

void SexprCursor::EnterRoot(std::string_view keyword) {
  const Token open = Take();
  if (open.kind != Token::Kind::Open) {
    std::string expected = "expected \"(";
    Fail(open.offset, expected.append(keyword) + "\", found " + Described(open));
  }
  const Token word = Take();
  if (word.kind != Token::Kind::Atom || word.text != keyword) {
    std::string expected = "expected \"";
    Fail(word.offset, expected.append(keyword) + "\", found " + Described(word));
  }
  keyword_ = keyword;
  offset_ = open.offset;
}

void SexprCursor::ExpectEnd() {
  const Token token = Take();
  if (token.kind != Token::Kind::End) Fail(token.offset, "expected the end of the file, found " + Described(token));
}

bool SexprCursor::NextChild() {
  while (Peek().kind == Token::Kind::Atom) Take();
  if (Peek().kind != Token::Kind::Open) return false;
  offset_ = Take().offset;
  if (Peek().kind == Token::Kind::Atom) {
    keyword_ = Take().text;
  } else {
    keyword_.clear();
  }
  return true;
}

void SexprCursor::Leave() {
  for (std::size_t open = 1; open != 0;) {
    const Token token = Take();
    if (token.kind == Token::Kind::Open) ++open;
    if (token.kind == Token::Kind::Close) --open;
    if (token.kind == Token::Kind::End) return;
  }
}

std::optional<std::string_view> SexprCursor::TryAtom(bool* quoted) {
  if (Peek().kind != Token::Kind::Atom) return std::nullopt;
  const Token token = Take();
  if (quoted) *quoted = token.quoted;
  return token.text;
}

std::string_view SexprCursor::Atom(std::string_view what, bool* quoted) {
  const Token token = Take();
  if (token.kind != Token::Kind::Atom) {
    std::string expected = "expected ";
    Fail(token.offset, expected.append(what) + ", found " + Described(token));
  }
  if (quoted) *quoted = token.quoted;
  return token.text;
}

double SexprCursor::ReadNumber() {
  const Token token = Take();
  std::string_view text = token.text;
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  double value = 0;
  const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), value);
  const bool whole = token.kind == Token::Kind::Atom && !token.quoted && end == text.data() + text.size();
  if (whole && status == std::errc::result_out_of_range && IsTiny(text)) return 0;
  if (!whole || status != std::errc() || !std::isfinite(value)) {
    Fail(token.offset, "expected a number, found " + Described(token));
  }
  return value;
}

Nm SexprCursor::ReadLength() {
  const std::size_t offset = Peek().offset;
  const double mm = ReadNumber();
  if (mm < -kMaxMm || mm > kMaxMm) Fail(offset, "expected a length within +-2147.483647 mm");
  return static_cast<Nm>(std::llround(mm * kNmPerMm));
}

Point SexprCursor::ReadPoint() {
  Point point;
  point.x = ReadLength();
  point.y = ReadLength();
  return point;
}

Size SexprCursor::ReadSize() {
  Size size;
  size.width = ReadLength();
  size.height = ReadLength();
  return size;
}

MicroDegrees SexprCursor::ReadAngle() {
  const std::size_t offset = Peek().offset;
  const double degrees = ReadNumber();
  if (degrees < -kMaxDegrees || degrees > kMaxDegrees) Fail(offset, "expected an angle within +-1000000000 degrees");
  const long long turn = std::llround(degrees * 1e6) % kFullTurn;
  return static_cast<MicroDegrees>(turn < 0 ? turn + kFullTurn : turn);
}

bool SexprCursor::ReadFlag() {
  const std::optional<std::string_view> word = TryAtom();
  return !word || *word == "yes" || *word == "true";
}

void SexprCursor::Fail(std::size_t offset, std::string message) const { throw SyntaxError{offset, std::move(message)}; }

const Token& SexprCursor::Peek() {
  if (!hasAhead_) {
    ahead_ = lexer_.Next();
    hasAhead_ = true;
  }
  return ahead_;
}

Token SexprCursor::Take() {
  if (hasAhead_) {
    hasAhead_ = false;
    return ahead_;
  }
  return lexer_.Next();
}

}  // namespace oxviewer
