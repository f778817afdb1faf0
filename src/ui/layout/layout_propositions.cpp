// The proposition field between the ends: the short stick box that is always there, or all of it
// with over and under 7, the hops and the special bets.
#include <numeric>

#include "ui/layout/layout_geometry.h"
#include "ui/layout/layout_parts.h"

namespace tessarel {

using namespace geometry;

namespace {

// A row of boxes of one width; without spots it is a gap. The height is a share of the whole.
struct PropositionRow {
  double height = 0;
  std::vector<int> spots;
};

double HeightOf(const std::vector<PropositionRow>& rows) {
  return std::accumulate(rows.begin(), rows.end(), 0.0,
                         [](double sum, const PropositionRow& row) { return sum + row.height; });
}

void AddRow(TableLayout& layout, const QRectF& area, const std::vector<int>& spots) {
  const double width = area.width() / static_cast<double>(spots.size());
  double left = area.left();
  for (const int spot : spots) {
    AddBox(layout, spot, {left, area.top(), width, area.height()}, AllPlaces);
    left += width;
  }
}

// Adds rows from `top` downwards, enlarged by `scale`; returns where they end.
double AddRows(TableLayout& layout,
               double top,
               double margin,
               double scale,
               const std::vector<PropositionRow>& rows) {
  for (const PropositionRow& row : rows) {
    const double height = row.height * scale;
    if (!row.spots.empty()) {
      AddRow(layout, {FieldLeft + margin, top, FieldRight - FieldLeft - 2 * margin, height},
             row.spots);
    }
    top += height;
  }
  return top;
}

// A pair of discs, C over E, for each place along both sides of the stick box: those of a player
// point to him.
void AddDiscs(TableLayout& layout, double top, double bottom, double diameter) {
  const double step = (bottom - top) / 4;
  for (const int place : AllPlaces) {
    const bool right = place > 4;
    const double x = MirroredX(FieldLeft + diameter / 2, right);
    const double y = top + step * ((right ? 8 - place : place - 1) + 0.5);
    QPainterPath pair;
    pair.addRoundedRect(QRectF(x - diameter / 2, y - diameter, diameter, 2 * diameter),
                        diameter / 2, diameter / 2);
    layout.regions.push_back({bet::CAndE, pair});
    layout.positions[static_cast<size_t>(place)][bet::CAndE] = {x, y};
  }
}

std::vector<PropositionRow> StickBox(double scale) {
  using namespace bet;
  std::vector<PropositionRow> rows = {{38, {Seven}},         {58, {Hard6, Hard8}},
                                      {58, {Hard4, Hard10}}, {66, {Two, Three, Twelve, Eleven}},
                                      {38, {Craps}},         {38, {Horn, World}},
                                      {36, {Seven}}};
  for (PropositionRow& row : rows)
    row.height *= scale;
  return rows;
}

std::vector<PropositionRow> Hops() {
  std::vector<PropositionRow> rows(3, {54, {}});
  for (int hop = bet::Hop13; hop <= bet::Hop55; ++hop)
    rows[static_cast<size_t>(hop - bet::Hop13) / 6].spots.push_back(hop);
  rows.back().spots.push_back(PropositionSwitch);
  return rows;
}

std::vector<PropositionRow> Specials(const LayoutOptions& options) {
  using namespace bet;
  std::vector<PropositionRow> rows;
  if (options.specials) {
    rows = {{90, {AllSmall, MakeAll, AllTall}},
            {62, {FourRollsNo7, Point7, SevenPoint7}},
            {66, {SharpShooter, RideTheLine}}};
  }
  if (options.fire) {
    if (rows.empty()) rows.push_back({66, {}});
    rows.back().spots.push_back(Fire);
  }
  if (!rows.empty()) rows.insert(rows.begin(), PropositionRow{6, {}});
  return rows;
}

void AddWholeField(TableLayout& layout) {
  constexpr double Disc = 37, Margin = Disc + 9;
  const std::vector<PropositionRow> box = StickBox(1);
  std::vector<PropositionRow> below = {{6, {}}, {40, {bet::Under7, bet::Over7}}, {6, {}}};
  for (const auto& part : {Hops(), Specials(layout.options)})
    below.insert(below.end(), part.begin(), part.end());

  const double scale = (PropositionsBottom - PropositionsTop) / (HeightOf(box) + HeightOf(below));
  const double boxBottom = AddRows(layout, PropositionsTop, Margin, scale, box);
  AddDiscs(layout, PropositionsTop, boxBottom, Disc);
  AddRows(layout, boxBottom, 0, scale, below);
}

void AddShortField(TableLayout& layout) {
  constexpr double Disc = 58, Margin = Disc + 10, Scale = 1.72;
  const double bottom = AddRows(layout, PropositionsTop, Margin, 1, StickBox(Scale));
  AddDiscs(layout, PropositionsTop, bottom, Disc);
  constexpr double PlateWidth = 300, PlateHeight = 52;
  QPainterPath plate;
  const QRectF area(Middle - PlateWidth / 2, bottom + 26, PlateWidth, PlateHeight);
  plate.addRoundedRect(area, 12, 12);
  AddRegion(layout, PropositionSwitch, plate, area, {});
}

}  // namespace

void AddPropositions(TableLayout& layout) {
  if (layout.options.propositions)
    AddWholeField(layout);
  else
    AddShortField(layout);
}

}  // namespace tessarel
