/// \file
/// Lengths that a person reckons with.
#ifndef OXECAD_VIEWER_TREES_LENGTHEXPRESSION_H
#define OXECAD_VIEWER_TREES_LENGTHEXPRESSION_H

#include <optional>
#include <string>
#include <string_view>

#include <uicomps/input/InputTest.h>

namespace oxviewer {

/// The length in millimetres that a text such as "1.5mm + 20mil" or "(3 - 1) * 0.1in" stands for. Numbers have a
/// decimal point in every locale and may have a unit: mm, um, mil, in. One without a unit is a factor beside "*" and
/// "/", and millimetres where a length is needed. Nothing where the text makes no sense: a product of two lengths, a
/// division by 0, a sign or parenthesis too many, a result that is not finite. At most 32 parentheses may be open.
std::optional<double> ValueOfLength(std::string_view text);

/// Accepts such texts. While they are typed, everything that consists of their numbers, units and signs is accepted;
/// when the field is left, its text becomes the length in millimetres, at least `min` and at most `max`.
class LengthExpressionTest : public oxecad_ui::InputTest {
 public:
  LengthExpressionTest(double min, double max) : min_(min), max_(max) {}

  bool CanBeAPartOfValidInput(const wchar_t* text) const override;
  bool GetValidInput(const wchar_t* text, std::wstring& out) const override;

 private:
  double min_;
  double max_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_LENGTHEXPRESSION_H
