#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <tests/viewer/app/ChildProcess.h>
#include <tests/viewer/board/Texts.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace oxviewer::testing {
namespace {

namespace fs = std::filesystem;

const char* const kBoard =
    "(kicad_pcb (version 20211014) (generator test) (layers (0 \"F.Cu\" signal) (31 \"B.Cu\" signal))\n"
    "  (net 0 \"\") (net 1 \"GND\"))\n";
const char* const kOtherBoard =
    "(kicad_pcb (version 20211014) (generator test) (layers (0 \"F.Cu\" signal) (31 \"B.Cu\" signal))\n"
    "  (net 0 \"\") (net 1 \"VCC\"))\n";

std::string ContentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class ProgramTest : public ::testing::Test {
 protected:
  // One line on standard error that begins as given, nothing on standard output, and status 2.
  static void ExpectRefusal(const Ended& ended, const std::string& begin) {
    EXPECT_EQ(ended.status, 2);
    EXPECT_EQ(ended.out, "");
    EXPECT_TRUE(IsOneLine(ended.err)) << ended.err;
    EXPECT_EQ(ended.err.substr(0, begin.size()), begin) << ended.err;
  }

  TemporaryFolder folder_;
  std::string board_ = folder_.Write("a.kicad_pcb", kBoard);
  std::string other_ = folder_.Write("b.kicad_pcb", kOtherBoard);
};

TEST_F(ProgramTest, HelpNamesEveryOption) {
  const Ended ended = RunViewer({"--help"});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.err, "");
  for (const char* option : {"--compare", "--report", "--dump", "--screenshot", "--size", "--help", "--version"}) {
    EXPECT_NE(ended.out.find(option), std::string::npos) << option;
  }
}

TEST_F(ProgramTest, VersionIsOneLine) {
  const Ended ended = RunViewer({"--version"});
  EXPECT_EQ(ended.status, 0);
  EXPECT_TRUE(IsOneLine(ended.out)) << ended.out;
  EXPECT_EQ(ended.out.substr(0, 9), "oxviewer ");
}

TEST_F(ProgramTest, DumpWritesEveryTree) {
  const Ended ended = RunViewer({"--dump", board_});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.err, "");
  std::size_t at = 0;
  for (const char* header : {"# layers\n", "\n# nets\n", "\n# components\n", "\n# objects\n"}) {
    at = ended.out.find(header, at);
    ASSERT_NE(at, std::string::npos) << header;
  }
  EXPECT_EQ(ended.out.find("# compare"), std::string::npos);
}

TEST_F(ProgramTest, StatusTellsWhetherBoardsDiffer) {
  EXPECT_EQ(RunViewer({"--dump", board_, "--compare", board_}).status, 0);
  EXPECT_EQ(RunViewer({"--dump", board_, "--compare", other_}).status, 1);
  EXPECT_EQ(RunViewer({"--dump", board_}).status, 0);
}

TEST_F(ProgramTest, ReportIsAFileAndNothingElse) {
  const std::string report = folder_.PathOf("report.json");
  const Ended ended = RunViewer({board_, "--compare", other_, "--report", report});
  EXPECT_EQ(ended.status, 1);
  EXPECT_EQ(ended.out, "");
  EXPECT_EQ(ended.err, "");
  const std::string text = ContentOf(report);
  EXPECT_NE(text.find("\"equal\": false"), std::string::npos) << text;
  EXPECT_NE(text.find("a.kicad_pcb"), std::string::npos) << text;
  EXPECT_EQ(RunViewer({board_, "--compare", board_, "--report", report}).status, 0);
  EXPECT_NE(ContentOf(report).find("\"equal\": true"), std::string::npos);
}

TEST_F(ProgramTest, ReportThatCannotBeWrittenIsAnError) {
  ExpectRefusal(RunViewer({board_, "--compare", other_, "--report", folder_.PathOf("none/r.json")}), "oxviewer: ");
}

TEST_F(ProgramTest, PictureHasTheSizeAskedFor) {
  const std::string picture = folder_.PathOf("p.png");
  const Ended ended = RunViewer({board_, "--screenshot", picture, "--size", "700x500"});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.out, "");
  EXPECT_EQ(ended.err, "");
  const std::string bytes = ContentOf(picture);
  ASSERT_GT(bytes.size(), 24u);
  EXPECT_EQ(bytes.substr(1, 3), "PNG");
  EXPECT_EQ(bytes.substr(16, 8), std::string("\0\0\x02\xBC\0\0\x01\xF4", 8));  // 700 and 500, high byte first
}

TEST_F(ProgramTest, PictureIsTheSameEachTime) {
  const std::string first = folder_.PathOf("1.png");
  const std::string second = folder_.PathOf("2.png");
  ASSERT_EQ(RunViewer({board_, "--screenshot", first}).status, 0);
  ASSERT_EQ(RunViewer({board_, "--screenshot", second},
                      {"TZ=Asia/Tokyo", "LANG=de_DE.UTF-8", "QT_SCALE_FACTOR=2", "QT_FONT_DPI=200"})
                .status,
            0);
  EXPECT_EQ(ContentOf(first), ContentOf(second));
}

TEST_F(ProgramTest, PictureThatCannotBeWrittenIsAnError) {
  const std::string picture = folder_.PathOf("none/p.png");
  ExpectRefusal(RunViewer({board_, "--screenshot", picture}), "oxviewer: " + picture + ": ");
}

TEST_F(ProgramTest, PictureGoesIntoAPipe) {
  const std::string pipe = folder_.PathOf("pipe");
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  const int reader = ::open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
  ASSERT_GE(reader, 0);
  const Ended ended = RunViewer({board_, "--screenshot", pipe, "--size", "320x240"});
  EXPECT_EQ(ended.status, 0) << ended.err;
  EXPECT_TRUE(fs::is_fifo(pipe));
  std::string begin(8, ' ');
  EXPECT_EQ(::read(reader, begin.data(), begin.size()), 8);
  EXPECT_EQ(begin, "\x89PNG\r\n\x1A\n");
  ::close(reader);
}

TEST_F(ProgramTest, WrongArgumentsAreOneLine) {
  ExpectRefusal(RunViewer({"--foo"}), "oxviewer: unknown option \"--foo\"");
  ExpectRefusal(RunViewer({board_, other_}), "oxviewer: one board at a time");
  ExpectRefusal(RunViewer({board_, "--size"}), "oxviewer: option --size needs a value");
  ExpectRefusal(RunViewer({"--two\nlines\x1b[31m"}), "oxviewer: unknown option \"--two\\nlines\\x1b[31m\"");
}

TEST_F(ProgramTest, BadBoardIsOneLineWithItsPlace) {
  const std::string broken =
      folder_.Write("broken.kicad_pcb", "(kicad_pcb\n  (net 1 \"GND\")\n  (segment (start x 1)))\n");
  for (const std::vector<std::string>& how :
       {std::vector<std::string>{"--dump"}, {"--screenshot", folder_.PathOf("p")}, {}}) {
    std::vector<std::string> arguments = how;
    arguments.push_back(broken);
    ExpectRefusal(RunViewer(arguments), "oxviewer: " + broken + ":3:");
  }
  EXPECT_FALSE(fs::exists(folder_.PathOf("p")));
}

TEST_F(ProgramTest, BadSecondBoardIsNamed) {
  const std::string empty = folder_.Write("empty.kicad_pcb", "");
  ExpectRefusal(RunViewer({"--dump", board_, "--compare", empty}), "oxviewer: " + empty + ":");
}

TEST_F(ProgramTest, MissingBoardIsOneLine) {
  const std::string missing = folder_.PathOf("missing.kicad_pcb");
  ExpectRefusal(RunViewer({"--dump", missing}), "oxviewer: " + missing + ": ");
  ExpectRefusal(RunViewer({missing}), "oxviewer: " + missing + ": ");
  ExpectRefusal(RunViewer({"--dump", folder_.PathOf(".")}), "oxviewer: ");
}

TEST_F(ProgramTest, WithoutADisplayItSaysSo) {
  ExpectRefusal(RunViewer({board_}), "oxviewer: no window can be opened: ");
  ExpectRefusal(RunViewer({}), "oxviewer: no window can be opened: ");
}

TEST_F(ProgramTest, WindowSystemThatDoesNotAnswerIsOneLine) {
  ExpectRefusal(RunViewer({board_}, {"DISPLAY=:4711"}), "oxviewer: no window can be opened: ");
  ExpectRefusal(RunViewer({board_}, {"QT_QPA_PLATFORM=nosuchplatform"}), "oxviewer: no window can be opened: ");
}

TEST_F(ProgramTest, PictureNeedsNoneOfTheWindowSystemsSettings) {
  const Ended ended = RunViewer({board_, "--screenshot", folder_.PathOf("p.png")},
                                {"DISPLAY=:4711", "QT_QPA_PLATFORM=nosuchplatform", "QT_STYLE_OVERRIDE=nosuchstyle"});
  EXPECT_EQ(ended.status, 0);
  EXPECT_EQ(ended.err, "");
}

TEST_F(ProgramTest, DumpToAFullDeviceIsAnError) {
  if (!fs::exists("/dev/full")) GTEST_SKIP() << "no /dev/full";
  const Ended ended = RunViewer({"--version"});
  ASSERT_EQ(ended.status, 0);
  const std::string command =
      std::string("'") + OXECAD_VIEWER_PROGRAM + "' --dump '" + board_ + "' > /dev/full 2>" + folder_.PathOf("err");
  EXPECT_NE(std::system(command.c_str()), 0);
  EXPECT_EQ(ContentOf(folder_.PathOf("err")), "oxviewer: standard output cannot be written\n");
}

std::vector<std::string> DemoBoards() {
  std::vector<std::string> boards;
  std::error_code error;
  for (fs::recursive_directory_iterator at(OXECAD_DEMO_BOARDS, error), end; !error && at != end; at.increment(error)) {
    if (at->path().extension() == ".kicad_pcb") boards.push_back(at->path().string());
  }
  std::sort(boards.begin(), boards.end());
  return boards;
}

TEST(DemoBoardsDump, HasEveryNetAndComponentOnce) {
  const std::vector<std::string> boards = DemoBoards();
  ASSERT_FALSE(boards.empty()) << "install the package kicad-demos";
  for (const std::string& path : boards) {
    SCOPED_TRACE(path);
    const auto board = ReadBoard(path);
    ASSERT_TRUE(board);
    const Ended ended = RunViewer({"--dump", path});
    EXPECT_EQ(ended.status, 0);
    EXPECT_EQ(ended.err, "");
    const auto count = [&](const std::string& part) {
      std::size_t found = 0;
      for (std::size_t at = ended.out.find(part); at != std::string::npos; at = ended.out.find(part, at + 1)) ++found;
      return found;
    };
    EXPECT_EQ(count("\ttype=net\t"), board->nets.size());
    EXPECT_EQ(count("\ttype=component\t"), board->components.size());
    EXPECT_EQ(count("\ttype=part\t"), board->components.size());
    EXPECT_EQ(count("\ttype=netclass\t"), board->netClasses.size());
    EXPECT_NE(ended.out.find("Components (" + std::to_string(board->components.size()) + ")\t"), std::string::npos);
    for (const Net& net : board->nets) {
      EXPECT_NE(ended.out.find("\n  " + net.name + "\ttype=net\t"), std::string::npos) << net.name;
    }
  }
}

}  // namespace
}  // namespace oxviewer::testing
