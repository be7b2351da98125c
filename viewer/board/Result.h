#ifndef OXECAD_VIEWER_BOARD_RESULT_H
#define OXECAD_VIEWER_BOARD_RESULT_H

#include <string>
#include <utility>
#include <variant>

namespace oxviewer {

/// Why a file was not read: where, and what was expected there.
struct ReadError {
  std::string file;
  int line = 0;    ///< counted from 1; 0 when the fault is the file as a whole (missing, too large, no regular file)
  int column = 0;  ///< in characters, counted from 1; 0 together with line
  std::string message;  ///< "expected a number, found \"abc\""

  /// "file:line:column: message", or "file: message" without a place. Exactly one line: control characters and bytes
  /// that are no UTF-8 are written as escapes, whatever the file and its name hold.
  std::string ToLine() const;
};

/// A value, or the error that stood in its way.
template <class T>
class Result {
 public:
  Result(T value) : state_(std::move(value)) {}          // NOLINT: meant to convert
  Result(ReadError error) : state_(std::move(error)) {}  // NOLINT: meant to convert

  explicit operator bool() const { return std::holds_alternative<T>(state_); }

  /// The value; to be asked for only when this is true. It stays with the result; move from it to keep it.
  T& operator*() { return *std::get_if<T>(&state_); }
  const T& operator*() const { return *std::get_if<T>(&state_); }
  T* operator->() { return std::get_if<T>(&state_); }
  const T* operator->() const { return std::get_if<T>(&state_); }

  /// The error; to be asked for only when this is false.
  const ReadError& error() const { return *std::get_if<ReadError>(&state_); }

 private:
  std::variant<T, ReadError> state_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_BOARD_RESULT_H
