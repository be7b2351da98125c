// The platform's classes, as far as a program without a user gets to see them.
#include <oxcore/ColorPickerDlg.h>
#include <oxcore/RenameDlg.h>
#include <oxecadutils/StringConversion.h>
#include <oxg/LengthUnit.h>
#include <oxk/Preferences.h>
#include <oxk/World.h>

#include <functional>
#include <map>
#include <set>
#include <utility>

namespace oxkutils {

const Symbol Symbol::EMPTY;

Symbol::Symbol() : Symbol("") {}
Symbol::Symbol(const char* text) : Symbol(std::string(text != nullptr ? text : "")) {}
Symbol::Symbol(const std::string& text) {
  static std::set<std::string>& texts = *new std::set<std::string>;
  identity_ = texts.insert(text).first->c_str();
}
const char* Symbol::c_str() const { return static_cast<const char*>(identity_); }
bool Symbol::empty() const { return *c_str() == '\0'; }
bool operator==(const Symbol& a, const Symbol& b) { return a.c_str() == b.c_str(); }
bool operator!=(const Symbol& a, const Symbol& b) { return a.c_str() != b.c_str(); }
bool operator<(const Symbol& a, const Symbol& b) { return std::less<const char*>()(a.c_str(), b.c_str()); }

RefCounted::~RefCounted() = default;
bool RefCounted::ZeroReferenceCountHook() { return true; }
void RefCounted::AddReference() const { ++count_; }
void RefCounted::RemoveReference() const {
  if (--count_ == 0 && const_cast<RefCounted*>(this)->ZeroReferenceCountHook()) delete this;
}
long RefCounted::GetReferenceCount() const { return count_; }

}  // namespace oxkutils

namespace oxecadutils {

// The library's own texts are ASCII; so are those of the test.
std::wstring Utf8ToWideStr(const std::string& text) { return std::wstring(text.begin(), text.end()); }
std::string WideStrToUtf8(const std::wstring& text) {
  std::string narrow;
  for (const wchar_t c : text) narrow.push_back(static_cast<char>(c));
  return narrow;
}
std::wstring StringToWString(const std::string& text) { return Utf8ToWideStr(text); }

}  // namespace oxecadutils

namespace oxk {
namespace {

std::map<oxkutils::Symbol, std::string>& Values() {
  static std::map<oxkutils::Symbol, std::string> values;
  return values;
}

}  // namespace

bool Preferences::GetString(const oxkutils::Symbol& key, std::string& value, const char* fallback) const {
  const auto found = Values().find(key);
  if (found != Values().end()) {
    value = found->second;
  } else if (fallback != nullptr) {
    value = fallback;
  }
  return found != Values().end();
}
std::string Preferences::SetString(const oxkutils::Symbol& key, const std::string& value, bool) {
  return std::exchange(Values()[key], value);
}

oxkutils::SmartPtr<World> World::GetWorld() {
  static const oxkutils::SmartPtr<World> world(new World);
  return world;
}
oxkutils::SmartPtr<Preferences> World::GetPreferences() { return oxkutils::SmartPtr<Preferences>(new Preferences); }
void World::SaveAndApplyPreferences() {}

}  // namespace oxk

namespace oxcore {

ColorPickerDlg::ColorPickerDlg(Mainframe*, const std::string&) {}
ColorPickerDlg::ColorPickerDlg(Mainframe*, const std::wstring&) {}
ColorPickerDlg::~ColorPickerDlg() = default;
unsigned int ColorPickerDlg::ShowDialog(unsigned int initialColor) { return initialColor; }

RenameDlg::RenameDlg(bool, Mainframe*, const oxkutils::Symbol&) : m_accepted(false) {}
RenameDlg::~RenameDlg() = default;
bool RenameDlg::IsAccepted() const { return m_accepted; }
const std::wstring& RenameDlg::GetNewName() const { return m_newName; }
void RenameDlg::ClickOK() {}
void RenameDlg::Close() {}
void RenameDlg::NameChanged() {}
void RenameDlg::ClickHelp() {}

}  // namespace oxcore

namespace oxg {

double LengthUnit::Convert(unsigned char, unsigned char, double value, int) { return value; }

}  // namespace oxg
