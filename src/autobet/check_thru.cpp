#include <algorithm>
#include <numeric>
#include <string>

#include "autobet/checker.h"
#include "autobet/token_walk.h"
#include "autobet/word_numbers.h"
#include "base/fault.h"
#include "engine/bet_limits.h"
#include "state/bet_numbers.h"
#include "texts/say.h"

namespace tessarel {

namespace {

using TokenStream = std::vector<ScriptToken>;

// The family of a variable for "thru", by the function that names its bets or stacks. Place and Buy
// bets stand crosswise, so a range from a named Place bet to a numbered one is refused, and so is
// one of Buy bets: scripts have always been told so.
struct FamilyRow {
  int32_t First, Last, Family;
};
// clang-format off
constexpr FamilyRow Families[] = {
    {bet::Lay4, bet::Lay10, function::Lay},
    {bet::DontCome4, bet::DontCome10, function::DontCome},
    {bet::DontCome4Odds, bet::DontCome10Odds, function::DontComeOdds},
    {bet::Come4, bet::Come10, function::Come},
    {bet::Come4Odds, bet::Come10Odds, function::ComeOdds},
    {bet::Place4, bet::Place10, function::Buy},
    {bet::Buy4, bet::Buy10, function::Place},
    {bet::Big6, bet::Big8, function::Big},
    {bet::Hard4, bet::Hard10, function::Hard},
    {bet::Hop13, bet::Hop55, function::Hop},
    {FirstStack, FirstStack + StackCount - 1, function::Stack},
    {variable::FirstStackName, variable::FirstStackName + StackCount - 1, function::StackName},
};
// clang-format on

bool IsOperand(const ScriptToken& head) {
  return head.code == VariableToken ||
         (head.code == FunctionToken && NamesVariable(NumberIn(head)));
}

// 0 for a variable that is in none.
int32_t FamilyOf(const ScriptToken& head) {
  const int32_t number = NumberIn(head);
  if (head.code == FunctionToken) return number;
  for (const FamilyRow& row : Families) {
    if (number >= row.First && number <= row.Last) return row.Family;
  }
  return 0;
}

// What is wrong with the operand of one side of a "thru", by the token there.
struct SideTexts {
  Text Missing, Unclear, Unfit;
};
constexpr SideTexts Front = {Text::ScriptThruLacksFront, Text::ScriptThruFrontUnclear,
                             Text::ScriptThruFrontUnfit};
constexpr SideTexts Back = {Text::ScriptThruLacksBack, Text::ScriptThruBackUnclear,
                            Text::ScriptThruBackUnfit};

std::string OperandFault(int32_t code, const SideTexts& side) {
  if (IsMarker(code)) return SayChosen(side.Missing);
  return SayChosen(code >= EmptyToken ? side.Unclear : side.Unfit);
}

// What is wrong with the "thru" at an element; `front` is the head of the reference that ends in
// front of it, 0 without one.
std::string ThruFault(const TokenStream& stream, size_t thru, size_t front) {
  const int32_t before = stream[thru - 1].code, behind = stream[thru + 1].code;
  if (IsMarker(behind)) return OperandFault(behind, Back);
  if (IsMarker(before)) return OperandFault(before, Front);
  if (!IsOperand(stream[thru + 1])) return OperandFault(behind, Back);
  if (front == 0) return OperandFault(before, Front);
  if (!IsOperand(stream[front])) return OperandFault(FunctionToken, Front);
  const int32_t family = FamilyOf(stream[front]);
  if (family != 0 && family == FamilyOf(stream[thru + 1])) return {};
  return Say(Text::ScriptThruSidesDiffer);
}

std::vector<int> Range(int first, int last) {
  std::vector<int> numbers(static_cast<size_t>(last - first + 1));
  std::iota(numbers.begin(), numbers.end(), first);
  return numbers;
}

// The word for all bets of a family, which those for the inside and outside ones follow.
struct FamilyWord {
  int32_t Word;
  Family FirstBet;
};
constexpr FamilyWord FamilyWords[] = {
    {variable::LayBets, LayFamily},
    {variable::DontComeBets, DontComeFamily},
    {variable::DontComeOddsBets, DontComeOddsFamily},
    {variable::ComeBets, ComeFamily},
    {variable::ComeOddsBets, ComeOddsFamily},
    {variable::PlaceBets, PlaceFamily},
    {variable::BuyBets, BuyFamily},
};

// The bets on 5, 6, 8, 9 are inside, those on 4, 5, 9, 10 outside.
std::vector<int> MembersOfFamily(Family family, int32_t side) {
  if (side == variable::InsideOfGroup) return Range(BetOn(family, 5), BetOn(family, 9));
  if (side == variable::OutsideOfGroup)
    return {BetOn(family, 4), BetOn(family, 5), BetOn(family, 9), BetOn(family, 10)};
  return Range(BetOn(family, 4), BetOn(family, 10));
}

std::vector<int> BetsOnLayout() {
  std::vector<int> bets = Range(1, LastBet);
  std::erase_if(bets, [](int number) { return !OnLayout(number); });
  return bets;
}

// The variables a group word stands for; none for another variable.
std::vector<int> MembersOf(int32_t word) {
  for (const auto& [first, family] : FamilyWords) {
    if (word >= first && word <= first + variable::OutsideOfGroup)
      return MembersOfFamily(family, word - first);
  }
  switch (word) {
    case variable::BigBets:
      return {bet::Big6, bet::Big8};
    case variable::HardBets:
      return Range(bet::Hard4, bet::Hard10);
    case variable::HopBets:
      return Range(bet::Hop13, bet::Hop55);
    case variable::AllBets:
      return BetsOnLayout();
    case variable::AllStacks:
      return Range(FirstStack, FirstStack + StackCount - 1);
    case variable::AllStackNames:
      return Range(variable::FirstStackName, variable::FirstStackName + StackCount - 1);
    default:
      return {};
  }
}

// A group word whose qualifiers are being written: where they end in the script and where the word
// stands in what is written.
struct OpenGroup {
  std::vector<int> members;
  size_t end, written;
};

// Group words within the player of a group word multiply; this many elements is the limit.
constexpr size_t LongestStream = 4'000'000;

// Replaces the word at the end of `written`, with its qualifiers, by its members.
void WriteMembers(const OpenGroup& group, TokenStream& written) {
  const TokenStream qualifiers(written.begin() + static_cast<std::ptrdiff_t>(group.written) + 1,
                               written.end());
  if (group.members.size() * (qualifiers.size() + 2) > LongestStream - group.written)
    RaiseOverflow();
  written.resize(group.written);
  for (const int member : group.members) {
    if (written.size() > group.written) written.push_back({LogicSeparator, 0});
    written.push_back({VariableToken, static_cast<double>(member)});
    written.insert(written.end(), qualifiers.begin(), qualifiers.end());
  }
}

}  // namespace

std::optional<ScriptError> CheckThru(CompiledScript& script) {
  const TokenStream& stream = script.TokenStream;
  const TokenWalk walk(stream);
  std::vector<size_t> headOfEnd(stream.size() + 1);  // by the element after a reference
  for (size_t k = 2; k < stream.size(); ++k) {
    const int32_t code = stream[k].code;
    if (code == VariableToken || code == FunctionToken) {
      size_t& head = headOfEnd[walk.End(k)];
      if (head == 0) head = k;  // else this is the bare operand of that one
    }
    if (code != LogicThru) continue;
    std::string fault = ThruFault(stream, k, headOfEnd[k]);
    if (!fault.empty()) return ErrorAt(script, k, std::move(fault));
  }
  return {};
}

void ExpandGroups(CompiledScript& script) {
  const TokenStream& stream = script.TokenStream;
  const TokenWalk walk(stream);
  TokenStream written;
  std::vector<OpenGroup> open;
  for (size_t k = 0; k < stream.size(); ++k) {
    if (!open.empty() && open.back().end == k) {
      WriteMembers(open.back(), written);
      open.pop_back();
    }
    if (stream[k].code == VariableToken) {
      std::vector<int> members = MembersOf(NumberIn(stream[k]));
      if (!members.empty())
        open.push_back({std::move(members), walk.QualifiersEnd(k), written.size()});
    }
    if (written.size() >= LongestStream) RaiseOverflow();
    written.push_back(stream[k]);
  }
  script.TokenStream = std::move(written);
}

}  // namespace tessarel
