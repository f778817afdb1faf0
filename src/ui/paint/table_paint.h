// The plain table: floor, rail, felt, lines and lettering in the table colours in force. Checks,
// dice, puck and players are drawn over it.
#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPainterPath>

#include "ui/layout/table_layout.h"

namespace tessarel {

// Paints in layout units; the painter carries the transform. `pixelsPerUnit` lets lettering keep
// its least size on the screen.
void PaintTable(QPainter& painter, const TableLayout& layout, double pixelsPerUnit);

// What changes on the felt from roll to roll, over the plain table: the light over the point, the
// numbers marked for All Small, Make All and All Tall, the rolls of 4 Rolls No 7 and the points
// made for Fire.
void PaintTableState(QPainter& painter, const TableLayout& layout, double pixelsPerUnit);

// The light over a region: what the pointer is on, or, dimmed, what cannot be bet now.
void PaintRegionLight(QPainter& painter, const TableLayout& layout, int spot, bool possible);

// The colours and fonts that everything on the table shares.
QColor ColourOfTable(int index);  // an entry of Settings.TableColor, 0 to 48
QFont LayoutFont(double units);   // the serif face in bold
QFont PlainFont(double units);

}  // namespace tessarel
