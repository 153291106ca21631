// SPDX-License-Identifier: MIT
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QUrl>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

#include "help/HelpFile.h"
#include "linux/LinuxFileSystem.h"
#include "linux/files/NativePath.h"
#include "linux/help/HelpPage.h"
#include "resources/MHelpConstants.h"

/// The help that is shipped, as it was built.
namespace dayvane::help {
namespace {

const HelpFile& Shipped() {
  files::LinuxFileSystem disk;
  static const HelpFile file = HelpFile::Read(disk, files::FromNative(DAYVANE_HELP_FILE).value());
  return file;
}

/// Values of an attribute of one element, wherever it stands in a body.
QStringList Attributes(const std::string& body, const QString& element, const QString& attribute) {
  QStringList values;
  QXmlStreamReader xml(QString::fromStdString("<topic>" + body + "</topic>"));
  while (!xml.atEnd()) {
    xml.readNext();
    if (xml.isStartElement() && xml.name() == element) values << xml.attributes().value(attribute).toString();
  }
  return values;
}

constexpr int kEveryContext[] = {kHelpFavoritesThreshold,
                                 kHelpTimerInterval,
                                 kHelpOptions,
                                 kHelpPurgeAge,
                                 kHelpMainWindowHelpButton,
                                 kHelpListViewButton,
                                 kHelpDetailViewButton,
                                 kHelpLargeIconViewButton,
                                 kHelpSmallIconViewButton,
                                 kHelpFavoritesViewButton,
                                 kHelpExploreFolderButton,
                                 kHelpOpenFolderButton,
                                 kHelpDailyViewButton,
                                 kHelpFavoritesList,
                                 kHelpDailyList,
                                 kHelpDayTree,
                                 kHelpCalendar,
                                 kHelpFirstRun,
                                 kHelpMainWindow};

TEST(HelpTopics, EveryContextOfTheProgramIsExplained) {
  for (int context : kEveryContext) {
    const Topic* topic = Shipped().FindContext(context);
    ASSERT_NE(topic, nullptr) << context;
    EXPECT_GT(topic->title.size(), 3U) << context;
    EXPECT_TRUE(topic->text.find(". ") != std::string::npos || topic->text.ends_with('.')) << context;
  }
}

TEST(HelpTopics, WhatAControlIsForIsSaidInAFewSentences) {
  static const QRegularExpression sentenceEnd(QStringLiteral("[.?!](\\s|$)"));
  for (int context : kEveryContext) {
    if (context == kHelpOptions || context == kHelpFirstRun || context == kHelpMainWindow) continue;
    const QString text = QString::fromStdString(Shipped().FindContext(context)->text);
    EXPECT_GE(text.count(sentenceEnd), 2) << text.toStdString();
    EXPECT_LE(text.count(sentenceEnd), 5) << text.toStdString();
  }
}

TEST(HelpTopics, EveryLinkLeadsToATopic) {
  for (const Topic& topic : Shipped().Topics()) {
    for (const QString& link : Attributes(topic.body, "a", "href"))
      EXPECT_NE(Shipped().Find(link.toStdString()), nullptr) << topic.name << " -> " << link.toStdString();
  }
}

TEST(HelpTopics, EveryPictureCanBeDrawn) {
  for (const Topic& topic : Shipped().Topics()) {
    for (const QString& picture : Attributes(topic.body, "img", "src"))
      EXPECT_FALSE(PagePicture(Shipped(), QUrl(picture), 1).isNull()) << picture.toStdString();
  }
}

TEST(HelpTopics, EveryTopicIsWellFormedMarkup) {
  for (const Topic& topic : Shipped().Topics()) {
    QXmlStreamReader xml(QString::fromStdString("<topic>" + topic.body + "</topic>"));
    while (!xml.atEnd()) xml.readNext();
    EXPECT_FALSE(xml.hasError()) << topic.name << ": " << xml.errorString().toStdString();
  }
}

TEST(HelpTopics, EveryTopicStandsInTheContents) {
  EXPECT_EQ(Shipped().Contents().size(), Shipped().Topics().size());
}

/// The words of the element that was just begun, without those for another system and without white space.
QString WordsOf(QXmlStreamReader& xml) {
  QString words;
  for (int depth = 1; depth > 0 && !xml.atEnd();) {
    xml.readNext();
    if (xml.isCharacters()) words += xml.text().toString();
    if (xml.isEndElement()) --depth;
    if (!xml.isStartElement()) continue;
    if (xml.attributes().value("system") == QLatin1String("windows"))
      xml.skipCurrentElement();
    else
      ++depth;
  }
  return words.remove(QRegularExpression("\\s"));
}

TEST(HelpTopics, EverySourceArrivesWithItsTitleAndWords) {
  const QDir sources(QStringLiteral(DAYVANE_SOURCE_FOLDER "/src/resources/help"));
  for (const QString& name : sources.entryList({"*.html"})) {
    QFile source(sources.filePath(name));
    ASSERT_TRUE(source.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&source);
    ASSERT_TRUE(xml.readNextStartElement());
    const QString title = xml.attributes().value("title").toString();
    const QString words = WordsOf(xml);
    const Topic* topic = Shipped().Find(name.chopped(5).toStdString());
    ASSERT_NE(topic, nullptr) << name.toStdString();
    EXPECT_EQ(topic->title, title.toStdString());
    EXPECT_EQ(QString::fromStdString(topic->text).remove(QRegularExpression("\\s")), words);
  }
}

TEST(HelpTopics, NothingIsToldOfWindows) {
  for (const Topic& topic : Shipped().Topics())
    for (const char* word : {"Windows", "registry", "HKEY", "dayvane.exe"})
      EXPECT_EQ(topic.text.find(word), std::string::npos) << topic.name << ": " << word;
}

}  // namespace
}  // namespace dayvane::help
