/// \file
/// A JSON file that the program keeps for itself.
#ifndef OXECAD_VIEWER_WINDOW_KEPTFILE_H
#define OXECAD_VIEWER_WINDOW_KEPTFILE_H

#include <QJsonObject>

#include <functional>
#include <string>

#include <oxk/FileOperations.h>

namespace oxviewer {

/// Reads and writes a JSON object. Nothing that stands in the file's place is ever lost: what cannot be read, or is no
/// JSON object, is moved to the file's name with ".damaged-1" behind, or the next number that is free, as preferences
/// are; where it cannot be moved it stays, and nothing is written. The user is told once of each such thing.
class KeptFile {
 public:
  /// Takes one line: the file, and what is wrong with it.
  using Report = std::function<void(const std::string& line)>;

  /// An empty path keeps nothing and reports nothing. `operations`, of which only `RenameToNew` is used, must outlive
  /// this.
  KeptFile(std::string path, Report report, oxk::FileOperations& operations = oxk::FileOperations::System());

  bool IsNone() const { return path_.empty(); }

  /// What the file says; nothing where there is none, or none that can be read.
  QJsonObject Read();
  /// Writes the file anew and makes the folders that it lies in: all at once, or not at all, and then it says false.
  /// Refuses to write over what the last `Read` could neither read nor move.
  bool Write(const QJsonObject& content);

 private:
  void PutAside(const std::string& reason);
  void Tell(const std::string& what);

  std::string path_;
  Report report_;
  oxk::FileOperations* operations_;
  bool inTheWay_ = false;  // something unreadable has stayed in the file's place
  std::string told_;
};

}  // namespace oxviewer

#endif  // OXECAD_VIEWER_WINDOW_KEPTFILE_H
