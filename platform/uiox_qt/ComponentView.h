/// \file
/// What every component's Qt widget has in common.
#ifndef OXECAD_UIOX_QT_COMPONENTVIEW_H
#define OXECAD_UIOX_QT_COMPONENTVIEW_H

#include <uiox/Observer.h>
#include <uiox/Widget.h>

#include <QWidget>

class QFocusEvent;

namespace uiox_qt {

/// The Qt side of one component. It is a part of a Qt widget and lives as long as that; the component may end earlier.
class ComponentView {
 public:
  explicit ComponentView(uiox::Widget& component) : component_(&component) {}
  virtual ~ComponentView() = default;
  ComponentView(const ComponentView&) = delete;
  ComponentView& operator=(const ComponentView&) = delete;

  virtual QWidget& Qt() = 0;
  /// Null after the component has ended.
  uiox::Widget* Component() const { return component_; }
  virtual void Detach() { component_ = nullptr; }

  /// Shows what changed. Called as long as there is a component.
  void Follow(uiox::WidgetChange change);
  /// Shows everything, after it was made.
  void FollowAll();

 protected:
  /// The changes that are a matter of the component's class.
  virtual void FollowOwn(uiox::WidgetChange change) = 0;
  /// To be called from the Qt widget's events: the keyboard focus is the component's matter, too. A popup takes the
  /// focus of Qt but not the user's.
  void TellFocus(const QFocusEvent& event) const;

 private:
  uiox::Widget* component_;
};

}  // namespace uiox_qt

#endif
