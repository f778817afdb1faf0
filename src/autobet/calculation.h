// The arithmetic and logic of script values. Texts are read as numbers first.
#pragma once

#include "autobet/program.h"
#include "autobet/values.h"

namespace tessarel {

// a op b for Power to Subtract. A division by zero fails the statement with the result 0;
// overflow fault for what no number holds.
double Calculate(Operation operation, double a, double b);

// a op b bit by bit for And, Or and Xor; the complement of a. Numbers become whole, ties to even;
// overflow fault outside 32 bits.
double CombineBits(Operation operation, double a, double b);
double Complement(double a);

}  // namespace tessarel
