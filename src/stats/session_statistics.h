// The arithmetic of the sessions view: what one session comes to, and what many come to together.
// Sessions go in as they stand in a log, rows of figures and of text come out; nothing here reads a
// file or shows anything. Figures may be any 64-bit amounts: sums that do not fit an amount stand
// at its limit, so that one damaged session hides no other.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/money.h"
#include "texts/say.h"

namespace tessarel {

// The figures of a session, in the order of the log. Counts are whole units.
enum SessionFigure : int {
  SessionRolls,
  SessionBets,
  SessionBetsWon,
  SessionBetsLost,
  SessionBetsNet,
  SessionHandle,
  SessionWon,
  SessionLost,
  SessionNet,
  SessionAdvantage,  // SessionNet as a fraction of SessionHandle, 0 without a handle
  SessionInvested,   // what the player has put in
  SessionBankroll,   // at the end of the session
};
inline constexpr int SessionFigures = 12;
using Session = std::array<Money, SessionFigures>;

// The statistics that can be chosen. The first ten are the figures of the same number; the last one
// is 1 for every session.
inline constexpr std::array SessionStatNames = {
    Text::SessionStatRolls,     Text::SessionStatDecided,  Text::SessionStatBetsWon,
    Text::SessionStatBetsLost,  Text::SessionStatBetsNet,  Text::SessionStatHandle,
    Text::SessionStatWon,       Text::SessionStatLost,     Text::SessionStatNet,
    Text::SessionStatAdvantage, Text::SessionStatSessions,
};
inline constexpr int CountOfSessions = 10;

// Which sessions count, as bits: the one in progress, and the finished ones by what their bets
// brought (SessionNet). The one in progress counts by its own bit alone.
namespace include {
inline constexpr int32_t InProgress = 1, Winning = 2, Losing = 4, Even = 8;
inline constexpr int32_t All = InProgress | Winning | Losing | Even;
}  // namespace include

// The order of the rows.
enum SessionDisplay : int32_t { AsPlayed = 0, LowestFirst = 1, HighestFirst = 2 };

enum BarWidth : int32_t { FineBars = 0, MediumBars = 1, WideBars = 2, ExtraWideBars = 3 };

// What the view is set to.
struct SessionsViewState {
  int32_t Stat = SessionNet;  // index in SessionStatNames
  int32_t Include = include::All;
  int32_t Display = AsPlayed;
  int32_t Width = MediumBars;
  Money BreakPoint;
  Money SliderLow, SliderHigh;  // the values at the two sliders
  Money SDCount = 1;            // a number of standard deviations
  std::string FindText;         // what was last looked for
  int32_t FoundRow = -1;        // the row where it was found, from 0; -1 none
};

extern SessionsViewState SessionsView;

// Brings a state that was read from a file back within its ranges: unknown statistics, displays and
// widths become the defaults, unknown bits are dropped.
void RepairSessionsView();

// The session now running at a place, as it stands. Overflow fault for figures that do not fit.
Session SessionSoFar(int place);

// One line of the raw data. `Number` is the session's number in the log from 1; the one in progress
// has the number after the last.
struct SessionRow {
  int32_t Number = 0;
  Money Value;
  bool InProgress = false;
};

struct SessionStatistics {
  int32_t Stat = SessionNet;
  std::vector<SessionRow> Rows;  // of the sessions that count, in the order of display
  std::vector<Money> Sorted;     // their values, lowest first
  Money Total, Lowest, Highest;
  double Mean = 0, Median = 0;
  // The sample form, over n - 1: the sessions in a log are a sample of how a system plays, and what
  // is asked for is the spread of the sessions to come. 0 for fewer than two sessions.
  double Deviation = 0;
  std::optional<Money> Current;  // of the session in progress, whether it counts or not

  int64_t Count() const { return static_cast<int64_t>(Sorted.size()); }
};

// The value of a session. A fraction of the handle is in percent: 1.41 of the figure 0.0141.
Money SessionValue(const Session& session, int stat);

// Figures everything for the finished sessions of a log and the one in progress, if there is one,
// as `view` asks.
SessionStatistics FigureSessions(const std::vector<Session>& finished,
                                 const std::optional<Session>& inProgress,
                                 const SessionsViewState& view);

// Some of the sessions: how many, and which part of all that count (0 to 1).
struct SessionShare {
  int64_t Count = 0;
  double Share = 0;
};

SessionShare SessionsBelow(const SessionStatistics& statistics, Money value);
SessionShare SessionsAtOrAbove(const SessionStatistics& statistics, Money value);
// Both ends belong to it, in either order.
SessionShare SessionsBetween(const SessionStatistics& statistics, Money one, Money other);
// No farther from the mean than `deviations` standard deviations.
SessionShare SessionsWithin(const SessionStatistics& statistics, double deviations);

// The sessions cut into bars. Bar k, from 0, holds the values from (First + k) * Width up to, but
// without, the lower edge of the next bar, so that zero is always an edge.
struct SessionHistogram {
  Money Width = 1;
  int64_t First = 0;
  std::vector<int64_t> Counts;
  int64_t Most = 0;  // in one bar

  double LowerEdge(size_t bar) const;
  // Where a value lies, in bars from the lower edge of the first one.
  double PositionOf(double value) const;
};

// The bars are 1, 2 or 5 times a power of ten wide: the narrowest with which the range takes at
// most about 100, 50, 25 or 12 bars, counts at least 1 and all else at least 0.01. No bars without
// sessions.
SessionHistogram BarsOfSessions(const SessionStatistics& statistics, BarWidth width);

// The first row with this value, looked for from row `from` on in steps of `step`, 1 or -1. -1 when
// there is none.
int32_t FindSessionRow(const SessionStatistics& statistics, Money value, int32_t from, int step);

// "1,234" for counts, "1234.5" for amounts and percents.
std::string SessionValueText(Money value, int stat);
// "12.3456": up to eight decimals.
std::string FineText(double value);
// "17", the number, and "-20 *", the value of a session in progress.
std::array<std::string, 2> SessionRowTexts(const SessionRow& row, int stat);
// "123" and "12%".
std::array<std::string, 2> SessionShareTexts(const SessionShare& share);

// The figures as captions and values, from "Sessions" to "Highest"; only the first one without
// sessions.
struct SessionStatLine {
  std::string Caption, Value;
};
std::vector<SessionStatLine> SessionStatLines(const SessionStatistics& statistics);

}  // namespace tessarel
