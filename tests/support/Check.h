/// \file
/// Property-based tests: RapidCheck with GoogleTest, and generators for what this system is fed.
///
/// Write `RC_GTEST_PROP(Suite, StatesAFact, (arguments)) { … RC_ASSERT(…); }`, or `rc::check("…", [] { … })` inside a
/// test. A failure prints the shrunk example and the line for the environment (`RC_PARAMS="seed=… reproduce=…"`) that
/// repeats it.
#ifndef OXECAD_TESTS_SUPPORT_CHECK_H
#define OXECAD_TESTS_SUPPORT_CHECK_H

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

namespace test_support {

/// Wide texts of these units, any length.
inline rc::Gen<std::wstring> TextOf(const std::wstring& units) {
  return rc::gen::container<std::wstring>(rc::gen::elementOf(units));
}

/// Labels as a natural order has to deal with: runs of digits with and without leading zeros, minus signs, letters in
/// both cases, and now and then any UTF-16 unit, the terminator included.
inline rc::Gen<std::wstring> NaturalText() {
  const auto unit = rc::gen::weightedOneOf<wchar_t>({
      {8, rc::gen::elementOf(std::wstring(L"0123456789"))},
      {4, rc::gen::just(L'0')},
      {3, rc::gen::just(L'-')},
      {6, rc::gen::elementOf(std::wstring(L"abAB_Zz/:@ `{"))},
      {1, rc::gen::map(rc::gen::inRange(0, 0x10000), [](int code) { return static_cast<wchar_t>(code); })},
  });
  return rc::gen::container<std::wstring>(unit);
}

/// A name of a node: letters, digits, slashes, blanks; never empty.
inline rc::Gen<std::string> NodeName() {
  return rc::gen::nonEmpty(rc::gen::container<std::string>(rc::gen::elementOf(std::string("abcXYZ0123456789/_- "))));
}

}  // namespace test_support

#endif
