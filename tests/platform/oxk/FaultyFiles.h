/// \file
/// File operations that fail, do half of their work, or kill the process, at a step that a test chooses.
#ifndef OXECAD_TESTS_PLATFORM_OXK_FAULTYFILES_H
#define OXECAD_TESTS_PLATFORM_OXK_FAULTYFILES_H

#include <oxk/FileOperations.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

enum class Step {
  OpenForReading,
  OpenForWriting,
  OpenFolder,
  Read,
  Write,
  Flush,
  Close,
  Rename,
  RenameToNew,
  Remove,
  MakeFolder
};

/// Works as the system does until it is told otherwise. Every step is counted, the failed ones too.
class FaultyFiles : public oxk::FileOperations {
 public:
  /// The step with this number (from 1) fails with this error.
  void FailAt(int number, int error) {
    m_fault = [number, error](Step, int now) { return now == number ? error : 0; };
  }
  /// It and all later ones fail.
  void FailFrom(int number, int error) {
    m_fault = [number, error](Step, int now) { return now >= number ? error : 0; };
  }
  /// Every step of a kind fails.
  void FailAll(Step kind, int error) {
    m_fault = [kind, error](Step step, int) { return step == kind ? error : 0; };
  }
  /// The process is killed instead of the step with this number.
  void KillBefore(int number) {
    m_fault = [number](Step, int now) {
      if (now == number) ::kill(::getpid(), SIGKILL);
      return 0;
    };
  }
  /// The process is killed when this many bytes have been written.
  void KillAfterBytes(std::size_t bytes) { m_bytesToKill = static_cast<std::ptrdiff_t>(bytes); }
  /// Each write and read does no more than this many bytes, and is interrupted before each.
  void Crawl(std::size_t bytes) { m_most = bytes; }
  void Mend() { m_fault = nullptr; }

  /// The steps so far, in order.
  const std::vector<Step>& Steps() const { return m_steps; }

  int OpenForReading(const std::string& path) override {
    return Fails(Step::OpenForReading) ? -1 : FileOperations::OpenForReading(path);
  }
  int OpenForWriting(const std::string& path) override {
    return Fails(Step::OpenForWriting) ? -1 : FileOperations::OpenForWriting(path);
  }
  int OpenFolder(const std::string& path) override {
    return Fails(Step::OpenFolder) ? -1 : FileOperations::OpenFolder(path);
  }
  ssize_t Read(int file, void* buffer, std::size_t size) override {
    if (Fails(Step::Read) || Interrupted()) return -1;
    return FileOperations::Read(file, buffer, Limited(size));
  }
  ssize_t Write(int file, const void* data, std::size_t size) override {
    if (Fails(Step::Write) || Interrupted()) return -1;
    if (m_bytesToKill >= 0) {
      if (size >= static_cast<std::size_t>(m_bytesToKill)) {
        if (FileOperations::Write(file, data, static_cast<std::size_t>(m_bytesToKill)) >= 0)
          ::kill(::getpid(), SIGKILL);
      }
      m_bytesToKill -= static_cast<std::ptrdiff_t>(size);
    }
    return FileOperations::Write(file, data, Limited(size));
  }
  int Flush(int file) override { return Fails(Step::Flush) ? -1 : FileOperations::Flush(file); }
  /// Closes also where it says that it failed, as the system does.
  int Close(int file) override {
    const bool fails = Fails(Step::Close);
    const int error = errno;
    const int result = FileOperations::Close(file);
    if (fails) errno = error;
    return fails ? -1 : result;
  }
  int Rename(const std::string& from, const std::string& to) override {
    return Fails(Step::Rename) ? -1 : FileOperations::Rename(from, to);
  }
  int RenameToNew(const std::string& from, const std::string& to) override {
    return Fails(Step::RenameToNew) ? -1 : FileOperations::RenameToNew(from, to);
  }
  int Remove(const std::string& path) override { return Fails(Step::Remove) ? -1 : FileOperations::Remove(path); }
  int MakeFolder(const std::string& path) override {
    return Fails(Step::MakeFolder) ? -1 : FileOperations::MakeFolder(path);
  }

 private:
  bool Fails(Step step) {
    m_steps.push_back(step);
    const int error = m_fault ? m_fault(step, static_cast<int>(m_steps.size())) : 0;
    if (error) errno = error;
    return error != 0;
  }
  bool Interrupted() {
    m_interrupted = m_most != 0 && !m_interrupted;
    if (m_interrupted) errno = EINTR;
    return m_interrupted;
  }
  std::size_t Limited(std::size_t size) const { return m_most && m_most < size ? m_most : size; }

  std::vector<Step> m_steps;
  std::function<int(Step, int)> m_fault;  // the error of a step, 0: none
  std::ptrdiff_t m_bytesToKill = -1;
  std::size_t m_most = 0;
  bool m_interrupted = false;
};

#endif
