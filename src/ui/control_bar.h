// The quiet bar below the felt: the five checks to choose from, the keyed amount, the roll button
// with the last dice, point and counts, what a click will do, and unattended play.
#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>
#include <cstdint>

#include "ui/windows/rate_meter.h"

namespace tessarel {

// The five checks. A click or the left and right arrows choose one; it can be dragged to the table.
class CheckChooser : public QWidget {
  Q_OBJECT
 public:
  explicit CheckChooser(QWidget* parent);

  QSize sizeHint() const override;
  QPoint CentreOf(int denomination) const;

 protected:
  void paintEvent(QPaintEvent*) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;

 private:
  int CheckAt(QPoint pixel) const;

  QPoint pressedAt_;
};

class ControlBar : public QWidget {
  Q_OBJECT
 public:
  explicit ControlBar(QWidget* parent);

  // Brings everything in step with the table; cheap enough for every roll that is seen.
  void Refresh();
  // The figures of a run of the Hyper-Drive; all else stands still meanwhile.
  void ShowRun();
  // The captions in the language in force.
  void SetCaptions();
  void ShowHint(const QString& text, bool possible);

  CheckChooser* Checks() const { return checks_; }
  QLineEdit* EnterBet() const { return enterBet_; }
  QPushButton* RollButton() const { return roll_; }
  QPushButton* AutoRollButton() const { return autoRoll_; }
  QPushButton* HyperDriveButton() const { return hyperDrive_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowState();
  void ShowElidedHint();
  int64_t RollsASecond();

  CheckChooser* checks_;
  QLineEdit* enterBet_;
  QPushButton *roll_, *autoRoll_, *hyperDrive_;
  QLabel *state_, *counts_, *hint_;
  RollRate rate_;
  QString hintText_;
  int shownDie1_ = -1, shownDie2_ = -1;
};

}  // namespace tessarel
