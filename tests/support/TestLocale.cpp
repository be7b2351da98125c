// Runs every case under the locale that OXECAD_TEST_LOCALE names, of the C and of the C++ library, as an application
// may have set it. Whatever it is, all results must be the same.

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <locale>

namespace {

bool SetLocale() {
  const char* name = std::getenv("OXECAD_TEST_LOCALE");
  if (!name || !*name) return false;
  try {
    std::locale::global(std::locale(name));
  } catch (const std::exception&) {
    std::fprintf(stderr, "There is no locale %s; LOCPATH says where they are looked for.\n", name);
    std::_Exit(1);
  }
  return std::setlocale(LC_ALL, name) != nullptr;
}

// Linked whole, so that it is done before anything else runs.
[[maybe_unused]] const bool g_is_set = SetLocale();

}  // namespace
