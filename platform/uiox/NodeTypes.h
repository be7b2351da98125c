/// \file
/// Node types and their images.
#ifndef OXECAD_UIOX_NODETYPES_H
#define OXECAD_UIOX_NODETYPES_H

#include <uiox/Export.h>
#include <uiox/NodeId.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace uiox {

/// The node types of the process. A node may have any type; one that is defined has images too.
class OXECAD_UIOX_API NodeTypes {
 public:
  NodeTypes();
  ~NodeTypes();
  NodeTypes(const NodeTypes&) = delete;
  NodeTypes& operator=(const NodeTypes&) = delete;

  /// The id of a name, given on first use. Constant time.
  TypeId Intern(std::string_view name);
  /// Good for ever.
  const char* Name(TypeId type) const;
  /// Whether a type was given images, be they empty, and has not been cleared since.
  bool IsDefined(TypeId type) const;
  /// The same by name; a name that was never used is not defined.
  bool IsDefined(std::string_view name) const;
  /// Gives a type its images (empty: none); a second time replaces them. Refused for an empty name.
  bool Define(std::string_view name, std::string_view image, std::string_view expanded_image);
  /// Names of images, empty for a type without.
  const std::string& ImageOf(TypeId type) const;
  /// The same for a node that is expanded.
  const std::string& ExpandedImageOf(TypeId type) const;
  /// All types become undefined but "mix", which every suite has. Ids stay.
  void Clear();

 private:
  struct Entries;
  std::unique_ptr<Entries> entries_;
};

}  // namespace uiox

#endif
