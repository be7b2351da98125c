// A question in a balloon that points at a field, asked when the dialog's button is pressed.
#include <uicomps/oxecad_ui.h>

#include <cstdint>
#include <cstdio>

int OnOk(void*, void*) {
  const int answer =
      oxecad_ui::ShowBalloonMessage(oxecad_ui::BalloonQuestion, "A rule of this name exists. Overwrite it?", 2,
                                    oxecad_ui::BalloonYes | oxecad_ui::BalloonNo, oxecad_ui::BalloonNo, "name");
  std::printf("%s\n", answer == oxecad_ui::BalloonYes ? "overwritten" : "kept");
  return 0;
}

int main() {
  if (ui_create_device("balloon_message.res", "rules") != 0) return 1;
  const int activate = static_cast<int>(oxecad_ui::toolkit::Reason::Activate);
  constexpr std::intptr_t kEnd = 0;  // a list of the toolkit ends with a 0 as wide as a pointer
  ui_add_action("rules", "ok", activate, OnOk, nullptr, kEnd);
  ui_activate_device("rules");
  return 0;
}
