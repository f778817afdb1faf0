// Editing the probability matrix: a share is set and all that is not locked is fitted around it, so
// that the whole stays close to 100,000. The configuration screen calls these; they work on a copy
// and change the matrix only when they are through.
#pragma once

namespace tessarel {

// Sets a total, a pair or a face to `value` shares and locks it. The value gives way to what is
// locked; differences are spread equally over what is free; results round half to even. A face of
// independent dice (no total and no pair locked) makes all pairs anew from the shares of the faces;
// any other edit makes free-form dice. Returns false when nothing that could give way is free: the
// share then keeps its old value, but is locked. Index fault for cells that hold no share; overflow
// fault when a result has no 32 bits.
bool BalanceMatrix(int column, int row, double value);

// A die that prefers or avoids the two opposite faces of an axis.
struct DieSkew {
  double Percent = 0;  // by how much the axis falls short of its true share; at most 100
  int Axis = 0;        // 0: faces 1 and 6, 1: 2 and 5, 2: 3 and 4
};

// Makes percentage dice, with nothing else locked: each face of a die's axis gets (1 - p) / 6 and
// is locked, the other four share the rest equally. More than 100 percent counts as 100; less than
// -200, with which the axis has all, as -200. Index fault for another axis, overflow fault for a
// percentage that is no number.
void MakePercentageDice(const DieSkew& first, const DieSkew& second);

}  // namespace tessarel
