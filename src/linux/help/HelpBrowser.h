// SPDX-License-Identifier: MIT
#pragma once

#include <QTextBrowser>

#include "help/HelpFile.h"

namespace dayvane::help {

/// Shows the pages of a help file, with a history to go back and forward in. It loads nothing from anywhere else: an
/// address that names no topic gives a page that says so.
class HelpBrowser : public QTextBrowser {
  Q_OBJECT

 public:
  HelpBrowser();

  /// Shows pages of this file from now on. It must outlive the browser or the next call.
  void SetHelpFile(const HelpFile& file);

  /// There is no help file to show: every page says why, in plain text.
  void SetProblem(const QString& problem);

  void ShowTopic(const QString& name);
  void ShowUnknownContext(int contextId) { ShowTopic(QStringLiteral("?context=%1").arg(contextId)); }

  /// Steps of text size, 0 being the desktop's own; within the range that can still be read.
  void Zoom(int steps);
  void ResetZoom() { Zoom(-m_zoom); }

 Q_SIGNALS:
  /// Another page is shown. The name is its topic's, and means nothing for a page that the browser made itself.
  void TopicShown(const QString& name);

 protected:
  QVariant loadResource(int type, const QUrl& url) override;
  void doSetSource(const QUrl& url, QTextDocument::ResourceType type) override;
  void changeEvent(QEvent* event) override;

 private:
  QString Page(const QUrl& url) const;
  void ShowAgain();

  const HelpFile* m_file = nullptr;
  QString m_problem;
  int m_zoom = 0;
};

}  // namespace dayvane::help
