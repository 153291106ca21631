// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPalette>
#include <QString>
#include <QUrl>

#include "help/HelpFile.h"

/// How a topic becomes a page that Qt's rich text draws, in the colours of the palette.
namespace dayvane::help {

/// A whole page: title and body.
QString TopicPage(const Topic& topic, const QPalette& palette);

/// The same for a small window that explains one control: a small title, and no room around it.
QString PopupPage(const Topic& topic, const QPalette& palette);

/// A page of the viewer's own, for what the help file does not hold. `title` and `text` are plain text; `link`, a
/// topic's name, may be empty.
QString NoticePage(const QString& title, const QString& text, const QString& link, const QString& linkText,
                   const QPalette& palette);

/// The picture that a page names by "<name>?<width>x<height>", for a screen of so many pixels per point. A name without
/// a size gives the picture's own size; one that is not in the file, an empty image.
QImage PagePicture(const HelpFile& file, const QUrl& url, qreal pixelsPerPoint);

}  // namespace dayvane::help
