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

constexpr QRgb Outline = 0xff6d7582;
constexpr int IndicatorSize = 16;

// Fusion for a dark room: what can be filled in or ticked has an edge that stands out from the
// ground, and the focus of buttons, boxes and list rows is framed in brass whichever way it came.
class CasinoStyle : public QProxyStyle {
 public:
  CasinoStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

  int pixelMetric(PixelMetric metric,
                  const QStyleOption* option,
                  const QWidget* widget) const override {
    switch (metric) {
      case PM_IndicatorWidth:
      case PM_IndicatorHeight:
      case PM_ExclusiveIndicatorWidth:
      case PM_ExclusiveIndicatorHeight:
        return IndicatorSize;
      default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
  }

  void drawPrimitive(PrimitiveElement element,
                     const QStyleOption* option,
                     QPainter* painter,
                     const QWidget* widget) const override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    switch (element) {
      case PE_FrameFocusRect:
        DrawEdge(*painter, *option, 0.8, 1.6, true);
        break;
      case PE_FrameLineEdit:
      case PE_Frame:
        DrawEdge(*painter, *option, 0.5, 1, option->state.testFlag(State_HasFocus));
        break;
      case PE_IndicatorCheckBox:
        DrawTickBox(*painter, *option);
        break;
      case PE_IndicatorRadioButton:
        DrawRadio(*painter, *option);
        break;
      default:
        painter->restore();
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    painter->restore();
  }

 private:
  static QColor EdgeColour(const QStyleOption& option, bool marked) {
    if (!option.state.testFlag(State_Enabled)) return option.palette.color(QPalette::Midlight);
    return marked ? option.palette.color(QPalette::Highlight) : QColor(Outline);
  }

  static QColor MarkColour(const QStyleOption& option) {
    return option.palette.color(option.state.testFlag(State_Enabled) ? QPalette::Highlight
                                                                     : QPalette::WindowText);
  }

  static void DrawEdge(
      QPainter& painter, const QStyleOption& option, double inset, double width, bool marked) {
    painter.setPen(QPen(EdgeColour(option, marked), width));
    painter.setBrush(Qt::NoBrush);
    const QRectF edge = QRectF(option.rect).adjusted(inset, inset, -inset, -inset);
    painter.drawRoundedRect(edge, 3, 3);
  }

  static QRectF BeginIndicator(QPainter& painter, const QStyleOption& option) {
    painter.setPen(QPen(EdgeColour(option, option.state.testFlag(State_MouseOver)), 1.2));
    painter.setBrush(option.palette.color(QPalette::Base));
    return QRectF(option.rect).adjusted(1, 1, -1, -1);
  }

  static void DrawTickBox(QPainter& painter, const QStyleOption& option) {
    const QRectF box = BeginIndicator(painter, option);
    painter.drawRoundedRect(box, 3, 3);
    painter.setPen(QPen(MarkColour(option), 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    const auto at = [&box](double x, double y) {
      return QPointF(box.left() + box.width() * x, box.top() + box.height() * y);
    };
    if (option.state.testFlag(State_NoChange)) {
      painter.drawLine(at(0.25, 0.5), at(0.75, 0.5));
    } else if (option.state.testFlag(State_On)) {
      painter.drawPolyline(QPolygonF({at(0.22, 0.52), at(0.43, 0.74), at(0.8, 0.27)}));
    }
  }

  static void DrawRadio(QPainter& painter, const QStyleOption& option) {
    const QRectF ring = BeginIndicator(painter, option);
    painter.drawEllipse(ring);
    if (!option.state.testFlag(State_On)) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(MarkColour(option));
    const double inset = ring.width() * 0.27;
    painter.drawEllipse(ring.adjusted(inset, inset, -inset, -inset));
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
  const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

}  // namespace tessarel
