#include "stats/selection.h"

#include <algorithm>
#include <bit>

#include "state/view_state.h"
#include "texts/language.h"

namespace tessarel {

ViewSelectionState ViewSelections;

namespace {

constexpr int NoPlayersPresent = 100, NoPlayersSelected = 101, PlayerSelected = 102,
              PlayersSelected = 103, AllPlayersSelected = 104;

}  // namespace

std::string_view ScopeName(Scope scope) {
  return At(ScopeNames, scope / SlotsInScope);
}

std::string_view ScopeExplanation(Scope scope) {
  constexpr std::array<std::string_view, 5> Sentences = {
      "Figures since the current shooter's first roll.",
      "Figures of the hand that ended with the last seven-out.",
      "Figures since the current session began.",
      "Figures of the session before this one.",
      "Figures of this session and of all that were preserved before it.",
  };
  return At(Sentences, scope / SlotsInScope);
}

bool IsCounted(Scope scope) {
  return std::ranges::find(CountedScopes, scope) != CountedScopes.end();
}

PlaceSelection PresentPlaces(PlaceSelection selection) {
  return selection & Table.TakenPlaces;
}

bool IsWholeTable(PlaceSelection selection) {
  if ((selection & WholeTable) != 0) return true;
  return Table.TakenPlaces != 0 && PresentPlaces(selection) == Table.TakenPlaces;
}

std::string Placeholder(PlaceSelection selection) {
  if ((selection & WholeTable) != 0 || PresentPlaces(selection) != 0) return "";
  return SelectionCaption(selection);
}

std::string SelectionCaption(PlaceSelection selection) {
  if (Table.TakenPlaces == 0) return std::string(GetText(NoPlayersPresent));
  if (IsWholeTable(selection)) return std::string(GetText(AllPlayersSelected));
  const int count = std::popcount(PresentPlaces(selection));
  if (count == 0) return std::string(GetText(NoPlayersSelected));
  const int text = count == 1 ? PlayerSelected : PlayersSelected;
  return std::to_string(count) + " " + std::string(GetText(text));
}

std::string BetSelectionCaption(const NumberSet& bets) {
  int count = 0;
  bets.ForEach([&count](int number) { count += number >= 1 && number <= LastBet; });
  if (count == 0) return "No bets selected";
  if (count == 1) return "1 bet selected";
  return count == LastBet ? "All bets selected" : std::to_string(count) + " bets selected";
}

NumberSet AllBets() {
  NumberSet bets;
  for (int number = 1; number <= LastBet; ++number)
    bets.Add(number);
  return bets;
}

void FollowInViews(int from, int to) {
  const PlaceSelection before = 1u << from, after = to == 0 ? 0 : 1u << to;
  for (PlaceSelection* selection :
       {&ViewSelections.BetResultsPlayer, &ViewSelections.BetTrendsPlayer,
        &ViewSelections.HandsPlayer, &ViewSelections.SummaryPlayer,
        &ViewSelections.RollTotalsPlayer}) {
    if ((*selection & before) != 0) *selection = (*selection & ~before) | after;
  }
  ChosenPlaces& chosen = GameViews.Players;
  for (int32_t* place : {&ViewSelections.CSPlayer, &ViewSelections.SessionsPlayer, &chosen.AutoPlay,
                         &chosen.Configuration, &chosen.BankrollGraph, &chosen.Scripts}) {
    if (*place == from) *place = to;
  }
}

}  // namespace tessarel
