// The number and text conventions at their boundaries.
#include "core/model/text.h"

#include <gtest/gtest.h>

#include <utility>

namespace combwise {
namespace {

TEST(LeadingValue, ReadsTheLeadingNumberAndZeroWhenThereIsNone) {
  const std::pair<const char*, double> cases[] = {{"  22;abc", 22}, {"1 2x", 12}, {"-4.5rest", -4.5}, {"3e2", 300},
                                                  {"3e", 3},        {"abc", 0},   {"-", 0},           {".5", 0.5}};
  for (const auto& [text, value] : cases) EXPECT_EQ(leadingValue(text), value) << text;
  EXPECT_EQ(leadingWhole("2.5"), 2);
  EXPECT_EQ(leadingWhole("3.5"), 4);
}

TEST(Rounding, HalvesGoToTheEvenNeighbourAndIntegerPartRoundsDown) {
  const std::pair<double, long long> halves[] = {{0.5, 0}, {1.5, 2}, {2.5, 2}, {2.51, 3}, {-2.5, -2}, {-3.5, -4}};
  for (const auto& [value, whole] : halves) EXPECT_EQ(roundHalfEven(value), whole) << value;
  EXPECT_EQ(floorWhole(1.99), 1);
  EXPECT_EQ(floorWhole(-1.5), -2);
  EXPECT_EQ(floorWhole(0.99999999 * 99988 + 1), 99988);
}

}  // namespace
}  // namespace combwise
