// The window that turns the table and changes its zoom.
#pragma once

#include <QWidget>

namespace tessarel {

class TableView;

QWidget* MakeMoveWindow(QWidget* parent, TableView* view);

}  // namespace tessarel
