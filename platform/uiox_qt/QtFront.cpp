#include <uiox_qt/QtFront.h>

#include <oxcore/ColorPicker.h>
#include <uiox/Suite.h>
#include <uiox_qt/ColorPicking.h>
#include <uiox_qt/DeviceView.h>
#include <uiox_qt/Icons.h>
#include <uiox_qt/Screens.h>
#include <uiox_qt/TreeModel.h>
#include <uiox_qt/TreeView.h>

#include <QApplication>
#include <QEventLoop>
#include <QPointer>
#include <QScreen>
#include <QTimer>

#include <map>

namespace uiox_qt {

class QtFront::Impl final : public uiox::SuiteObserver {
 public:
  explicit Impl(QtFront& front) : suite_(uiox::Suite::Get()), before_(suite_.SetFront(&front)) {
    suite_.AddObserver(this);
    picker_before_ = oxcore::SetColorPicker(
        [this](const oxcore::ColorPickerRequest& request) { return PickColor(main_window_, request); });
    SetWidgetInUse(&Impl::WidgetInUse);
    s_latest = this;
    repaint_.setSingleShot(true);
    repaint_.callOnTimeout(&repaint_, [this] {
      for (const auto& [device, view] : views_) view->Repaint();
    });
    for (uiox::Device* device : suite_.Devices()) {
      if (device->OnScreen()) DeviceShown(*device);
    }
  }

  ~Impl() override {
    s_latest = nullptr;
    SetWidgetInUse(nullptr);
    oxcore::SetColorPicker(std::move(picker_before_));
    suite_.RemoveObserver(this);
    suite_.SetFront(before_);
    views_.clear();
    ForgetImages();
  }

  /// Null when there is no such device.
  DeviceView* ViewOf(std::string_view device) {
    uiox::Device* found = suite_.FindDevice(device);
    return found ? &ViewOf(*found) : nullptr;
  }

  DeviceView& ViewOf(uiox::Device& device) {
    std::unique_ptr<DeviceView>& view = views_[&device];
    if (!view) view = std::make_unique<DeviceView>(device);
    return *view;
  }

  DeviceView* FindView(const uiox::Device& device) const {
    const auto found = views_.find(&device);
    return found == views_.end() ? nullptr : found->second.get();
  }

  QWidget* MainWindow() const { return main_window_; }
  void SetMainWindow(QWidget* window) { main_window_ = window; }

  void RunModal(uiox::Device& device) {
    DeviceView& view = ViewOf(device);
    if (!view.Window() && !view.IsEmbedded()) view.Show(Over());
    QEventLoop loop;
    Run run{&device, &loop, runs_};
    runs_ = &run;
    const QPointer<DeviceWindow> window = view.Window();
    if (window) window->ShowModal();
    if (!run.over) loop.exec();
    runs_ = run.outer;
    if (window) window->EndModal();
  }

  // uiox::SuiteObserver
  void AboutToDestroyDevice(uiox::Device& device) override { views_.erase(&device); }
  void DeviceShown(uiox::Device& device) override { ViewOf(device).Show(Over()); }
  void DeviceHidden(uiox::Device& device) override {
    if (DeviceView* view = FindView(device)) view->Hide();
  }
  void DeviceLayoutRequested(uiox::Device& device) override {
    if (DeviceView* view = FindView(device)) view->UpdateLayout();
  }
  void ModalRunEnded(uiox::Device& device, int) override {
    for (Run* run = runs_; run; run = run->outer) {
      if (run->device != &device || run->over) continue;
      run->over = true;
      run->loop->quit();
      return;
    }
  }
  void WidgetChanged(uiox::Widget& widget, uiox::WidgetChange change) override {
    if (DeviceView* view = FindView(widget.Owner())) view->Follow(widget, change);
  }
  void ImageDefined(const char* name) override {
    ForgetImage(name);
    RepaintSoon();
  }
  void NodeTypeDefined(uiox::TypeId) override { RepaintSoon(); }

 private:
  struct Run {
    uiox::Device* device;
    QEventLoop* loop;
    Run* outer;
    bool over = false;
  };

  /// What a new window is put above.
  QWidget* Over() const {
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : main_window_.data();
  }

  static QWidget* WidgetInUse() {
    if (!s_latest) return nullptr;
    const uiox::Suite& suite = s_latest->suite_;
    const uiox::Device* device = suite.FindDevice(suite.CurrentDevice());
    const DeviceView* view = device ? s_latest->FindView(*device) : nullptr;
    return view && view->Panel() ? view->Panel() : s_latest->main_window_.data();
  }

  void RepaintSoon() {
    if (!repaint_.isActive()) repaint_.start(0);
  }

  static inline Impl* s_latest = nullptr;

  uiox::Suite& suite_;
  uiox::Front* before_;
  oxcore::ColorPicker picker_before_;
  QPointer<QWidget> main_window_;
  std::map<const uiox::Device*, std::unique_ptr<DeviceView>> views_;
  Run* runs_ = nullptr;
  QTimer repaint_;
};

QtFront::QtFront() : impl_(std::make_unique<Impl>(*this)) {}
QtFront::~QtFront() = default;

void QtFront::SetMainWindow(QWidget* window) { impl_->SetMainWindow(window); }

QWidget* QtFront::MainWindow() const { return impl_->MainWindow(); }

QWidget* QtFront::WidgetFor(std::string_view device) {
  DeviceView* view = impl_->ViewOf(device);
  return view ? view->Embed() : nullptr;
}

TreeView* QtFront::TreeViewFor(std::string_view device, std::string_view tree) {
  DeviceView* view = impl_->ViewOf(device);
  const uiox::TreeWidget* found = view ? view->Device().FindTree(tree) : nullptr;
  if (!found) return nullptr;
  view->Embed();
  return view->ViewOf(*found);
}

QWidget* QtFront::ComponentFor(std::string_view device, std::string_view component) {
  DeviceView* view = impl_->ViewOf(device);
  const uiox::Widget* found = view ? view->Device().Find(component) : nullptr;
  return found ? view->WidgetOf(*found) : nullptr;
}

QWidget* QtFront::WindowFor(std::string_view device) {
  DeviceView* view = impl_->ViewOf(device);
  return view ? view->Window() : nullptr;
}

void QtFront::Beep() { QApplication::beep(); }

void QtFront::RunModal(uiox::Device& device) { impl_->RunModal(device); }

bool QtFront::QueryScreen(uiox::ScreenSize& size) {
  const QScreen* screen = ScreenInUse();
  if (!screen) return false;
  size.width = screen->geometry().width();
  size.height = screen->geometry().height();
  return true;
}

namespace {

uiox::Rect OnScreen(const QPoint& at, const QSize& size) {
  const QPoint origin = ScreenInUse()->geometry().topLeft();
  return {at.x() - origin.x(), at.y() - origin.y(), size.width(), size.height()};
}

/// The part of a view that shows a cell control; empty while it is in no cell or out of sight.
QRect CellOf(const uiox::Widget& control, const TreeView& view) {
  const uiox::CellPlace cell = control.ControlOf()->Store().PlaceOf(control.Control());
  return cell ? view.visualRect(view.Model().IndexOf(cell)) : QRect();
}

}  // namespace

bool QtFront::QueryGeometry(const uiox::Widget& widget, uiox::Rect& on_screen) {
  const uiox::Device& device = widget.Owner();
  const DeviceView* view = impl_->FindView(device);
  if (!view) return false;
  if (&widget == &device && view->Window()) {
    if (!view->Window()->IsUp()) return false;
    on_screen = OnScreen(view->Window()->geometry().topLeft(), view->Window()->size());
    return true;
  }
  if (widget.ControlOf()) {
    const TreeView* tree = view->ViewOf(*widget.ControlOf());
    if (!tree) return false;
    const QRect cell = CellOf(widget, *tree);
    on_screen = OnScreen(tree->viewport()->mapToGlobal(cell.topLeft()), cell.size());
    return true;
  }
  const QWidget* shown = view->WidgetOf(widget);
  if (!shown) return false;
  const bool visible = shown->isVisible() || (view->Window() && view->Window()->IsUp() && widget.Shown());
  on_screen = OnScreen(shown->mapToGlobal(QPoint(0, 0)), visible ? shown->size() : QSize(0, 0));
  return true;
}

}  // namespace uiox_qt
