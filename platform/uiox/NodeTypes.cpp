#include <uiox/NodeTypes.h>
#include <uiox/detail/Hash.h>
#include <uiox/detail/IdIndex.h>
#include <uiox/detail/NodeRecords.h>

#include <deque>
#include <new>

namespace uiox {

namespace {

constexpr std::size_t kMostTypes = std::size_t{1} << (32 - detail::kFlagBits);

struct NodeType {
  std::string name;
  std::string image;
  std::string expanded_image;
  bool defined = false;
};

}  // namespace

struct NodeTypes::Entries {
  std::deque<NodeType> types;      // by id; a deque, so that names stay where they are
  detail::IdIndex index;           // of id + 1
  const NodeType* last = nullptr;  // the one that was found last
  TypeId last_id = 0;

  /// Whether there is a type of that name; then it is the last one found. Calls mostly name the same type.
  bool Find(std::string_view name) {
    if (last && last->name == name) return true;
    const detail::IdIndex::Id known =
        index.Find(detail::Hash(name), [&](detail::IdIndex::Id id) { return types[id - 1].name == name; });
    if (known != 0) Remember(known - 1);
    return known != 0;
  }
  void Remember(TypeId id) {
    last = &types[id];
    last_id = id;
  }
};

NodeTypes::NodeTypes() : entries_(std::make_unique<Entries>()) {
  Intern("");
  Clear();
}

NodeTypes::~NodeTypes() = default;

TypeId NodeTypes::Intern(std::string_view name) {
  Entries& entries = *entries_;
  if (entries.Find(name)) return entries.last_id;
  if (entries.types.size() == kMostTypes) throw std::bad_alloc();
  entries.index.Reserve();
  entries.types.push_back({std::string(name), {}, {}, false});
  entries.index.Insert(detail::Hash(name), static_cast<detail::IdIndex::Id>(entries.types.size()));
  entries.Remember(static_cast<TypeId>(entries.types.size() - 1));
  return entries.last_id;
}

const char* NodeTypes::Name(TypeId type) const { return entries_->types[type].name.c_str(); }

bool NodeTypes::IsDefined(TypeId type) const { return entries_->types[type].defined; }

bool NodeTypes::IsDefined(std::string_view name) const { return entries_->Find(name) && entries_->last->defined; }

bool NodeTypes::Define(std::string_view name, std::string_view image, std::string_view expanded_image) {
  if (name.empty()) return false;
  std::string kept_image(image);
  std::string kept_expanded(expanded_image);
  NodeType& type = entries_->types[Intern(name)];
  type.image.swap(kept_image);
  type.expanded_image.swap(kept_expanded);
  type.defined = true;
  return true;
}

const std::string& NodeTypes::ImageOf(TypeId type) const { return entries_->types[type].image; }
const std::string& NodeTypes::ExpandedImageOf(TypeId type) const { return entries_->types[type].expanded_image; }

void NodeTypes::Clear() {
  for (NodeType& type : entries_->types) type = {std::move(type.name), {}, {}, false};
  Define("mix", "mix.png", "mix.png");
}

}  // namespace uiox
