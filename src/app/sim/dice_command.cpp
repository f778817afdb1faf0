#include <array>
#include <string>

#include "app/sim/commands.h"
#include "app/sim/failure.h"
#include "app/sim/output.h"
#include "app/sim/probability_option.h"
#include "base/trap.h"
#include "dice/generators.h"
#include "play/start_up.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel::sim {

namespace {

constexpr size_t BufferSize = 1 << 16;

// Collects output and writes it in blocks.
class Output {
 public:
  void Add(std::string_view text) {
    buffer_ += text;
    if (buffer_.size() >= BufferSize) Flush();
  }

  void Flush() {
    WriteOut(buffer_);
    buffer_.clear();
  }

 private:
  std::string buffer_;
};

void WriteFaces(int64_t count, Output& output) {
  for (int64_t roll = 0; roll < count; ++roll) {
    const Faces faces = MakeDice(static_cast<int32_t>(roll));
    output.Add(std::to_string(faces.die1) + " " + std::to_string(faces.die2) + "\n");
  }
}

void WriteWords(int64_t count, Output& output) {
  Twister& twister = Dice.CurrentRNG == 1 ? Dice.Twister1 : Dice.Twister2;
  for (int64_t k = 0; k < count; ++k) {
    const uint32_t word = NextWord(twister);
    std::array<char, 4> bytes{};
    for (size_t b = 0; b < bytes.size(); ++b)
      bytes[b] = static_cast<char>(word >> (8 * b));
    output.Add({bytes.data(), bytes.size()});
  }
}

}  // namespace

void SelectAndSeed(int64_t generator, std::optional<int64_t> seed) {
  if (generator < 1 || generator > GeneratorCount) {
    throw Failure(CannotBeDone, Say(Text::SimGeneratorBeyond));
  }
  const auto number = static_cast<int32_t>(generator);
  if (SelectRNG(number) != Selected) {
    throw Failure(CannotBeDone, Say(Text::SimGeneratorMissing, number));
  }
  if (seed && (*seed < 1 || *seed > SeedLimit(number))) {
    throw Failure(CannotBeDone, Say(Text::SimSeedLimits, Wording(Text::SeedOutOfLimits), number,
                                    SeedLimit(number)));
  }
  Dice.SeedRequest = seed ? Money::FromWhole(*seed) : Money();
  try {
    SeedRNG(-1);
  } catch (const Fault& fault) {
    throw Failure(CannotBeDone, FaultText(fault, "SeedRNG"));
  }
}

void DiceCommand(const DiceOptions& options) {
  if (options.raw && options.generator != 1 && options.generator != 2) {
    throw Failure(WrongCommandLine, Say(Text::SimRawGenerators));
  }
  if (options.raw && !options.probability.empty()) {
    throw Failure(WrongCommandLine, Say(Text::SimRawProbability));
  }
  if (!options.raw && options.count > MaxRolls) {
    throw Failure(CannotBeDone, Say(Text::SimTooManyRolls));
  }
  StartUp(".");
  if (!options.probability.empty()) ActivateProbability(options.probability);
  SelectAndSeed(options.generator, options.seed);
  Output output;
  if (options.raw) {
    WriteWords(options.count, output);
  } else {
    WriteFaces(options.count, output);
  }
  output.Flush();
}

}  // namespace tessarel::sim
