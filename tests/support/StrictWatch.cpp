#include <gtest/gtest.h>
#include <tests/support/StrictWatch.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace test_support {
namespace {

class Listener : public testing::EmptyTestEventListener {
 public:
  static Listener& Get() {
    static Listener& listener = *new Listener;
    return listener;
  }

  void OnTestStart(const testing::TestInfo&) override {
    strict_ = std::make_unique<uiox::StrictMode>([this](const std::string& line) { Tell(line); });
  }
  void OnTestEnd(const testing::TestInfo&) override {
    strict_.reset();
    allowed_.clear();
  }

  void Expect(std::string leftover) { strict_->Expect(std::move(leftover)); }
  void Allow(std::string beginning) { allowed_.push_back(std::move(beginning)); }
  void AllowAlways(std::string beginning) { always_allowed_.push_back(std::move(beginning)); }

 private:
  void Tell(const std::string& line) {
    const auto fits = [&](const std::string& beginning) { return line.compare(0, beginning.size(), beginning) == 0; };
    const bool allowed = std::any_of(allowed_.begin(), allowed_.end(), fits) ||
                         std::any_of(always_allowed_.begin(), always_allowed_.end(), fits);
    if (!allowed) ADD_FAILURE() << "strict mode: " << line;
  }

  std::unique_ptr<uiox::StrictMode> strict_;
  std::vector<std::string> allowed_;
  std::vector<std::string> always_allowed_;
};

// The program's object files are linked whole, so that nobody has to call this.
const bool g_listens = (testing::UnitTest::GetInstance()->listeners().Append(&Listener::Get()), true);

}  // namespace

void StrictWatch::Expect(std::string leftover) { Listener::Get().Expect(std::move(leftover)); }
void StrictWatch::Allow(std::string beginning) { Listener::Get().Allow(std::move(beginning)); }
void StrictWatch::AllowAlways(std::string beginning) { Listener::Get().AllowAlways(std::move(beginning)); }

}  // namespace test_support
