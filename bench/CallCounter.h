/// \file
/// Counts the toolkit's calls.
#ifndef OXECAD_BENCH_CALLCOUNTER_H
#define OXECAD_BENCH_CALLCOUNTER_H

#include <uiox/Backend.h>

#include <cstdint>

namespace oxecad_bench {

/// Hands every call on to the stand-in and counts it.
class CallCounter : public uiox::Backend {
 public:
  int Handle(uiox::Call& call) override {
    ++count_;
    return uiox::BuiltIn().Handle(call);
  }
  std::uint64_t Count() const { return count_; }

 private:
  std::uint64_t count_ = 0;
};

}  // namespace oxecad_bench

#endif
