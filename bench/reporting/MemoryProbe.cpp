#include "bench/reporting/MemoryProbe.h"

#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QHash>
#include <QStandardItemModel>

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <functional>
#include <memory>
#include <stdexcept>
#include <utility>

#include "bench/reporting/PackedNodes.h"
#include "bench/reporting/Stage.h"

namespace oxecad_bench {

namespace {

constexpr const char* kArgument = "--bytes-per-node";

/// Holds nodes below one root until it ends.
using Holder = std::shared_ptr<void>;

// Texts are made anew for each holder: those of the data would be shared.
QString NewText(const std::wstring& label) { return QString::fromStdWString(label); }

Holder HoldInStandIn(const Nets& nets) {
  auto tree = std::make_shared<NetTree>();
  for (std::size_t net = 0; net < nets.names.size(); ++net) {
    tree->BaseTree::AddNode(nets.names[net].c_str(), nets.labels[net].c_str(), "root", "net", L"", 1, 0, 0, nullptr);
  }
  return tree;
}

Holder HoldInModel(const Nets& nets) {
  struct Model {
    QStandardItemModel items;
    QHash<QString, QStandardItem*> names;
  };
  auto model = std::make_shared<Model>();
  auto* const root = new QStandardItem(QStringLiteral("root"));
  model->items.appendRow(root);
  for (std::size_t net = 0; net < nets.names.size(); ++net) {
    auto* const item = new QStandardItem(NewText(nets.labels[net]));
    root->appendRow(item);
    model->names.insert(QString::fromStdString(nets.names[net]), item);
  }
  return model;
}

/// What a QAbstractItemModel of one's own would hold.
Holder HoldInOwnModel(const Nets& nets) {
  struct Node {
    QString name;
    QString label;
    Node* parent = nullptr;
    int row = 0;
    std::vector<std::unique_ptr<Node>> children;
  };
  struct Model {
    Node root;
    QHash<QString, Node*> names;
  };
  auto model = std::make_shared<Model>();
  for (std::size_t net = 0; net < nets.names.size(); ++net) {
    auto node = std::make_unique<Node>();
    node->name = QString::fromStdString(nets.names[net]);
    node->label = NewText(nets.labels[net]);
    node->parent = &model->root;
    node->row = static_cast<int>(net);
    model->names.insert(node->name, node.get());
    model->root.children.push_back(std::move(node));
  }
  return model;
}

Holder HoldPacked(const Nets& nets) {
  auto nodes = std::make_shared<PackedNodes>();
  nodes->Add("root", L"root", 0);
  for (std::size_t net = 0; net < nets.names.size(); ++net) nodes->Add(nets.names[net], nets.labels[net], 0);
  return nodes;
}

const std::vector<std::pair<std::string, std::function<Holder(const Nets&)>>>& Holders() {
  static const std::vector<std::pair<std::string, std::function<Holder(const Nets&)>>> holders = {
      {"stand-in", HoldInStandIn},
      {"QStandardItemModel", HoldInModel},
      {"own Qt model", HoldInOwnModel},
      {"packed", HoldPacked}};
  return holders;
}

std::size_t ResidentBytes() {
  std::ifstream pages("/proc/self/statm");
  std::size_t all = 0;
  std::size_t resident = 0;
  pages >> all >> resident;
  return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

/// The first line that the program prints.
std::string OutputOf(const std::vector<std::string>& command) {
  int ends[2];
  if (::pipe(ends) != 0) throw std::runtime_error("no pipe can be made");
  const pid_t child = ::fork();
  if (child < 0) throw std::runtime_error("no process can be started");
  if (child == 0) {
    ::dup2(ends[1], STDOUT_FILENO);
    std::vector<char*> arguments;
    for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    ::execv(arguments.front(), arguments.data());
    ::_exit(127);
  }
  ::close(ends[1]);
  std::string output;
  char part[256];
  for (ssize_t size = 0; (size = ::read(ends[0], part, sizeof part)) > 0;) {
    output.append(part, static_cast<std::size_t>(size));
  }
  ::close(ends[0]);
  int status = 0;
  if (::waitpid(child, &status, 0) != child || status != 0) throw std::runtime_error("measuring memory failed");
  return output.substr(0, output.find('\n'));
}

std::size_t NumberIn(const std::string& text) {
  std::size_t number = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || stop != text.data() + text.size()) throw std::runtime_error(text + ": expected a number");
  return number;
}

}  // namespace

const std::vector<std::string>& ProbeKinds() {
  static const std::vector<std::string> kinds = [] {
    std::vector<std::string> names;
    for (const auto& [name, hold] : Holders()) names.push_back(name);
    return names;
  }();
  return kinds;
}

double BytesPerNode(const std::string& program, const std::string& kind, std::size_t count) {
  const std::string bytes = OutputOf({program, kArgument, kind, std::to_string(count)});
  return static_cast<double>(NumberIn(bytes)) / static_cast<double>(count);
}

bool IsProbe(const std::vector<std::string>& arguments) {
  return arguments.size() == 3 && arguments.front() == kArgument;
}

int RunProbe(const std::vector<std::string>& arguments) {
  for (const auto& [name, hold] : Holders()) {
    if (name != arguments[1]) continue;
    const Nets nets(NumberIn(arguments[2]));
    ::malloc_trim(0);
    const std::size_t before = ResidentBytes();
    const Holder holder = hold(nets);
    ::malloc_trim(0);  // what is free counts for none
    std::printf("%zu\n", ResidentBytes() - before);
    return 0;
  }
  return 1;
}

}  // namespace oxecad_bench
