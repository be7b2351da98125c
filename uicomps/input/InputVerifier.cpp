#include <uicomps/input/InputVerifier.h>

#include <cassert>
#include <string_view>
#include <utility>

#include <uicomps/base/LifeWatch.h>
#include <uicomps/base/Text.h>
#include <uicomps/toolkit/Actions.h>
#include <uicomps/toolkit/ComponentCalls.h>
#include <uicomps/toolkit/DeviceCalls.h>
#include <uicomps/toolkit/UserValue.h>

namespace oxecad_ui {

using oxkutils::SmartPtr;
using oxkutils::Symbol;

InputVerifier::Index InputVerifier::s_index = 0;

InputVerifier::InputVerifier() = default;

InputVerifier::InputVerifier(const char* device) : m_device(TextOrEmpty(device)) {}

InputVerifier::InputVerifier(const InputVerifier&) = default;

InputVerifier& InputVerifier::operator=(const InputVerifier&) = default;

InputVerifier::~InputVerifier() { LifeWatch<InputVerifier>::End(*this); }

void InputVerifier::SetDev(const char* device) { m_device = Symbol(TextOrEmpty(device)); }

bool InputVerifier::AddControl(const char* name, const SmartPtr<InputTest>& test) {
  const Symbol symbol(TextOrEmpty(name));
  if (m_indices.count(symbol) != 0) return false;
  const auto [read, className] = wire::Retrieve({m_device.c_str(), symbol.c_str()}, wire::kClassName);
  if (!read) return false;
  const std::string_view classText = TextOrEmpty(className);
  if (classText != "InputPanel" && classText != "OptionMenu") return false;
  const Index index = ++s_index;
  if (!AddCallbacks(symbol.c_str(), index)) return false;
  const std::wstring text = ReadText(symbol);
  m_indices.emplace(symbol, index);
  m_controls.emplace(index, Control{symbol, test, text, text});
  return true;
}

bool InputVerifier::AddCallbacks(const char* name, Index index) {
  const wire::Widget field{m_device.c_str(), name};
  return wire::AddAction<&InputVerifier::InputCB>(field, wire::Reason::Input, this, index) &&
         wire::AddAction<&InputVerifier::FocusOutCB>(field, wire::Reason::FocusOut, this, index) &&
         wire::AddAction<&InputVerifier::FocusInCB>(field, wire::Reason::FocusIn, this, index);
}

void InputVerifier::RemoveCallbacks(const Symbol& name) const {
  const wire::Widget field{m_device.c_str(), name.c_str()};
  wire::RemoveAction<&InputVerifier::InputCB>(field, wire::Reason::Input);
  wire::RemoveAction<&InputVerifier::FocusOutCB>(field, wire::Reason::FocusOut);
  wire::RemoveAction<&InputVerifier::FocusInCB>(field, wire::Reason::FocusIn);
}

void InputVerifier::RemoveControl(const char* name) {
  const Symbol symbol(TextOrEmpty(name));
  const auto found = m_indices.find(symbol);
  if (found == m_indices.end() || m_controls.erase(found->second) == 0) return;
  m_indices.erase(found);
  RemoveCallbacks(symbol);
}

void InputVerifier::Clear() {
  for (const auto& [index, control] : m_controls) RemoveCallbacks(control.name);
  m_controls.clear();
  m_indices.clear();
}

SmartPtr<InputTest> InputVerifier::GetInputTest(const char* name) const {
  const auto index = m_indices.find(Symbol(TextOrEmpty(name)));
  SmartPtr<InputTest> none(nullptr);
  if (index == m_indices.end()) return none;
  const auto control = m_controls.find(index->second);
  return control != m_controls.end() ? control->second.test : none;
}

InputVerifier::Control* InputVerifier::Find(Index index) {
  const auto found = m_controls.find(index);
  return found != m_controls.end() ? &found->second : nullptr;
}

std::wstring InputVerifier::ReadText(const Symbol& name) const {
  const auto [read, text] = wire::Retrieve({m_device.c_str(), name.c_str()}, wire::kText);
  return TextOrEmpty(text);
}

void InputVerifier::WriteText(const Symbol& name, const std::wstring& text) const {
  wire::Modify({m_device.c_str(), name.c_str()}, wire::kText(text.c_str()));
}

void InputVerifier::OnFocusIn(Index index) {
  Control* const control = Find(index);
  if (control == nullptr) return;
  control->focusText = control->lastGoodText = ReadText(control->name);
}

// A test is the application's, and writing text calls the toolkit's other listeners: the field may be gone after
// either.

void InputVerifier::OnInput(Index index) {
  if (Find(index) == nullptr) return;
  const Control control = *Find(index);
  const std::wstring text = ReadText(control.name);
  assert(control.test && "a field needs a test: see AddControl");
  const LifeWatch<InputVerifier> watch(*this);
  const bool isAccepted = control.test->CanBeAPartOfValidInput(text.c_str());
  assert(watch.IsAlive() && "the verifier was destroyed by the test of a field");
  if (isAccepted) {
    if (Control* const watched = Find(index)) watched->lastGoodText = text;
    return;
  }
  const Symbol device = m_device;
  WriteText(control.name, control.lastGoodText);
  if (text.size() == 1) wire::SelectAllText({device.c_str(), control.name.c_str()});
  wire::Beep();
}

void InputVerifier::OnFocusOut(Index index) {
  if (Find(index) == nullptr) return;
  const Control control = *Find(index);
  std::wstring validText;
  assert(control.test && "a field needs a test: see AddControl");
  const LifeWatch<InputVerifier> watch(*this);
  const bool isValid = control.test->GetValidInput(ReadText(control.name).c_str(), validText);
  assert(watch.IsAlive() && "the verifier was destroyed by the test of a field");
  WriteText(control.name, isValid ? validText : control.focusText);
}

int InputVerifier::InputCB(InputVerifier* self, void* index) {
  if (self != nullptr) self->OnInput(wire::AsIndex(index));
  return 0;
}

int InputVerifier::FocusInCB(InputVerifier* self, void* index) {
  if (self != nullptr) self->OnFocusIn(wire::AsIndex(index));
  return 0;
}

int InputVerifier::FocusOutCB(InputVerifier* self, void* index) {
  if (self != nullptr) self->OnFocusOut(wire::AsIndex(index));
  return 0;
}

}  // namespace oxecad_ui
