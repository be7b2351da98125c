/// \file
/// What the trees keep from one run to the next.
#ifndef OXECAD_VIEWER_WINDOW_KEPTTREES_H
#define OXECAD_VIEWER_WINDOW_KEPTTREES_H

#include <viewer/window/KeptFile.h>

namespace oxviewer {

class MainWindow;

/// What a window's trees are like, added to what is kept of other boards' names.
QJsonObject TreesOf(const MainWindow& window, QJsonObject kept = {});
/// Makes a window's trees as they were.
void PutTrees(MainWindow& window, const QJsonObject& kept);

/// Keeps what the user has made of the trees in a JSON file: which layers are shown and in which colours, the colours
/// of nets, how a comparison is shown, which nodes are expanded, what stands in the filter lines, and how wide the
/// columns are. Everything is kept by the nodes' names, whatever the board; names that a board does not have are passed
/// over and kept for the next one that has them.
class KeptTrees {
 public:
  /// How a file that cannot be read or written is treated: KeptFile.h.
  explicit KeptTrees(KeptFile file);

  /// Reads the file and makes the trees as it says; a file that is missing says nothing.
  void Apply(MainWindow& window);
  /// Writes the file anew, with what it says of other boards' names. False when it is not written.
  bool Save(const MainWindow& window);

 private:
  KeptFile file_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_KEPTTREES_H
