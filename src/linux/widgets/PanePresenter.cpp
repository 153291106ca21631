#include "linux/widgets/PanePresenter.h"

#include "linux/widgets/Lengths.h"

namespace dayvane::widgets {

PanePresenter::PanePresenter(controls::PictureBox& control, QWidget* parent)
    : QWidget(parent), m_link(control, *this, [] {}) {
  m_link.Show();
}

void PanePresenter::Add(controls::Control& control, QWidget& widget) {
  widget.setParent(this);
  widget.setVisible(control.Visible());
  m_children.push_back(
      {control, widget, control.Changed.ConnectScoped([this, &control, &widget] { Place(control, widget); })});
  Place(control, widget);
}

void PanePresenter::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  for (const Child& child : m_children) Place(child.control, child.widget);
}

void PanePresenter::Place(const controls::Control& control, QWidget& widget) const {
  widget.setGeometry(PixelRect(control, *this).intersected(rect()));
}

}  // namespace dayvane::widgets
