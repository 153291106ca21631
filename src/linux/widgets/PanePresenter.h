#pragma once

#include <QWidget>
#include <vector>

#include "controls/SimpleControls.h"
#include "linux/widgets/ControlLink.h"

namespace dayvane::widgets {

/// Shows a pane: its children lie where their controls say, but never past its edge, where their frames and scroll
/// bars would be cut off.
class PanePresenter : public QWidget {
 public:
  explicit PanePresenter(controls::PictureBox& control, QWidget* parent = nullptr);

  /// The widget becomes a child of the pane; the control must outlive it. The one added first has the keyboard first.
  void Add(controls::Control& control, QWidget& widget);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Child {
    const controls::Control& control;
    QWidget& widget;
    controls::Connection changed;
  };

  void Place(const controls::Control& control, QWidget& widget) const;

  ControlLink m_link;
  std::vector<Child> m_children;
};

}  // namespace dayvane::widgets
