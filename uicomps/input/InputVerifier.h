/// \file
/// Keeps the text of entry fields valid while the user types.
#ifndef OXECAD_UI_INPUT_INPUTVERIFIER_H
#define OXECAD_UI_INPUT_INPUTVERIFIER_H

#include <map>
#include <string>

#include <oxkutils/SmartPtr.h>
#include <oxkutils/Symbol.h>

#include <uicomps/input/InputTest.h>
#include <uicomps/toolkit/Export.h>

namespace oxecad_ui {

/// Watches entry fields of one dialog, each with an `InputTest`. A keystroke that the test does not accept is undone
/// with a beep. When a field loses the focus, its text becomes the test's valid text, or, when there is none, the text
/// that it had when it gained the focus.
///
/// Call `Clear` before the verifier is destroyed: its destructor removes no callbacks. A copy has the same fields and
/// no callbacks of its own.
///
/// A test may change the verifier, the field's own entry included, and it must not destroy it. Debug builds assert
/// that, and that a field has a test.
class OXECAD_UI_EXPORT InputVerifier {
 public:
  /// Has no dialog yet: see `SetDev`.
  InputVerifier();
  /// Names the dialog that holds the fields; calls nothing.
  explicit InputVerifier(const char* device);
  /// Copies all members.
  InputVerifier(const InputVerifier&);
  /// Copies all members.
  InputVerifier& operator=(const InputVerifier&);
  ~InputVerifier();

  /// Names the dialog that holds the fields.
  void SetDev(const char* device);

  /// Starts to watch a field of class "InputPanel" or "OptionMenu". Gives false when it is watched already, cannot be
  /// read, is of another class, or refuses a callback; callbacks that it had accepted before stay then. The test must
  /// not be empty.
  bool AddControl(const char* name, const oxkutils::SmartPtr<InputTest>& test);
  /// Stops to watch a field; one that is not watched is passed over.
  void RemoveControl(const char* name);
  /// Stops to watch all fields.
  void Clear();
  /// The test of a field; empty when the field is not watched.
  oxkutils::SmartPtr<InputTest> GetInputTest(const char* name) const;

  /// The toolkit's callback for a changed text, with the index of a field. Gives 0.
  static int InputCB(InputVerifier* self, void* index);
  /// The same for a field that gained the focus.
  static int FocusInCB(InputVerifier* self, void* index);
  /// The same for a field that lost it.
  static int FocusOutCB(InputVerifier* self, void* index);

 private:
  using Index = unsigned long long;

  struct Control {
    oxkutils::Symbol name;
    oxkutils::SmartPtr<InputTest> test;
    std::wstring lastGoodText;  ///< the latest text that the test accepted
    std::wstring focusText;     ///< the text when the field gained the focus last
  };

  void OnInput(Index index);
  void OnFocusIn(Index index);
  void OnFocusOut(Index index);

  Control* Find(Index index);
  bool AddCallbacks(const char* name, Index index);
  void RemoveCallbacks(const oxkutils::Symbol& name) const;
  std::wstring ReadText(const oxkutils::Symbol& name) const;
  void WriteText(const oxkutils::Symbol& name, const std::wstring& text) const;

  /// The index given out last, by any verifier. None is ever given out again.
  static Index s_index;

  std::map<Index, Control> m_controls;
  std::map<oxkutils::Symbol, Index> m_indices;
  oxkutils::Symbol m_device;
};

}  // namespace oxecad_ui

#endif
