// The checks that lie on the table: which amounts are shown, how each pile looks, and the slow
// flash of the current player's bets.
#pragma once

#include <QObject>
#include <QPainter>
#include <QTimer>
#include <optional>

#include "state/table.h"
#include "ui/paint/check_paint.h"
#include "ui/table/table_picture.h"

namespace tessarel {

class TableMotion;

// A pile in somebody's hand is not painted on the table.
struct HeldPile {
  int place = 0, number = 0;
};

class TablePiles : public QObject {
  Q_OBJECT
 public:
  TablePiles(const TablePicture& picture, QObject* parent);

  // Takes all amounts as they are.
  void TakeUp();
  struct Change {
    int spot = 0;  // a bet, or 101 to 104 for a stack on the rail
    Money before, now;
  };
  // Takes one amount, of a bet or a check stack; nothing when it is not to be seen.
  std::optional<Change> TakeUp(int place, int number);

  PileLook LookOf(int place, int number) const;
  // The area of a pile with all that may stand at it, in layout units.
  QRectF AreaOf(int place, int spot, Money amount) const;
  // Paints the bets that touch `area`, without what `motion` has still to bring.
  void Paint(QPainter& painter, const QRectF& area, const TableMotion& motion, HeldPile held) const;

 Q_SIGNALS:
  void Flashed();

 private:
  void Tick();

  const TablePicture& picture_;
  PerPlace<PerNumber<Money>> shown_{};
  QTimer ring_;
  bool flash_ = false;
  int ticks_ = 0;
};

}  // namespace tessarel
