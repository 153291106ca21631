// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/DateConventions.h"

namespace dayvane {

/// How the user writes dates, as the regional settings have it; of a language such as L"de-DE" where one is given.
/// Month names can be names of folders. A short date that would not be read back as it was written is "yyyy-mm-dd".
platform::DateConventions DateConventionsOf(const wchar_t* localeName = nullptr);

/// The program's pattern for one of the system's; empty where it has none for a field.
std::string ShortDatePattern(const std::wstring& systemPattern);

/// The same for a time; seconds are left out.
std::string ShortTimePattern(const std::wstring& systemPattern);

}  // namespace dayvane
