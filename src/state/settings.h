// The house rules and the program's other settings: plain values with their start-up defaults, read
// directly by whoever they concern. Per-player settings stand in the table (state/table.h).
#pragma once

#include <cstdint>
#include <string_view>

#include "base/indexing.h"
#include "base/money.h"
#include "state/bet_numbers.h"

namespace tessarel {

// A colour as the settings and the game file hold it.
constexpr int32_t TableRgb(int red, int green, int blue) {
  return red + 256 * green + 65536 * blue;
}

struct SettingsState {
  // Limits.
  Money MinPlacardBet = 1, MaxPlacardBet = 1000, MinPlacardPropBet = 1;
  Money MaxPropBetPayoff = 3000;  // the most a proposition bet may win
  Money MaxOddsBet = 3000, MaxFireBet = 5;
  Money OddsAllowed410 = 3, OddsAllowed59 = 4, OddsAllowed68 = 5;  // multiples of the flat bet
  int32_t OddsCalcMethod = 0;    // 0 to 5, from Text::OddsAutoSelect on
  int32_t BarNumber = 12;        // 2 or 12
  int32_t BetNeededToShoot = 1;  // 0 none, 1 a line bet, 2 any bet
  bool AllowPutBets = true;
  bool ReturnAbandonedBets = false;

  // Bets on the layout.
  bool UseBig68 = true, UseSpecialPropBets = true, UseMidwayBet = true, UseFireBet = true;

  // Vigorish. The percentages are fractions: 0.05 is five percent.
  Money BuyVigPct = Money::FromRaw(500), LayVigPct = Money::FromRaw(500);
  bool BuyVigAllBets = true, LayVigAllBets = true;  // charged up front, with the bet
  int32_t RoundBuyVig = 0, RoundLayVig = 0;         // 0 normally, 1 down, 2 up

  // Checks and dice.
  Indexed<Money, 6> Denomination = {0, 1, 5, 25, 100, 500};  // 1 to 5, rising
  bool UseCentsSymbol = true, AutoArrangeChips = true;
  int32_t CheckStyle = 2, DiceStyle = 1;
  int32_t DiceAction = 0;   // 0 normal, 1 stationary, 2 center, 3 window
  Money SimRollRate = 120;  // rolls an hour

  // Bankroll.
  Money AtmAmount = 500;

  // Comps.
  Money CompRate = 30;   // percent
  int32_t CompBase = 0;  // 0 theoretical vig, 1 total action, 2 average action and time
  bool CompsUseTrueProbs = true;
  Indexed<bool, 101> CompBet = DefaultCompBets();

  // Sound: indices into the lists of sounds found, 0 for none. A table without sounds counts every
  // index as 0.
  int32_t StickPersonVoice = 1, DiceSound = 1, CheckSound = 1, WinSound = 1;
  bool DisableAutoBetSounds = false, DisableAllSound = false;

  // Misc.
  int32_t InfoTipLevel = 1;    // 0 to 4
  int32_t BasicFontSize = 11;  // 9, 11 or 13
  int32_t Notices = 15;        // bits of Notice
  bool SnapMouse = true;
  bool ColorPrint = false;
  int32_t Language = 0;  // 0 to 5, texts/language.h

  // Colours, as TableRgb makes them.
  Indexed<int32_t, 49> TableColor = DefaultTableColors();
  Indexed<int32_t, 5> TableTexture = {0, 0, 6, 6, 0};
  int32_t Spotlight = 1;  // 0 off, 1 low, 2 medium, 3 high
  Indexed<int32_t, 6> SeriesColor = {0, 65280, 255, 65535, 8421376, 8388736};

  // Session and automation.
  bool ClearEventsLogOnNew = false;
  Money AutoStopRolls;  // 0 none
  Money RollDelay = 0;  // seconds between rolls under Auto-Roll, 0 to 300
  int32_t Throttle = 0;

  static constexpr Indexed<bool, 101> DefaultCompBets() {
    Indexed<bool, 101> flags{};
    for (int number = 1; number <= LastBet; ++number) {
      flags[static_cast<size_t>(number)] = !IsOdds(number);
    }
    return flags;
  }
  // Deep blue felt with white lines in a mahogany rail.
  static constexpr Indexed<int32_t, 49> DefaultTableColors() {
    constexpr int32_t Blue = TableRgb(0, 56, 128), White = TableRgb(255, 255, 255);
    constexpr int32_t Gold = TableRgb(255, 209, 102), Red = TableRgb(196, 22, 28);
    constexpr int32_t Leather = TableRgb(46, 28, 22), Mahogany = TableRgb(112, 56, 30);
    constexpr int32_t Floor = TableRgb(22, 22, 26);
    constexpr Indexed<int32_t, 17> Parts = {Blue,  White, Leather, Mahogany, Floor, Red,
                                            White, Red,   White,   White,    Gold,  White,
                                            White, White, Gold,    Gold,     White};
    Indexed<int32_t, 49> colors{};
    for (size_t k = 0; k < colors.size(); ++k)
      colors[k] = k < Parts.size() ? Parts[k] : k <= 47 ? White : Blue;
    return colors;
  }
};

// Bits of Notices.
enum Notice : int32_t {
  NoticeActionsNotAllowed = 1,
  NoticeLimits = 2,
  NoticeCharges = 4,
  NoticeAutoBet = 8,
  NoticeAutoBetHyper = 16,
};

extern SettingsState Settings;

// The smallest check value.
inline Money SmallestCheck() {
  return Settings.Denomination[1];
}

// Whether a bet works on the come-out by the original house standard.
constexpr int32_t OriginalHouseWorking(int number) {
  const bool off = (number >= bet::Come4Odds && number <= bet::Buy10) ||
                   number == bet::PassLineOdds || number == bet::Come ||
                   number == bet::DontPassOdds || number == bet::DontCome;
  return off ? 0 : 1;
}

}  // namespace tessarel
