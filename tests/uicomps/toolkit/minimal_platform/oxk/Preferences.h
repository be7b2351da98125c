#ifndef OXECAD_TESTS_MINIMAL_OXK_PREFERENCES_H
#define OXECAD_TESTS_MINIMAL_OXK_PREFERENCES_H

#include <string>

#include <oxkutils/RefCounted.h>
#include <oxkutils/Symbol.h>

namespace oxk {

class Preferences : public oxkutils::RefCounted {
 public:
  bool GetString(const oxkutils::Symbol& key, std::string& value, const char* fallback) const;
  std::string SetString(const oxkutils::Symbol& key, const std::string& value, bool flag);
};

}  // namespace oxk

#endif
