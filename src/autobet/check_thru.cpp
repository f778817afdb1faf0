#include <algorithm>
#include <numeric>
#include <string>

#include "autobet/checker.h"
#include "autobet/functions.h"
#include "autobet/token_walk.h"
#include "base/fault.h"
#include "engine/bet_limits.h"
#include "state/bet_numbers.h"

namespace tessarel {

namespace {

using TokenStream = std::vector<ScriptToken>;

// The family of a variable for "thru". The functions have their own numbers as families, so a range
// from a named Place bet to a numbered one is refused, and so is one of Buy bets.
struct FamilyRow {
  int32_t First, Last, Family;
};
// clang-format off
constexpr FamilyRow Families[] = {
    {1, 6, 1}, {7, 12, 2}, {13, 18, 3}, {19, 24, 4}, {25, 30, 5}, {31, 36, 7}, {37, 42, 6},
    {50, 51, 8}, {52, 55, 9}, {67, 83, 10}, {100, 199, 21}, {800, 899, 800},
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

// What is wrong with the operand that begins (behind) or ends (in front) with a token.
std::string OperandFault(int32_t code, const std::string& where) {
  if (IsMarker(code)) return "Missing operand " + where + " 'thru'.";
  return (code >= EmptyToken ? "Missing or incompatible operand " : "Incompatible operand ") +
         where + " 'thru'.";
}

// What is wrong with the "thru" at an element; `front` is the head of the reference that ends in
// front of it, 0 without one.
std::string ThruFault(const TokenStream& stream, size_t thru, size_t front) {
  const int32_t before = stream[thru - 1].code, behind = stream[thru + 1].code;
  if (IsMarker(behind)) return OperandFault(behind, "following");
  if (IsMarker(before)) return OperandFault(before, "preceding");
  if (!IsOperand(stream[thru + 1])) return OperandFault(behind, "following");
  if (front == 0) return OperandFault(before, "preceding");
  if (!IsOperand(stream[front])) return OperandFault(FunctionToken, "preceding");
  const int32_t family = FamilyOf(stream[front]);
  if (family != 0 && family == FamilyOf(stream[thru + 1])) return {};
  return "Incompatible operands surrounding 'thru'.\r\rVariables to the left and right of 'thru' "
         "should be similar bet types, checkstacks, or checkstack names.\r\rFor example:\r"
         "      Place4 thru Place10";
}

// The members of the group words.
struct GroupRow {
  int32_t Word;
  std::array<int, FamilySize> Members;  // of one family; 0 at the end: fewer
};
// clang-format off
constexpr GroupRow FamilyGroups[] = {
    {4000, {1, 2, 3, 4, 5, 6}},       {4001, {2, 3, 4, 5}},     {4002, {1, 2, 5, 6}},
    {4010, {7, 8, 9, 10, 11, 12}},    {4011, {8, 9, 10, 11}},   {4012, {7, 8, 11, 12}},
    {4020, {13, 14, 15, 16, 17, 18}}, {4021, {14, 15, 16, 17}}, {4022, {13, 14, 17, 18}},
    {4030, {19, 20, 21, 22, 23, 24}}, {4031, {20, 21, 22, 23}}, {4032, {19, 20, 23, 24}},
    {4040, {25, 26, 27, 28, 29, 30}}, {4041, {26, 27, 28, 29}}, {4042, {25, 26, 29, 30}},
    {4050, {31, 32, 33, 34, 35, 36}}, {4051, {32, 33, 34, 35}}, {4052, {31, 32, 35, 36}},
    {4060, {37, 38, 39, 40, 41, 42}}, {4061, {38, 39, 40, 41}}, {4062, {37, 38, 41, 42}},
    {4070, {50, 51}},                 {4071, {52, 53, 54, 55}},
};
struct RangeRow {
  int32_t Word;
  int First, Last;
};
constexpr int32_t AllBets = 4100;
constexpr RangeRow RangeGroups[] = {
    {4072, 67, 83}, {AllBets, 1, LastBet}, {980, 100, 199}, {990, 800, 899},
};
// clang-format on

// The variables a group word stands for; none for another variable.
std::vector<int> MembersOf(int32_t word) {
  std::vector<int> members;
  for (const GroupRow& row : FamilyGroups) {
    if (row.Word == word) members.assign(row.Members.begin(), row.Members.end());
  }
  std::erase(members, 0);
  for (const RangeRow& row : RangeGroups) {
    if (row.Word != word) continue;
    members.resize(static_cast<size_t>(row.Last - row.First + 1));
    std::iota(members.begin(), members.end(), row.First);
  }
  if (word == AllBets) std::erase_if(members, [](int number) { return !OnLayout(number); });
  return members;
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
  std::vector<size_t> headOfEnd(stream.size() + 1);  // by the element behind a reference
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
