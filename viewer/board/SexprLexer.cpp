#include <viewer/board/SexprLexer.h>

#include <algorithm>
#include <array>
#include <limits>

namespace oxviewer {

namespace {

enum CharClass : std::uint8_t { kPlain, kBlank, kParenthesis, kNul };

constexpr std::array<std::uint8_t, 256> MakeCharClasses() {
  std::array<std::uint8_t, 256> classes{};
  for (const char blank : {' ', '\t', '\n', '\v', '\f', '\r'}) classes[static_cast<unsigned char>(blank)] = kBlank;
  classes[static_cast<unsigned char>('(')] = kParenthesis;
  classes[static_cast<unsigned char>(')')] = kParenthesis;
  classes[0] = kNul;
  return classes;
}

constexpr std::array<std::uint8_t, 256> kCharClasses = MakeCharClasses();

std::uint8_t ClassOf(char c) { return kCharClasses[static_cast<unsigned char>(c)]; }

int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

bool IsOctal(char c) { return c >= '0' && c <= '7'; }

// Reads one escape of `raw`, whose backslash stands before `at`, and leaves `at` behind it.
char UnescapedChar(std::string_view raw, std::size_t& at) {
  const char c = raw[at++];
  switch (c) {
    case 'n':
      return '\n';
    case 'r':
      return '\r';
    case 't':
      return '\t';
    case 'a':
      return '\a';
    case 'b':
      return '\b';
    case 'f':
      return '\f';
    case 'v':
      return '\v';
    default:
      break;
  }
  unsigned value = 0;
  if (c == 'x' && at < raw.size() && HexValue(raw[at]) >= 0) {
    for (int digits = 0; digits < 2 && at < raw.size() && HexValue(raw[at]) >= 0; ++digits) {
      value = value * 16 + static_cast<unsigned>(HexValue(raw[at++]));
    }
    return static_cast<char>(value);
  }
  if (!IsOctal(c)) return c;
  value = static_cast<unsigned>(c - '0');
  for (int digits = 1; digits < 3 && at < raw.size() && IsOctal(raw[at]); ++digits) {
    value = value * 8 + static_cast<unsigned>(raw[at++] - '0');
  }
  return static_cast<char>(value);
}

}  // namespace

SexprLexer::SexprLexer(std::string_view text, std::uint32_t maxNesting, std::uint32_t maxStringBytes)
    : text_(text), maxNesting_(maxNesting), maxStringBytes_(maxStringBytes) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text_.substr(0, kByteOrderMark.size()) == kByteOrderMark) at_ = kByteOrderMark.size();
}

Token SexprLexer::Next() {
  SkipBlanksAndComments();
  Token token;
  token.offset = at_;
  if (at_ == text_.size()) {
    if (!open_.empty()) FailAtEnd();
    return token;
  }
  const char c = text_[at_];
  if (c == '(') {
    if (open_.size() >= maxNesting_) {
      throw SyntaxError{at_, "expected at most " + std::to_string(maxNesting_) + " nested lists"};
    }
    open_.push_back(at_++);
    token.kind = Token::Kind::Open;
    return token;
  }
  if (c == ')') {
    if (open_.empty()) throw SyntaxError{at_, "expected no \")\" without its \"(\""};
    open_.pop_back();
    ++at_;
    token.kind = Token::Kind::Close;
    return token;
  }
  return c == '"' ? Quoted() : Plain();
}

void SexprLexer::SkipBlanksAndComments() {
  bool lineStart = at_ == 0;
  while (at_ < text_.size()) {
    const char c = text_[at_];
    if (ClassOf(c) == kBlank) {
      lineStart = lineStart || c == '\n';
      ++at_;
    } else if (c == '#' && lineStart) {
      at_ = std::min(text_.find('\n', at_), text_.size());
    } else {
      return;
    }
  }
}

Token SexprLexer::Plain() {
  Token token;
  token.kind = Token::Kind::Atom;
  token.offset = at_;
  while (at_ < text_.size() && ClassOf(text_[at_]) == kPlain) ++at_;
  if (at_ < text_.size() && ClassOf(text_[at_]) == kNul) throw SyntaxError{at_, "expected text, found a NUL byte"};
  token.text = text_.substr(token.offset, at_ - token.offset);
  if (token.text.size() > maxStringBytes_) {
    throw SyntaxError{token.offset, "expected a text of at most " + std::to_string(maxStringBytes_) + " bytes"};
  }
  return token;
}

Token SexprLexer::Quoted() {
  Token token;
  token.kind = Token::Kind::Atom;
  token.quoted = true;
  token.offset = at_;
  bool escaped = false;
  const std::size_t end = ClosingQuote(escaped);
  token.text = text_.substr(at_ + 1, end - at_ - 1);
  at_ = end + 1;
  if (escaped) {
    Unescape(token.text, token.offset + 1);
    token.text = unescaped_;
  }
  if (token.text.size() > maxStringBytes_) {
    throw SyntaxError{token.offset, "expected a text of at most " + std::to_string(maxStringBytes_) + " bytes"};
  }
  return token;
}

// Where the quoted text that begins at `at_` ends.
std::size_t SexprLexer::ClosingQuote(bool& escaped) {
  std::size_t end = at_ + 1;
  for (; end < text_.size() && text_[end] != '"'; ++end) {
    if (text_[end] == '\0') throw SyntaxError{end, "expected text, found a NUL byte"};
    if (text_[end] != '\\') continue;
    escaped = true;
    ++end;
  }
  if (end >= text_.size()) throw SyntaxError{at_, "expected a closing quote for this one, found the end of the file"};
  return end;
}

void SexprLexer::Unescape(std::string_view raw, std::size_t offset) {
  unescaped_.clear();
  for (std::size_t i = 0; i < raw.size();) {
    const std::size_t start = i;
    char c = raw[i++];
    if (c == '\\' && i < raw.size()) c = UnescapedChar(raw, i);
    if (c == '\0') throw SyntaxError{offset + start, "expected text, found a NUL byte"};
    unescaped_ += c;
  }
}

void SexprLexer::FailAtEnd() const {
  throw SyntaxError{text_.size(), "expected \")\" to close the list that line " +
                                      std::to_string(PlaceOf(text_, open_.back()).line) +
                                      " opens, found the end of the file"};
}

TextPlace PlaceOf(std::string_view text, std::size_t offset) {
  const std::string_view before = text.substr(0, offset);
  const std::size_t lineStart = before.rfind('\n') + 1;  // npos + 1 is 0
  const auto lines = std::count(before.begin(), before.end(), '\n');
  const auto columns = std::count_if(before.begin() + static_cast<std::ptrdiff_t>(lineStart), before.end(),
                                     [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; });
  const auto bounded = [](std::ptrdiff_t n) {
    return static_cast<int>(std::min<std::ptrdiff_t>(n, std::numeric_limits<int>::max() - 1) + 1);
  };
  return {bounded(lines), bounded(columns)};
}

std::string Described(const Token& token) {
  constexpr std::size_t kMostBytes = 40;
  switch (token.kind) {
    case Token::Kind::Open:
      return "\"(\"";
    case Token::Kind::Close:
      return "\")\"";
    case Token::Kind::End:
      return "the end of the file";
    case Token::Kind::Atom:
      break;
  }
  if (token.text.size() <= kMostBytes) return '"' + std::string(token.text) + '"';
  std::size_t end = kMostBytes;
  while (end > 0 && (static_cast<unsigned char>(token.text[end]) & 0xC0) == 0x80) --end;  // whole characters only
  return '"' + std::string(token.text.substr(0, end)) + "...\"";
}

}  // namespace oxviewer
