#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <locale>
#include <nlohmann/json.hpp>

#include "PreferencesFixture.h"

namespace {

/// Writes 1234567.5 as "1.234.567,5", and true as "wahr".
class DecimalComma : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
  std::string do_truename() const override { return "wahr"; }
};

class PreferencesLocaleTest : public PreferencesFixture {
 protected:
  ~PreferencesLocaleTest() override { std::locale::global(std::locale::classic()); }

  /// The file after a load and a save of numbers of all kinds.
  std::string SavedFile() {
    StartWith(R"({"a": 1234567.5, "b": -0.001, "c": 1e300, "d": 1234567, "e": [0.5], "f": true, "g": "1,5"})");
    Set("key", "1234567.5");
    EXPECT_TRUE(ErrorLinesOf([] { Save(); }).empty());
    return ContentOf(File());
  }
};

/// Makes a locale with a decimal comma the one of the C library. Gives false where the system has none.
bool SetDecimalCommaInC() {
  for (const char* const name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8", "fr_FR.utf8"}) {
    if (std::setlocale(LC_ALL, name)) return true;
  }
  return false;
}

}  // namespace

TEST_F(PreferencesLocaleTest, StreamsWithADecimalCommaChangeNothing) {
  const std::string expected = SavedFile();
  EXPECT_EQ(nlohmann::json::parse(expected)["a"], 1234567.5);
  std::locale::global(std::locale(std::locale::classic(), new DecimalComma));
  EXPECT_EQ(SavedFile(), expected);
}

TEST_F(PreferencesLocaleTest, CLibraryWithADecimalCommaChangesNothing) {
  const std::string expected = SavedFile();
  TemporaryFolder locales;
  if (!SetDecimalCommaInC()) {
    const std::string make = "localedef -i de_DE -f UTF-8 " + (locales.Path() / "de_DE.utf8").string() + " 2>/dev/null";
    ::setenv("LOCPATH", locales.Path().c_str(), 1);
    if (std::system(make.c_str()) != 0 || !SetDecimalCommaInC()) GTEST_SKIP() << "no locale with a decimal comma";
  }
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
  const std::string saved = SavedFile();
  std::setlocale(LC_ALL, "C");
  EXPECT_EQ(saved, expected);
}
