// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>

#include "platform/DateConventions.h"

namespace dayvane {

/// How the user of that locale writes dates, with plain digits. Month names can be names of folders. A short date that
/// would not be read back as it was written (the C locale's, with the name of the month cut short) is "yyyy-mm-dd".
platform::DateConventions DateConventionsOf(const QLocale& locale = QLocale::system());

}  // namespace dayvane
