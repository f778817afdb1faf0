// Probability files as anybody may make them: whatever the bytes are, reading them, drawing from
// the matrix and balancing it end, at worst with a fault, and leave a matrix that reads back as it
// was written. The bytes behind the file's contents choose the edits.

#include <cstdint>
#include <string>
#include <string_view>

#include "dice/probability.h"
#include "dice/probability_balance.h"
#include "dice/probability_file.h"
#include "fuzz_helpers.h"

namespace tessarel {
namespace {

constexpr size_t ContentBytes = 1152, RecordBytes = 256;
constexpr size_t EditBytes = 3, MostEdits = 8;

void Draw() {
  for (const int32_t n : {0, 1, 2778, WholeShare, WholeShare + 1}) {
    MayFail([n] {
      const Faces faces = DrawCell(n);
      Require(IsFace(faces.die1) && IsFace(faces.die2));
    });
  }
}

// A balanced matrix has no flags but locks.
void CheckFlags() {
  for (size_t column = TotalColumn; column <= LastPairColumn; ++column) {
    for (size_t row = 1; row <= SecondDieRow; ++row) {
      const int32_t flag = Probability.ProbabilityMatrix.Flags[column][row];
      Require(flag == 0 || flag == LockFlag);
    }
  }
}

// Three bytes of an edit: the cell, and the value in steps of a 250th.
void BalanceBy(std::string_view edit) {
  const auto byte = [edit](size_t k) { return static_cast<uint8_t>(edit[k]); };
  const double value = byte(2) * 400.0;
  if (byte(0) % 16 == 15) {
    MakePercentageDice({value, byte(0) / 16 % 3}, {-value, byte(1) % 3});
  } else {
    BalanceMatrix(byte(0) % 8, byte(1) % 14, value);
  }
  CheckFlags();
}

void Run(std::string_view bytes) {
  Probability = {};
  const auto planes = MatrixOfBytes(bytes);
  if (planes) Probability.ProbabilityMatrix = *planes;
  Draw();
  // Without a matrix the bytes edit true dice.
  std::string_view edits = planes ? bytes.substr(ContentBytes) : bytes;
  edits = edits.substr(0, MostEdits * EditBytes);
  for (; edits.size() >= EditBytes; edits.remove_prefix(EditBytes))
    MayFail([edits] { BalanceBy(edits.substr(0, EditBytes)); });
  Draw();
}

}  // namespace
}  // namespace tessarel

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tessarel;
  const std::string bytes(InputOf(data, size));
  Run(bytes);
  // Behind a true format line the bytes get to be a matrix.
  std::string file = "Tessarel Probability File, Data Format 4.6";
  file.resize(RecordBytes, ' ');
  Run(file + bytes);
  return 0;
}
