#include <uicomps/dialogs/BalloonMessage.h>

#include <oxecadutils/StringConversion.h>

#include <uicomps/dialogs/BalloonPlace.h>
#include <uicomps/toolkit/DeviceCalls.h>

namespace oxecad_ui {

namespace {

constexpr int kFailed = -1;
constexpr const char* kDevice = "ui_balloon_message_dialog.res";
constexpr wire::Widget kBalloon{kDevice, kDevice};
constexpr const char* kContext = "oxecad";

struct Button {
  unsigned int bit;
  const char* name;
};
constexpr Button kButtons[] = {
    {BalloonAbort, "abort"}, {BalloonRetry, "retry"}, {BalloonIgnore, "ignore"},   {BalloonYes, "yes"},
    {BalloonNo, "no"},       {BalloonOk, "ok"},       {BalloonConfirm, "confirm"}, {BalloonCancel, "cancel"},
};

const char* IconOf(int type) {
  switch (type) {
    case BalloonWarning:
      return "warning";
    case BalloonInfo:
      return "info";
    case BalloonQuestion:
      return "question";
    default:
      return "error";
  }
}

/// The device is made once in a process; a failure is tried again at the next balloon.
bool ObtainDevice() {
  static bool isCreated = false;
  if (!isCreated) isCreated = wire::CreateDevice(kDevice, kContext);
  return isCreated;
}

bool ShowMessage(const BalloonMessage& message) {
  const char* const icons[] = {IconOf(message.type)};
  if (!wire::Modify({kDevice, "icon"}, wire::kIconImages(icons))) return false;
  const std::wstring text = oxecadutils::StringToWString(message.text);
  return bool(wire::Modify({kDevice, "message"}, wire::kLabel(text.c_str()), wire::kTextMode(message.textMode)));
}

/// Shows the buttons that are asked for and hides the others. All eight are done whatever fails.
bool PrepareButtons(unsigned int buttons) {
  bool isDone = true;
  for (const Button& button : kButtons) {
    const wire::Widget widget{kDevice, button.name};
    const bool isShown = (buttons & button.bit) != 0;
    if (isShown && !wire::EndRunOn(widget, wire::Reason::Activate, button.bit)) isDone = false;
    if (!wire::Modify(widget, wire::kShown(isShown))) isDone = false;
  }
  return isDone;
}

/// The name of the default button when it is one of those shown, else null.
const char* DefaultButton(const BalloonMessage& message) {
  for (const Button& button : kButtons) {
    if ((message.buttons & button.bit) != 0 && message.defaultButton == button.bit) return button.name;
  }
  return nullptr;
}

bool CanBeCancelled(const BalloonMessage& message) { return (message.buttons & BalloonCancel) != 0; }

/// What the balloon points at.
struct Anchor {
  std::string device;
  std::string component;
  wire::Widget Widget() const { return {device.c_str(), component.c_str()}; }
};

/// Finds the screen and the anchor. Their names are copied: the toolkit's own change as soon as the balloon is shown.
bool FindAnchor(const std::string& wanted, Screen& screen, Anchor& anchor) {
  const auto [screenRead, width, height] = wire::Inquire(wire::kScreenWidth, wire::kScreenHeight);
  if (!screenRead) return false;
  const auto [currentRead, device, component] = wire::Inquire(wire::kCurrentDevice, wire::kCurrentComponent);
  if (!currentRead || device == nullptr || component == nullptr) return false;
  screen = {width, height};
  anchor = {device, wanted.empty() ? component : wanted};
  return true;
}

bool GetBalloonSize(wire::Size& size) {
  const auto [read, height, width] = wire::Retrieve(kBalloon, wire::kHeight, wire::kWidth);
  size = {width, height};
  return bool(read);
}

bool ApplyStyle(BalloonMessage& message, unsigned char quadrant) {
  if (!wire::BalloonStyle(quadrant, message.style)) return false;
  for (const Button& button : kButtons) {
    if (!wire::Modify({kDevice, button.name}, wire::kBalloonStyle(message.style))) return false;
  }
  return wire::Modify(kBalloon, wire::kBalloonStyle(message.style)) && wire::UpdateLayout(kBalloon);
}

/// Shows the balloon at its anchor, in the style of the anchor's quadrant of the screen.
bool Place(BalloonMessage& message) {
  Screen screen;
  Anchor anchor;
  wire::Position position;
  wire::Size size;
  wire::Size balloon;
  if (!FindAnchor(message.anchor, screen, anchor)) return false;
  if (!wire::GetPosition(anchor.Widget(), position) || !wire::GetSize(anchor.Widget(), size)) return false;
  if (!GetBalloonSize(balloon)) return false;
  const unsigned char quadrant = QuadrantOf(screen, position);
  if (!ApplyStyle(message, quadrant)) return false;
  if (!wire::ShowDevice(kDevice) || !GetBalloonSize(balloon)) return false;
  return bool(wire::MoveDevice(kBalloon, BalloonPlace(screen, quadrant, position, size, balloon)));
}

int Run(const BalloonMessage& message) {
  const int answer = wire::RunDevice(kDevice);
  wire::Modify(kBalloon, wire::kDefaultButton(""));
  if (CanBeCancelled(message)) wire::DoNotEndRunOn(kBalloon, wire::Reason::Close);
  wire::HideDevice(kDevice);
  return answer;
}

}  // namespace

int ShowBalloonMessage(int type, const std::string& text, int textMode, unsigned int buttons,
                       unsigned int defaultButton, const std::string& anchor) {
  BalloonMessage message{text, type, textMode, buttons, defaultButton, anchor, nullptr};
  if (!ObtainDevice() || !ShowMessage(message) || !PrepareButtons(buttons)) return kFailed;
  if (CanBeCancelled(message) && !wire::EndRunOn(kBalloon, wire::Reason::Close, BalloonCancel)) return kFailed;
  if (const char* const button = DefaultButton(message)) {
    if (!wire::Modify(kBalloon, wire::kDefaultButton(button), wire::kFocus(button))) return kFailed;
  }
  if (!Place(message)) return kFailed;
  return Run(message);
}

}  // namespace oxecad_ui
