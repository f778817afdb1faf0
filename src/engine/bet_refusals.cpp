#include "engine/bet_refusals.h"

#include <algorithm>
#include <string_view>

#include "engine/special_bets.h"
#include "state/books.h"
#include "state/settings.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

// A refused increase still fills up what was taken off since the last roll, but for odds that have
// lost the bet under them.
Verdict Refused(int place, int number, Money delta, RefusalKind refusal) {
  using enum RefusalKind;
  if (refusal == OddsWithoutPassLine || refusal == OddsWithoutDontPass ||
      refusal == OddsWithoutFlat) {
    return {Money(), refusal};
  }
  const Money missing = Table.BetContract[place][number] - Bet(place, number);
  return {std::clamp(missing, Money(), delta), refusal};
}

Verdict JudgeDecrease(int place, int number, Money delta) {
  const Money contract = HeldContract(place, number);
  const Money amount = Bet(place, number);
  if (contract == Money() || amount + delta >= contract) return {delta};
  if (amount > contract) return {contract - amount};
  if (number == bet::PassLine) return {Money(), RefusalKind::DecreasePassLine};
  if (number == bet::SevenPoint7) return {Money(), RefusalKind::DecreaseEstablished};
  return {Money(), RefusalKind::DecreaseCome};
}

// "Same Bet": a contract bet that stands below its contract is brought back to it.
Verdict JudgeNoChange(int place, int number) {
  const Money missing = HeldContract(place, number) - Bet(place, number);
  if (missing <= Money()) return {Money()};
  if (number == bet::PassLine) return {missing, RefusalKind::KeepPassLine};
  if (number == bet::SevenPoint7) return {missing, RefusalKind::DecreaseEstablished};
  return {missing, RefusalKind::DecreaseCome};
}

// The refusal that an increase to `total` meets, None when it is allowed.
RefusalKind IncreaseRefusal(int place, int number, Money total) {
  using enum RefusalKind;
  const bool point = Table.Point != 0;
  const bool aboveContract = total > Table.BetContract[place][number];
  const bool handStarted = RollsInHand() > 0;
  if (InFamily(number, ComeFamily)) {
    const bool put = aboveContract && !Table.BetMoving && !Settings.AllowPutBets;
    return put ? PutCome : None;
  }
  if (InFamily(number, DontComeFamily)) {
    return aboveContract && !Table.BetMoving ? DontComeOnNumber : None;
  }
  if (InFamily(number, ComeOddsFamily) || InFamily(number, DontComeOddsFamily)) {
    return Bet(place, number - FamilySize) > Money() ? None : OddsWithoutFlat;
  }
  switch (number) {
    case bet::PassLine:
      return point && aboveContract && !Settings.AllowPutBets ? PutPassLine : None;
    case bet::PassLineOdds:
      return point && Bet(place, bet::PassLine) > Money() ? None : OddsWithoutPassLine;
    case bet::Come:
      return point ? None : ComeWithoutPoint;
    case bet::DontPass:
      return point && aboveContract ? DontPassDuringPoint : None;
    case bet::DontPassOdds:
      return point && Bet(place, bet::DontPass) > Money() ? None : OddsWithoutDontPass;
    case bet::DontCome:
      return point ? None : DontComeWithoutPoint;
    case bet::AllSmall:
    case bet::AllTall:
    case bet::MakeAll:
      return (Table.MarkedNumbers & MarksOf(number)) != 0 ? NumbersMarked : None;
    case bet::FourRollsNo7:
      return Table.FourRollCount > 0 ? CountInProgress : None;
    case bet::Point7:
    case bet::SevenPoint7:
      return point && aboveContract ? NotOnComeOut : None;
    case bet::SharpShooter:
    case bet::RideTheLine:
    case bet::Fire:
      return handStarted && aboveContract ? HandStarted : None;
    default:
      return None;
  }
}

Verdict JudgeIncrease(int place, int number, Money delta) {
  const Money amount = Bet(place, number);
  const Money contract = HeldContract(place, number);
  if (amount + delta < contract && !Table.BetMoving) {
    if (number == bet::PassLine) return {contract - amount, RefusalKind::DecreasePassLine};
    if (number == bet::SevenPoint7) return {contract - amount, RefusalKind::DecreaseDuringPoint};
    return {contract - amount, RefusalKind::DecreaseCome};
  }
  const RefusalKind refusal = IncreaseRefusal(place, number, amount + delta);
  return refusal == RefusalKind::None ? Verdict{delta} : Refused(place, number, delta, refusal);
}

std::string WithPutNote(CheckedText<0> refusal) {
  return Say(refusal) + "\r\r" + Say(Text::UnlessPutBets);
}

CheckedText<1> MarkedText(int number) {
  return number == bet::AllSmall  ? CheckedText<1>(Text::SmallNumbersMarked)
         : number == bet::AllTall ? CheckedText<1>(Text::TallNumbersMarked)
                                  : CheckedText<1>(Text::AnyNumbersMarked);
}

}  // namespace

Money HeldContract(int place, int number) {
  const bool byPoint = number == bet::PassLine || number == bet::SevenPoint7;
  const bool held = InFamily(number, ComeFamily) || (byPoint && Table.Point != 0);
  return held ? Table.BetContract[place][number] : Money();
}

Verdict JudgeChange(int place, int number, Money delta) {
  if (delta < Money()) return JudgeDecrease(place, number, delta);
  if (delta == Money()) return JudgeNoChange(place, number);
  return JudgeIncrease(place, number, delta);
}

std::string RefusalText(RefusalKind refusal, int number) {
  using enum RefusalKind;
  const std::string_view name = BetName[number];
  const auto named = [name](CheckedText<1> text) { return Say(text, name); };
  switch (refusal) {
    case None:
      return "";
    case DecreasePassLine:
      return Say(Text::DecreasePassLine);
    case KeepPassLine:
      return Say(Text::KeepPassLine);
    case DecreaseCome:
      return Say(Text::DecreaseCome);
    case DecreaseEstablished:
      return named(Text::DecreaseEstablished);
    case DecreaseDuringPoint:
      return named(Text::DecreaseDuringPoint);
    case PutPassLine:
      return WithPutNote(Text::PutPassLine);
    case PutCome:
      return WithPutNote(Text::PutCome);
    case ComeWithoutPoint:
      return Say(Text::ComeWithoutPoint);
    case DontPassDuringPoint:
      return Say(Text::DontPassDuringPoint);
    case DontComeWithoutPoint:
      return Say(Text::DontComeWithoutPoint);
    case OddsWithoutPassLine:
      return Say(Text::OddsWithoutPassLine);
    case OddsWithoutDontPass:
      return Say(Text::OddsWithoutDontPass);
    case OddsWithoutFlat:
      return Say(Text::OddsWithoutFlat, name, BetName[number - FamilySize]);
    case DontComeOnNumber:
      return Say(Text::DontComeOnNumber);
    case NumbersMarked:
      return named(MarkedText(number));
    case CountInProgress:
      return named(Text::CountInProgress);
    case NotOnComeOut:
      return named(Text::NotOnComeOut);
    case HandStarted:
      return named(Text::HandStarted);
  }
  return "";
}

}  // namespace tessarel
