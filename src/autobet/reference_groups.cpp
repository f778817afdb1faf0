#include "autobet/reference_groups.h"

#include "autobet/reference_rules.h"
#include "autobet/token_walk.h"

namespace tessarel {

namespace {

using TokenStream = std::vector<ScriptToken>;
using Group = ReferenceGroup;
using Fate = ElementFate;

constexpr QualifierKind KindOf(int32_t code) {
  switch (code) {
    case HandToken:
      return HandKind;
    case FirstModifierToken:
      return FirstKind;
    case SecondModifierToken:
      return SecondKind;
    default:
      return PlayerKind;
  }
}

// Sorts the words of a script into groups.
class GroupReader {
 public:
  GroupReader(const TokenStream& stream, ReferenceGroups& result)
      : stream_(stream), groups_(result.groups), fates_(result.fates), groupOf_(result.groupOf) {}

  void Run() {
    for (size_t k = 2; k < stream_.size();)
      k = Take(k);
    GiveRollSets();
  }

 private:
  struct Bracket {
    size_t group = 0;       // goes on after the bracket; 0 none does
    bool argument = false;  // of the group's own function, not of one that stands for a player
  };

  // Takes an element and returns the next.
  size_t Take(size_t k) {
    switch (stream_[k].code) {
      case VariableToken:
        TakeVariable(k);
        return k + 1;
      case FunctionToken:
        return TakeFunction(k);
      case NumberToken:
        TakeNumber(k);
        return k + 1;
      case PlayerToken:
      case HandToken:
      case FirstModifierToken:
      case SecondModifierToken:
        TakeQualifier(k);
        return k + 1;
      case LogicOpen:
        Open();
        return k + 1;
      case LogicClose:
        Close();
        return k + 1;
      default:
        current_ = 0;
        return k + 1;
    }
  }

  bool HasGroup() const { return current_ != 0; }

  Group& Begin(size_t k) {
    const bool inArgument = !brackets_.empty() && brackets_.back().argument;
    groups_.push_back({.begin = k, .argumentOf = inArgument ? brackets_.back().group : 0});
    current_ = groups_.size() - 1;
    return groups_.back();
  }

  // The group that a word other than a qualifier joins.
  Group& GroupForWord(size_t k) {
    Group& group = HasGroup() && !groups_[current_].argumentDone ? groups_[current_] : Begin(k);
    ++group.size;
    return group;
  }

  void AddHead(size_t k) {
    Group& group = GroupForWord(k);
    if (group.head != 0 && IsSince(group.head) && NamesBet(stream_[k])) {
      group.since = group.head;
      fates_[group.since] = Fate::Goes;
      ++group.counts[SecondKind];
      --group.heads;
    }
    group.head = k;
    ++group.heads;
    groupOf_[k] = current_;
    fates_[k] = Fate::TakesQualifiers;
  }

  bool IsSince(size_t k) const {
    return stream_[k].code == VariableToken && NumberIn(stream_[k]) == variable::RollsSinceLast;
  }

  void TakeVariable(size_t k) {
    if (HasGroup() && groups_[current_].awaits != 0) {
      groups_[current_].awaits = 0;
      groups_[current_].argumentDone = true;
      const size_t function = current_;
      Begin(k).operandOf = function;
    }
    AddHead(k);
  }

  size_t TakeFunction(size_t k) {
    if (IsPlayerFunction(stream_[k])) return TakePlayerFunction(k);
    if (QualifiersOf(stream_[k]) == 0) {
      current_ = 0;
    } else {
      AddHead(k);
      groups_[current_].awaits = k;
    }
    return k + 1;
  }

  // With a bracket or number after it, it says which player; with a variable it is a value.
  size_t TakePlayerFunction(size_t k) {
    const int32_t operand = stream_[k + 1].code;
    if (operand == VariableToken) {
      current_ = 0;
      return k + 1;
    }
    TakeQualifier(k);
    if (operand == NumberToken) return k + 2;
    brackets_.push_back({.group = current_});
    current_ = 0;
    return k + 2;
  }

  void TakeNumber(size_t k) {
    if (HasGroup() && groups_[current_].awaits != 0) {
      groups_[current_].awaits = 0;
      return;
    }
    const int32_t before = stream_[k - 1].code;
    Group& group = GroupForWord(k);
    const bool namesRoll = group.head != 0 || before == FirstModifierToken;
    if (group.roll == 0 && namesRoll) group.roll = k;
  }

  void TakeQualifier(size_t k) {
    const QualifierKind kind = KindOf(stream_[k].code);
    if (!HasGroup()) Begin(k);
    Group* group = &groups_[current_];
    if (group->operandOf != 0 && !TakesQualifier(QualifiersOf(stream_[group->head]), kind))
      group = &groups_[group->operandOf];
    ++group->size;
    ++group->counts[kind];
    if (group->written[kind] == 0) group->written[kind] = k;
  }

  void Open() {
    const bool argument = HasGroup() && groups_[current_].awaits != 0;
    if (argument) groups_[current_].awaits = 0;
    brackets_.push_back({.group = argument ? current_ : 0, .argument = argument});
    current_ = 0;
  }

  void Close() {
    const Bracket bracket = brackets_.back();
    brackets_.pop_back();
    current_ = bracket.group;
    if (bracket.argument) groups_[current_].argumentDone = true;
  }

  // A set of rolls named within the brackets of a roll statistic qualifies the statistic.
  void GiveRollSets() {
    for (Group& group : groups_) {
      const size_t set = group.written[FirstKind];
      if (set == 0 || group.argumentOf == 0 || !IsRollSet(NumberIn(stream_[set]))) continue;
      if (group.head != 0 && TakesQualifier(QualifiersOf(stream_[group.head]), FirstKind)) continue;
      Group& statistic = groups_[group.argumentOf];
      if (!CountsRollsOfSet(stream_[statistic.head])) continue;
      size_t& written = statistic.written[FirstKind];
      if (written == 0) written = set;
      if (written == set || stream_[written] != stream_[set]) ++statistic.counts[FirstKind];
      group.written[FirstKind] = 0;
      --group.counts[FirstKind];
      fates_[set] = Fate::Goes;
      if (group.size == 1) DropSeparator(set);
    }
  }

  void DropSeparator(size_t element) {
    for (const size_t beside : {element - 1, element + 1}) {
      if (stream_[beside].code != LogicSeparator || fates_[beside] == Fate::Goes) continue;
      fates_[beside] = Fate::Goes;
      return;
    }
  }

  const TokenStream& stream_;
  std::vector<Group>& groups_;
  std::vector<Fate>& fates_;
  std::vector<size_t>& groupOf_;
  std::vector<Bracket> brackets_;
  size_t current_ = 0;  // the group that is being read; 0 none
};

}  // namespace

ReferenceGroups ReadReferenceGroups(const std::vector<ScriptToken>& stream) {
  ReferenceGroups result;
  result.fates.resize(stream.size());
  result.groupOf.resize(stream.size());
  GroupReader(stream, result).Run();
  return result;
}

}  // namespace tessarel
