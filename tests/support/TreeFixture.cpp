#include <tests/support/TreeFixture.h>

namespace test_support {
namespace {

uiox::TreeWidget& FreshTree(const std::vector<std::string>& columns) {
  uiox::Suite::Get().Reset();
  return uiox::Suite::Get().ObtainTree("dev", "tree", columns);
}

}  // namespace

TreeFixture::TreeFixture(const std::vector<std::string>& columns) : widget(FreshTree(columns)) {}

TreeFixture::~TreeFixture() { suite.Reset(); }

}  // namespace test_support
