/// \file
/// Node names made from the names that a board gives.
///
/// A tree's node name must be unique, and some characters mean something in it: '/' divides it into parent and child,
/// "groups/" sends it elsewhere, "SelAll_" at its beginning makes it stand for all its children, and two names that
/// differ only in '/' and '_' share one cell control. Names of nets, layers and components hold all of that, and blanks
/// and markup too. So a node's name is a kind and the escaped name: the net "/cpu/A_0" is the node
/// "net:%2Fcpu%2FA%5F0".
#ifndef OXECAD_VIEWER_TREES_NODENAME_H
#define OXECAD_VIEWER_TREES_NODENAME_H

#include <optional>
#include <string>
#include <string_view>

namespace oxviewer {

/// Escapes any bytes: ASCII letters, digits, '+', '-' and '.' stay, every other byte becomes '%' and two upper-case
/// hexadecimal digits, and the empty text becomes a lone "%". Different texts give different names; the name is never
/// empty and holds neither '/', '_', ':' nor a blank. Linear.
std::string EscapedName(std::string_view text);

/// The text that `EscapedName` made this name of, or nothing when it made no such name.
std::optional<std::string> UnescapedName(std::string_view name);

/// The name of the node that stands for something of a kind: "net" and "GND" give "net:GND".
std::string NodeName(std::string_view kind, std::string_view text);

/// The text behind a node of that kind, or nothing for another node.
std::optional<std::string> TextOfNode(std::string_view kind, std::string_view node);

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_TREES_NODENAME_H
