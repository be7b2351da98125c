#include <uicomps/input/InputTest.h>

#include <locale>
#include <sstream>

#include <oxg/LengthUnit.h>

#include <uicomps/base/Text.h>

namespace oxecad_ui {

InputTest::InputTest(const InputTest&) = default;

InputTest& InputTest::operator=(const InputTest&) = default;

InputTest::~InputTest() = default;

template <class T>
NumericInputTest<T>::NumericInputTest(T min, T max, bool allowEmpty)
    : m_min(min), m_max(max), m_allowEmpty(allowEmpty) {}

template <class T>
NumericInputTest<T>::~NumericInputTest() = default;

template <class T>
bool NumericInputTest<T>::GetInput(const wchar_t* text, T& value) const {
  std::wistringstream stream;
  stream.imbue(std::locale::classic());
  stream.str(TextOrEmpty(text));
  return (stream >> value) && stream.eof();
}

template <class T>
bool NumericInputTest<T>::CanBeAPartOfValidInput(const wchar_t* text) const {
  if (m_allowEmpty && IsEmpty(text)) return true;
  if (HoldsZero() && TextOrEmpty(text) == std::wstring(L"-")) return true;
  T value;
  return GetInput(text, value);
}

template <class T>
bool NumericInputTest<T>::GetValidInput(const wchar_t* text, std::wstring& out) const {
  if (IsEmpty(text)) {
    if (!m_allowEmpty || !HoldsZero()) return false;
    out.clear();
    return true;
  }
  T value;
  if (!GetInput(text, value)) return false;
  if (value < m_min) value = m_min;
  if (value > m_max) value = m_max;
  std::wostringstream stream;
  stream.imbue(std::locale::classic());
  stream << value;
  out = stream.str();
  return true;
}

template class NumericInputTest<double>;

LengthInputTest::LengthInputTest(double min, double max, unsigned char unit)
    : NumericInputTest<double>(min, max, true), m_unit(unit) {}

LengthInputTest::LengthInputTest(const LengthInputTest&) = default;

LengthInputTest& LengthInputTest::operator=(const LengthInputTest&) = default;

LengthInputTest::~LengthInputTest() = default;

void LengthInputTest::SetUnit(unsigned char unit) {
  constexpr int kPlainLength = 1;
  m_min = oxg::LengthUnit::Convert(m_unit, unit, m_min, kPlainLength);
  m_max = oxg::LengthUnit::Convert(m_unit, unit, m_max, kPlainLength);
  m_unit = unit;
}

}  // namespace oxecad_ui
