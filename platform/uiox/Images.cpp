#include <uiox/Images.h>
#include <uiox/Suite.h>

#include <map>
#include <set>

namespace uiox {

struct ImageBag::Entries {
  std::map<std::string, Image, std::less<>> images;
  std::set<std::string, std::less<>> missing;  // neither on the path nor built in, or damaged
  const std::string* last_name = nullptr;
  const Image* last = nullptr;
};

namespace {

constexpr int kIconSide = 16;

bool IsWellFormed(const Image& image) {
  if (image.width < 1 || image.height < 1 || image.width > kMaxImageSide || image.height > kMaxImageSide) return false;
  const std::int64_t pixels = std::int64_t{image.width} * image.height;
  return pixels <= kMaxImagePixels && image.pixels.size() == static_cast<std::size_t>(4 * pixels);
}

bool Load(const ResourcePath& path, std::string_view name, Image& image) {
  std::string bytes;
  std::string why;
  if (path.Read(name, bytes)) return DecodePng(bytes.data(), bytes.size(), image, why);
  return DrawBuiltInImage(name, kIconSide, image);
}

}  // namespace

ImageBag::ImageBag() : entries_(std::make_unique<Entries>()) {}
ImageBag::~ImageBag() = default;

const Image* ImageBag::Find(std::string_view name) {
  Entries& entries = *entries_;
  if (entries.last && *entries.last_name == name) return entries.last;
  auto found = entries.images.find(name);
  if (found == entries.images.end()) {
    if (name.empty() || entries.missing.count(name) != 0) return nullptr;
    Image image;
    if (!Load(Suite::Get().Resources(), name, image)) {
      entries.missing.emplace(name);
      return nullptr;
    }
    found = entries.images.emplace(std::string(name), std::move(image)).first;
  }
  entries.last_name = &found->first;
  entries.last = &found->second;
  return entries.last;
}

bool ImageBag::Define(std::string_view name, Image image) {
  if (name.empty() || !IsWellFormed(image)) return false;
  const auto [place, added] = entries_->images.try_emplace(std::string(name));
  place->second = std::move(image);
  entries_->missing.erase(place->first);
  Suite::Get().Tell(&SuiteObserver::ImageDefined, place->first.c_str());
  return true;
}

void ImageBag::Clear() { *entries_ = Entries(); }

std::size_t ImageBag::Size() const { return entries_->images.size(); }

}  // namespace uiox
