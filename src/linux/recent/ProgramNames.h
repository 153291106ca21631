// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace dayvane::recent {

/// The name that is left of a program's many: "okular" for "Okular", "org.kde.okular", "org.kde.okular.desktop" and for
/// "okularApplication_pdf", under which a part of that program calls itself. Lower case. "LibreOffice 7.4" is no id, so
/// its dot cuts nothing.
std::string PlainProgramName(std::string_view name);

/// Whether two sources mean the same program. An unknown program is the same as no other.
bool IsSameProgram(std::string_view name, std::string_view otherName);

}  // namespace dayvane::recent
