#include "stats/selection.h"

#include <algorithm>
#include <bit>

#include "state/view_state.h"
#include "texts/say.h"

namespace tessarel {

ViewSelectionState ViewSelections;

std::string_view ScopeName(Scope scope) {
  return Wording(At(ScopeNames, scope / SlotsInScope));
}

std::string_view ScopeExplanation(Scope scope) {
  constexpr std::array Sentences = {Text::AboutCurrentHand, Text::AboutLastHand,
                                    Text::AboutCurrentSession, Text::AboutLastSession,
                                    Text::AboutAllSessions};
  return Wording(At(Sentences, scope / SlotsInScope));
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
  if (Table.TakenPlaces == 0) return Say(Text::NoPlayersPresent);
  if (IsWholeTable(selection)) return Say(Text::AllPlayersSelected);
  const int count = std::popcount(PresentPlaces(selection));
  if (count == 0) return Say(Text::NoPlayersSelected);
  return SayChosen(count == 1 ? Text::PlayerSelected : Text::PlayersSelected, count);
}

std::string BetSelectionCaption(const NumberSet& bets) {
  int count = 0;
  bets.ForEach([&count](int number) { count += number >= 1 && number <= LastBet; });
  if (count == 0) return Say(Text::NoBetsSelected);
  if (count == 1) return Say(Text::OneBetSelected);
  return count == LastBet ? Say(Text::AllBetsSelected) : Say(Text::BetsSelected, count);
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
