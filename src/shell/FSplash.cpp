// SPDX-License-Identifier: MIT
#include "shell/FSplash.h"

#include "resources/MResourceConstants.h"

namespace dayvane {

FSplash::FSplash(const ProgramInfo& info) {
  Form_Load(info);
  imgLogo.Click.Connect([this] { Click(); });
  form.KeyUp.Connect([this](int, int) { Unload(); });
}

void FSplash::Form_Load(const ProgramInfo& info) {
  form.SetCaption(info.title);
  imgLogo.SetPicture(kLogoPicture);
  lblProductName.SetCaption(info.title);
  lblVersion.SetCaption(info.VersionText());
  lblCompany.SetCaption(info.company);
  lblCopyright.SetCaption(info.copyright);
  lblWarning.SetCaption(info.comments);
}

}  // namespace dayvane
