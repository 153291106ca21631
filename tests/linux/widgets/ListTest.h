// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>
#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "linux/widgets/ListPresenter.h"

namespace dayvane::widgets {

/// A list of documents in a window of its own.
class ListTest : public ::testing::Test {
 protected:
  ListTest() {
    m_control.SetColumns({{"Name"}, {"Type"}, {"Path"}, {"Modified"}});
    m_pane.resize(600, 400);
  }

  void Fill(int rows) {
    const controls::UpdateScope update(m_control);
    m_control.Clear();
    for (int row = 0; row < rows; ++row) Add(row);
  }

  void Add(int row) {
    const std::string number = std::to_string(row);
    m_control.Add("K" + number, "Document " + number, 0).subItems = {"Text", "/home/ana", "10:00"};
  }

  ListPresenter& Present() {
    m_presenter = std::make_unique<ListPresenter>(m_control, m_icons, &m_pane);
    m_presenter->resize(m_pane.size());
    m_pane.show();
    m_presenter->CurrentView().setFocus();
    (void)QTest::qWaitForWindowActive(&m_pane);
    return *m_presenter;
  }

  QPoint PlaceOf(const std::string& key) {
    QAbstractItemView& view = m_presenter->CurrentView();
    const int row = static_cast<int>(m_control.RowOf(m_control.Item(key)));
    return view.visualRect(view.model()->index(row, 0)).center();
  }

  void MouseClick(const std::string& key, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(m_presenter->CurrentView().viewport(), button, {}, PlaceOf(key));
  }

  std::string SelectedInWidgets() {
    const QModelIndexList rows = m_presenter->CurrentView().selectionModel()->selectedRows();
    return rows.isEmpty() ? std::string() : rows.first().data().toString().toStdString();
  }

  bool IsInView(const std::string& key) { return m_presenter->CurrentView().viewport()->rect().contains(PlaceOf(key)); }

  controls::ListView m_control;
  Icons m_icons;
  QWidget m_pane;
  std::unique_ptr<ListPresenter> m_presenter;
};

}  // namespace dayvane::widgets
