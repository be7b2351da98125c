/// \file
/// What the toolkit lends of a node: copies that go back with `ui_free`, here by themselves.
#ifndef OXECAD_UI_TOOLKIT_LENT_H
#define OXECAD_UI_TOOLKIT_LENT_H

#include <string>
#include <string_view>

#include <uicomps/toolkit/NodeCalls.h>

namespace oxecad_ui::wire {

/// A text of a node, lent for as long as this object lives. A text that could not be read, or is null, is empty; it
/// goes back all the same.
template <NodeAttribute Code, class Char>
class LentText {
 public:
  LentText(const Widget& tree, const char* node) {
    constexpr Attribute<Code, const Char*> attribute;
    m_result = detail::GetNodeInto(m_text, tree, node, attribute);
  }
  LentText(const LentText&) = delete;
  LentText& operator=(const LentText&) = delete;
  ~LentText() { ui_free(static_cast<int>(Code), Slot(&m_text), kEnd); }

  Result GetResult() const { return m_result; }
  std::basic_string_view<Char> View() const {
    return m_text != nullptr ? std::basic_string_view<Char>(m_text) : std::basic_string_view<Char>();
  }
  std::basic_string<Char> Copy() const { return std::basic_string<Char>(View()); }

 private:
  Result m_result;
  const Char* m_text = nullptr;
};

using LentLabel = LentText<NodeAttribute::Label, wchar_t>;
using LentType = LentText<NodeAttribute::Type, char>;
using LentParent = LentText<NodeAttribute::Parent, char>;

/// When a lent list goes back.
enum class Release {
  Always,        ///< also after a failed read, and when it is empty
  AfterSuccess,  ///< unless the read failed
  WhenNotEmpty   ///< only when there are children
};

/// The names of a node's children, lent for as long as this object lives. Names can be null; those are passed over.
class LentNames {
 public:
  LentNames(const Widget& tree, const char* node, Release release) : m_release(release) {
    m_result = detail::GetNodeInto(m_list, tree, node, kNodeChildren);
  }
  LentNames(const LentNames&) = delete;
  LentNames& operator=(const LentNames&) = delete;
  ~LentNames() {
    if (GoesBack()) ui_free(kNodeChildren.code, Slot(m_list.count), Slot(&m_list.names), kEnd);
  }

  Result GetResult() const { return m_result; }
  int Count() const { return m_list.count; }
  /// The array as a callback takes it; good for as long as this object.
  const char** Data() const { return const_cast<const char**>(m_list.names); }
  char** begin() const { return m_list.begin(); }
  char** end() const { return m_list.end(); }

 private:
  bool GoesBack() const {
    switch (m_release) {
      case Release::Always:
        return true;
      case Release::AfterSuccess:
        return static_cast<bool>(m_result);
      case Release::WhenNotEmpty:
        break;
    }
    return m_list.count > 0;
  }

  Release m_release;
  Result m_result;
  Names m_list;
};

}  // namespace oxecad_ui::wire

#endif
