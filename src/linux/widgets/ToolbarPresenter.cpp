// SPDX-License-Identifier: MIT
#include "linux/widgets/ToolbarPresenter.h"

#include <QPainter>
#include <QStyle>

#include "linux/widgets/Lengths.h"
#include "linux/widgets/Pictures.h"

namespace dayvane::widgets {

namespace {

// Logical pixels.
constexpr int kToolbarMargin = 3;
constexpr int kGroupGap = 10;
constexpr int kRuleHeight = 2;

bool BeginsGroup(const ToolbarRow& row) {
  return row.button != 0 && row.group != kToolbarRows[row.button - 1].group;
}

/// With a picture for a disabled button that is plainly weaker, on light and dark windows alike: styles turn pictures
/// grey, and on a dark window grey looks brighter than the picture did.
QIcon WithDimmedPicture(QIcon icon, int size, qreal pixels) {
  constexpr qreal kOpacity = 0.3;
  const QPixmap usual = icon.pixmap(QSize(size, size), pixels);
  QPixmap dimmed(usual.size());
  dimmed.setDevicePixelRatio(usual.devicePixelRatio());
  dimmed.fill(Qt::transparent);
  QPainter painter(&dimmed);
  painter.setOpacity(kOpacity);
  painter.drawPixmap(0, 0, usual);
  painter.end();
  icon.addPixmap(dimmed, QIcon::Disabled);
  return icon;
}

}  // namespace

ToolbarPresenter::ToolbarPresenter(controls::PictureBox& strip, std::span<controls::Button, kToolbarButtons> buttons,
                                   std::span<controls::Line> rules, QWidget* parent)
    : QWidget(parent), m_rules(rules), m_layout(this), m_link(strip, *this, [] {}) {
  m_layout.setContentsMargins(kToolbarMargin, kRuleHeight + kToolbarMargin, kToolbarMargin,
                              kRuleHeight + kToolbarMargin);
  m_layout.setSpacing(1);
  for (const ToolbarRow& row : kToolbarRows) AddButton(buttons[row.button], row);
  m_layout.addStretch();
  for (controls::Line& rule : rules) {
    m_lines.push_back(std::make_unique<QFrame>(this));
    m_lines.back()->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    m_connections.push_back(rule.Changed.ConnectScoped([this] { ShowRules(); }));
  }
  ShowRules();
  m_link.Show();
}

void ToolbarPresenter::AddButton(controls::Button& button, const ToolbarRow& row) {
  m_buttons.push_back({std::make_unique<QToolButton>(this), nullptr});
  QToolButton& widget = *m_buttons.back().widget;
  if (BeginsGroup(row)) m_layout.addSpacing(kGroupGap);
  if (*row.tip == '\0') return widget.hide();
  const int size = style()->pixelMetric(QStyle::PM_ToolBarIconSize, nullptr, this);
  widget.setIconSize({size, size});
  widget.setIcon(WithDimmedPicture(PictureIcon(row.picture), size, devicePixelRatioF()));
  widget.setAutoRaise(true);
  widget.setFocusPolicy(Qt::TabFocus);
  m_layout.addWidget(&widget);
  connect(
      &widget, &QToolButton::clicked, this,
      [this, &button] { m_deferred.AfterWorkAndQuestions([&button] { button.Press(); }); }, Qt::QueuedConnection);
  m_buttons.back().link = std::make_unique<ControlLink>(button, widget, [&button, &widget] {
    widget.setToolTip(QString::fromStdString(button.ToolTipText()));
    widget.setAccessibleName(widget.toolTip());
    if (widget.icon().isNull()) widget.setText(widget.toolTip());
  });
  m_buttons.back().link->Show();
}

void ToolbarPresenter::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  ShowRules();
}

void ToolbarPresenter::ShowRules() {
  for (std::size_t index = 0; index < m_lines.size(); ++index) {
    const int top = index == 0 ? 0 : height() - kRuleHeight;
    m_lines[index]->setGeometry(0, top, ToPixels(m_rules[index].X2(), *this), kRuleHeight);
  }
}

}  // namespace dayvane::widgets
