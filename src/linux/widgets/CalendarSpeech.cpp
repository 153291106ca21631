// SPDX-License-Identifier: MIT
#include "linux/widgets/CalendarSpeech.h"

#include <QHeaderView>
#include <QWindow>

#include "linux/widgets/CalendarGrid.h"

namespace dayvane::widgets {

namespace {

/// One weekday's name or one day: a number among the table's columns, or among its cells.
class CalendarPart : public QAccessibleInterface {
 public:
  CalendarPart(QTableView& grid, bool isDay, int number) : m_grid(grid), m_isDay(isDay), m_number(number) {}

  bool isValid() const override { return true; }  // as long as the calendar, which deletes it
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return m_grid.window()->windowHandle(); }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&m_grid); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  void setText(QAccessible::Text, const QString&) override {}
  QAccessible::Role role() const override { return m_isDay ? QAccessible::ListItem : QAccessible::StaticText; }

  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name) return {};
    constexpr int kWords = Qt::AccessibleTextRole;
    return m_isDay ? Day().data(kWords).toString()
                   : m_grid.model()->headerData(m_number, Qt::Horizontal, kWords).toString();
  }

  QRect rect() const override {
    const QHeaderView& header = *m_grid.horizontalHeader();
    const QRect place =
        m_isDay ? m_grid.visualRect(Day())
                : QRect(header.sectionViewportPosition(m_number), 0, header.sectionSize(m_number), header.height());
    const QWidget& on = m_isDay ? *m_grid.viewport() : *header.viewport();
    return {on.mapToGlobal(place.topLeft()), place.size()};
  }

  QAccessible::State state() const override {
    QAccessible::State state;
    state.invisible = !m_grid.isVisible();
    if (!m_isDay) return state;
    const bool isCurrent = m_grid.currentIndex() == Day();
    state.focusable = state.selectable = true;
    state.focused = isCurrent && m_grid.hasFocus();
    state.selected = isCurrent;
    return state;
  }

 private:
  QModelIndex Day() const {
    const int days = m_grid.model()->columnCount();
    return m_grid.model()->index(m_number / days, m_number % days);
  }

  QTableView& m_grid;
  bool m_isDay;
  int m_number;
};

QAccessibleInterface* MakeSpeech(const QString& className, QObject* object) {
  if (className != QLatin1String(CalendarGrid::staticMetaObject.className())) return nullptr;
  auto* grid = qobject_cast<QTableView*>(object);
  return grid == nullptr ? nullptr : new CalendarSpeech(grid);
}

}  // namespace

CalendarSpeech::CalendarSpeech(QTableView* grid) : QAccessibleWidget(grid, QAccessible::List) {
  const int columns = grid->model()->columnCount();
  const auto add = [&](bool isDay, int number) {
    m_parts.push_back(QAccessible::registerAccessibleInterface(new CalendarPart(*grid, isDay, number)));
  };
  for (int column = 0; column < columns; ++column) add(false, column);
  for (int day = 0; day < columns * grid->model()->rowCount(); ++day) add(true, day);
}

CalendarSpeech::~CalendarSpeech() {
  for (const QAccessible::Id part : m_parts) QAccessible::deleteAccessibleInterface(part);
}

void CalendarSpeech::Install() {
  static const bool kInstalled = (QAccessible::installFactory(MakeSpeech), true);
  Q_UNUSED(kInstalled);
}

int CalendarSpeech::PartOf(const QModelIndex& day) {
  const int columns = day.model() == nullptr ? 0 : day.model()->columnCount();
  return day.isValid() ? columns + day.row() * columns + day.column() : -1;
}

void CalendarSpeech::SayCurrent(QTableView& grid) {
  const int part = PartOf(grid.currentIndex());
  if (!QAccessible::isActive() || part < 0 || !grid.hasFocus()) return;
  for (const QAccessible::Event what : {QAccessible::NameChanged, QAccessible::Focus}) {
    QAccessibleEvent event(&grid, what);
    event.setChild(part);
    QAccessible::updateAccessibility(&event);
  }
}

QAccessibleInterface* CalendarSpeech::child(int index) const {
  if (index < 0 || index >= childCount()) return nullptr;
  return QAccessible::accessibleInterface(m_parts[static_cast<std::size_t>(index)]);
}

int CalendarSpeech::indexOfChild(const QAccessibleInterface* child) const {
  for (int index = 0; index < childCount(); ++index)
    if (this->child(index) == child) return index;
  return -1;
}

QAccessibleInterface* CalendarSpeech::childAt(int x, int y) const {
  for (int index = 0; index < childCount(); ++index)
    if (child(index)->rect().contains(x, y)) return child(index);
  return nullptr;
}

QAccessibleInterface* CalendarSpeech::focusChild() const {
  return Grid().hasFocus() ? child(PartOf(Grid().currentIndex())) : nullptr;
}

}  // namespace dayvane::widgets
