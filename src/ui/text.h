// Texts between the core, whose strings are UTF-8 with carriage returns as line breaks, and Qt.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "texts/say.h"

namespace tessarel {

// A text of the core as Qt shows it: line breaks are line feeds.
QString Shown(std::string_view utf8);

// A text without values, in the language in force.
QString Shown(Text text);

// What was typed, as the core takes it.
std::string Typed(const QString& text);

// The text as files can keep it: letters outside Windows-1252 without their marks, as the Turkish
// texts are written; what then still has no place in it is left out.
QString InCodePage(const QString& text);

// A caption without its shortcut mark.
QString WithoutMark(QString caption);

}  // namespace tessarel
