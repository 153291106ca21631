// SPDX-License-Identifier: MIT
#include "linux/forms/OptionsWindow.h"

#include <array>

#include "linux/widgets/Pictures.h"
#include "resources/MResourceConstants.h"
#include "settings/FOptions.h"

namespace dayvane::widgets {

namespace {

// Logical pixels.
constexpr int kLabelGap = 16;
constexpr int kButtonsGap = 12;

}  // namespace

OptionsWindow::OptionsWindow(FOptions& options, QWidget* owner) : QDialog(owner), m_form(options.form, *this, *this) {
  m_grid.setHorizontalSpacing(kLabelGap);
  for (int row = 0; row < static_cast<int>(FOptions::kFields); ++row) AddField(options, row);
  AddButtons(options);
  AddWhatsThis(options);
  m_layout.addLayout(&m_grid);
  m_layout.addSpacing(kButtonsGap);
  m_layout.addWidget(&m_buttonBox);
  setLayout(&m_layout);
  m_layout.setSizeConstraint(QLayout::SetFixedSize);
  m_fields.front()->setFocus();
}

void OptionsWindow::AddField(FOptions& options, int row) {
  const auto index = static_cast<std::size_t>(row);
  controls::Label& label = options.lblOptions[index];
  m_labels.push_back(std::make_unique<LabelPresenter>(label));
  m_fields.push_back(std::make_unique<NumberFieldPresenter>(options.txtOptions[index], options.udOptions[index]));
  m_labels.back()->setBuddy(m_fields.back().get());
  m_fields.back()->setAccessibleName(SpokenCaption(label.Caption()));
  m_grid.addWidget(m_labels.back().get(), row, 0);
  m_grid.addWidget(m_fields.back().get(), row, 1);
}

void OptionsWindow::AddButtons(FOptions& options) {
  constexpr std::array<QDialogButtonBox::ButtonRole, 3> kRoles{
      QDialogButtonBox::AcceptRole, QDialogButtonBox::RejectRole, QDialogButtonBox::HelpRole};
  for (std::size_t i = 0; i < kRoles.size(); ++i) {
    m_buttons.push_back(std::make_unique<ButtonPresenter>(options.cmdOptions[i]));
    m_buttonBox.addButton(m_buttons.back().get(), kRoles[i]);
  }
  m_buttons[FOptions::kOk]->setDefault(true);
}

void OptionsWindow::AddWhatsThis(FOptions& options) {
  m_whatsThis.setIcon(PictureIcon(kWhatsThisHelpPicture));
  m_whatsThis.setAutoRaise(true);
  m_whatsThis.setToolTip(QStringLiteral("What's This Help (Shift+F1)"));
  m_whatsThis.setAccessibleName(QStringLiteral("What's This Help"));
  m_buttonBox.addButton(&m_whatsThis, QDialogButtonBox::HelpRole);
  connect(&m_whatsThis, &QToolButton::clicked, this, [&options] { options.form.WhatsThisMode(); });
}

}  // namespace dayvane::widgets
