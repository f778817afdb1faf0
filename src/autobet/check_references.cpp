#include <string>

#include "autobet/checker.h"
#include "autobet/reference_groups.h"
#include "autobet/reference_rules.h"
#include "autobet/token_walk.h"
#include "autobet/values.h"
#include "texts/say.h"

namespace tessarel {

namespace {

using TokenStream = std::vector<ScriptToken>;

// A seat word that stands for nobody's figure is a value.
ScriptToken SeatValue(int32_t player) {
  if (player < PlayerShooter) return Number(player);
  return {VariableToken, static_cast<double>(variable::Shooter + player - PlayerShooter)};
}

// Checks the groups of a script and writes it in the normal form.
class ReferenceWriter {
 public:
  ReferenceWriter(CompiledScript& script, ReferenceGroups& groups, const TokenWalk& walk, int owner)
      : script_(script),
        stream_(script.TokenStream),
        groups_(groups),
        walk_(walk),
        owner_(owner),
        qualifiers_(groups.groups.size()) {}

  std::optional<ScriptError> Resolve() {
    for (size_t k = 1; k < groups_.groups.size(); ++k) {
      const ReferenceGroup& group = groups_.groups[k];
      std::string text = Ambiguity(group);
      if (text.empty() && group.head != 0) text = ResolveReference(group, qualifiers_[k]);
      if (!text.empty()) return ErrorAt(script_, group.begin, std::move(text));
      const size_t player = group.written[PlayerKind];
      if (group.head == 0 && player != 0 && stream_[player].code == PlayerToken)
        stream_[player] = SeatValue(NumberIn(stream_[player]));
    }
    return {};
  }

  TokenStream Write() {
    written_.assign(1, {});
    frames_ = {{.at = 1, .end = stream_.size()}};
    while (!frames_.empty())
      Step();
    return std::move(written_);
  }

 private:
  // A stretch of the script that is being written, and what follows it.
  struct Frame {
    size_t at = 0, end = 0;
    std::vector<ScriptToken> behind{};
  };

  static std::string Ambiguity(const ReferenceGroup& group) {
    if (group.heads > 1) return Say(Text::ScriptTwoVariables);
    if (group.counts[PlayerKind] > 1) return Say(Text::ScriptTwoPlayers);
    if (group.counts[HandKind] > 1) return Say(Text::ScriptTwoHands);
    if (group.counts[FirstKind] > 1 || group.counts[SecondKind] > 1)
      return Say(Text::ScriptTwoModifiers);
    return {};
  }

  std::optional<int32_t> Written(const ReferenceGroup& group, QualifierKind kind) const {
    const size_t element = group.written[kind];
    if (element == 0) return {};
    return NumberIn(stream_[element]);
  }

  // Fills in the qualifiers of a reference; returns what is wrong with it, if anything.
  std::string ResolveReference(const ReferenceGroup& group, Qualifiers& qualifiers) {
    const ScriptToken& head = stream_[group.head];
    WrittenQualifiers written = {.player = Written(group, PlayerKind),
                                 .hand = Written(group, HandKind),
                                 .first = Written(group, FirstKind),
                                 .second = Written(group, SecondKind)};
    if (group.since != 0) written.second = ModRollsSinceLast;
    qualifiers = WithDefaults(head, written, owner_);
    std::string misuse = QualifierMisuse(head, qualifiers);
    if (misuse.empty() && NamesBet(head) && IsHouse(group.written[PlayerKind]))
      misuse = Say(Text::ScriptHouseWager);
    if (misuse.empty() && CountsRollsOfSet(head) && !HasGoodRolls(group, qualifiers.first))
      misuse = Say(Text::ScriptRollLimits);
    if (!misuse.empty()) return Say(Text::ScriptMisuse, misuse);

    for (const size_t element : group.written) {
      if (element != 0) groups_.fates[element] = ElementFate::Goes;
    }
    if (NamesRoll(group)) groups_.fates[group.roll] = ElementFate::Goes;
    return {};
  }

  // Whether a player was written who is the house.
  bool IsHouse(size_t player) const {
    if (player == 0) return false;
    if (stream_[player].code == PlayerToken) return NumberIn(stream_[player]) == PlayerNobody;
    const bool inBrackets = stream_[player + 1].code == LogicOpen;
    const size_t operand = player + (inBrackets ? 2 : 1);
    return stream_[operand] == Number(PlayerNobody) &&
           (!inBrackets || stream_[operand + 1].code == LogicClose);
  }

  bool NamesRoll(const ReferenceGroup& group) const {
    const ScriptToken& head = stream_[group.head];
    return group.roll != 0 && head.code == VariableToken && RollFunctionOf(NumberIn(head)) != 0;
  }

  // Tests the rolls that are plain numbers.
  bool HasGoodRolls(const ReferenceGroup& group, int32_t set) const {
    if (NamesRoll(group)) return IsRollOf(set, stream_[group.roll].value);
    const size_t open = group.head + 1;
    if (stream_[group.head].code != FunctionToken || stream_[open].code != LogicOpen) return true;
    for (size_t k = open + 1; k < walk_.Match(open); ++k) {
      if (stream_[k].code == LogicOpen) k = walk_.Match(k);
      if (stream_[k].code == NumberToken && BoundsItem(k - 1) && BoundsItem(k + 1) &&
          !IsRollOf(set, stream_[k].value))
        return false;
    }
    return true;
  }

  bool BoundsItem(size_t element) const {
    const int32_t code = stream_[element].code;
    return code == LogicOpen || code == LogicClose || code == LogicSeparator ||
           code == FirstModifierToken;
  }

  void Step() {
    Frame& frame = frames_.back();
    if (frame.at == frame.end) {
      written_.insert(written_.end(), frame.behind.begin(), frame.behind.end());
      frames_.pop_back();
      return;
    }
    const size_t k = frame.at++;
    switch (groups_.fates[k]) {
      case ElementFate::Stays:
        written_.push_back(stream_[k]);
        break;
      case ElementFate::Goes:
        if (IsPlayerFunction(stream_[k])) frame.at = walk_.PlayerFunctionEnd(k);
        break;
      case ElementFate::TakesQualifiers:
        WriteReference(k);
        break;
    }
  }

  void WriteReference(size_t k) {
    const size_t index = groups_.groupOf[k];
    const ReferenceGroup& group = groups_.groups[index];
    ScriptToken head = stream_[k];
    if (NamesRoll(group))
      head = {FunctionToken, static_cast<double>(RollFunctionOf(NumberIn(head)))};
    written_.push_back(head);

    std::vector<ScriptToken> behind = BehindPlayer(head, group, qualifiers_[index]);
    const size_t player = group.written[PlayerKind];
    if (QualifiersOf(head) > 0 && player != 0 && IsPlayerFunction(stream_[player])) {
      written_.push_back(stream_[player]);
      frames_.push_back({player + 1, walk_.PlayerFunctionEnd(player), std::move(behind)});
      return;
    }
    if (QualifiersOf(head) > 0)
      written_.push_back({PlayerToken, static_cast<double>(qualifiers_[index].player)});
    written_.insert(written_.end(), behind.begin(), behind.end());
  }

  // The qualifiers after the player, and the argument of a statistic that had none yet.
  std::vector<ScriptToken> BehindPlayer(const ScriptToken& head,
                                        const ReferenceGroup& group,
                                        const Qualifiers& qualifiers) const {
    std::vector<ScriptToken> behind;
    const auto put = [&](QualifierKind kind, int32_t code, int32_t value) {
      if (TakesQualifier(QualifiersOf(head), kind))
        behind.push_back({code, static_cast<double>(value)});
    };
    put(HandKind, HandToken, qualifiers.hand);
    put(FirstKind, FirstModifierToken, qualifiers.first);
    put(SecondKind, SecondModifierToken, qualifiers.second);
    if (NamesRoll(group))
      behind.insert(behind.end(), {{LogicOpen, 0}, stream_[group.roll], {LogicClose, 0}});
    return behind;
  }

  const CompiledScript& script_;
  TokenStream& stream_;
  ReferenceGroups& groups_;
  const TokenWalk& walk_;
  int owner_;
  std::vector<Qualifiers> qualifiers_;  // by group
  TokenStream written_;
  std::vector<Frame> frames_;  // operands are written ahead of their turn: a stretch in a stretch
};

}  // namespace

std::optional<ScriptError> CheckReferences(int slot, CompiledScript& script) {
  const TokenWalk walk(script.TokenStream);
  ReferenceGroups groups = ReadReferenceGroups(script.TokenStream);
  ReferenceWriter writer(script, groups, walk, slot == 0 ? SelectedBettor() : slot);
  if (auto error = writer.Resolve()) return error;
  script.TokenStream = writer.Write();
  return {};
}

}  // namespace tessarel
