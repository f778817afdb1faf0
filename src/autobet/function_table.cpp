#include "autobet/function_table.h"

#include <algorithm>

#include "autobet/word_numbers.h"

namespace tessarel {

namespace {

constexpr int List = FunctionTraits::AnyNumber;

// By number, ascending. The name of MissCount is as scripts have always been told it.
// clang-format off
constexpr FunctionTraits Functions[] = {
    {function::Lay, "Lay", 4}, {function::DontCome, "DontCome", 4},
    {function::DontComeOdds, "DontComeOdds", 4}, {function::Come, "Come", 4},
    {function::ComeOdds, "ComeOdds", 4}, {function::Place, "Place", 4}, {function::Buy, "Buy", 4},
    {function::Big, "Big", 4}, {function::Hard, "Hardway", 4}, {function::Hop, "Hop", 4},
    {function::Stack, "Checkstack", 1}, {function::AverageBankroll, "Average bankroll", 2, 1},
    {function::ProbablePercent, "% of rolls probable", 4, 1, List},
    {function::ProbableCount, "# of rolls probable", 4, 1, List},
    {function::RolledPercent, "% of rolls", 4, 1, List},
    {function::RolledCount, "# of rolls", 4, 1, List},
    {function::RollsSinceLast, "# of rolls since last", 4, 1, List},
    {function::TruePercent, "% of rolls probable true", 4, 1, List},
    {function::TrueCount, "# of rolls probable true", 4, 1, List},
    {function::SkewedCount, "# of rolls probable skew", 4, 1, List},
    {function::SkewedPercent, "% of rolls probable skew", 4, 1, List},
    {function::ChiSquare, "chisquare", 4, 1, List},
    {function::ComeoutCount, "# comeout rolls", 3, 1, List},
    {function::ComeoutPercent, "% comeout rolls", 3, 1, List},
    {function::PassCount, "# passes", 3, 1, List}, {function::PassPercent, "% passes", 3, 1, List},
    {function::MissCount, "% misses", 3, 1, List}, {function::MissPercent, "% misses", 3, 1, List},
    {function::PointCount, "# of points", 4, 1, List},
    {function::PointPercent, "% of points", 4, 1, List},
    {function::Player, "Player", 0, 1},
    {function::SquareRoot, "Sqr", 0, 1}, {function::WholePart, "Int", 0, 1},
    {function::AbsoluteValue, "Abs", 0, 1}, {function::CodeOfText, "Asc", 0, 1},
    {function::BankrollAverage, "Average Bankroll"},
    {function::ValueOfText, "Val", 0, 1}, {function::LengthOfText, "Len", 0, 1},
    {function::Input, "Input", 0, 1},
    {function::Highest, "Highest", 0, 1, List}, {function::Lowest, "Lowest", 0, 1, List},
    {function::Mean, "Average", 0, 1, List}, {function::Deviation, "StdDev", 0, 1, List},
    {function::Sum, "Sum", 0, 1, List}, {function::Count, "Count", 0, 1, List},
    {function::HighestText, "Highest$", 0, 1, List}, {function::LowestText, "Lowest$", 0, 1, List},
    {function::PValue, "Pvalue", 4, 1, List},
    {function::Round, "Round", 0, 2}, {function::Die, "Die", 0, 1},
    {function::OddsFactor, "Odds allowed factor", 0, 1}, {function::FindInText, "Instr", 0, 3},
    {function::StackName, "Checkstack Name", 1},
    {function::Left, "Left$", 0, 2}, {function::Right, "Right$", 0, 2},
    {function::RemoveLeft, "RemoveLeft$", 0, 2}, {function::RemoveRight, "RemoveRight$", 0, 2},
    {function::Mid, "Mid$", 0, 3}, {function::RemoveMid, "RemoveMid$", 0, 3},
    {function::Insert, "Insert$", 0, 3}, {function::TextOfNumber, "Str$", 0, 1},
    {function::TextOfCode, "Chr$", 0, 1}, {function::Blanks, "Space$", 0, 1},
    {function::InputText, "Input$", 0, 1}, {function::PlayerName, "Playername", 0, 1},
};
// clang-format on
static_assert(std::ranges::is_sorted(Functions, {}, &FunctionTraits::Number));

}  // namespace

const FunctionTraits* FindFunction(int32_t number) {
  const auto* const row = std::ranges::lower_bound(Functions, number, {}, &FunctionTraits::Number);
  return row != std::end(Functions) && row->Number == number ? row : nullptr;
}

int FunctionQualifierCount(int32_t number) {
  const FunctionTraits* const traits = FindFunction(number);
  return traits == nullptr ? 0 : traits->Qualifiers;
}

}  // namespace tessarel
