#include "stats/session_statistics.h"

#include <algorithm>
#include <cmath>

#include "base/number_format.h"
#include "state/books.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

SessionsViewState SessionsView;

namespace {

__extension__ using Wide = __int128;

constexpr std::array<int, 4> MostBars = {100, 50, 25, 12};
constexpr int64_t NarrowestAmount = Money::Scale / 100;

// A sum or product as an amount, at the limit when it is beyond.
Money Limited(Wide raw) {
  return Money::FromRaw(static_cast<int64_t>(std::clamp<Wide>(raw, INT64_MIN, INT64_MAX)));
}

bool IsCountStat(int stat) {
  return stat <= SessionBetsNet || stat == CountOfSessions;
}

bool Counts(const Session& session, int32_t included) {
  const Money net = session[SessionNet];
  const int32_t kind = net > Money()   ? include::Winning
                       : net < Money() ? include::Losing
                                       : include::Even;
  return (included & kind) != 0;
}

void OrderRows(std::vector<SessionRow>& rows, int32_t display) {
  if (display == LowestFirst) {
    std::ranges::stable_sort(rows, {}, &SessionRow::Value);
  } else if (display == HighestFirst) {
    std::ranges::stable_sort(rows, std::ranges::greater(), &SessionRow::Value);
  }
}

double MedianOf(const std::vector<Money>& sorted) {
  const size_t middle = sorted.size() / 2;
  const double upper = sorted[middle].ToDouble();
  return sorted.size() % 2 != 0 ? upper : (sorted[middle - 1].ToDouble() + upper) / 2;
}

double DeviationOf(const std::vector<Money>& values, double mean) {
  if (values.size() < 2) return 0;
  double squares = 0;
  for (const Money value : values) {
    const double off = value.ToDouble() - mean;
    squares += off * off;
  }
  return std::sqrt(squares / static_cast<double>(values.size() - 1));
}

void FigureValues(SessionStatistics& statistics) {
  const std::vector<Money>& sorted = statistics.Sorted;
  if (sorted.empty()) return;
  Wide sum = 0;
  for (const Money value : sorted)
    sum += value.Raw();
  statistics.Total = Limited(sum);
  statistics.Lowest = sorted.front();
  statistics.Highest = sorted.back();
  statistics.Mean =
      static_cast<double>(sum) / static_cast<double>(sorted.size()) / double{Money::Scale};
  statistics.Median = MedianOf(sorted);
  statistics.Deviation = DeviationOf(sorted, statistics.Mean);
}

SessionShare ShareOf(const SessionStatistics& statistics, int64_t count) {
  if (statistics.Sorted.empty()) return {};
  return {count, static_cast<double>(count) / static_cast<double>(statistics.Count())};
}

int64_t CountBelow(const SessionStatistics& statistics, Money value) {
  return std::ranges::lower_bound(statistics.Sorted, value) - statistics.Sorted.begin();
}

int64_t CountUpTo(const SessionStatistics& statistics, Money value) {
  return std::ranges::upper_bound(statistics.Sorted, value) - statistics.Sorted.begin();
}

int64_t FloorDivide(int64_t value, int64_t width) {
  return value / width - (value % width < 0 ? 1 : 0);
}

// The narrowest of 1, 2 and 5 times a power of ten that takes at most `bars` bars for the range.
// The widest ever needed, a twelfth of all 64-bit amounts, fits.
int64_t NiceWidth(uint64_t range, int bars, int64_t narrowest) {
  const auto most = static_cast<uint64_t>(bars);
  const uint64_t least = range / most + (range % most != 0 ? 1 : 0);
  for (int64_t power = narrowest;; power *= 10) {
    for (const int64_t width : {power, 2 * power, 5 * power}) {
      if (static_cast<uint64_t>(width) >= least) return width;
    }
  }
}

// A pattern whose decimals are all optional leaves the point of a whole number bare.
template <class Number>
std::string FineTextOf(Number value) {
  std::string text = FormatNumber(value, "0.########;-0.########;0");
  if (text.ends_with('.')) text.pop_back();
  return text;
}

}  // namespace

void RepairSessionsView() {
  const SessionsViewState usual;
  const auto repair = [](int32_t& value, int32_t last, int32_t otherwise) {
    if (value < 0 || value > last) value = otherwise;
  };
  repair(SessionsView.Stat, CountOfSessions, usual.Stat);
  repair(SessionsView.Display, HighestFirst, usual.Display);
  repair(SessionsView.Width, ExtraWideBars, usual.Width);
  SessionsView.Include &= include::All;
}

Session SessionSoFar(int place) {
  Session session{};
  session[SessionRolls] = RollsInSession();
  const auto& bets = Stats.Bets[place + CurrentSession];
  for (int number = 1; number <= LastBet; ++number) {
    const BetRecord& bet = At(bets, number);
    session[SessionBets] += bet.Tendered.Count;
    session[SessionBetsWon] += bet.Won.Count;
    session[SessionBetsLost] += bet.Lost.Count;
    session[SessionHandle] += bet.Tendered.Sum;
    session[SessionWon] += bet.Won.Sum;
    session[SessionLost] += bet.Lost.Sum;
  }
  session[SessionBetsNet] = session[SessionBetsWon] - session[SessionBetsLost];
  session[SessionNet] = session[SessionWon] - session[SessionLost];
  if (session[SessionHandle] != Money()) {
    session[SessionAdvantage] =
        Money::FromDouble(session[SessionNet].ToDouble() / session[SessionHandle].ToDouble());
  }
  session[SessionInvested] = Table.InvestedBankroll[place];
  session[SessionBankroll] = BankrollOf(place);
  return session;
}

Money SessionValue(const Session& session, int stat) {
  if (stat == CountOfSessions) return 1;
  const Money value = At(session, stat);
  return stat == SessionAdvantage ? Limited(Wide{value.Raw()} * 100) : value;
}

SessionStatistics FigureSessions(const std::vector<Session>& finished,
                                 const std::optional<Session>& inProgress,
                                 const SessionsViewState& view) {
  SessionStatistics statistics;
  statistics.Stat = view.Stat;
  statistics.Rows.reserve(finished.size() + 1);
  int32_t number = 0;
  for (const Session& session : finished) {
    ++number;
    if (Counts(session, view.Include)) {
      statistics.Rows.push_back({number, SessionValue(session, view.Stat)});
    }
  }
  if (inProgress) {
    statistics.Current = SessionValue(*inProgress, view.Stat);
    if ((view.Include & include::InProgress) != 0) {
      statistics.Rows.push_back({number + 1, *statistics.Current, true});
    }
  }
  for (const SessionRow& row : statistics.Rows)
    statistics.Sorted.push_back(row.Value);
  std::ranges::sort(statistics.Sorted);
  OrderRows(statistics.Rows, view.Display);
  FigureValues(statistics);
  return statistics;
}

SessionShare SessionsBelow(const SessionStatistics& statistics, Money value) {
  return ShareOf(statistics, CountBelow(statistics, value));
}

SessionShare SessionsAtOrAbove(const SessionStatistics& statistics, Money value) {
  return ShareOf(statistics, statistics.Count() - CountBelow(statistics, value));
}

SessionShare SessionsBetween(const SessionStatistics& statistics, Money one, Money other) {
  const auto [low, high] = std::minmax(one, other);
  return ShareOf(statistics, CountUpTo(statistics, high) - CountBelow(statistics, low));
}

SessionShare SessionsWithin(const SessionStatistics& statistics, double deviations) {
  // Sessions that are all alike lie at their mean, however its last bit is rounded.
  if (statistics.Lowest == statistics.Highest && deviations >= 0) {
    return ShareOf(statistics, statistics.Count());
  }
  const double reach = deviations * statistics.Deviation;
  return ShareOf(statistics, std::ranges::count_if(statistics.Sorted, [&](Money value) {
                   return std::fabs(value.ToDouble() - statistics.Mean) <= reach;
                 }));
}

double SessionHistogram::LowerEdge(size_t bar) const {
  return (static_cast<double>(First) + static_cast<double>(bar)) * Width.ToDouble();
}

double SessionHistogram::PositionOf(double value) const {
  return value / Width.ToDouble() - static_cast<double>(First);
}

SessionHistogram BarsOfSessions(const SessionStatistics& statistics, BarWidth width) {
  if (statistics.Sorted.empty()) return {};
  const int64_t low = statistics.Lowest.Raw(), high = statistics.Highest.Raw();
  const int64_t narrowest = IsCountStat(statistics.Stat) ? Money::Scale : NarrowestAmount;
  const uint64_t range = static_cast<uint64_t>(high) - static_cast<uint64_t>(low);
  const int64_t wide = NiceWidth(range, At(MostBars, width), narrowest);
  SessionHistogram bars;
  bars.Width = Money::FromRaw(wide);
  bars.First = FloorDivide(low, wide);
  bars.Counts.resize(static_cast<size_t>(FloorDivide(high, wide) - bars.First + 1));
  for (const Money value : statistics.Sorted)
    ++bars.Counts[static_cast<size_t>(FloorDivide(value.Raw(), wide) - bars.First)];
  bars.Most = std::ranges::max(bars.Counts);
  return bars;
}

int32_t FindSessionRow(const SessionStatistics& statistics, Money value, int32_t from, int step) {
  const auto end = static_cast<int32_t>(statistics.Rows.size());
  for (int32_t row = from; row >= 0 && row < end; row += step) {
    if (At(statistics.Rows, row).Value == value) return row;
  }
  return -1;
}

std::string SessionValueText(Money value, int stat) {
  return IsCountStat(stat) ? FormatNumber(value, "#,#;-#,#;0") : FineTextOf(value);
}

std::string FineText(double value) {
  return FineTextOf(value);
}

std::array<std::string, 2> SessionRowTexts(const SessionRow& row, int stat) {
  return {FormatNumber(row.Number, "#,#;-#,#;0"),
          SessionValueText(row.Value, stat) + (row.InProgress ? " *" : "")};
}

std::array<std::string, 2> SessionShareTexts(const SessionShare& share) {
  return {FormatNumber(share.Count, "#,#;-#,#;0"), FormatNumber(share.Share, "0%")};
}

std::vector<SessionStatLine> SessionStatLines(const SessionStatistics& statistics) {
  const auto exact = [&](Money value) { return SessionValueText(value, statistics.Stat); };
  std::vector<SessionStatLine> lines = {
      {Say(Text::SessionsLine), FormatNumber(statistics.Count(), "#,#;-#,#;0")}};
  if (statistics.Sorted.empty()) return lines;
  // Percents of sessions do not add up to anything.
  if (statistics.Stat != SessionAdvantage)
    lines.push_back({Say(Text::TotalLine), exact(statistics.Total)});
  lines.push_back({Say(Text::Mean), FineText(statistics.Mean)});
  lines.push_back({Say(Text::Median), FineText(statistics.Median)});
  lines.push_back({Say(Text::StandardDeviation), FineText(statistics.Deviation)});
  lines.push_back({Say(Text::LowestLine), exact(statistics.Lowest)});
  lines.push_back({Say(Text::HighestLine), exact(statistics.Highest)});
  return lines;
}

}  // namespace tessarel
