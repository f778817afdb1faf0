#include "ui/windows/move_window.h"

#include <QFormLayout>
#include <QLabel>
#include <QSlider>

#include "ui/main_texts.h"
#include "ui/table_view.h"
#include "ui/text.h"

namespace tessarel {

namespace {

// A slider with its caption; `change` gets every position.
template <class Change>
QSlider* AddSlider(QFormLayout* form, const SixTexts& caption, int least, int most, int now,
                   Change change) {
  auto* slider = new QSlider(Qt::Horizontal);
  slider->setRange(least, most);
  slider->setValue(now);
  slider->setMinimumWidth(240);
  auto* label = new QLabel(Shown(caption));
  label->setBuddy(slider);
  form->addRow(label, slider);
  QObject::connect(slider, &QSlider::valueChanged, slider, change);
  return slider;
}

}  // namespace

QWidget* MakeMoveWindow(QWidget* parent, TableView* view) {
  auto* window = new QWidget(parent, Qt::Tool);
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->setWindowTitle(WithoutMark(Shown(texts::ViewMove)));
  auto* form = new QFormLayout(window);
  form->setContentsMargins(14, 14, 14, 14);
  QSlider* zoom = AddSlider(form, texts::Zoom, view->LeastZoom, view->MostZoom, view->ZoomPercent(),
                            [view](int percent) { view->SetView(percent, view->Degrees()); });
  AddSlider(form, texts::Rotation, 0, 359, view->Degrees(),
            [view](int degrees) { view->SetView(view->ZoomPercent(), degrees); });
  zoom->setFocus();
  // In the upper right corner, where it covers no bet of a table that is not zoomed.
  window->adjustSize();
  const QPoint corner = view->mapToGlobal(view->rect().topRight());
  window->move(corner + QPoint(-window->width() - 16, 8));
  return window;
}

}  // namespace tessarel
