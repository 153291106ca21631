// SPDX-License-Identifier: MIT
#include "linux/help/HelpBrowser.h"

#include <QEvent>
#include <QScrollBar>
#include <algorithm>

#include "linux/help/HelpPage.h"

namespace dayvane::help {

namespace {

// Every page has the address "help:/<topic>", so that the plain names in links resolve to their neighbours.
constexpr QLatin1String kScheme("help");
constexpr QLatin1String kPagePrefix("help:/");

constexpr int kSmallestZoom = -4;
constexpr int kLargestZoom = 12;
constexpr qreal kPageMargin = 16;

QString TopicName(const QUrl& url) {
  return url.path().mid(url.path().lastIndexOf(u'/') + 1);
}

}  // namespace

HelpBrowser::HelpBrowser() {
  setAccessibleName(QStringLiteral("Help page"));
  setFrameShape(QFrame::NoFrame);
  document()->setDocumentMargin(kPageMargin);
  // source() still gives the page before while this signal is raised.
  connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& url) { Q_EMIT TopicShown(TopicName(url)); });
}

void HelpBrowser::SetHelpFile(const HelpFile& file) {
  m_file = &file;
  m_problem.clear();
}

void HelpBrowser::SetProblem(const QString& problem) {
  m_file = nullptr;
  m_problem = problem;
}

void HelpBrowser::ShowTopic(const QString& name) {
  setSource(QUrl(kPagePrefix + name), QTextDocument::HtmlResource);
}

void HelpBrowser::Zoom(int steps) {
  const int zoom = std::clamp(m_zoom + steps, kSmallestZoom, kLargestZoom);
  zoomIn(zoom - m_zoom);
  m_zoom = zoom;
}

QVariant HelpBrowser::loadResource(int type, const QUrl& url) {
  if (type == QTextDocument::HtmlResource) return Page(url);
  if (type == QTextDocument::ImageResource && m_file) return PagePicture(*m_file, url, devicePixelRatioF());
  return {};
}

QString HelpBrowser::Page(const QUrl& url) const {
  if (!m_file) return NoticePage(QStringLiteral("Help cannot be shown"), m_problem, {}, {}, palette());
  if (const Topic* topic = m_file->Find(TopicName(url).toStdString())) return TopicPage(*topic, palette());
  const QString home = QString::fromStdString(m_file->Contents().front().topic);
  return NoticePage(QStringLiteral("No help on this yet"),
                    QStringLiteral("There is no page on what you asked for. The table of contents may lead "
                                   "you to what you are looking for."),
                    home, QStringLiteral("Go to the first page"), palette());
}

/// A link to anything but a page is not followed: help shows what came with the program, and nothing else.
void HelpBrowser::doSetSource(const QUrl& url, QTextDocument::ResourceType type) {
  if (!url.isRelative() && url.scheme() != kScheme) return;
  QTextBrowser::doSetSource(url, type == QTextDocument::UnknownResource ? QTextDocument::HtmlResource : type);
}

void HelpBrowser::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  // The colours are part of the page.
  if (event->type() == QEvent::PaletteChange && !source().isEmpty()) ShowAgain();
}

void HelpBrowser::ShowAgain() {
  const int scrolled = verticalScrollBar()->value();
  reload();
  verticalScrollBar()->setValue(scrolled);
}

}  // namespace dayvane::help
