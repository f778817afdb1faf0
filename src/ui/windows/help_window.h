// The help: a set of pages by topic number in a window of its own.
#pragma once

#include <QWidget>

namespace tessarel {

// Opens the page of a topic, 0 for the contents; brings the window up if it is there already.
void ShowHelp(QWidget* parent, int topic);

}  // namespace tessarel
