#include <viewer/app/CommandLine.h>

#include <charconv>
#include <utility>

#include <uicomps/Version.h>

namespace oxviewer {
namespace {

std::string Quoted(std::string_view text) { return '"' + std::string(text) + '"'; }

bool ParseSide(std::string_view text, int& side) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), side);
  return error == std::errc() && end == text.data() + text.size();
}

bool ParseSize(std::string_view text, PictureSize& size) {
  const std::size_t cross = text.find('x');
  return cross != std::string_view::npos && ParseSide(text.substr(0, cross), size.width) &&
         ParseSide(text.substr(cross + 1), size.height) && size.width >= PictureSize::kMinWidth &&
         size.height >= PictureSize::kMinHeight && size.width <= PictureSize::kMaxSide &&
         size.height <= PictureSize::kMaxSide;
}

// Takes the arguments one by one. The first thing that is wrong stays in `error_`.
class Parser {
 public:
  explicit Parser(const std::vector<std::string_view>& arguments) : arguments_(arguments) {}

  std::variant<Options, std::string> Parse() {
    while (at_ < arguments_.size() && error_.empty() && !options_.help && !options_.version) {
      const std::string_view argument = arguments_[at_++];
      if (onlyFiles_ || argument.size() < 2 || argument[0] != '-') {
        TakeBoard(argument);
      } else if (argument == "--") {
        onlyFiles_ = true;
      } else {
        TakeOption(argument);
      }
    }
    if (error_.empty() && !options_.help && !options_.version) CheckTogether();
    if (!error_.empty()) return error_ + " (see --help)";
    return options_;
  }

 private:
  void TakeBoard(std::string_view file) {
    if (file.empty()) {
      error_ = "the name of the board is empty";
    } else if (!options_.board.empty()) {
      error_ = "one board at a time: " + Quoted(options_.board) + " and " + Quoted(file);
    } else {
      options_.board = file;
    }
  }

  void TakeOption(std::string_view argument) {
    const std::size_t equals = argument.starts_with("--") ? argument.find('=') : std::string_view::npos;
    name_ = argument.substr(0, equals);
    value_.reset();
    if (equals != std::string_view::npos) value_ = argument.substr(equals + 1);
    if (name_ == "--help" || name_ == "-h") {
      TakeFlag(options_.help);
    } else if (name_ == "--version") {
      TakeFlag(options_.version);
    } else if (name_ == "--dump") {
      TakeFlag(options_.dump);
    } else if (name_ == "--compare") {
      TakeFile(options_.compare);
    } else if (name_ == "--report") {
      TakeFile(options_.report);
    } else if (name_ == "--screenshot") {
      TakeFile(options_.screenshot);
    } else if (name_ == "--size") {
      TakeSize();
    } else {
      error_ = "unknown option " + Quoted(name_);
    }
  }

  void TakeFlag(bool& flag) {
    if (value_) error_ = "option " + std::string(name_) + " takes no value";
    flag = true;
  }

  // The value behind '=', or the next argument unless that is an option itself.
  bool TakeValue() {
    if (!value_ && at_ < arguments_.size() && !arguments_[at_].starts_with("--")) value_ = arguments_[at_++];
    if (!value_ || value_->empty()) error_ = "option " + std::string(name_) + " needs a value";
    return error_.empty();
  }

  void TakeFile(std::optional<std::string>& file) {
    if (!TakeValue()) return;
    if (file) error_ = "option " + std::string(name_) + " is given twice";
    file = *value_;
  }

  void TakeSize() {
    if (!TakeValue()) return;
    if (std::exchange(sizeGiven_, true)) error_ = "option --size is given twice";
    if (!ParseSize(*value_, options_.size)) {
      error_ = "option --size needs a width and a height such as 1280x800, from " +
               std::to_string(PictureSize::kMinWidth) + "x" + std::to_string(PictureSize::kMinHeight) + " to " +
               std::to_string(PictureSize::kMaxSide) + "x" + std::to_string(PictureSize::kMaxSide) + ", not " +
               Quoted(*value_);
    }
  }

  void CheckTogether() {
    if (options_.board.empty() && (!options_.IsInteractive() || options_.compare || sizeGiven_)) {
      error_ = "no board given";
    } else if (options_.report && !options_.compare) {
      error_ = "option --report needs --compare";
    } else if (sizeGiven_ && !options_.screenshot) {
      error_ = "option --size needs --screenshot";
    }
  }

  const std::vector<std::string_view>& arguments_;
  std::size_t at_ = 0;
  bool onlyFiles_ = false;
  bool sizeGiven_ = false;
  std::string_view name_;
  std::optional<std::string_view> value_;
  Options options_;
  std::string error_;
};

}  // namespace

std::variant<Options, std::string> ParseCommandLine(const std::vector<std::string_view>& arguments) {
  return Parser(arguments).Parse();
}

std::string HelpText() {
  return R"(Usage: oxviewer [OPTION]... [BOARD]
Shows the layers, nets and components of a board file (.kicad_pcb) in trees beside a
view of the board.

  --compare BOARD2   compare the board with another one
  --report FILE      with --compare: write what differs to FILE, as JSON, and exit
  --dump             write all trees to standard output and exit
  --screenshot FILE  write a picture of the window to FILE (PNG) and exit;
                     needs no display
  --size WxH         width and height of the picture in pixels (1280x800)
  --help             show this text and exit
  --version          show the version and exit

With --compare and --dump or --report the exit status is 0 when the boards are equal
and 1 when they differ. It is 2 when something went wrong.
)";
}

std::string VersionText() {
  return "oxviewer " + std::to_string(OXECAD_UI_VERSION_MAJOR) + "." + std::to_string(OXECAD_UI_VERSION_MINOR) + "." +
         std::to_string(OXECAD_UI_VERSION_PATCH) + "\n";
}

}  // namespace oxviewer
