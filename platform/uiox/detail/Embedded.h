/// \file
/// The resources that the library carries in itself.
#ifndef OXECAD_UIOX_DETAIL_EMBEDDED_H
#define OXECAD_UIOX_DETAIL_EMBEDDED_H

#include <string_view>

namespace uiox::detail {

/// The text of an embedded resource; empty when there is none of that name.
std::string_view EmbeddedResource(std::string_view name);

}  // namespace uiox::detail

#endif
