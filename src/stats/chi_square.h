// How well counts fit what was expected: the terms of the chi-square sum, the chance of a sum at
// least as large, and its text. Used by the roll views and by scripts that ask for the figures.
#pragma once

#include <string>

namespace tessarel {

// (count - expected) squared over expected, to twenty decimals; 0 if nothing is expected.
double ChiSquareTerm(double count, double expected);

// The chance that a fit of that many degrees of freedom is no better: the regularised upper
// incomplete gamma of (degrees / 2, chi / 2), by the series of the lower one (Abramowitz and
// Stegun, Handbook of Mathematical Functions, 26.4.6). 1 for no chi or no degrees; 0.001 where the
// first term underflows; never below 1e-18.
double ChiSquareTail(double chi, int degrees);

// "p=100%", "p<0.01%" or "p=12.3%". The middle one stands for every p below one percent.
std::string PText(double p);

}  // namespace tessarel
