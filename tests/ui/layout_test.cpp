// The drawn table: what is seen is what is hit, whatever the size and turn of the table; checks of
// different places can be told apart; every colour scheme can be read.
#include <gtest/gtest.h>

#include <QPainter>
#include <cmath>
#include <map>

#include "state/payoffs.h"
#include "state/settings.h"
#include "state/table.h"
#include "ui/layout/hit_map.h"
#include "ui/layout/table_layout.h"
#include "ui/paint/contrast.h"
#include "ui/paint/lettering.h"
#include "ui/paint/table_paint.h"
#include "ui/paint/textures.h"
#include "ui/table_colours.h"
#include "ui/table_presets.h"

namespace tessarel {
namespace {

struct View {
  int width, height;
  double degrees;
};
const View Views[] = {{1024, 465, 0}, {1600, 727, 0}, {2200, 1000, 0}, {900, 1200, 90}};

std::vector<int> AllSpots() {
  std::vector<int> spots = {PropositionSwitch};
  for (int number = 1; number <= LastBet; ++number)
    spots.push_back(number);
  for (int place = 1; place <= LastPlace; ++place) {
    spots.push_back(RailSpot(place, PlaceItself));
    for (int item = FirstRailStack; item <= LastRailStack; ++item)
      spots.push_back(RailSpot(place, item));
  }
  return spots;
}

double DistanceBetween(QPointF one, QPointF other) {
  return std::hypot(one.x() - other.x(), one.y() - other.y());
}

// Whether a point lies in a path or within `reach` of it.
bool IsNear(const QPainterPath& path, QPointF point, double reach) {
  const QRectF around(point.x() - reach, point.y() - reach, 2 * reach, 2 * reach);
  return path.contains(point) || path.intersects(around);
}

TEST(Layout, EverySpotIsHitInsideItsOwnOutlineOnly) {
  const TableLayout layout = MakeTableLayout({});
  for (const View& view : Views) {
    const QTransform toPixels = LayoutTransform(view.width, view.height, view.degrees);
    const QTransform toLayout = toPixels.inverted();
    const QImage map = DrawHitMap(layout, toPixels, {view.width, view.height});
    std::map<int, QPainterPath> outlines;
    for (const int spot : AllSpots())
      outlines[spot] = OutlineOf(layout, spot);

    std::map<int, int> pixels;
    int strays = 0;
    const double halfPixel = 0.5 * toLayout.map(QLineF(0, 0, 1, 0)).length();
    for (int y = 0; y < view.height; ++y) {
      for (int x = 0; x < view.width; ++x) {
        const int spot = SpotAt(map, {x, y});
        if (spot == 0) continue;
        ++pixels[spot];
        const auto outline = outlines.find(spot);
        ASSERT_NE(outline, outlines.end()) << spot;
        if (pixels[spot] % 7 == 0 &&
            !IsNear(outline->second, toLayout.map(QPointF(x + 0.5, y + 0.5)), halfPixel))
          ++strays;
      }
    }
    EXPECT_EQ(strays, 0) << view.width << " wide";
    for (const int spot : AllSpots())
      EXPECT_GT(pixels[spot], 60) << "spot " << spot << " at " << view.width;
    EXPECT_EQ(SpotAt(map, {0, 0}), 0);
    EXPECT_EQ(SpotAt(map, {-1, 5}), 0);
    EXPECT_EQ(SpotAt(map, {view.width, 5}), 0);
  }
}

TEST(Layout, NoTwoRegionsShareMoreThanAnEdge) {
  for (const bool propositions : {false, true}) {
    LayoutOptions options;
    options.propositions = propositions;
    const TableLayout layout = MakeTableLayout(options);
    const auto& regions = layout.regions;
    for (size_t one = 0; one < regions.size(); ++one) {
      for (size_t other = one + 1; other < regions.size(); ++other) {
        const QPainterPath& a = regions[one].outline;
        const QPainterPath& b = regions[other].outline;
        if (!a.boundingRect().intersects(b.boundingRect())) continue;
        const QRectF shared = a.intersected(b).boundingRect();
        EXPECT_LT(std::min(shared.width(), shared.height()), 0.5)
            << regions[one].spot << " and " << regions[other].spot;
      }
    }
  }
}

TEST(Layout, SettingsTakeBetsOffTheLayout) {
  struct Case {
    void (*change)(LayoutOptions&);
    std::vector<int> gone;
  };
  using namespace bet;
  const Case cases[] = {
      {[](LayoutOptions& o) { o.big68 = false; }, {Big6, Big8}},
      {[](LayoutOptions& o) { o.midway = false; }, {Midway}},
      {[](LayoutOptions& o) { o.big68 = o.midway = false; }, {Big6, Big8, Midway}},
      {[](LayoutOptions& o) { o.fire = false; }, {Fire}},
      {[](LayoutOptions& o) { o.specials = false; },
       {AllSmall, AllTall, MakeAll, FourRollsNo7, Point7, SevenPoint7, SharpShooter, RideTheLine}},
      {[](LayoutOptions& o) { o.propositions = false; },
       {Over7,   Under7,       Hop13,  Hop14,       Hop15,        Hop16,       Hop22,
        Hop23,   Hop24,        Hop25,  Hop26,       Hop33,        Hop34,       Hop35,
        Hop36,   Hop44,        Hop45,  Hop46,       Hop55,        AllSmall,    AllTall,
        MakeAll, FourRollsNo7, Point7, SevenPoint7, SharpShooter, RideTheLine, Fire}}};
  for (const Case& k : cases) {
    LayoutOptions options;
    k.change(options);
    const TableLayout layout = MakeTableLayout(options);
    for (const int spot : AllSpots()) {
      const bool gone = std::find(k.gone.begin(), k.gone.end(), spot) != k.gone.end();
      EXPECT_EQ(HasRegion(layout, spot), !gone) << spot;
    }
  }
}

TEST(Layout, ChecksOfEveryPlaceStandApartInsideTheirRegion) {
  const TableLayout layout = MakeTableLayout({});
  for (int number = 1; number <= LastBet; ++number) {
    const QPainterPath outline = OutlineOf(layout, number);
    for (int place = 1; place <= LastPlace; ++place) {
      const QPointF foot = CheckPosition(layout, place, number);
      EXPECT_TRUE(outline.contains(foot))
          << BetName[static_cast<size_t>(number)] << " of " << place;
      for (int other = 1; other < place; ++other) {
        EXPECT_GE(DistanceBetween(foot, CheckPosition(layout, other, number)), 0.6 * CheckDiameter)
            << BetName[static_cast<size_t>(number)] << " of " << place << " and " << other;
      }
    }
  }
}

TEST(Layout, ChecksStandBeforeTheirPlayerOnTheSwitchOrInTheRail) {
  LayoutOptions folded;
  folded.propositions = false;
  const TableLayout layout = MakeTableLayout({}), small = MakeTableLayout(folded);
  const QRectF plate = OutlineOf(small, PropositionSwitch).boundingRect();
  for (int place = 1; place <= LastPlace; ++place) {
    for (int number = 1; number <= bet::Big8; ++number)
      EXPECT_EQ(CheckPosition(layout, place, number).x() > LayoutWidth / 2, place > 4) << number;
    EXPECT_TRUE(plate.contains(CheckPosition(small, place, bet::Hop46)));
    for (int stack = 0; stack < 4; ++stack) {
      const QPointF foot = CheckPosition(layout, place, FirstRailNumber + stack);
      EXPECT_TRUE(OutlineOf(layout, RailSpot(place, FirstRailStack + stack)).contains(foot));
    }
  }
  EXPECT_EQ(CheckPosition(layout, 2, bet::PassLine).y(), RailPlaceArea(2).center().y());
  EXPECT_EQ(CheckPosition(layout, 5, bet::PassLine).x(), RailPlaceArea(5).center().x());
}

TEST(Layout, TheTransformFitsTheDrawingWhateverItsTurn) {
  for (const View& view : Views) {
    const QRectF drawing = LayoutTransform(view.width, view.height, view.degrees)
                               .mapRect(QRectF(0, 0, LayoutWidth, LayoutHeight));
    EXPECT_TRUE(QRectF(-0.01, -0.01, view.width + 0.02, view.height + 0.02).contains(drawing));
    EXPECT_TRUE(std::abs(drawing.width() - view.width) < 1 ||
                std::abs(drawing.height() - view.height) < 1);
  }
}

TEST(Presets, LetteringIsLegibleInEveryScheme) {
  for (int index = -1; index < TablePresetCount; ++index) {
    RestoreStartUpColours();
    ApplyTablePreset(index);
    const QColor felt = ColourOfTable(colour::Felt);
    for (int entry = colour::PassLine; entry <= colour::World; ++entry) {
      const bool pips = entry == colour::HardwayPips || entry == colour::PropPips;
      if (pips) continue;
      EXPECT_GE(Contrast(ColourOfTable(entry), felt), 4.5) << "scheme " << index << ", " << entry;
    }
    EXPECT_GE(Contrast(ColourOfTable(colour::Lines), felt), 4.5) << "scheme " << index;
  }
  RestoreStartUpColours();
}

// How many pixels two pictures differ in within an area of the layout.
int Differences(const QImage& one, const QImage& other, const QRectF& area, double scale) {
  int count = 0;
  const QRect pixels = QRectF(area.topLeft() * scale, area.size() * scale).toRect();
  for (int y = pixels.top(); y < pixels.bottom(); ++y) {
    for (int x = pixels.left(); x < pixels.right(); ++x)
      count += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
  }
  return count;
}

QImage PictureOfTable(const TableLayout& layout, bool withState) {
  QImage picture(1100, 500, QImage::Format_RGB32);
  QPainter painter(&picture);
  painter.setTransform(LayoutTransform(1100, 500));
  PaintTable(painter, layout, 0.5);
  if (withState) PaintTableState(painter, layout, 0.5);
  return picture;
}

TEST(TablePaint, FeltShowsPayoffsBarNumberAndLamps) {
  DefaultPayoffs();
  Table = TableState{};
  const TableLayout layout = MakeTableLayout({});
  const QImage plain = PictureOfTable(layout, false);
  const auto area = [&](int spot) { return OutlineOf(layout, spot).boundingRect(); };

  Payoffs.Payoff[bet::Seven].PayNum = 5;
  const QImage repaid = PictureOfTable(layout, false);
  EXPECT_GT(Differences(plain, repaid, area(bet::Seven), 0.5), 10);
  EXPECT_EQ(Differences(plain, repaid, area(bet::Craps), 0.5), 0);
  DefaultPayoffs();

  LayoutOptions barsTwo;
  barsTwo.barNumber = 2;
  const QImage barred = PictureOfTable(MakeTableLayout(barsTwo), false);
  EXPECT_GT(Differences(plain, barred, area(bet::DontPass), 0.5), 10);
  EXPECT_GT(Differences(plain, barred, area(bet::DontCome), 0.5), 10);

  Table.MarkedNumbers = 1 << 3;
  Table.FourRollCount = 1;
  Table.FirePointsMask = 1 << 8;
  const QImage lit = PictureOfTable(layout, true);
  for (const int spot : {bet::AllSmall, bet::MakeAll, bet::FourRollsNo7, bet::Fire})
    EXPECT_GT(Differences(plain, lit, area(spot), 0.5), 10) << spot;
  EXPECT_EQ(Differences(plain, lit, area(bet::AllTall), 0.5), 0);
  Table = TableState{};
}

TEST(Lettering, LeavesOutWhatCannotBeRead) {
  QImage picture(200, 40, QImage::Format_RGB32);
  picture.fill(Qt::black);
  const QImage blank = picture;
  QPainter painter(&picture);
  const Lettering ink{Qt::white, 30, 12};
  EXPECT_FALSE(PaintWords(painter, {0, 0, 30, 20}, {"DON'T COME"}, ink));
  EXPECT_FALSE(PaintWords(painter, {0, 0, 200, 8}, {"DC"}, ink));
  EXPECT_EQ(picture, blank);
  EXPECT_TRUE(PaintWords(painter, {0, 0, 40, 20}, {"DON'T COME", "DC"}, ink));
  for (int x = 40; x < 200; ++x)
    ASSERT_EQ(qGray(picture.pixel(x, 10)), 0) << "words stay in their area";
}

// The mean step of brightness from one column, or row, of a tile to the next one.
double MeanStep(const QImage& tile, int from, int to, bool columns) {
  double sum = 0;
  for (int k = 0; k < tile.width(); ++k) {
    const QRgb one = columns ? tile.pixel(from, k) : tile.pixel(k, from);
    const QRgb other = columns ? tile.pixel(to, k) : tile.pixel(k, to);
    sum += std::abs(qGray(one) - qGray(other));
  }
  return sum / tile.width();
}

TEST(Textures, TilesJoinWithoutASeam) {
  for (int texture = 0; texture < TextureCount; ++texture) {
    const QImage tile =
        TextureBrush(static_cast<Texture>(texture), QColor(120, 120, 120)).textureImage();
    const int last = tile.width() - 1;
    for (const bool columns : {false, true}) {
      double widest = 0;
      for (int k = 0; k < last; ++k)
        widest = std::max(widest, MeanStep(tile, k, k + 1, columns));
      EXPECT_GT(widest, 0) << texture;
      EXPECT_LE(MeanStep(tile, last, 0, columns), 1.15 * widest) << texture;
    }
  }
}

TEST(TablePaint, TheSpotlightGrowsWithItsSetting) {
  DefaultPayoffs();
  Table = TableState{};
  const TableLayout layout = MakeTableLayout({});
  Table.Point = 9;
  int last = -1;
  for (Settings.Spotlight = 0; Settings.Spotlight <= 3; ++Settings.Spotlight) {
    const QPointF spot = CheckPosition(layout, 2, bet::Come4 + PointIndex(9));
    const int light = qGray(PictureOfTable(layout, true).pixel((spot / 2).toPoint()));
    EXPECT_GT(light, last) << Settings.Spotlight;
    last = light;
  }
  Settings = SettingsState{};
  Table = TableState{};
}

}  // namespace
}  // namespace tessarel
