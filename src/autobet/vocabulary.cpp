#include "autobet/vocabulary.h"

#include "autobet/phrase_rows.h"
#include "autobet/word_numbers.h"
#include "state/bet_numbers.h"

namespace tessarel {

namespace {

// A family of bets on the six point numbers. Its groups of bets are the numbers Groups (all),
// Groups + 1 (inside) and Groups + 2 (outside); the bare word is a function of the number.
struct BetFamily {
  std::string_view Word;
  int Groups;
  Family FirstBet;
  std::string_view Function;
  std::string_view FlatBet = {};  // what the bare word is with no bracket after it
};

constexpr BetFamily BetFamilies[] = {
    {"lay", variable::LayBets, LayFamily, "F001"},
    {"dontcomeodds", variable::DontComeOddsBets, DontComeOddsFamily, "F003"},
    {"dontcome", variable::DontComeBets, DontComeFamily, "F002", "V048"},
    {"comeodds", variable::ComeOddsBets, ComeOddsFamily, "F005"},
    {"come", variable::ComeBets, ComeFamily, "F004", "V045"},
    {"place", variable::PlaceBets, PlaceFamily, "F006"},
    {"buy", variable::BuyBets, BuyFamily, "F007"},
};

// A number in decimal with at least `digits` digits.
constexpr PhraseText Digits(int number, int digits = 1) {
  PhraseText text;
  if (number >= 10 || digits > 1) text = Digits(number / 10, digits - 1);
  const char last = static_cast<char>('0' + number % 10);
  return text += {&last, 1};
}

constexpr PhraseText Join(std::string_view word, int number, std::string_view behind = {}) {
  return (PhraseText(word) += Digits(number).View()) += behind;
}

constexpr PhraseText Variable(int number) {
  return PhraseText("V") += Digits(number, 3).View();
}

struct TableBuilder {
  std::array<Phrase, PhraseCount> rows{};
  size_t count = 0;

  // With a blank on each side.
  static constexpr PhraseText Padded(std::string_view text) {
    return (PhraseText(" ") += text) += " ";
  }

  constexpr void Add(std::string_view from, std::string_view to) {
    rows[count++] = {from, to.front() == ' ' ? PhraseText(to) : Padded(to), LetterPairs(from)};
  }
  constexpr void Add(const PhraseText& from, const PhraseText& to) { Add(from.View(), to.View()); }

  template <size_t N>
  constexpr void AddRows(const phrases::PhraseRow (&section)[N]) {
    for (const phrases::PhraseRow& row : section)
      Add(row.From, row.To);
  }

  constexpr void AddOddsFactors() {
    for (const int point : PointNumbers) {
      Add(Join(" odds allowed factor", point, " "),
          Variable(variable::OddsFactor4 + PointIndex(point)));
    }
    Add(" odds allowed factor ", "F191");
  }

  constexpr void AddPlaces() {
    for (int place = 1; place <= LastPlace; ++place) {
      Add(Join(" player", place, " "), Join("P", place));
    }
  }

  // The stacks by number, 99 first; `behind` is what ends the word, a point at the end of a
  // sentence.
  constexpr void AddStacks(std::string_view word, int firstNumber, std::string_view behind) {
    for (int stack = StackCount - 1; stack >= 0; --stack) {
      PhraseText to = Variable(firstNumber + stack);
      if (behind == ".") to += behind;
      Add(Join(word, stack, behind), to);
    }
  }

  constexpr void AddCheckStacks() {
    AddRows(phrases::StackWordForms);
    AddStacks(" cs", FirstStack, " ");
    AddStacks(" csn", variable::FirstStackName, " ");
    AddRows({{" csn ", "F800"}, {" csn.", "F800."}, {" cs ", "F021"}, {" cs.", "F021."}});
    AddStacks(" cs", FirstStack, ".");
    AddStacks(" csn", variable::FirstStackName, ".");
  }

  constexpr void AddFamily(const BetFamily& family) {
    constexpr std::string_view Sides[] = {" outside ", " inside ", " "};
    for (int side = 2; side >= 0; --side) {
      Add((PhraseText(Sides[2 - side]) += family.Word) += " bets ", Variable(family.Groups + side));
    }
    for (const int point : PointNumbers) {
      Add((Join((PhraseText(" ") += family.Word).View(), point, " ")),
          Variable(BetOn(family.FirstBet, point)));
    }
    const PhraseText word = Padded(family.Word);
    if (family.FlatBet.empty()) {
      Add(word, family.Function);
    } else {
      Add(PhraseText(word) += "L020 ", PhraseText(family.Function) += " L020");
      Add(word, family.FlatBet);
    }
  }

  // The faces of each in both orders.
  constexpr void AddHops() {
    for (int hop = bet::Hop13; hop <= bet::Hop55; ++hop) {
      const auto [number, low, high] = FacesOfHop(hop);
      Add(Join(" hop", low * 10 + high, " "), Variable(hop));
      if (low != high) Add(Join(" hop", high * 10 + low, " "), Variable(hop));
    }
  }

  constexpr void AddBets() {
    for (const BetFamily& family : BetFamilies)
      AddFamily(family);
    AddRows(phrases::OneNumberBets);
    AddHops();
    AddRows(phrases::LastBets);
  }
};

constexpr TableBuilder BuildTable() {
  TableBuilder table;
  table.AddRows(phrases::Punctuation);
  table.AddRows(phrases::WordForms);
  table.AddRows(phrases::AutomationWords);
  table.AddRows(phrases::HandRecords);
  table.AddRows(phrases::FileAndMessageWords);
  table.AddRows(phrases::DiceSourceWords);
  table.AddRows(phrases::CountWordForms);
  table.AddRows(phrases::RollStatistics);
  table.AddRows(phrases::TableStateWords);
  table.AddRows(phrases::ComeOutStatistics);
  table.AddRows(phrases::ShooterAndPointWords);
  table.AddRows(phrases::BankrollWords);
  table.AddOddsFactors();
  table.AddPlaces();
  table.AddRows(phrases::Players);
  table.AddCheckStacks();
  table.AddRows(phrases::SessionCommands);
  table.AddRows(phrases::BetCommands);
  table.AddBets();
  table.AddRows(phrases::Qualifiers);
  table.AddRows(phrases::DieFaces);
  table.AddRows(phrases::SmallWords);
  table.AddRows(phrases::ListFunctions);
  table.AddRows(phrases::Comparisons);
  table.AddRows(phrases::ControlWords);
  table.AddRows(phrases::VerbForms);
  table.AddRows(phrases::ArithmeticAndTextFunctions);
  table.AddRows(phrases::BetArithmetic);
  table.AddRows(phrases::LogicAndLoopWords);
  return table;
}

constexpr TableBuilder Built = BuildTable();
static_assert(Built.count == PhraseCount);

}  // namespace

constexpr std::array<Phrase, PhraseCount> PhraseTable = Built.rows;

static_assert(PhraseTable[195].From.View() == " checkstack" &&
              PhraseTable[621].From.View() == " outside lay bets " &&
              PhraseTable[763].From.View() == " bets " &&
              PhraseTable[925].From.View() == " endif ");

}  // namespace tessarel
