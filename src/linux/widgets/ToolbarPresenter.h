// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QHBoxLayout>
#include <QToolButton>
#include <QWidget>
#include <memory>
#include <span>
#include <vector>

#include "controls/Deferred.h"
#include "controls/SimpleControls.h"
#include "linux/widgets/ControlLink.h"
#include "shell/MCommands.h"

namespace dayvane::widgets {

/// Shows the toolbar: a strip of buttons between two rules. A button without a tip is not shown.
class ToolbarPresenter : public QWidget {
 public:
  ToolbarPresenter(controls::PictureBox& strip, std::span<controls::Button, kToolbarButtons> buttons,
                   std::span<controls::Line> rules, QWidget* parent = nullptr);

  QToolButton& ButtonAt(std::size_t index) { return *m_buttons[index].widget; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct ShownButton {
    std::unique_ptr<QToolButton> widget;
    std::unique_ptr<ControlLink> link;
  };

  void AddButton(controls::Button& button, const ToolbarRow& row);
  void ShowRules();

  std::span<controls::Line> m_rules;
  QHBoxLayout m_layout;
  std::vector<ShownButton> m_buttons;
  std::vector<std::unique_ptr<QFrame>> m_lines;
  controls::Deferred m_deferred;
  ControlLink m_link;
  std::vector<controls::Connection> m_connections;
};

}  // namespace dayvane::widgets
