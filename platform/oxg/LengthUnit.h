/// \file
/// Units of length and the conversion between them.
#ifndef OXECAD_OXG_LENGTHUNIT_H
#define OXECAD_OXG_LENGTHUNIT_H

#include <oxkutils/Export.h>

namespace oxg {

/// Converts lengths, and powers of lengths, between units.
class OXECAD_PLATFORM_EXPORT LengthUnit {
 public:
  /// The codes of the units.
  enum Code : unsigned char {
    Millimetre = 0,  ///< a thousandth of a metre
    Micrometre = 1,  ///< a thousandth of a millimetre
    Inch = 2,        ///< 25.4 mm
    Mil = 3,         ///< a thousandth of an inch
    Nanometre = 4,   ///< a millionth of a millimetre
    Centimetre = 5,  ///< ten millimetres
    Metre = 6        ///< a thousand millimetres
  };

  /// Converts a value from one unit to another. `exponent` is the power of the length that the value measures: 1 a
  /// length, 2 an area, -1 something per length; 0 changes nothing. The factors are exact fractions, so that a
  /// conversion rounds twice at most: 25.4 mm are exactly 1 inch, 1 inch exactly 1000 mil. The same code twice gives
  /// exactly `value`. An unknown code has no factor, and the result is not a number. Infinities stay infinite.
  static double Convert(unsigned char from, unsigned char to, double value, int exponent);
};

}  // namespace oxg

#endif
