#include <viewer/window/FrameRenderer.h>

#include <QMetaObject>
#include <QPainter>

#include <utility>

namespace oxviewer {

FrameRenderer::FrameRenderer(QObject* parent) : QObject(parent), worker_([this] { Work(); }) {}

FrameRenderer::~FrameRenderer() {
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
    order_.reset();
    ++generation_;
  }
  wanted_.notify_one();
  worker_.join();
}

void FrameRenderer::Request(std::shared_ptr<const Scene> scene, const Viewport& viewport, double ratio) {
  {
    const std::lock_guard lock(mutex_);
    if (scene != scene_) ++generation_;
    scene_ = scene;
    order_ = std::make_unique<Order>(Order{std::move(scene), viewport, ratio, generation_.load()});
  }
  wanted_.notify_one();
}

void FrameRenderer::Cancel() {
  const std::lock_guard lock(mutex_);
  order_.reset();
  scene_.reset();
  ++generation_;
}

Frame FrameRenderer::Render(std::shared_ptr<const Scene> scene, const Viewport& viewport, double ratio,
                            const IsStale& isStale) {
  QImage image((QSizeF(viewport.size) * ratio).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(ratio);
  {
    QPainter painter(&image);
    scene->Paint(painter, viewport, isStale);
  }
  return {std::move(image), viewport, std::move(scene), ratio};
}

void FrameRenderer::Work() {
  std::unique_lock lock(mutex_);
  while (true) {
    wanted_.wait(lock, [this] { return ending_ || order_; });
    if (ending_) return;
    const std::unique_ptr<Order> order = std::move(order_);
    lock.unlock();
    const std::uint64_t generation = order->generation;
    const auto isStale = [this, generation] { return generation_.load(std::memory_order_relaxed) != generation; };
    Frame frame = Render(order->scene, order->viewport, order->ratio, isStale);
    if (!isStale()) {
      QMetaObject::invokeMethod(
          this, [this, frame = std::move(frame), generation] { Deliver(frame, generation); }, Qt::QueuedConnection);
    }
    lock.lock();
  }
}

void FrameRenderer::Deliver(const Frame& frame, std::uint64_t generation) {
  if (generation_.load(std::memory_order_relaxed) == generation) Q_EMIT FrameReady(frame);
}

}  // namespace oxviewer
