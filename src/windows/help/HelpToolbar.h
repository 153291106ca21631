// SPDX-License-Identifier: MIT
#pragma once

#include "windows/help/HelpPart.h"

namespace dayvane::help {

enum class HelpCommand { Back = 1, Forward, FirstPage, LargerText, SmallerText, NormalText, Search, Find };

/// The buttons of the help window.
class HelpToolbar : public HelpPart {
 public:
  HelpToolbar(HWND parent, const widgets::SharedLook& look);

  void Enable(HelpCommand command, bool enabled) const;
  int WantedHeight() const;
  void SetLook(const widgets::SharedLook& look) override;

 private:
  void AddButtons() const;
  void DrawImages();

  widgets::ImageListHandle m_images;
};

}  // namespace dayvane::help
