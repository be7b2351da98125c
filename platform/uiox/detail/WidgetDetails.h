/// \file
/// What few components have.
#ifndef OXECAD_UIOX_DETAIL_WIDGETDETAILS_H
#define OXECAD_UIOX_DETAIL_WIDGETDETAILS_H

#include <uiox/Widget.h>

#include <map>
#include <string>
#include <vector>

namespace uiox {

struct Widget::Details {
  std::wstring label;
  std::wstring text;
  TextRange selected_text;
  int text_mode = 0;
  std::vector<std::string> images;
  std::uint32_t background = 0x00FFFFFF;
  std::uintptr_t balloon_style = 0;
  std::vector<Item> items;
  int visible_items = 0;
  std::string selected_item;
  std::vector<Widget*> children;
  Arrangement arrangement = Arrangement::Column;
  std::map<std::string, std::string, std::less<>> properties;
  std::vector<const char*> lent[3];  // by NameList
  bool fixed_place = false;          // the layout leaves x and y as they are
  bool fixed_width = false;
  bool fixed_height = false;
};

}  // namespace uiox

#endif
