#include <viewer/app/OutputFile.h>
#include <viewer/board/RegularFile.h>
#include <viewer/window/KeptFile.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <cstdint>
#include <utility>

namespace oxviewer {
namespace {

constexpr std::uint64_t kLargestFile = std::uint64_t{64} << 20;

// What is wrong with a text that should hold an object.
std::string ReasonOf(const QJsonParseError& error) {
  if (error.error == QJsonParseError::NoError) return "expected a JSON object, found something else";
  return "expected valid JSON: " + error.errorString().toStdString() + " at offset " + std::to_string(error.offset);
}

}  // namespace

KeptFile::KeptFile(std::string path, Report report, oxk::FileOperations& operations)
    : path_(std::move(path)), report_(std::move(report)), operations_(&operations) {}

QJsonObject KeptFile::Read() {
  inTheWay_ = false;
  if (IsNone()) return {};
  std::string text;
  const FileStatus status = ReadRegularFile(path_, kLargestFile, text);
  if (status.kind == FileStatus::Kind::Missing) return {};
  if (status.kind == FileStatus::Kind::Failed) {
    PutAside(status.message);
    return {};
  }
  QJsonParseError error{};
  const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(text), &error);
  if (!document.isObject()) PutAside(ReasonOf(error));
  return document.object();
}

void KeptFile::PutAside(const std::string& reason) {
  std::string outcome;
  inTheWay_ = !oxk::MoveAside(*operations_, path_, outcome);
  if (outcome.empty()) return;
  Tell(reason + "; " + outcome + (inTheWay_ ? "; what is made of the trees is not saved" : ""));
}

bool KeptFile::Write(const QJsonObject& content) {
  if (IsNone()) return true;
  if (inTheWay_) return false;
  QDir().mkpath(QFileInfo(QFile::decodeName(path_.c_str())).path());
  const auto error = WriteFile(path_, QJsonDocument(content).toJson().toStdString());
  if (!error) return true;
  Tell("not saved: " + error->message);
  return false;
}

void KeptFile::Tell(const std::string& what) {
  const std::string line = path_ + ": " + what;
  if (std::exchange(told_, line) != line && report_) report_(line);
}

}  // namespace oxviewer
