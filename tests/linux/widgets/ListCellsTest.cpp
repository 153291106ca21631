// SPDX-License-Identifier: MIT
#include <QAccessible>
#include <QDir>
#include <QHelpEvent>
#include <QToolTip>
#include <gmock/gmock.h>

#include "base/Text.h"
#include "tests/linux/widgets/ListTest.h"

namespace dayvane::widgets {
namespace {

using controls::ListStyle;
using ::testing::ElementsAre;

using ListCellsTest = ListTest;

TEST_F(ListCellsTest, ADocumentsNameIsShownAndSpokenAsItsUserWritesIt) {
  const std::string name =
      "\xEF\x80\xA2Plan\xEF\x80\xA2 1\xEF\x81\x9C"
      "2.odt";
  m_control.Add("K" + name, name, 0).subItems = {"Text", "/home/ana", "10:00"};
  m_control.SetView(ListStyle::Details);
  QTreeView& view = Present().DetailsView();
  EXPECT_EQ(view.model()->index(0, 0).data().toString(), "\"Plan\" 1\\2.odt");
  QAccessibleTableInterface* table = QAccessible::queryAccessibleInterface(&view)->tableInterface();
  EXPECT_EQ(table->cellAt(0, 0)->text(QAccessible::Name), "\"Plan\" 1\\2.odt");
  EXPECT_EQ(m_control.Row(0).text, name) << "the control keeps what the program finds things by";
}

TEST_F(ListCellsTest, EveryCellShowsTheControlsText) {
  Fill(3);

  const QAbstractItemModel& model = *Present().DetailsView().model();

  EXPECT_EQ(model.index(2, 0).data().toString(), "Document 2");
  EXPECT_EQ(model.index(2, 2).data().toString(), "/home/ana");
  EXPECT_EQ(model.headerData(3, Qt::Horizontal).toString(), "Modified");
}

TEST_F(ListCellsTest, APathInTheUsersHomeIsShort) {
  m_control.SetColumns({{"Name"}, {"Path", controls::ColumnKind::Path}});
  const std::string home = QDir::homePath().toStdString();
  const std::vector<std::string> paths{
      home, home + "/Documents", text::ToLower(home) + "/documents", home + "by/Documents", "/srv" + home, home + "/"};
  for (const std::string& path : paths) m_control.Add(path + "#", "Report.odt", 1).subItems = {path};

  QStringList shown;
  const QAbstractItemModel& model = *Present().DetailsView().model();
  for (int row = 0; row < model.rowCount(); ++row) shown.push_back(model.index(row, 1).data().toString());

  EXPECT_THAT(shown, ElementsAre("~", "~/Documents", "~/documents", QString::fromStdString(paths[3]),
                                 QString::fromStdString(paths[4]), "~/"));
}

TEST_F(ListCellsTest, TheTipTellsThePathInFull) {
  m_control.SetColumns({{"Name"}, {"Path", controls::ColumnKind::Path}});
  const QString path = QDir::homePath() + "/Documents";
  m_control.Add("K1", "Report.odt", 1).subItems = {path.toStdString()};
  QTreeView& rows = Present().DetailsView();

  const QPoint at = rows.visualRect(rows.model()->index(0, 1)).center();
  QHelpEvent event(QEvent::ToolTip, at, rows.viewport()->mapToGlobal(at));
  QCoreApplication::sendEvent(rows.viewport(), &event);

  EXPECT_EQ(QToolTip::text(), path);
  QToolTip::hideText();
}

TEST_F(ListCellsTest, AListWithoutRowsSaysWhy) {
  ListPresenter& presenter = Present();
  const QImage silent = presenter.grab().toImage();

  m_control.SetEmptyText("Nothing is on record yet.");
  EXPECT_NE(presenter.grab().toImage(), silent);
  EXPECT_EQ(presenter.DetailsView().accessibleDescription(), "Nothing is on record yet.");

  m_control.SetView(ListStyle::LargeIcons);
  const QImage words = presenter.grab().toImage();
  m_control.SetEmptyText("");
  EXPECT_NE(presenter.grab().toImage(), words);
}

TEST_F(ListCellsTest, WordsAreOnlyForAListWithoutRows) {
  Fill(1);
  ListPresenter& presenter = Present();
  const QImage rows = presenter.grab().toImage();

  m_control.SetEmptyText("Nothing is on record yet.");

  EXPECT_EQ(presenter.grab().toImage(), rows);
  EXPECT_EQ(presenter.DetailsView().accessibleDescription(), "");
}

TEST_F(ListCellsTest, TheSelectionHasItsColourWhereTheKeyboardIsAndIsGreyElsewhere) {
  Fill(1);
  m_control.SetSelectedItem(&m_control.Item("K0"));
  ListPresenter& presenter = Present();
  QTreeView& rows = presenter.DetailsView();
  const auto colour = [&] {
    return rows.viewport()->grab().toImage().pixelColor(rows.visualRect(rows.model()->index(0, 0)).topRight() +
                                                        QPoint(-2, 2));
  };
  rows.setFocus();
  const QColor focused = colour();

  rows.clearFocus();

  EXPECT_NE(colour(), focused);
  EXPECT_NE(colour(), rows.palette().color(QPalette::Base));
}

TEST_F(ListCellsTest, AColumnOfNumbersStandsToTheRight) {
  m_control.SetColumns({{"Name"}, {"Days", controls::ColumnKind::Short, controls::Alignment::Right}});
  Fill(1);

  const QModelIndex cell = Present().DetailsView().model()->index(0, 1);

  EXPECT_EQ(cell.data(Qt::TextAlignmentRole).toInt(), static_cast<int>(Qt::AlignRight | Qt::AlignVCenter));
}

}  // namespace
}  // namespace dayvane::widgets
