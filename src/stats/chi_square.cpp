#include "stats/chi_square.h"

#include <cmath>
#include <limits>

#include "base/number_format.h"

namespace tessarel {

namespace {

constexpr double LeastP = 1e-18;
constexpr double UnderflowP = 0.001;

// The gamma of degrees / 2.
double GammaOfHalf(int degrees) {
  const bool odd = degrees % 2 != 0;
  const double pi = 4 * std::atan(1.0);
  double gamma = odd ? std::sqrt(pi) : 1;
  for (double factor = degrees / 2.0 - 1; factor > (odd ? 0.3 : 1.8); --factor)
    gamma *= factor;
  return gamma;
}

double SeriesSum(double chi, int degrees) {
  double term = 1, sum = 0, change = 1, k = degrees;
  while (change >= LeastP && std::isfinite(sum)) {
    k += 2;
    term *= chi / k;
    const double before = sum;
    sum += term;
    change = sum - before;
  }
  return sum;
}

}  // namespace

double ChiSquareTerm(double count, double expected) {
  if (!(expected > 0)) return 0;
  constexpr double Scale = 1e20;
  const double off = count - expected;
  return std::floor(off * off / expected * Scale + 0.5) / Scale;
}

double ChiSquareTail(double chi, int degrees) {
  if (!(chi > 0) || degrees < 1) return 1;
  const double decay = std::exp(-chi / 2);
  const double first = std::pow(chi / 2, degrees / 2.0) * decay / (GammaOfHalf(degrees) * chi);
  if (first == 0) return UnderflowP;
  // With the last digits of a denormal the difference below would mean nothing.
  if (decay < std::numeric_limits<double>::min()) return LeastP;
  const double scale = 2 * first * chi / degrees;
  const double p = 1 - (SeriesSum(chi, degrees) + 1) * scale;
  return p < LeastP ? LeastP : p;
}

std::string PText(double p) {
  if (p == 1) return "p=100%";
  if (p > 0 && p < 0.01) return "p<0.01%";
  return "p=" + FormatNumber(p, "#,0.0#%;;0%");
}

}  // namespace tessarel
