// Measures what people would use instead and this project's own, in turn, and prints the table.
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/reporting/Curves.h"
#include "bench/reporting/Json.h"
#include "bench/reporting/MemoryProbe.h"
#include "bench/reporting/Options.h"
#include "bench/reporting/Page.h"
#include "bench/reporting/Rows.h"
#include "bench/reporting/Table.h"

namespace {

using namespace oxecad_bench;

constexpr int kFailure = 1;
constexpr int kWrongArguments = 2;

void Say(const std::string& text) {
  std::fputs(text.c_str(), stderr);
  std::fflush(stderr);
}

// The window system's own remarks are of no use here; what it dies of is.
void TakeMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
  if (type != QtCriticalMsg && type != QtFatalMsg) return;
  Say(text.toStdString() + '\n');
  if (type == QtFatalMsg) std::_Exit(kFailure);
}

/// A folder for files that are measured with, for as long as this lives.
class ScratchFolder {
 public:
  ScratchFolder() : path_((std::filesystem::temp_directory_path() / "oxecad-report-XXXXXX").string()) {
    if (::mkdtemp(path_.data()) == nullptr) throw std::runtime_error("no temporary folder can be made");
  }
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

std::string NamesOf(const std::vector<int>& rows) {
  std::string names;
  for (const int row : rows) names += (names.empty() ? "" : ", ") + std::to_string(row);
  return names;
}

void MeasureInChild(const RowMeasurement& rows, const Settings& settings, const std::string& file) {
  int argc = 1;
  char name[] = "bench_report";
  char* argv[] = {name, nullptr};
  qInstallMessageHandler(&TakeMessage);
  const QApplication application(argc, argv);
  WriteText(file, JsonOf(rows.measure(settings)));
}

/// Measures in a process of its own: what other rows left of the memory would be a part of the figures.
Figures Measure(const RowMeasurement& rows, const Settings& settings) {
  const std::string file = settings.folder + "/figures.json";
  const pid_t child = ::fork();
  if (child < 0) throw std::runtime_error("no process can be started");
  if (child == 0) {
    try {
      MeasureInChild(rows, settings, file);
    } catch (const std::exception& error) {
      Say(std::string(error.what()) + '\n');
      std::_Exit(kFailure);
    }
    std::_Exit(0);
  }
  int status = 0;
  if (::waitpid(child, &status, 0) != child || status != 0) {
    throw std::runtime_error("row " + NamesOf(rows.rows) + " could not be measured");
  }
  return FiguresIn(ReadText(file));
}

Figures MeasureRows(const Options& options, const Settings& settings) {
  Figures figures;
  for (const RowMeasurement& each : AllRows()) {
    const bool wanted = options.rows.empty() || std::any_of(each.rows.begin(), each.rows.end(),
                                                            [&](int row) { return options.rows.count(row) != 0; });
    if (!wanted) continue;
    Say("Measuring row " + NamesOf(each.rows) + " ...\n");
    for (Figure& figure : Measure(each, settings)) {
      if (options.rows.empty() || options.rows.count(figure.row) != 0) figures.push_back(std::move(figure));
    }
  }
  return figures;
}

/// The picture lies beside the page.
void WritePage(const Options& options, const Figures& figures) {
  std::string page = WithSection(ReadText(options.page), "machine", MachineLine());
  page = WithSection(page, "figures", TableOf(figures));
  Say("Measuring how costs grow ...\n");
  const Curves curves = MeasureCurves(options.quick);
  page = WithSection(page, "curves", TableOf(curves));
  WriteText(std::filesystem::path(options.page).replace_extension(".svg").string(), PictureOf(curves));
  WriteText(options.page, page);
}

int Report(const Options& options, const std::string& program) {
  const ScratchFolder folder;
  const Settings settings{options.quick, program, folder.Path()};
  const Figures figures = MeasureRows(options, settings);
  std::fputs(TableOf(figures).c_str(), stdout);
  std::fflush(stdout);
  if (!options.json.empty()) WriteText(options.json, JsonOf(figures));
  if (!options.page.empty()) WritePage(options, figures);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (IsProbe(arguments)) return RunProbe(arguments);
    const auto parsed = ParseOptions(arguments);
    if (const auto* error = std::get_if<std::string>(&parsed)) {
      Say(*error + '\n');
      return kWrongArguments;
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    return Report(std::get<Options>(parsed), "/proc/self/exe");
  } catch (const std::exception& error) {
    Say(std::string(error.what()) + '\n');
    return kFailure;
  }
}
