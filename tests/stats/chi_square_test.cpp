#include "stats/chi_square.h"

#include <gtest/gtest.h>

#include <cmath>

#include "stats/significant.h"

namespace tessarel {
namespace {

// The regularised upper incomplete gamma function by Lentz's continued fraction, or by one minus
// the power series where that converges better.
double UpperGamma(double a, double x) {
  const double front = std::exp(-x + a * std::log(x) - std::lgamma(a));
  if (x < a + 1) {
    double term = 1 / a, sum = term;
    for (int n = 1; n < 2000; ++n)
      sum += term *= x / (a + n);
    return 1 - front * sum;
  }
  double b = x + 1 - a, c = 1e300, d = 1 / b, fraction = d;
  for (int n = 1; n < 2000; ++n) {
    const double an = -n * (n - a);
    b += 2;
    d = 1 / (an * d + b);
    c = b + an / c;
    fraction *= d * c;
  }
  return front * fraction;
}

TEST(ChiSquare, TailAgreesWithAnIndependentIncompleteGamma) {
  for (int degrees = 1; degrees <= 88; ++degrees) {
    for (double chi = 0.05; chi < 400; chi *= 1.37) {
      const double p = ChiSquareTail(chi, degrees);
      if (p == 0.001 && std::pow(chi / 2, degrees / 2.0) == 0) continue;
      EXPECT_NEAR(p, UpperGamma(degrees / 2.0, chi / 2), 1e-12) << chi << " " << degrees;
    }
  }
}

TEST(ChiSquare, TailHasItsEnds) {
  const std::tuple<double, int, double> cases[] = {
      {0, 10, 1},        {-3, 10, 1},       {5, 0, 1},           // nothing to test
      {1491, 5, 0.001},  {1e9, 35, 0.001},  {1e-30, 35, 0.001},  // the first term underflows
      {1420, 35, 1e-18}, {1488, 35, 1e-18}, {200, 10, 1e-18}};   // and where it nearly does
  for (const auto& [chi, degrees, p] : cases)
    EXPECT_EQ(ChiSquareTail(chi, degrees), p) << chi << " " << degrees;
}

TEST(ChiSquare, TermsDropTheNoiseOfEqualCounts) {
  EXPECT_EQ(ChiSquareTerm(1000, 100.0 / 36 * 360.00000000000006 * 1.0), 0);
  EXPECT_EQ(ChiSquareTerm(12, 10), 0.4);
  EXPECT_EQ(ChiSquareTerm(5, 0), 0);
}

TEST(ChiSquare, PAsText) {
  const std::pair<double, const char*> cases[] = {
      {1, "p=100%"},    {0.5, "p=50.0%"},       {0.1234, "p=12.34%"}, {0.99999, "p=100.0%"},
      {0.01, "p=1.0%"}, {0.0099999, "p<0.01%"}, {0.001, "p<0.01%"},   {1e-18, "p<0.01%"},
  };
  for (const auto& [p, text] : cases)
    EXPECT_EQ(PText(p), text);
}

TEST(Significant, ShowsNoMoreThanNeeded) {
  // clang-format off
  const std::tuple<double, int, const char*> cases[] = {
      {0, 4, "0"}, {-0.00001, 4, "0"}, {0.00001, 4, "<0.0001"}, {0.00005, 4, "0.0001"},
      {0.004, 2, "<0.01"}, {12, 4, "12"}, {1234.99996, 4, "1,235"}, {1.25, 1, "1.3"},
      {-1.25, 1, "-1.2"}, {99.99994, 4, "99.9999"}, {1234.5, 4, "1,234.5"}};
  // clang-format on
  for (const auto& [value, digits, text] : cases)
    EXPECT_EQ(FormatSignificant(value, digits), text);
}

}  // namespace
}  // namespace tessarel
