/// \file
/// A decoded call as one line of text.
#ifndef OXECAD_TESTS_SUPPORT_CALLTEXT_H
#define OXECAD_TESTS_SUPPORT_CALLTEXT_H

#include <uiox/Call.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace test_support {

/// Gives pointers and callbacks names that are the same in every run: the one that the test chose ("&tree"), else by
/// first appearance ("p1", "p2"; "f1", "f2" for callbacks). Null is "null"; what fits into 32 bits is a number in
/// hexadecimal, since colours and indexes travel as pointers.
class PointerNames {
 public:
  /// Whether pointers without a name are told from each other. Where blocks end meanwhile, the allocator decides which
  /// of them are the same.
  enum Unnamed { Numbered, AllAlike };
  explicit PointerNames(Unnamed unnamed = Numbered) : unnamed_(unnamed) {}

  void Name(const void* pointer, std::string name) { pointers_[pointer] = std::move(name); }
  std::string Of(const void* pointer);
  std::string Of(ui_callback callback);

 private:
  const Unnamed unnamed_;
  std::map<const void*, std::string> pointers_;
  std::map<ui_callback, std::string> callbacks_;
  std::size_t next_ = 0;
  std::size_t next_callback_ = 0;
};

/// Writes one call. What is given to the toolkit is written when this is made, before the toolkit can end the caller's
/// texts; what the toolkit answered is written by `Finish`. The format is described in RecordingToolkit.h.
class CallText {
 public:
  /// `readable`: whether the texts that the call gives may be followed; a release of what is gone says so instead.
  CallText(const uiox::Call& call, PointerNames& names, bool readable = true);

  /// The line, with answers when the call succeeded.
  std::string Finish(int result);
  /// The same with the name behind every option code.
  const std::string& Explained() const { return explained_; }

 private:
  /// A part of the line: text, or the place of an answer.
  struct Part {
    std::string text;
    char answer = 0;  // shape in upper case; 0: text only
    uiox::Slot value{};
    uiox::Slot array{};
    std::string name;  // an option's, for the explained line
  };

  void Text(std::string text) { parts_.push_back({std::move(text), 0, {}, {}, {}}); }
  void Value(char shape, uiox::Slot value, uiox::Slot array, std::string prefix, std::string name);
  std::string Record(uiox::Slot value) const;
  std::string Given(char shape, uiox::Slot value, uiox::Slot array);
  std::string Answer(const Part& part, bool answered);
  void WriteHead();
  void WritePositional();
  void WriteOptions();
  void WriteEnd();

  const uiox::Call& call_;
  PointerNames& names_;
  const bool readable_;
  std::vector<Part> parts_;
  std::string explained_;
};

/// Whether this result of the called function is its success.
bool IsSuccess(uiox::Function function, int result);

}  // namespace test_support

#endif
