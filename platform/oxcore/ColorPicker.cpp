#include <oxcore/ColorPicker.h>

#include <deque>
#include <utility>

#include <oxcore/ColorPickerDlg.h>
#include <oxecadutils/StringConversion.h>

namespace oxcore {
namespace {

constexpr std::size_t kMostRememberedRequests = 1024;

struct PickerState {
  ColorPicker picker;
  std::deque<unsigned int> answers;
  std::deque<ColorPickerRequest> requests;
};

PickerState& State() {
  static PickerState& state = *new PickerState;  // never destroyed: dialogs may be shown until the very end
  return state;
}

unsigned int Answer(const ColorPickerRequest& request) {
  PickerState& state = State();
  if (state.picker) {
    const ColorPicker picker = state.picker;  // a picker may replace itself while it runs
    return picker(request);
  }
  if (state.answers.empty()) return kNoPickedColor;
  const unsigned int answer = state.answers.front();
  state.answers.pop_front();
  return answer;
}

}  // namespace

ColorPicker SetColorPicker(ColorPicker picker) { return std::exchange(State().picker, std::move(picker)); }

void QueueColorAnswer(unsigned int color) { State().answers.push_back(color); }

std::size_t CountColorAnswers() { return State().answers.size(); }

std::vector<ColorPickerRequest> TakeColorPickerRequests() {
  const auto requests = std::exchange(State().requests, {});
  return {requests.begin(), requests.end()};
}

void ResetColorPicker() { State() = PickerState(); }

ColorPickerDlg::ColorPickerDlg(Mainframe* parent, const std::string& title)
    : ColorPickerDlg(parent, oxecadutils::Utf8ToWideStr(title)) {}

ColorPickerDlg::ColorPickerDlg(Mainframe* parent, const std::wstring& title) : m_parent(parent), m_title(title) {}

ColorPickerDlg::~ColorPickerDlg() = default;

unsigned int ColorPickerDlg::ShowDialog(unsigned int initialColor) {
  const ColorPickerRequest request{m_parent, m_title, initialColor};
  auto& requests = State().requests;
  if (requests.size() == kMostRememberedRequests) requests.pop_front();
  requests.push_back(request);
  return Answer(request);
}

}  // namespace oxcore
