// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QToolButton>
#include <QVBoxLayout>
#include <memory>
#include <vector>

#include "linux/forms/FormPresenter.h"
#include "linux/widgets/ButtonPresenter.h"
#include "linux/widgets/LabelPresenter.h"
#include "linux/widgets/NumberFieldPresenter.h"

namespace dayvane {
class FOptions;
}

namespace dayvane::widgets {

/// The options dialog: a field with its label per option, and the buttons in the desktop's order. FOptions must outlive
/// it.
class OptionsWindow : public QDialog {
 public:
  OptionsWindow(FOptions& options, QWidget* owner);

  FormPresenter& Presenter() { return m_form; }

 private:
  void AddField(FOptions& options, int row);
  void AddButtons(FOptions& options);
  void AddWhatsThis(FOptions& options);

  QVBoxLayout m_layout;
  QGridLayout m_grid;
  QDialogButtonBox m_buttonBox;
  QToolButton m_whatsThis;
  std::vector<std::unique_ptr<LabelPresenter>> m_labels;
  std::vector<std::unique_ptr<NumberFieldPresenter>> m_fields;
  std::vector<std::unique_ptr<ButtonPresenter>> m_buttons;
  FormPresenter m_form;
};

}  // namespace dayvane::widgets
