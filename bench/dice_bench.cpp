#include <benchmark/benchmark.h>

#include "dice/generators.h"
#include "dice/probability.h"

namespace tessarel {
namespace {

// A roll's faces from each of the generators.
void MakeDiceOfGenerator(benchmark::State& state) {
  Dice = {};
  SelectRNG(static_cast<int32_t>(state.range(0)));
  Dice.SeedRequest = 123456;
  SeedRNG(-1);
  int32_t rollCount = 0;
  for (auto _ : state)
    benchmark::DoNotOptimize(MakeDice(rollCount++));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(MakeDiceOfGenerator)->DenseRange(1, GeneratorCount);

void MakeDiceOfMatrix(benchmark::State& state) {
  Probability = {};
  Probability.ProbabilityMatrixActive = true;
  MakeDiceOfGenerator(state);
  Probability = {};
}
BENCHMARK(MakeDiceOfMatrix)->DenseRange(1, GeneratorCount);

}  // namespace
}  // namespace tessarel
