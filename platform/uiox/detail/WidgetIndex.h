/// \file
/// Components by name.
#ifndef OXECAD_UIOX_DETAIL_WIDGETINDEX_H
#define OXECAD_UIOX_DETAIL_WIDGETINDEX_H

#include <uiox/Widget.h>
#include <uiox/detail/Hash.h>
#include <uiox/detail/IdIndex.h>

#include <string_view>
#include <vector>

namespace uiox::detail {

/// Widgets found by their names in constant time. It does not own them.
class WidgetIndex {
 public:
  Widget* Find(std::string_view name) const {
    const IdIndex::Id id = index_.Find(Hash(name), [&](IdIndex::Id i) { return name == widgets_[i - 1]->Name(); });
    return id == 0 ? nullptr : widgets_[id - 1];
  }

  /// The name is not in it. Throws std::bad_alloc, and then nothing has changed.
  void Add(Widget& widget) {
    index_.Reserve();
    if (free_.empty()) {
      if (free_.capacity() <= widgets_.size()) free_.reserve(2 * widgets_.size() + 8);  // Remove must not fail
      widgets_.push_back(nullptr);
      free_.push_back(static_cast<IdIndex::Id>(widgets_.size()));
    }
    const IdIndex::Id id = free_.back();
    free_.pop_back();
    widgets_[id - 1] = &widget;
    index_.Insert(Hash(std::string_view(widget.Name())), id);
  }

  /// The widget is in it.
  void Remove(const Widget& widget) noexcept {
    const std::uint32_t hash = Hash(std::string_view(widget.Name()));
    const IdIndex::Id id = index_.Find(hash, [&](IdIndex::Id i) { return widgets_[i - 1] == &widget; });
    index_.Erase(hash, id);
    widgets_[id - 1] = nullptr;
    free_.push_back(id);
  }

 private:
  IdIndex index_;
  std::vector<Widget*> widgets_;
  std::vector<IdIndex::Id> free_;
};

}  // namespace uiox::detail

#endif
