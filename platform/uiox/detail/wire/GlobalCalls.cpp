#include <uiox/Memory.h>
#include <uiox/detail/wire/Handlers.h>

#include <cstring>

namespace uiox::wire {

using oxecad_ui::toolkit::GlobalCode;
using oxecad_ui::toolkit::ImageBuffer;
using oxecad_ui::toolkit::kNoSearchPath;
using oxecad_ui::toolkit::kPixelImage;
using oxecad_ui::toolkit::kResourceSearchPath;

namespace {

/// The id of the one search path that there is.
constexpr int kSearchPath = 1;

const char* OrNull(const std::string& text) { return text.empty() ? nullptr : text.c_str(); }

bool Create(const Call& call) {
  return call.resource && call.device && Suite::Get().CreateDevice(call.resource, call.device);
}

}  // namespace

int HandleDevice(const Call& call) {
  if (call.function == Function::CreateSearchPath) {
    const bool known = call.code == kResourceSearchPath && call.resource && ResourcePath::KnowsContext(call.resource);
    return known ? kSearchPath : kNoSearchPath;
  }
  // The two creators report success with opposite results.
  if (call.function == Function::CreateDeviceExt) return call.search_path == kSearchPath && Create(call) ? 1 : 0;
  if (call.function == Function::CreateDevice) return Create(call) ? kOk : kRefused;

  Device* device = call.device ? Suite::Get().FindDevice(call.device) : nullptr;
  if (call.function == Function::ActivateDevice) return device ? Suite::Get().RunModal(*device) : Suite::kNoResult;
  if (!device) return kNoComponent;
  if (call.function == Function::ExitDevice) {
    const int result = static_cast<int>(reinterpret_cast<std::intptr_t>(call.value));
    return Suite::Get().EndModalRun(call.device, result) ? kOk : kRefused;
  }
  if (call.function == Function::ManageDevice) {
    device->Show();
  } else {
    device->Hide();
  }
  return kOk;
}

Status HandleAction(Widget& widget, const Call& call) {
  if (!FindCode(CodeGroup::Reason, call.code) || !call.callback) return kRefused;
  const Action action{call.code, call.callback, call.client_data, call.value};
  if (call.function == Function::AddAction) {
    widget.Actions().Add(action);
  } else if (call.function == Function::SetAction) {
    widget.Actions().Set(action);
  } else if (!widget.Actions().Remove(call.code, call.callback)) {
    return kNoAnswer;
  }
  return kOk;
}

Status GlobalInquire(const Call& call) {
  if (!HasPlaces(call)) return kNoPlace;
  const Suite& suite = Suite::Get();
  for (const Option& option : call) {
    switch (static_cast<GlobalCode>(option.code)) {
      case GlobalCode::ScreenWidth:
        Answer<int>(option.value, suite.Screen().width);
        break;
      case GlobalCode::ScreenHeight:
        Answer<int>(option.value, suite.Screen().height);
        break;
      case GlobalCode::CurrentDevice:
        Answer<const char*>(option.value, OrNull(suite.CurrentDevice()));
        break;
      case GlobalCode::CurrentComponent:
        Answer<const char*>(option.value, OrNull(suite.CurrentComponent()));
        break;
    }
  }
  return kOk;
}

Status LoadImage(const Call& call) {
  auto* buffer = call.positional[1].Out<ImageBuffer>();
  if (!call.positional[0].Text()) return kRefused;
  if (!buffer) return kNoPlace;
  if (buffer->kind != kPixelImage) return kRefused;
  const Image* image = Suite::Get().Images().Find(call.positional[0].Text());
  if (!image) return kNoAnswer;
  void* pixels = AllocateBlock(image->pixels.size());
  if (!pixels) return kNoMemory;
  std::memcpy(pixels, image->pixels.data(), image->pixels.size());
  buffer->width = image->width;
  buffer->height = image->height;
  buffer->pixels = static_cast<unsigned char*>(pixels);
  return kOk;
}

Status DefineImage(const Call& call) {
  const auto* buffer = call.positional[1].Out<const ImageBuffer>();
  if (!call.positional[0].Text() || !buffer || !buffer->pixels || buffer->kind != kPixelImage) return kRefused;
  if (buffer->width < 1 || buffer->height < 1 || buffer->width > kMaxImageSide || buffer->height > kMaxImageSide) {
    return kRefused;
  }
  const std::size_t bytes = 4 * static_cast<std::size_t>(buffer->width) * static_cast<std::size_t>(buffer->height);
  Image image;
  image.width = buffer->width;
  image.height = buffer->height;
  image.pixels.assign(buffer->pixels, buffer->pixels + bytes);
  return Suite::Get().Images().Define(call.positional[0].Text(), std::move(image)) ? kOk : kRefused;
}

}  // namespace uiox::wire
