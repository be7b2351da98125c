/// \file
/// What counts as valid text of an entry field.
#ifndef OXECAD_UI_INPUT_INPUTTEST_H
#define OXECAD_UI_INPUT_INPUTTEST_H

#include <string>

#include <oxkutils/RefCounted.h>

#include <uicomps/toolkit/Export.h>

namespace oxecad_ui {

/// Decides over the text of a field, while it is typed and when it is left. Counts references; held by a `SmartPtr`.
class OXECAD_UI_EXPORT InputTest : public oxkutils::RefCounted {
 public:
  InputTest() = default;
  /// Copies all members.
  InputTest(const InputTest&);
  /// Copies all members.
  InputTest& operator=(const InputTest&);
  ~InputTest() override;

  /// Whether the text may stand in the field while the user types. Null is an empty text.
  virtual bool CanBeAPartOfValidInput(const wchar_t* text) const = 0;
  /// Gives the valid text for what the user leaves behind; false, with `out` as it was, when there is none.
  virtual bool GetValidInput(const wchar_t* text, std::wstring& out) const = 0;
};

/// Accepts numbers, with "." as the decimal point in every locale. While typing, the text must be a whole number
/// already; its range is looked at when the field is left, and a number beyond it becomes the nearest limit. A lone "-"
/// is accepted while typing when the range holds 0, but not when it lies wholly below 0.
template <class T>
class OXECAD_UI_EXPORT NumericInputTest : public InputTest {
 public:
  /// With `allowEmpty`, an empty text is accepted while typing, and on leaving when the range holds 0.
  NumericInputTest(T min, T max, bool allowEmpty);
  NumericInputTest(const NumericInputTest&) = default;
  NumericInputTest& operator=(const NumericInputTest&) = default;
  ~NumericInputTest() override;

  /// Whether the text is a number, or one may still come of it (see above).
  bool CanBeAPartOfValidInput(const wchar_t* text) const override;
  /// Writes numbers with six significant digits, in the shorter of the fixed and the exponent form.
  bool GetValidInput(const wchar_t* text, std::wstring& out) const override;

 protected:
  /// Reads a text that is one number and nothing behind it; leading blanks are passed over.
  bool GetInput(const wchar_t* text, T& value) const;

  T m_min;            ///< the lowest valid number
  T m_max;            ///< the highest valid number
  bool m_allowEmpty;  ///< whether the field may be empty

 private:
  bool HoldsZero() const { return m_min <= 0 && m_max >= 0; }
};

extern template class NumericInputTest<double>;

/// Accepts lengths in a unit that can be changed. An empty text is allowed.
class OXECAD_UI_EXPORT LengthInputTest : public NumericInputTest<double> {
 public:
  /// Both limits are in `unit`, a code of the platform's `oxg::LengthUnit`.
  LengthInputTest(double min, double max, unsigned char unit);
  /// Copies all members.
  LengthInputTest(const LengthInputTest&);
  /// Copies all members.
  LengthInputTest& operator=(const LengthInputTest&);
  ~LengthInputTest() override;

  /// Converts the limits to another unit. Text in a field is not converted.
  void SetUnit(unsigned char unit);

 private:
  unsigned char m_unit;
};

}  // namespace oxecad_ui

#endif
