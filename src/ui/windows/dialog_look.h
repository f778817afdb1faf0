// What all dialogs have in common: font, margins, headings, the row of buttons with its order and
// sizes, and how a dialog is run. Every window of the program is put together from these, so that
// all look and behave alike.
#pragma once

#include <QBoxLayout>
#include <QDialog>
#include <QFont>
#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <cstdint>
#include <functional>

#include "base/help_topics.h"

namespace tessarel {

// The font of Settings.BasicFontSize, and the larger one of headings.
QFont DialogFont();
QFont HeadingFont();

// Lengths that go with the font in use: `steps` quarters of its height.
int LookStep(double steps);

// Gives a window the common font and its title.
void DressWindow(QWidget& window, const QString& title);

// F1 in a window, also a modal one, opens the page of a topic of the help.
void HelpOnF1(QWidget& window, int32_t topic);

// The column that fills a window, with the common margins and gaps.
QVBoxLayout* MakeColumn(QWidget& window);

// A row below the last one of the column; its buttons stand at the right end.
QHBoxLayout* AddButtonRow(QVBoxLayout* column);

// A button with the common least width. "&" in the caption marks its shortcut.
QPushButton* AddButton(QBoxLayout* row, const QString& caption, std::function<void()> pressed);

QLabel* MakeHeading(const QString& text);

// A text that breaks its lines at `width`, as wide as it needs and no wider; a path breaks behind
// its folders.
QLabel* MakeWrapped(const QString& text, int width);

// Runs a dialog until it is answered. Its size is what its contents ask for, unless `resizable`.
int RunDialog(QDialog& dialog, bool resizable = false);

}  // namespace tessarel
