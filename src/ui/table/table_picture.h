// The plain picture of the table and what is found on it. It is drawn once for the size, turn,
// rules and colours in force and kept, together with the map that tells which spot a pixel belongs
// to and with the points where the checks of every bet stand.
#pragma once

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QTransform>
#include <array>
#include <cstdint>
#include <vector>

#include "state/table.h"
#include "ui/layout/table_layout.h"

namespace tessarel {

// How the table is looked at.
struct TableSight {
  QSize size;  // of the widget, in pixels
  double pixelRatio = 1;
  int degrees = 0;  // 0 to 359
  int zoom = 100;   // percent
  QPointF shift;    // of a zoomed table, in pixels

  bool operator==(const TableSight&) const = default;
};

class TablePicture {
 public:
  // Draws anew when anything that the picture hangs on has changed. Returns whether it did.
  bool Refresh(const TableSight& sight);
  bool IsEmpty() const { return plain_.isNull(); }
  // Puts the part of the picture on a widget; one of another size has the picture stretched.
  void Paint(QPainter& painter, const QRect& part, const QRect& widget) const;

  const TableLayout& Layout() const { return layout_; }
  const QTransform& Transform() const { return toPixels_; }
  double Scale() const;  // pixels a layout unit
  QPointF ToLayout(QPointF pixel) const { return toPixels_.inverted().map(pixel); }
  QRect ToPixels(const QRectF& area) const;  // with a rim for what lines add to it

  // What a pixel means for the current player.
  int SpotUnder(QPoint pixel) const;
  // Where the checks of a bet or of a stack on the rail are arranged, in layout units.
  QPointF ArrangedAt(int place, int number) const;
  // Where they stand: checks that are not arranged stay where they were put.
  QPointF PositionOf(int place, int number) const;
  QPoint PixelOf(int place, int number) const;
  QPoint PixelOfSpot(int spot) const;  // inside the region of a spot

 private:
  // Everything that the picture and the map hang on.
  struct Key {
    TableSight sight;
    LayoutOptions options;
    std::array<int32_t, 49> colours{};
    std::array<int32_t, 5> textures{};
    std::vector<int64_t> payoffs;

    bool operator==(const Key&) const = default;
  };
  static Key KeyInForce(const TableSight& sight);
  void Rebuild();
  void RebuildPositions();

  Key key_;
  TableLayout layout_;
  QTransform toPixels_;
  QPixmap plain_;
  QImage hitMap_;
  std::array<std::array<QPointF, 105>, LastPlace + 1> positions_{};
};

}  // namespace tessarel
