// Where balloons stand, in all quadrants of the screen, at its edges and beyond.
#include <tests/support/Check.h>
#include <tests/uicomps/dialogs/BalloonTest.h>

#include <cstdint>
#include <limits>
#include <ostream>

namespace oxecad_ui {
namespace {

struct Screen {
  int width;
  int height;
};
struct Place {
  int quadrant;
  long long x;
  long long y;
  friend bool operator==(const Place& a, const Place& b) {
    return a.quadrant == b.quadrant && a.x == b.x && a.y == b.y;
  }
  friend std::ostream& operator<<(std::ostream& out, const Place& place) {
    return out << "quadrant " << place.quadrant << " at (" << place.x << ", " << place.y << ')';
  }
};

class BalloonPlacing : public BalloonTest {
 protected:
  BalloonPlacing() {
    toolkit.WriteOnly([](const uiox::Call&) { return false; });
    toolkit.When(Calling(Function::BalloonStyle)).GiveInOrder({1}).Run([this](const uiox::Call& call) {
      place_.quadrant = call.code;
    });
    toolkit.When(Doing(2002)).Run([this](const uiox::Call& call) {
      place_.x = call.positional[0].Int();
      place_.y = call.positional[1].Int();
    });
    toolkit.When(Inquiring(4001)).Run([this](const uiox::Call& call) {
      *call.Find(4001)->value.Out<int>() = screen_.width;
      *call.Find(4002)->value.Out<int>() = screen_.height;
    });
    toolkit.When(Doing(2005)).Run([this](const uiox::Call& call) { Answer(call, anchor_.x, anchor_.y); });
    toolkit.When(Doing(2003)).Run([this](const uiox::Call& call) { Answer(call, anchor_.width, anchor_.height); });
    toolkit.When(Retrieving(71)).Run([this](const uiox::Call& call) {
      *call.Find(70)->value.Out<int>() = balloon_.width;
      *call.Find(71)->value.Out<int>() = balloon_.height;
    });
  }

  Place Placed(const Screen& screen, const Box& anchor, const Screen& balloon) {
    screen_ = screen;
    anchor_ = anchor;
    balloon_ = balloon;
    place_ = {};
    EXPECT_EQ(Show(), 32);
    return place_;
  }

 private:
  static void Answer(const uiox::Call& call, int first, int second) {
    *call.positional[0].Out<int>() = first;
    *call.positional[1].Out<int>() = second;
  }

  Screen screen_{};
  Box anchor_{};
  Screen balloon_{};
  Place place_{};
};

struct PlacingRow {
  const char* name;
  Screen screen;
  Box anchor;
  Screen balloon;
  Place expected;
};
void PrintTo(const PlacingRow& row, std::ostream* out) { *out << row.name; }

class BalloonPlace : public BalloonPlacing, public testing::WithParamInterface<PlacingRow> {};

TEST_P(BalloonPlace, IsByTheAnchor) {
  const PlacingRow& row = GetParam();
  EXPECT_EQ(Placed(row.screen, row.anchor, row.balloon), row.expected);
}

constexpr Screen kScreen{1000, 800};
constexpr Screen kSmall{200, 100};

INSTANTIATE_TEST_SUITE_P(
    Quadrant, BalloonPlace,
    testing::Values(
        PlacingRow{"left_upper_hangs_below", kScreen, {100, 100, 80, 20}, kSmall, {1, 116, 120}},
        PlacingRow{"right_upper_ends_24_right_of_the_centre", kScreen, {600, 100, 80, 20}, kSmall, {3, 664 - 200, 120}},
        PlacingRow{"left_lower_stands_above", kScreen, {100, 600, 80, 20}, kSmall, {7, 116, 500}},
        PlacingRow{
            "right_lower_stands_above_and_ends_24_right", kScreen, {600, 600, 80, 20}, kSmall, {9, 664 - 200, 500}},
        PlacingRow{"the_middle_column_is_left", kScreen, {500, 100, 80, 20}, kSmall, {1, 516, 120}},
        PlacingRow{"right_of_the_middle_column", kScreen, {501, 100, 80, 20}, kSmall, {3, 365, 120}},
        PlacingRow{"above_the_middle_row", kScreen, {100, 399, 80, 20}, kSmall, {1, 116, 419}},
        PlacingRow{"the_middle_row_is_lower", kScreen, {100, 400, 80, 20}, kSmall, {7, 116, 300}},
        PlacingRow{"half_of_an_odd_screen_is_cut", {1001, 801}, {500, 399, 80, 20}, kSmall, {1, 516, 419}},
        PlacingRow{"behind_half_of_an_odd_screen", {1001, 801}, {501, 400, 80, 20}, kSmall, {9, 365, 300}}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Anchor, BalloonPlace,
    testing::Values(PlacingRow{"half_of_an_odd_width_is_cut", kScreen, {100, 100, 31, 20}, kSmall, {1, 91, 120}},
                    PlacingRow{"of_one_pixel", kScreen, {100, 100, 1, 1}, kSmall, {1, 76, 101}},
                    PlacingRow{"of_zero_width", kScreen, {600, 600, 0, 20}, kSmall, {9, 100, 100}},
                    PlacingRow{"of_negative_width", kScreen, {100, 600, -1, 20}, kSmall, {7, 100, 100}},
                    PlacingRow{"of_zero_height", kScreen, {100, 100, 80, 0}, kSmall, {1, 116, 100}},
                    PlacingRow{
                        "of_zero_width_is_not_pulled_in", {150, 150}, {10, 10, 0, 5}, {140, 140}, {1, 100, 100}}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Edge, BalloonPlace,
    testing::Values(PlacingRow{"left", kScreen, {0, 100, 10, 20}, kSmall, {1, 0, 120}},
                    PlacingRow{"left_of_the_screen", kScreen, {-300, 100, 10, 20}, kSmall, {1, 0, 120}},
                    PlacingRow{"left_from_the_right_half", kScreen, {501, 100, 10, 20}, {700, 100}, {3, 0, 120}},
                    PlacingRow{"top", kScreen, {100, 410, 80, 20}, {200, 500}, {7, 116, 0}},
                    PlacingRow{"above_the_screen", kScreen, {100, -60, 80, 20}, kSmall, {1, 116, 0}},
                    PlacingRow{"right_by_one", kScreen, {500, 100, 648, 20}, kSmall, {1, 799, 120}},
                    PlacingRow{"right_just_inside", kScreen, {500, 100, 646, 20}, kSmall, {1, 799, 120}},
                    PlacingRow{"right_well_inside", kScreen, {500, 100, 644, 20}, kSmall, {1, 798, 120}},
                    PlacingRow{"right_ends_one_pixel_inside", kScreen, {990, 100, 80, 20}, kSmall, {3, 799, 120}},
                    PlacingRow{"bottom_by_one", kScreen, {100, 399, 80, 301}, kSmall, {1, 116, 699}},
                    PlacingRow{"bottom_just_inside", kScreen, {100, 399, 80, 300}, kSmall, {1, 116, 699}},
                    PlacingRow{"bottom_well_inside", kScreen, {100, 399, 80, 299}, kSmall, {1, 116, 698}},
                    PlacingRow{"below_the_screen", kScreen, {100, 2000, 80, 20}, kSmall, {7, 116, 699}},
                    PlacingRow{"all_as_wide_as_the_screen", kScreen, {100, 100, 80, 20}, {1000, 800}, {1, -1, -1}},
                    PlacingRow{"all_larger_than_the_screen", kScreen, {100, 100, 80, 20}, {1200, 900}, {1, -201, -101}},
                    PlacingRow{"all_one_pixel_smaller", kScreen, {100, 100, 80, 20}, {999, 799}, {1, 0, 0}}),
    [](const auto& row) { return std::string(row.param.name); });

/// The rules once more, straight from their words and without a limit to numbers.
Place ByTheRules(const Screen& screen, const Box& anchor, const Screen& balloon) {
  const bool right = anchor.x > screen.width / 2;
  const bool upper = anchor.y < screen.height / 2;
  Place place{(right ? 2 : 0) + (upper ? 1 : 7), 100, 100};
  if (anchor.width < 1) return place;
  const std::int64_t centre = std::int64_t{anchor.x} + anchor.width / 2;
  place.x = right ? centre + 24 - balloon.width : centre - 24;
  place.y = upper ? std::int64_t{anchor.y} + anchor.height : std::int64_t{anchor.y} - balloon.height;
  if (place.x < 0) place.x = 0;
  if (place.y < 0) place.y = 0;
  if (place.x + balloon.width >= screen.width) place.x = std::int64_t{screen.width} - balloon.width - 1;
  if (place.y + balloon.height >= screen.height) place.y = std::int64_t{screen.height} - balloon.height - 1;
  return place;
}

void ExpectInside(const Screen& screen, const Screen& balloon, const Place& place) {
  RC_ASSERT(place.x >= 0 && place.y >= 0);
  RC_ASSERT(place.x + balloon.width < screen.width);
  RC_ASSERT(place.y + balloon.height < screen.height);
}

TEST_F(BalloonPlacing, IsInsideTheScreenForAnyAnchorOnIt) {
  rc::check("any screen, anchor and smaller balloon", [this] {
    const Screen screen{*rc::gen::inRange(2, 8000), *rc::gen::inRange(2, 8000)};
    const Screen balloon{*rc::gen::inRange(1, screen.width), *rc::gen::inRange(1, screen.height)};
    const Box anchor{*rc::gen::inRange(0, screen.width), *rc::gen::inRange(0, screen.height),
                     *rc::gen::inRange(1, screen.width), *rc::gen::inRange(0, screen.height)};
    const Place place = Placed(screen, anchor, balloon);
    ExpectInside(screen, balloon, place);
    RC_ASSERT(place == ByTheRules(screen, anchor, balloon));
  });
}

TEST_F(BalloonPlacing, IsInsideTheScreenForAnchorsAnywhere) {
  rc::check("any numbers for the anchor", [this] {
    const auto number = rc::gen::weightedOneOf<int>(
        {{3, rc::gen::inRange(-3000, 3000)},
         {1, rc::gen::arbitrary<int>()},
         {1, rc::gen::element(std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), -1, 0, 1)}});
    const Screen screen{*rc::gen::inRange(2, 8000), *rc::gen::inRange(2, 8000)};
    const Screen balloon{*rc::gen::inRange(1, screen.width), *rc::gen::inRange(1, screen.height)};
    const Box anchor{*number, *number, *rc::gen::inRange(1, 8000), *rc::gen::inRange(0, 8000)};
    const Place place = Placed(screen, anchor, balloon);
    ExpectInside(screen, balloon, place);
    RC_ASSERT(place == ByTheRules(screen, anchor, balloon));
  });
}

TEST_F(BalloonPlacing, CoversAGridOfAnchors) {
  const Screen screen{641, 480};
  const Screen balloon{150, 70};
  for (int x = -40; x < 700; x += 13) {
    for (int y = -40; y < 520; y += 11) {
      const Box anchor{x, y, 25, 12};
      ASSERT_EQ(Placed(screen, anchor, balloon), ByTheRules(screen, anchor, balloon)) << x << ", " << y;
    }
  }
}

}  // namespace
}  // namespace oxecad_ui
