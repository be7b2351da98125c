/// \file
/// Named images and the node types that show them.
#ifndef OXECAD_UI_TOOLKIT_IMAGECALLS_H
#define OXECAD_UI_TOOLKIT_IMAGECALLS_H

#include <uicomps/toolkit/NodeCalls.h>

namespace oxecad_ui::wire {

using toolkit::GlobalOperation;

/// The pixels of a named image, loaded for as long as this object lives.
class LoadedImage {
 public:
  explicit LoadedImage(const char* name) {
    m_buffer.kind = toolkit::kPixelImage;
    m_result.code =
        ui_global_do_operation(static_cast<int>(GlobalOperation::LoadImage), Slot(name), Slot(&m_buffer), kEnd);
  }
  LoadedImage(const LoadedImage&) = delete;
  LoadedImage& operator=(const LoadedImage&) = delete;
  ~LoadedImage() {
    if (m_result) relmem(&m_buffer.pixels);
  }

  /// Whether the image could be loaded. Nothing is held, and nothing goes back, when it could not.
  bool IsLoaded() const { return static_cast<bool>(m_result); }
  int Width() const { return m_buffer.width; }
  int Height() const { return m_buffer.height; }
  unsigned char* Pixels() const { return m_buffer.pixels; }

  /// Defines an image with these pixels under another name.
  void DefineAs(const char* name) {
    ui_global_do_operation(static_cast<int>(GlobalOperation::DefineImage), Slot(name), Slot(&m_buffer), kEnd);
  }

 private:
  toolkit::ImageBuffer m_buffer;
  Result m_result;
};

/// Whether the tree knows a node type.
inline bool NodeTypeExists(const Widget& tree, const char* type) {
  int exists = 0;
  const Result asked = Perform(tree, Operation::NodeTypeExists, std::make_tuple(Slot(type), Slot(&exists)));
  return asked && exists != 0;
}

/// Defines a node type whose nodes show an image, expanded or not.
inline Result DefineNodeType(const Widget& tree, const char* type, const char* image) {
  toolkit::NodeTypeRecord record;
  record.name = type;
  record.image = image;
  record.expandedImage = image;
  return Perform(tree, Operation::DefineNodeType, std::make_tuple(Slot(&record)));
}

}  // namespace oxecad_ui::wire

#endif
