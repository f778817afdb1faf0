#include <gtest/gtest.h>

#include "base/money.h"

namespace tessarel {
namespace {

TEST(Money, ProductsRoundHalfToEven) {
  const Money half = Money::FromRaw(5000);
  EXPECT_EQ(half * Money::FromRaw(1), Money());
  EXPECT_EQ(half * Money::FromRaw(3), Money::FromRaw(2));
  EXPECT_EQ(half * Money::FromRaw(-3), Money::FromRaw(-2));
}

}  // namespace
}  // namespace tessarel
