// SPDX-License-Identifier: MIT
#include "linux/widgets/ControlLink.h"

#include <QWidget>

#include "controls/Control.h"
#include "controls/Deferred.h"

namespace dayvane::widgets {

ControlLink::ControlLink(controls::Control& control, QWidget& widget, std::function<void()> show)
    : m_control(control), m_widget(widget), m_show(std::move(show)) {
  m_connections.push_back(control.Changed.ConnectScoped([this] { Show(); }));
  m_connections.push_back(control.FocusWanted.ConnectScoped([this] { m_widget.setFocus(Qt::OtherFocusReason); }));
  m_connections.push_back(control.RefreshWanted.ConnectScoped([this] {
    if (!controls::IsInBackground()) m_widget.repaint();
  }));
}

void ControlLink::Show() {
  m_widget.setObjectName(QString::fromStdString(m_control.Name()));
  m_widget.setProperty(kHelpIdProperty, m_control.WhatsThisHelpID());
  m_widget.setEnabled(m_control.Enabled());
  // A widget without a parent would open as a window of its own.
  if (m_widget.parentWidget() != nullptr) m_widget.setVisible(m_control.Visible());
  m_show();
}

}  // namespace dayvane::widgets
