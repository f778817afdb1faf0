#include <array>
#include <string>

#include "autobet/checker.h"
#include "autobet/reference_rules.h"
#include "autobet/token_walk.h"
#include "autobet/values.h"

namespace tessarel {

namespace {

using TokenStream = std::vector<ScriptToken>;

// The kinds of qualifier in the order of the normal form.
enum Kind : size_t { PlayerKind, HandKind, FirstKind, SecondKind, KindCount };

constexpr Kind KindOf(int32_t code) {
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

// Whether a variable or function with so many qualifiers takes one of a kind.
constexpr bool Takes(int count, Kind kind) {
  constexpr std::array<int, KindCount> FewestWith = {1, 2, 4, 3};
  return count >= FewestWith[kind];
}

// Words that belong together: a variable or function and its qualifiers, or qualifiers alone.
// Elements are 0 while there is none.
struct Group {
  size_t begin = 0;                         // its first element
  size_t head = 0;                          // the variable or function
  std::array<size_t, KindCount> written{};  // the qualifiers
  std::array<int, KindCount> counts{};
  int heads = 0, size = 0;
  size_t since = 0;           // "# of rolls since last" in front of a bet
  size_t roll = 0;            // the number whose statistic is meant
  size_t awaits = 0;          // the function that has not met its argument yet
  size_t operandOf = 0;       // the group of the function of which this is the bare operand
  size_t argumentOf = 0;      // the group of the function in whose brackets this is
  bool argumentDone = false;  // only qualifiers can follow
};

// What becomes of an element in the normal form.
enum class Fate : uint8_t { Stays, Goes, TakesQualifiers };

// Sorts the words of a script into groups.
class GroupReader {
 public:
  explicit GroupReader(const CompiledScript& script)
      : fates(script.TokenStream.size()),
        groupOf(script.TokenStream.size()),
        stream_(script.TokenStream) {
    for (size_t k = 2; k < stream_.size();)
      k = Take(k);
    GiveRollSets();
  }

  std::vector<Group> groups = std::vector<Group>(1);
  std::vector<Fate> fates;
  std::vector<size_t> groupOf;  // of the heads

 private:
  struct Bracket {
    size_t group = 0;       // goes on behind the bracket; 0 none does
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
    groups.push_back({.begin = k, .argumentOf = inArgument ? brackets_.back().group : 0});
    current_ = groups.size() - 1;
    return groups.back();
  }

  // The group that a word other than a qualifier joins.
  Group& GroupForWord(size_t k) {
    Group& group = HasGroup() && !groups[current_].argumentDone ? groups[current_] : Begin(k);
    ++group.size;
    return group;
  }

  void AddHead(size_t k) {
    Group& group = GroupForWord(k);
    if (group.head != 0 && IsSince(group.head) && NamesBet(stream_[k])) {
      group.since = group.head;
      fates[group.since] = Fate::Goes;
      ++group.counts[SecondKind];
      --group.heads;
    }
    group.head = k;
    ++group.heads;
    groupOf[k] = current_;
    fates[k] = Fate::TakesQualifiers;
  }

  bool IsSince(size_t k) const {
    constexpr int32_t RollsSinceLast = 4505;
    return stream_[k].code == VariableToken && NumberIn(stream_[k]) == RollsSinceLast;
  }

  void TakeVariable(size_t k) {
    if (HasGroup() && groups[current_].awaits != 0) {
      groups[current_].awaits = 0;
      groups[current_].argumentDone = true;
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
      groups[current_].awaits = k;
    }
    return k + 1;
  }

  // With a bracket or number behind it, it says which player; with a variable it is a value.
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
    if (HasGroup() && groups[current_].awaits != 0) {
      groups[current_].awaits = 0;
      return;
    }
    const int32_t before = stream_[k - 1].code;
    Group& group = GroupForWord(k);
    const bool namesRoll = group.head != 0 || before == FirstModifierToken;
    if (group.roll == 0 && namesRoll) group.roll = k;
  }

  void TakeQualifier(size_t k) {
    const Kind kind = KindOf(stream_[k].code);
    if (!HasGroup()) Begin(k);
    Group* group = &groups[current_];
    if (group->operandOf != 0 && !Takes(QualifiersOf(stream_[group->head]), kind))
      group = &groups[group->operandOf];
    ++group->size;
    ++group->counts[kind];
    if (group->written[kind] == 0) group->written[kind] = k;
  }

  void Open() {
    const bool argument = HasGroup() && groups[current_].awaits != 0;
    if (argument) groups[current_].awaits = 0;
    brackets_.push_back({.group = argument ? current_ : 0, .argument = argument});
    current_ = 0;
  }

  void Close() {
    const Bracket bracket = brackets_.back();
    brackets_.pop_back();
    current_ = bracket.group;
    if (bracket.argument) groups[current_].argumentDone = true;
  }

  // A set of rolls named within the brackets of a roll statistic qualifies the statistic.
  void GiveRollSets() {
    for (Group& group : groups) {
      const size_t set = group.written[FirstKind];
      if (set == 0 || group.argumentOf == 0 || !IsRollSet(NumberIn(stream_[set]))) continue;
      if (group.head != 0 && Takes(QualifiersOf(stream_[group.head]), FirstKind)) continue;
      Group& statistic = groups[group.argumentOf];
      if (!IsRollStatistic(stream_[statistic.head])) continue;
      size_t& written = statistic.written[FirstKind];
      if (written == 0) written = set;
      if (written == set || stream_[written] != stream_[set]) ++statistic.counts[FirstKind];
      group.written[FirstKind] = 0;
      --group.counts[FirstKind];
      fates[set] = Fate::Goes;
      if (group.size == 1) DropSeparator(set);
    }
  }

  void DropSeparator(size_t element) {
    for (const size_t beside : {element - 1, element + 1}) {
      if (stream_[beside].code != LogicSeparator || fates[beside] == Fate::Goes) continue;
      fates[beside] = Fate::Goes;
      return;
    }
  }

  const TokenStream& stream_;
  std::vector<Bracket> brackets_;
  size_t current_ = 0;  // the group that is being read; 0 none
};

// A seat word that stands for nobody's figure is a value.
ScriptToken SeatValue(int32_t player) {
  constexpr int32_t ShooterVariable = 5200;
  if (player < PlayerShooter) return Number(player);
  return {VariableToken, static_cast<double>(ShooterVariable + player - PlayerShooter)};
}

// Checks the groups of a script and writes it in the normal form.
class GroupWriter {
 public:
  GroupWriter(CompiledScript& script, GroupReader& reader, const TokenWalk& walk, int owner)
      : script_(script),
        stream_(script.TokenStream),
        reader_(reader),
        walk_(walk),
        owner_(owner),
        qualifiers_(reader.groups.size()) {}

  std::optional<ScriptError> Resolve() {
    for (size_t k = 1; k < reader_.groups.size(); ++k) {
      const Group& group = reader_.groups[k];
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

  static std::string Ambiguity(const Group& group) {
    if (group.heads > 1) return "Ambiguous variable references";
    if (group.counts[PlayerKind] > 1) return "Ambiguous player references";
    if (group.counts[HandKind] > 1) return "Ambiguous hand references";
    if (group.counts[FirstKind] > 1 || group.counts[SecondKind] > 1)
      return "Ambiguous variable modifiers";
    return {};
  }

  std::optional<int32_t> Written(const Group& group, Kind kind) const {
    const size_t element = group.written[kind];
    if (element == 0) return {};
    return NumberIn(stream_[element]);
  }

  // Fills in the qualifiers of a reference; returns what is wrong with it, if anything.
  std::string ResolveReference(const Group& group, Qualifiers& qualifiers) {
    const ScriptToken& head = stream_[group.head];
    WrittenQualifiers written = {.player = Written(group, PlayerKind),
                                 .hand = Written(group, HandKind),
                                 .first = Written(group, FirstKind),
                                 .second = Written(group, SecondKind)};
    if (group.since != 0) written.second = ModRollsSinceLast;
    qualifiers = WithDefaults(head, written, owner_);
    std::string misuse = QualifierMisuse(head, qualifiers);
    if (misuse.empty() && NamesBet(head) && IsHouse(group.written[PlayerKind]))
      misuse = HouseWagerMisuse();
    if (misuse.empty() && IsRollStatistic(head) && !HasGoodRolls(group, qualifiers.first))
      misuse = RollLimitsText();
    if (!misuse.empty()) return "Ambiguous variable references\r\r" + misuse;

    for (const size_t element : group.written) {
      if (element != 0) reader_.fates[element] = Fate::Goes;
    }
    if (NamesRoll(group)) reader_.fates[group.roll] = Fate::Goes;
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

  bool NamesRoll(const Group& group) const {
    const ScriptToken& head = stream_[group.head];
    return group.roll != 0 && head.code == VariableToken && RollFunctionOf(NumberIn(head)) != 0;
  }

  // Tests the rolls that are plain numbers.
  bool HasGoodRolls(const Group& group, int32_t set) const {
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
    switch (reader_.fates[k]) {
      case Fate::Stays:
        written_.push_back(stream_[k]);
        break;
      case Fate::Goes:
        if (IsPlayerFunction(stream_[k])) frame.at = walk_.PlayerFunctionEnd(k);
        break;
      case Fate::TakesQualifiers:
        WriteReference(k);
        break;
    }
  }

  void WriteReference(size_t k) {
    const size_t index = reader_.groupOf[k];
    const Group& group = reader_.groups[index];
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

  // The qualifiers behind the player, and the argument of a statistic that had none yet.
  std::vector<ScriptToken> BehindPlayer(const ScriptToken& head,
                                        const Group& group,
                                        const Qualifiers& qualifiers) const {
    std::vector<ScriptToken> behind;
    const auto put = [&](Kind kind, int32_t code, int32_t value) {
      if (Takes(QualifiersOf(head), kind)) behind.push_back({code, static_cast<double>(value)});
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
  GroupReader& reader_;
  const TokenWalk& walk_;
  int owner_;
  std::vector<Qualifiers> qualifiers_;  // by group
  TokenStream written_;
  std::vector<Frame> frames_;  // operands are written ahead of their turn: a stretch in a stretch
};

}  // namespace

std::optional<ScriptError> CheckReferences(int slot, CompiledScript& script) {
  const TokenWalk walk(script.TokenStream);
  GroupReader reader(script);
  GroupWriter writer(script, reader, walk, slot == 0 ? SelectedBettor() : slot);
  if (auto error = writer.Resolve()) return error;
  script.TokenStream = writer.Write();
  return {};
}

}  // namespace tessarel
