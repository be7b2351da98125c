#include <oxkutils/Symbol.h>

#include <mutex>
#include <unordered_set>

namespace oxkutils {
namespace {

class SymbolTable {
 public:
  const std::string* Intern(std::string text) {
    if (text.empty()) return nullptr;
    const std::lock_guard<std::mutex> lock(m_mutex);
    return &*m_texts.insert(std::move(text)).first;
  }

 private:
  std::mutex m_mutex;
  std::unordered_set<std::string> m_texts;  // its elements never move
};

SymbolTable& Table() {
  static SymbolTable& table = *new SymbolTable;  // never destroyed: static objects of other libraries hold symbols
  return table;
}

}  // namespace

constinit const Symbol Symbol::EMPTY;

Symbol::Symbol(const char* text) : m_text(text ? Table().Intern(text) : nullptr) {}

Symbol::Symbol(const std::string& text) : m_text(Table().Intern(text)) {}

}  // namespace oxkutils
