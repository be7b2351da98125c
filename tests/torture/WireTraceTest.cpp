// What the library asks of the toolkit is the same in every build: with and without optimisation, sanitizers, coverage.

#include <gtest/gtest.h>
#include <tests/support/CallText.h>
#include <tests/torture/ChildProcess.h>
#include <tests/torture/Scenarios.h>
#include <uiox/Backend.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <string>

namespace torture {
namespace {

constexpr const char* kExpectedFile = OXECAD_WIRE_TRACES;
constexpr const char* kLogFolder = OXECAD_WIRE_TRACE_LOGS;

/// Writes each call as one line before it goes on to the toolkit that was there.
class Tracer : public uiox::Backend {
 public:
  Tracer() : before_(uiox::SetBackend(this)) {}
  ~Tracer() override { uiox::SetBackend(before_); }

  int Handle(uiox::Call& call) override {
    test_support::CallText text(call, names_);
    const std::size_t place = lines_.size();
    lines_.emplace_back();  // calls that callbacks make during this one come after it
    const int result = before_->Handle(call);
    lines_[place] = text.Finish(result);
    return result;
  }

  const std::vector<std::string>& Lines() const { return lines_; }

 private:
  uiox::Backend* const before_;
  // Which addresses are used again is up to the allocator.
  test_support::PointerNames names_{test_support::PointerNames::AllAlike};
  std::vector<std::string> lines_;
};

/// The calls of a scenario in which nothing goes wrong, in a process that has played none before.
std::vector<std::string> TraceOf(const Scenario& scenario) {
  return InChild([&] {
    std::vector<StepRecord> records;
    Stage stage({}, records);
    Tracer tracer;
    scenario.play(stage);
    return tracer.Lines();
  });
}

/// FNV-1a of the lines, and how many there are.
std::string DigestOf(const std::vector<std::string>& lines) {
  std::uint64_t hash = 0xCBF29CE484222325u;
  const auto take = [&](char c) { hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3u; };
  for (const std::string& line : lines) {
    for (const char c : line) take(c);
    take('\n');
  }
  char text[64];
  std::snprintf(text, sizeof text, "%zu calls %016llx", lines.size(), static_cast<unsigned long long>(hash));
  return text;
}

using Digests = std::map<std::string, std::string>;

Digests ReadExpected() {
  Digests expected;
  std::ifstream file(kExpectedFile);
  for (std::string name, digest; file >> name && std::getline(file >> std::ws, digest);) expected[name] = digest;
  return expected;
}

void WriteExpected(const Digests& digests) {
  std::ofstream file(kExpectedFile);
  for (const auto& [name, digest] : digests) file << name << ' ' << digest << '\n';
  EXPECT_TRUE(file.flush()) << kExpectedFile << " cannot be written";
}

std::string WriteLog(const std::string& name, const std::vector<std::string>& lines) {
  const std::string path = std::string(kLogFolder) + "/wire_trace_" + name + ".txt";
  std::ofstream file(path);
  for (const std::string& line : lines) file << line << '\n';
  return file.flush() ? path : path + " (which cannot be written)";
}

bool IsRenewal() {
  const char* wanted = std::getenv("OXECAD_RENEW_WIRE_TRACES");
  return wanted && *wanted && std::string(wanted) != "0";
}

TEST(WireTraces, AreThoseOfEveryOtherBuild) {
  const Digests expected = ReadExpected();
  Digests digests;
  for (const Scenario& scenario : AllScenarios()) {
    const std::vector<std::string> lines = TraceOf(scenario);
    const std::string digest = digests[scenario.name] = DigestOf(lines);
    if (IsRenewal()) {
      WriteLog(scenario.name, lines);
      continue;
    }
    const auto known = expected.find(scenario.name);
    const std::string wanted = known != expected.end() ? known->second : "nothing";
    EXPECT_EQ(digest, wanted) << "The scenario " << scenario.name << " asks the toolkit for something else; its calls "
                              << "are in " << WriteLog(scenario.name, lines) << ".\nIf this is wanted, renew "
                              << kExpectedFile
                              << ":\n  OXECAD_RENEW_WIRE_TRACES=1 ctest --preset release -R WireTraces";
  }
  if (IsRenewal()) return WriteExpected(digests);
  for (const auto& [name, digest] : expected) {
    EXPECT_EQ(digests.count(name), 1u) << kExpectedFile << " names " << name << ", which is no scenario any more";
  }
}

}  // namespace
}  // namespace torture
