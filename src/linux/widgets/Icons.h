// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QIcon>

#include "controls/ImageList.h"

namespace dayvane::widgets {

/// Draws the controls' pictures. The names of a picture are looked for in the user's icon theme, then in Adwaita,
/// which has an icon for most document types; anything without one shows as a plain document.
class Icons {
 public:
  Icons() { QIcon::setFallbackThemeName(QStringLiteral("Adwaita")); }

  QIcon Of(const controls::Picture& picture) const;

  /// Image `number` of a list; a plain document for a number that the list does not have, as while images are
  /// exchanged.
  QIcon Of(const controls::ImageList* images, int number) const;

 private:
  QIcon Find(const controls::Picture& picture) const;

  // Looking a name up in a theme reads folders; a list asks for the same few pictures for every row.
  mutable QHash<QString, QIcon> m_found;
};

}  // namespace dayvane::widgets
