/// \file
/// What the trees keep from one run to the next.
#ifndef OXECAD_VIEWER_WINDOW_KEPTTREES_H
#define OXECAD_VIEWER_WINDOW_KEPTTREES_H

#include <QJsonObject>
#include <QString>

namespace oxviewer {

class MainWindow;

/// Keeps what the user has made of the trees in a JSON file: which layers are shown and in which colours, the colours
/// of nets, how a comparison is shown, which nodes are expanded, what stands in the filter lines, and how wide the
/// columns are. Everything is kept by the nodes' names, whatever the board; names that a board does not have are passed
/// over and kept for the next one that has them.
class KeptTrees {
 public:
  /// An empty name keeps nothing.
  explicit KeptTrees(QString file);

  /// Reads the file and makes the trees as it says; a file that is missing says nothing. One that is no JSON is kept
  /// under its name with ".damaged" behind.
  void Apply(MainWindow& window);
  /// Writes the file anew, all at once or not at all. False when it cannot be written.
  bool Save(const MainWindow& window);

 private:
  QJsonObject Read() const;

  QString file_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_KEPTTREES_H
