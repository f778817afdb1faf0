// Answers a modal dialog from a test: what brings it up runs, and once it is shown the answers do.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTest>
#include <QTimer>
#include <functional>

namespace tessarel {

// Runs `open` and, when its dialog is up, `act` on it. A dialog that is then still open has not
// been answered: that is a failure, and it is closed.
inline void Answer(const std::function<void(QDialog&)>& act, const std::function<void()>& open) {
  bool acted = false;
  QTimer::singleShot(0, qApp, [&] {
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr) << "no dialog was shown";
    acted = true;
    act(*dialog);
    if (!dialog->isVisible()) return;
    ADD_FAILURE() << "the dialog stays open";
    dialog->reject();
  });
  open();
  QApplication::processEvents();
  EXPECT_TRUE(acted);
}

// The widget of a dialog by the name it has in the code.
template <class Widget = QWidget>
Widget& Child(QDialog& dialog, const QString& name) {
  auto* const widget = dialog.findChild<Widget*>(name);
  if (widget == nullptr) throw std::runtime_error("no widget " + name.toStdString());
  return *widget;
}

inline void Press(QWidget& widget, Qt::Key key) {
  QTest::keyClick(&widget, key);
}

// As a user presses a key: it goes to what has the focus.
inline void Press(QDialog& dialog, Qt::Key key) {
  QTest::keyClick(dialog.focusWidget() != nullptr ? dialog.focusWidget() : &dialog, key);
}

inline void Click(QDialog& dialog, const QString& name) {
  QTest::mouseClick(&Child(dialog, name), Qt::LeftButton);
}

}  // namespace tessarel
