#include <oxcore/RenameDlg.h>

#include <algorithm>
#include <cstdint>
#include <iterator>

#include <oxcore/Help.h>
#include <uicomps/toolkit/Toolkit.h>

namespace oxcore {
namespace {

using oxecad_ui::toolkit::ComponentAttribute;
using oxecad_ui::toolkit::Operation;
using oxecad_ui::toolkit::Reason;

constexpr char kDevice[] = "RenameDlg";
constexpr char kName[] = "Name_Text";
constexpr std::intptr_t kEnd = 0;  // fills its slot, as a plain 0 would not

struct Action {
  const char* component;
  Reason reason;
  ui_callback callback;
};

/// Reads the name field. The text stays the toolkit's.
bool ReadName(const wchar_t*& text) {
  text = nullptr;
  return ui_retrieve(kDevice, kName, static_cast<int>(ComponentAttribute::Text), &text, kEnd) == 0 && text;
}

bool Put(const char* component, ComponentAttribute attribute, const void* value) {
  return ui_modify(kDevice, component, static_cast<int>(attribute), value, kEnd) == 0;
}

bool Put(const char* component, ComponentAttribute attribute, std::intptr_t value) {
  return ui_modify(kDevice, component, static_cast<int>(attribute), value, kEnd) == 0;
}

bool DeviceStands() {
  const wchar_t* text = nullptr;
  return ReadName(text) || (ui_create_device(kDevice, kDevice) == 0);
}

bool SetAction(const Action& action, RenameDlg* dialog) {
  return ui_set_action(kDevice, action.component, static_cast<int>(action.reason), action.callback, dialog, kEnd) == 0;
}

void RemoveAction(const Action& action) {
  ui_remove_action(kDevice, action.component, static_cast<int>(action.reason), action.callback);
}

void SelectName() {
  constexpr std::intptr_t kStart = 0;
  constexpr std::intptr_t kTextEnd = oxecad_ui::toolkit::kEndOfText;
  ui_do_operation(kDevice, kName, static_cast<int>(Operation::SelectText), kStart, kTextEnd, kEnd);
}

}  // namespace

/// What the toolkit calls; the dialog is the client data.
struct RenameDlg::Callbacks {
  static RenameDlg& Dialog(void* clientData) { return *static_cast<RenameDlg*>(clientData); }

  static int OK(void* dialog, void*) {
    Dialog(dialog).ClickOK();
    return 0;
  }
  static int Cancel(void* dialog, void*) {
    Dialog(dialog).Close();
    return 0;
  }
  static int Help(void* dialog, void*) {
    Dialog(dialog).ClickHelp();
    return 0;
  }
  static int Input(void* dialog, void*) {
    Dialog(dialog).NameChanged();
    return 0;
  }

  static constexpr Action kActions[] = {{"OK", Reason::Activate, OK},
                                        {"Cancel", Reason::Activate, Cancel},
                                        {"Help", Reason::Activate, Help},
                                        {kName, Reason::Input, Input},
                                        {kDevice, Reason::Close, Cancel}};
};

RenameDlg::RenameDlg(bool flag, Mainframe* parent, const oxkutils::Symbol& help)
    : m_flag(flag), m_parent(parent), m_help(help) {}

RenameDlg::RenameDlg(const RenameDlg&) = default;

RenameDlg& RenameDlg::operator=(const RenameDlg&) = default;

RenameDlg::~RenameDlg() = default;

bool RenameDlg::IsAccepted() const { return m_accepted; }

const std::wstring& RenameDlg::GetNewName() const { return m_newName; }

void RenameDlg::SetNewName(const std::wstring& name) { m_newName = name; }

Mainframe* RenameDlg::GetParent() const { return m_parent; }

bool RenameDlg::Run() {
  m_accepted = false;
  if (!DeviceStands() || !Put(kName, ComponentAttribute::Text, m_newName.c_str()) ||
      !Put("Help", ComponentAttribute::Shown, m_help.empty() ? 0 : 1)) {
    return false;
  }
  // The dialog may go before the next run: nothing of it stays behind.
  const auto set = std::find_if_not(std::begin(Callbacks::kActions), std::end(Callbacks::kActions),
                                    [this](const Action& action) { return SetAction(action, this); });
  if (set == std::end(Callbacks::kActions)) ShowUntilClosed();
  std::for_each(std::begin(Callbacks::kActions), set, RemoveAction);
  return m_accepted;
}

void RenameDlg::ShowUntilClosed() {
  if (ui_manage_device(kDevice) != 0) return;
  // How the dialog opens is a comfort: it works as well without.
  Put(kDevice, ComponentAttribute::DefaultButton, "OK");
  Put(kDevice, ComponentAttribute::Focus, kName);
  if (m_flag) SelectName();
  ui_activate_device(kDevice);
  ui_unmanage_device(kDevice);
}

void RenameDlg::ClickOK() {
  const wchar_t* name = nullptr;
  if (!ReadName(name)) return;
  m_newName = name;
  m_accepted = true;
  Close();
}

void RenameDlg::Close() { ui_exit_device(const_cast<char*>(kDevice), nullptr); }

void RenameDlg::NameChanged() {}

void RenameDlg::ClickHelp() { ShowHelp(m_help); }

}  // namespace oxcore
