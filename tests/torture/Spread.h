/// \file
/// Which calls or allocations fail besides the first that does.
#ifndef OXECAD_TESTS_TORTURE_SPREAD_H
#define OXECAD_TESTS_TORTURE_SPREAD_H

namespace torture {

enum class Spread {
  Once,         ///< that one alone
  AllLater,     ///< and all behind it
  Next,         ///< and the next: the first thing that is done about it
  Sixth,        ///< and the sixth behind it
  EverySecond,  ///< and every second behind it
  EveryThird    ///< and every third behind it
};
constexpr Spread kAllSpreads[] = {Spread::Once,  Spread::AllLater,    Spread::Next,
                                  Spread::Sixth, Spread::EverySecond, Spread::EveryThird};

/// Whether number `count` (from 1) fails when number `first` does (0: none).
inline bool Fails(long count, long first, Spread spread) {
  if (first == 0 || count < first) return false;
  const long behind = count - first;
  switch (spread) {
    case Spread::Once:
      return behind == 0;
    case Spread::AllLater:
      return true;
    case Spread::Next:
      return behind <= 1;
    case Spread::Sixth:
      return behind == 0 || behind == 6;
    case Spread::EverySecond:
      return behind % 2 == 0;
    case Spread::EveryThird:
      return behind % 3 == 0;
  }
  return false;
}

inline const char* Name(Spread spread) {
  constexpr const char* kNames[] = {"",
                                    ", and all later ones",
                                    ", and the next",
                                    ", and the sixth behind it",
                                    ", and every second behind it",
                                    ", and every third behind it"};
  return kNames[static_cast<int>(spread)];
}

}  // namespace torture

#endif
