// SPDX-License-Identifier: MIT
#include "linux/help/HelpPage.h"

#include <QFileInfo>
#include <QPainter>
#include <QSvgRenderer>
#include <cmath>

#include "linux/widgets/Colours.h"

namespace dayvane::help {

namespace {

constexpr int kLargestSide = 2000;  ///< points; no page is that wide, and a lying size must not eat the memory

QColor Mixed(const QColor& a, const QColor& b, qreal shareOfB) {
  const auto mix = [&](qreal x, qreal y) { return static_cast<float>(x + (y - x) * shareOfB); };
  return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()));
}

/// The desktop's own link colour where it can be read; many dark palettes keep the pure blue of the light ones.
QColor LinkColor(const QColor& background, bool isDark, const QPalette& palette) {
  const QColor link = palette.color(QPalette::Link);
  const bool readable = std::abs(qGray(link.rgb()) - qGray(background.rgb())) > 80;
  return readable ? link : QColor(isDark ? "#7db4ff" : "#1f56ab");
}

QString Style(const QColor& background, const QColor& text, const QPalette& palette) {
  const bool isDark = widgets::IsDark(background, text);
  const QColor accent = isDark ? QColor("#9cc3ff") : QColor("#1f4f9e");
  return QStringLiteral(
             "h1, h2, p.title { color: %1; }"
             "h1 { margin: 0 0 10px 0; }"
             "h2 { margin: 18px 0 6px 0; }"
             "p { margin: 6px 0 6px 0; }"
             "li { margin: 4px 0 4px 0; }"
             "a { color: %2; }"
             "table.tip { background-color: %3; margin: 10px 0 10px 0; }"
             "table.tip td { padding: 8px 12px 8px 12px; }"
             "p.quote { margin: 6px 0 6px 24px; font-style: italic; }"
             "p.see { margin: 16px 0 0 0; color: %4; }"
             "table.grid { border-collapse: collapse; margin: 8px 0 10px 0; }"
             "table.grid th { background-color: %3; text-align: left; padding: 5px 10px 5px 10px;"
             " border: 1px solid %5; }"
             "table.grid td { padding: 5px 10px 5px 10px; border: 1px solid %5; }"
             "table.cards td { padding: 6px 10px 6px 4px; }")
      .arg(accent.name(), LinkColor(background, isDark, palette).name(), Mixed(background, accent, 0.12).name(),
           Mixed(text, background, 0.3).name(), Mixed(background, text, 0.22).name());
}

QString Document(const QString& title, const QString& style, const QString& body) {
  return QStringLiteral("<html><head><title>%1</title><style>%2</style></head><body>%3</body></html>")
      .arg(title.toHtmlEscaped(), style, body);
}

QString PageDocument(const QString& title, const QString& body, const QPalette& palette) {
  const QString style = Style(palette.color(QPalette::Base), palette.color(QPalette::Text), palette);
  return Document(title, style, QStringLiteral("<h1>%1</h1>%2").arg(title.toHtmlEscaped(), body));
}

/// The size that the query of a picture's address asks for, or the picture's own.
QSize SizeOf(const QUrl& url, const QSize& own) {
  const QStringList sides = url.query().split(u'x');
  const QSize asked = sides.size() == 2 ? QSize(sides[0].toInt(), sides[1].toInt()) : own;
  const QSize size = asked.isEmpty() ? own : asked;
  return size.boundedTo({kLargestSide, kLargestSide});
}

}  // namespace

QString TopicPage(const Topic& topic, const QPalette& palette) {
  return PageDocument(QString::fromStdString(topic.title), QString::fromStdString(topic.body), palette);
}

QString PopupPage(const Topic& topic, const QPalette& palette) {
  const QString style = Style(palette.color(QPalette::ToolTipBase), palette.color(QPalette::ToolTipText), palette);
  const QString title = QString::fromStdString(topic.title);
  const QString heading = QStringLiteral("<p class=\"title\"><b>%1</b></p>").arg(title.toHtmlEscaped());
  return Document(title, style, heading + QString::fromStdString(topic.body));
}

QString NoticePage(const QString& title, const QString& text, const QString& link, const QString& linkText,
                   const QPalette& palette) {
  QString body = QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
  if (!link.isEmpty())
    body += QStringLiteral("<p><a href=\"%1\">%2</a></p>").arg(link.toHtmlEscaped(), linkText.toHtmlEscaped());
  return PageDocument(title, body, palette);
}

QImage PagePicture(const HelpFile& file, const QUrl& url, qreal pixelsPerPoint) {
  const std::string_view picture = file.Picture(QFileInfo(url.path()).fileName().toStdString());
  QSvgRenderer renderer(QByteArray(picture.data(), static_cast<qsizetype>(picture.size())));
  if (!renderer.isValid()) return {};
  const QSize size = SizeOf(url, renderer.defaultSize());
  QImage image(size * pixelsPerPoint, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  renderer.render(&painter);
  painter.end();
  image.setDevicePixelRatio(pixelsPerPoint);
  return image;
}

}  // namespace dayvane::help
