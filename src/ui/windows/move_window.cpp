#include "ui/windows/move_window.h"

#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QSlider>
#include <vector>

#include "texts/say.h"
#include "ui/table_view.h"
#include "ui/text.h"

namespace tessarel {

namespace {

class MoveWindow : public QWidget {
 public:
  MoveWindow(QWidget* parent, TableView* view)
      : QWidget(parent, Qt::Tool), form_(new QFormLayout(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    form_->setContentsMargins(14, 14, 14, 14);
    QSlider* zoom = AddSlider(view->LeastZoom, view->MostZoom, view->ZoomPercent());
    connect(zoom, &QSlider::valueChanged, this,
            [view](int percent) { view->SetView(percent, view->Degrees()); });
    connect(AddSlider(0, 359, view->Degrees()), &QSlider::valueChanged, this,
            [view](int degrees) { view->SetView(view->ZoomPercent(), degrees); });
    SetCaptions();
    zoom->setFocus();
  }

 protected:
  void changeEvent(QEvent* event) override {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) SetCaptions();
  }
  void keyPressEvent(QKeyEvent* event) override {
    event->key() == Qt::Key_Escape ? void(close()) : QWidget::keyPressEvent(event);
  }

 private:
  QSlider* AddSlider(int least, int most, int now) {
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setRange(least, most);
    slider->setValue(now);
    slider->setMinimumWidth(240);
    auto* label = new QLabel;
    label->setBuddy(slider);
    form_->addRow(label, slider);
    labels_.push_back(label);
    return slider;
  }

  void SetCaptions() {
    setWindowTitle(WithoutMark(Shown(Text::ViewMove)));
    labels_[0]->setText(Shown(Text::ZoomSlider));
    labels_[1]->setText(Shown(Text::RotationSlider));
  }

  QFormLayout* form_;
  std::vector<QLabel*> labels_;
};

}  // namespace

QWidget* MakeMoveWindow(QWidget* parent, TableView* view) {
  auto* window = new MoveWindow(parent, view);
  // In the upper right corner, where it covers no bet of a table that is not zoomed.
  window->adjustSize();
  const QPoint corner = view->mapToGlobal(view->rect().topRight());
  window->move(corner + QPoint(-window->width() - 16, 8));
  return window;
}

}  // namespace tessarel
