/// \file
/// Answers that stay the toolkit's: good until what they were made from changes.
#ifndef OXECAD_UIOX_DETAIL_LENTANSWERS_H
#define OXECAD_UIOX_DETAIL_LENTANSWERS_H

#include <uiox/NodeId.h>

#include <memory>
#include <unordered_map>

namespace uiox::detail {

/// At most one answer of each kind for a node; asked for again, it is the same block.
class LentAnswers {
 public:
  enum Text { kLabel, kSecondText };

  struct Answers {
    std::unique_ptr<const char*[]> children;
    std::unique_ptr<wchar_t[]> texts[2];
  };

  Answers& Of(NodeId node) { return answers_[node]; }
  void ForgetChildren(NodeId node) noexcept {
    if (const auto it = answers_.find(node); it != answers_.end()) it->second.children.reset();
  }
  void ForgetText(NodeId node, Text text) noexcept {
    if (const auto it = answers_.find(node); it != answers_.end()) it->second.texts[text].reset();
  }
  void Forget(NodeId node) noexcept { answers_.erase(node); }
  void Clear() noexcept { std::unordered_map<NodeId, Answers>().swap(answers_); }

 private:
  std::unordered_map<NodeId, Answers> answers_;
};

}  // namespace uiox::detail

#endif
