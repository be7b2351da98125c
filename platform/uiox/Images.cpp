#include <uiox/Images.h>
#include <uiox/Suite.h>
#include <uiox/detail/Hash.h>
#include <uiox/detail/IdIndex.h>

#include <deque>
#include <set>
#include <utility>

namespace uiox {

struct ImageBag::Entries {
  struct Named {
    std::string name;
    Image image;
  };
  std::deque<Named> images;                    // a deque, so that images stay where they are
  detail::IdIndex index;                       // of a place in it plus 1
  std::set<std::string, std::less<>> missing;  // neither on the path nor built in, or damaged
  Named* last = nullptr;                       // the one that was found last

  Named* Find(std::string_view name) {
    if (last && last->name == name) return last;
    const detail::IdIndex::Id known =
        index.Find(detail::Hash(name), [&](detail::IdIndex::Id id) { return images[id - 1].name == name; });
    if (known != 0) last = &images[known - 1];
    return known != 0 ? last : nullptr;
  }
  /// There is none of that name.
  Named& Add(std::string_view name, Image image) {
    index.Reserve();
    images.push_back({std::string(name), std::move(image)});
    index.Insert(detail::Hash(name), static_cast<detail::IdIndex::Id>(images.size()));
    return images.back();
  }
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
  if (const Entries::Named* known = entries_->Find(name)) return &known->image;
  if (name.empty() || entries_->missing.count(name) != 0) return nullptr;
  Image image;
  if (!Load(Suite::Get().Resources(), name, image)) {
    entries_->missing.emplace(name);
    return nullptr;
  }
  return &entries_->Add(name, std::move(image)).image;
}

bool ImageBag::Define(std::string_view name, Image image) {
  if (name.empty() || !IsWellFormed(image)) return false;
  Entries::Named* named = entries_->Find(name);
  if (named) {
    named->image = std::move(image);
  } else {
    named = &entries_->Add(name, std::move(image));
    if (!entries_->missing.empty()) entries_->missing.erase(named->name);
  }
  Suite::Get().Tell(&SuiteObserver::ImageDefined, named->name.c_str());
  return true;
}

void ImageBag::Clear() { *entries_ = Entries(); }

std::size_t ImageBag::Size() const { return entries_->images.size(); }

}  // namespace uiox
