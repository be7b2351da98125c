#include <tests/viewer/app/ChildProcess.h>

#include <gtest/gtest.h>
#include <tests/viewer/board/Texts.h>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace oxviewer::testing {
namespace {

std::string ContentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<char*> Pointers(const std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (const std::string& text : texts) pointers.push_back(const_cast<char*>(text.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

void Redirect(const std::string& path, int descriptor) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  if (file >= 0) dup2(file, descriptor);
}

}  // namespace

Ended RunViewer(const std::vector<std::string>& arguments, const std::vector<std::string>& environment) {
  const TemporaryFolder folder;
  std::vector<std::string> words{OXECAD_VIEWER_PROGRAM};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<std::string> variables{"HOME=" + folder.PathOf("home"), "XDG_CONFIG_HOME=" + folder.PathOf("config"),
                                     "LC_ALL=C.UTF-8", "PATH=/usr/bin:/bin"};
  // What the sanitizers were told about leaks of the window system's libraries holds for the child too.
  if (const char* options = std::getenv("LSAN_OPTIONS")) variables.push_back(std::string("LSAN_OPTIONS=") + options);
  variables.insert(variables.end(), environment.begin(), environment.end());
  std::vector<char*> argv = Pointers(words);
  std::vector<char*> envp = Pointers(variables);
  const std::string out = folder.PathOf("out");
  const std::string err = folder.PathOf("err");
  const pid_t child = fork();
  if (child == 0) {
    Redirect("/dev/null", STDIN_FILENO);
    Redirect(out, STDOUT_FILENO);
    Redirect(err, STDERR_FILENO);
    execve(argv[0], argv.data(), envp.data());
    _exit(127);
  }
  Ended ended;
  int state = 0;
  if (child > 0 && waitpid(child, &state, 0) == child) {
    ended.status = WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
  }
  ended.out = ContentOf(out);
  ended.err = ContentOf(err);
  return ended;
}

bool IsOneLine(const std::string& text) {
  return text.size() > 1 && text.back() == '\n' && std::count(text.begin(), text.end(), '\n') == 1;
}

}  // namespace oxviewer::testing
