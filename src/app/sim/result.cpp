#include "app/sim/result.h"

#include <nlohmann/json.hpp>

#include "app/sim/console.h"
#include "app/sim/output.h"
#include "base/message.h"
#include "base/number_format.h"
#include "dice/generators.h"
#include "state/books.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel::sim {

namespace {

using Json = nlohmann::ordered_json;

Json Number(Money amount) {
  if (amount.IsWhole()) return amount.Floor();
  return amount.ToDouble();
}

Json TableJson() {
  return {{"Point", Table.Point},
          {"LastPoint", Table.LastPoint},
          {"Shooter", Table.Shooter},
          {"LastShooter", Table.LastShooter},
          {"Die1", Table.Die1},
          {"Die2", Table.Die2},
          {"DiceTotal", Table.DiceTotal},
          {"MarkedNumbers", Table.MarkedNumbers},
          {"FourRollCount", Table.FourRollCount},
          {"FirePointsMask", Table.FirePointsMask},
          {"FirePoints", Table.FirePoints},
          {"SharpShooterPoints", Table.SharpShooterPoints},
          {"RideTheLinePasses", Table.RideTheLinePasses}};
}

Money VigOf(int place, int number) {
  const auto index = static_cast<size_t>((number - 1) % FamilySize);
  if (InFamily(number, LayFamily)) return Table.LayVig[place][index];
  if (InFamily(number, BuyFamily)) return Table.BuyVig[place][index];
  return Money();
}

Json BetsJson(int place) {
  Json bets = Json::array();
  Table.Standing[place].ForEach([&](int number) {
    bets.push_back({{"bet", number},
                    {"name", BetName[number]},
                    {"amount", Number(Bet(place, number))},
                    {"contract", Number(Table.BetContract[place][number])},
                    {"working", Table.BetWorking[place][number]},
                    {"vig", Number(VigOf(place, number))},
                    {"streak", Table.BetStreak[place][number]}});
  });
  return bets;
}

Json StacksJson(int place) {
  Json stacks = Json::array();
  for (int stack = 0; stack < StackCount; ++stack) {
    const Money amount = Bet(place, FirstStack + stack);
    const std::string& name = Table.CheckStackName[place][stack];
    if (amount == Money() && name.empty()) continue;
    stacks.push_back({{"stack", stack}, {"name", name}, {"amount", Number(amount)}});
  }
  return stacks;
}

Json MeasuresJson(const BetMeasures& measures) {
  return {{"count", Number(measures.Count)},        {"sum", Number(measures.Sum)},
          {"high", Number(measures.High)},          {"low", Number(measures.Low)},
          {"last_roll", Number(measures.LastRoll)}, {"last", Number(measures.Last)}};
}

Json ResultsJson(int place) {
  Json results = Json::array();
  for (int number = 1; number <= LastBet; ++number) {
    const BetRecord& record = Stats.Bets[place + CurrentSession][number];
    if (record.Tendered.Count == Money()) continue;
    results.push_back({{"bet", number},
                       {"name", BetName[number]},
                       {"tendered", MeasuresJson(record.Tendered)},
                       {"won", MeasuresJson(record.Won)},
                       {"lost", MeasuresJson(record.Lost)}});
  }
  return results;
}

Json PlayerJson(int place) {
  const int slot = place + CurrentSession;
  return {{"place", place},
          {"name", Table.PlayerName[place]},
          {"Bankroll", Number(Table.Bankroll[slot])},
          {"BankrollBegin", Number(Table.BankrollBegin[slot])},
          {"BankrollHigh", Number(Table.BankrollHigh[slot])},
          {"BankrollLow", Number(Table.BankrollLow[slot])},
          {"InvestedBankroll", Number(Table.InvestedBankroll[place])},
          {"MoneyOnTable", Number(Table.MoneyOnTable[place])},
          {"bets", BetsJson(place)},
          {"checkstacks", StacksJson(place)},
          {"results", ResultsJson(place)}};
}

Json HandFiguresJson() {
  const HandFigures& hands = Stats.Hands[CurrentSession];
  return {{"HandCount", hands.HandCount},   {"RollTotal", hands.RollTotal},
          {"MostRolls", hands.MostRolls},   {"MostComeoutRolls", hands.MostComeoutRolls},
          {"MostPasses", hands.MostPasses}, {"MostMisses", hands.MostMisses}};
}

std::string Count(int64_t count) {
  return FormatNumber(count, "#,#;-#,#;0");
}

std::string Cents(Money amount) {
  return FormatNumber(amount, "#,0.00;-#,0.00;0.00");
}

std::string Dollars(Money amount) {
  return FormatNumber(amount, "$#,0.00;-$#,0.00;$0.00");
}

std::string Signed(Money amount) {
  return (amount > Money() ? "+" : "") + Cents(amount);
}

std::string DiceText(const RunFacts& facts) {
  if (!facts.diceFile.empty()) return Say(Text::SimDiceFromFile, facts.diceFile);
  return Say(Text::SimDiceFromGenerator, Dice.CurrentRNG, Dice.LastSeed);
}

std::string BetRows(int place) {
  std::string rows;
  for (int number = 1; number <= LastBet; ++number) {
    const BetRecord& record = Stats.Bets[place + CurrentSession][number];
    if (record.Tendered.Count == Money()) continue;
    const Money net = record.Won.Sum - record.Lost.Sum;
    const double percent = 100 * net.ToDouble() / record.Tendered.Sum.ToDouble();
    rows += "  " + Left(std::string(BetName[number]), 18) +
            Right(Count(record.Tendered.Count.Floor()), 12) +
            Right(Count(record.Won.Count.Floor()), 12) +
            Right(Count(record.Lost.Count.Floor()), 12) + Right(Cents(record.Tendered.Sum), 20) +
            Right(Signed(net), 18) + Right(FormatNumber(percent, "0.000;-0.000;0.000") + "%", 11) +
            "\n";
  }
  if (rows.empty()) return "";
  return "  " + Left(Say(Text::BetColumn), 18) + Right(Say(Text::WagersResolved), 12) +
         Right(Say(Text::SimWonColumn), 12) + Right(Say(Text::SimLostColumn), 12) +
         Right(Say(Text::SimAmountColumn), 20) + Right(Say(Text::NetDollarsColumn), 18) +
         Right(Say(Text::WagersNetPercent), 11) + "\n" + rows;
}

std::string PlayerSummary(int place) {
  const int slot = place + CurrentSession;
  const Money bankroll = Table.Bankroll[slot];
  return "\n" + Say(Text::SimPlayerAtPlace, Table.PlayerName[place], place) + "\n  " +
         Say(Text::SimBankrollLine, Dollars(bankroll),
             Signed(bankroll - Table.InvestedBankroll[place]), Dollars(Table.BankrollHigh[slot]),
             Dollars(Table.BankrollLow[slot]), Dollars(Table.MoneyOnTable[place])) +
         "\n" + BetRows(place);
}

Json BySessionJson(const RunFacts& facts) {
  Json ends = Json::array();
  for (const SessionEnd& end : facts.bySession) {
    ends.push_back({{"session", end.session},
                    {"place", end.place},
                    {"Bankroll", Number(end.bankroll)},
                    {"BankrollLow", Number(end.low)},
                    {"BankrollHigh", Number(end.high)}});
  }
  return ends;
}

}  // namespace

std::string ResultJson(const RunFacts& facts) {
  Json messages = Json::array();
  for (const ShownMessage& shown : Console.messages) {
    messages.push_back({{"title", shown.title}, {"text", shown.text}});
  }
  Json players = Json::array();
  ForEachPlayer([&players](int place) { players.push_back(PlayerJson(place)); });
  Json result = {{"version", 1},
                 {"rolls", facts.rolls},
                 {"sessions", facts.sessions},
                 {"hands", facts.hands},
                 {"seconds", facts.seconds},
                 {"rng", Dice.CurrentRNG},
                 {"seed", Dice.LastSeed},
                 {"stop_reason", facts.stopReason},
                 {"messages", messages},
                 {"table", TableJson()},
                 {"players", players},
                 {"roll_counts", Stats.RollCount[CurrentSession]},
                 {"hand_figures", HandFiguresJson()}};
  if (facts.sessions > 1) result["by_session"] = BySessionJson(facts);
  return result.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::string ResultSummary(const RunFacts& facts) {
  const std::string rolls = Count(facts.rolls), hands = Count(facts.hands), dice = DiceText(facts);
  std::string text = facts.sessions == 1
                         ? Say(Text::SimOneSession, rolls, hands, dice)
                         : Say(Text::SimManySessions, Count(facts.sessions), rolls, hands, dice);
  text += "\n";
  if (!facts.stopReason.empty()) text += OnOneLine(facts.stopReason) + "\n";
  ForEachPlayer([&text](int place) { text += PlayerSummary(place); });
  return text;
}

}  // namespace tessarel::sim
