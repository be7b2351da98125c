/// \file
/// Pictures of a scene, painted beside the user interface.
#ifndef OXECAD_VIEWER_WINDOW_FRAMERENDERER_H
#define OXECAD_VIEWER_WINDOW_FRAMERENDERER_H

#include <viewer/window/Scene.h>

#include <QImage>
#include <QObject>

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <thread>

namespace oxviewer {

/// A picture and what it shows.
struct Frame {
  QImage image;
  Viewport viewport;
  std::shared_ptr<const Scene> scene;
  double ratio = 1;  ///< pixels of the device to one of the viewport
};

/// Paints the latest picture asked for on a thread of its own. While it is at work, of several requests only the last
/// one is kept. A picture of the same scene at another place is finished and delivered, so that a view that is dragged
/// about gets pictures all the while; one of a scene that has been replaced is given up.
class FrameRenderer : public QObject {
  Q_OBJECT

 public:
  explicit FrameRenderer(QObject* parent = nullptr);
  /// Gives up what is being painted and waits for the thread.
  ~FrameRenderer() override;

  /// Asks for a picture; `FrameReady` brings it unless another one replaces it before it is begun.
  void Request(std::shared_ptr<const Scene> scene, const Viewport& viewport, double ratio);
  /// Forgets what was asked for.
  void Cancel();

  /// Paints a picture at once.
  static Frame Render(
      std::shared_ptr<const Scene> scene, const Viewport& viewport, double ratio,
      const IsStale& isStale = [] { return false; });

 Q_SIGNALS:
  /// Comes on the thread of this object.
  void FrameReady(const oxviewer::Frame& frame);

 private:
  struct Order {
    std::shared_ptr<const Scene> scene;
    Viewport viewport;
    double ratio = 1;
    std::uint64_t generation = 0;
  };

  void Work();
  void Deliver(const Frame& frame, std::uint64_t generation);

  std::mutex mutex_;
  std::condition_variable wanted_;
  std::unique_ptr<Order> order_;
  bool ending_ = false;
  std::shared_ptr<const Scene> scene_;        // of the last request
  std::atomic<std::uint64_t> generation_{0};  // another one for each scene and after each cancellation
  std::thread worker_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_FRAMERENDERER_H
