#ifndef OXECAD_TESTS_MINIMAL_OXG_LENGTHUNIT_H
#define OXECAD_TESTS_MINIMAL_OXG_LENGTHUNIT_H

namespace oxg {

class LengthUnit {
 public:
  static double Convert(unsigned char from, unsigned char to, double value, int exponent);
};

}  // namespace oxg

#endif
