// The colours of every window outside the felt: a dark room with brass for what is chosen or has
// the focus. Set once for the application, with Qt's Fusion style.
#pragma once

#include <QPalette>

namespace tessarel {

QPalette CasinoPalette();

// Puts the style and the palette in force for the whole application, which must exist.
void ApplyCasinoStyle();

// Marks in the colours of the palette: what is won, what is lost, what warns.
inline constexpr QRgb WinColour = 0xff5cc4b2, LossColour = 0xfff0a04b, WarningColour = 0xffe5b84b;

// The contrast of two colours, 1 to 21, as guidelines for legible text measure it.
double ContrastOf(const QColor& one, const QColor& other);

}  // namespace tessarel
