// Texts between the core, whose strings are UTF-8 with carriage returns as line breaks, and Qt.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "config/language.h"

namespace tessarel {

// A text of the core as Qt shows it: line breaks are line feeds.
QString Shown(std::string_view utf8);

// The variant in the language in force.
QString Shown(const SixTexts& texts);

// What was typed, as the core takes it.
std::string Typed(const QString& text);

// A caption without its shortcut mark.
QString WithoutMark(QString caption);

}  // namespace tessarel
