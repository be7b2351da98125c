#include <sys/wait.h>
#include <tests/torture/ChildProcess.h>
#include <unistd.h>

#include <iostream>

namespace torture {
namespace {

bool WriteAll(int to, const std::string& text) {
  for (std::size_t at = 0; at < text.size();) {
    const ssize_t put = write(to, text.data() + at, text.size() - at);
    if (put <= 0) return false;
    at += static_cast<std::size_t>(put);
  }
  return true;
}

std::string ReadAll(int from) {
  std::string text;
  char buffer[4096];
  for (ssize_t got; (got = read(from, buffer, sizeof buffer)) > 0;) text.append(buffer, static_cast<std::size_t>(got));
  return text;
}

}  // namespace

std::vector<std::string> InChild(const std::function<std::vector<std::string>()>& work) {
  int ends[2];
  if (pipe(ends) != 0) return {"there is no pipe"};
  std::cout.flush();
  const pid_t child = fork();
  if (child < 0) return {"there is no process"};
  if (child == 0) {
    close(ends[0]);
    std::string text;
    for (const std::string& line : work()) text += line + '\n';
    _exit(WriteAll(ends[1], text) ? 0 : 1);
  }
  close(ends[1]);
  const std::string text = ReadAll(ends[0]);
  close(ends[0]);
  int status = 0;
  waitpid(child, &status, 0);
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = text.find('\n', at);
    lines.push_back(text.substr(at, end - at));
    at = end == std::string::npos ? text.size() : end + 1;
  }
  if (status != 0) lines.push_back("the process ended with status " + std::to_string(status));
  return lines;
}

}  // namespace torture
