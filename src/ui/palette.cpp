#include "ui/palette.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>
#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

constexpr QRgb Room = 0xff23272e, Well = 0xff181b20, WellStripe = 0xff20242b, Plate = 0xff373d47,
               Ivory = 0xfff2efe6, Dimmed = 0xffa6a9af, Hint = 0xff9b9d9f, Brass = 0xffd0aa55,
               Ink = 0xff14161a, BrightBrass = 0xffe6c578, SoftViolet = 0xffc9a8e8,
               Tip = 0xff3b3a30;

struct RoleColour {
  QPalette::ColorRole role;
  QRgb colour;
};

constexpr RoleColour Usual[] = {
    {QPalette::Window, Room},
    {QPalette::WindowText, Ivory},
    {QPalette::Base, Well},
    {QPalette::AlternateBase, WellStripe},
    {QPalette::Text, Ivory},
    {QPalette::PlaceholderText, Hint},
    {QPalette::Button, Plate},
    {QPalette::ButtonText, Ivory},
    {QPalette::BrightText, BrightBrass},
    {QPalette::Highlight, Brass},
    {QPalette::HighlightedText, Ink},
    {QPalette::Link, BrightBrass},
    {QPalette::LinkVisited, SoftViolet},
    {QPalette::ToolTipBase, Tip},
    {QPalette::ToolTipText, Ivory},
    {QPalette::Light, 0xff4a515d},
    {QPalette::Midlight, 0xff414852},
    {QPalette::Mid, 0xff2b3038},
    {QPalette::Dark, 0xff15181c},
    {QPalette::Shadow, 0xff0c0d10},
};

constexpr RoleColour Disabled[] = {
    {QPalette::WindowText, Dimmed}, {QPalette::Text, Dimmed},
    {QPalette::ButtonText, Dimmed}, {QPalette::Highlight, Plate},
    {QPalette::Button, 0xff2c3139}, {QPalette::HighlightedText, Dimmed},
};

// The share of light a channel gives.
double Linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
  return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
         0.0722 * Linear(colour.blueF());
}

// Fusion, with the focus of buttons, boxes and list rows framed in brass whichever way it came.
class CasinoStyle : public QProxyStyle {
 public:
  CasinoStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

  void drawPrimitive(PrimitiveElement element,
                     const QStyleOption* option,
                     QPainter* painter,
                     const QWidget* widget) const override {
    if (element != PE_FrameFocusRect) {
      return QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(option->palette.color(QPalette::Highlight), 1.6));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(option->rect).adjusted(0.8, 0.8, -0.8, -0.8), 3, 3);
    painter->restore();
  }
};

}  // namespace

QPalette CasinoPalette() {
  QPalette palette;
  for (const auto& [role, colour] : Usual)
    palette.setColor(role, QColor(colour));
  for (const auto& [role, colour] : Disabled)
    palette.setColor(QPalette::Disabled, role, QColor(colour));
  return palette;
}

void ApplyCasinoStyle() {
  QApplication::setStyle(new CasinoStyle);
  QApplication::setPalette(CasinoPalette());
}

double ContrastOf(const QColor& one, const QColor& other) {
  const auto [dark, light] = std::minmax(Luminance(one), Luminance(other));
  return (light + 0.05) / (dark + 0.05);
}

}  // namespace tessarel
