// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QString>
#include <functional>

#include "controls/Keys.h"
#include "linux/widgets/Keys.h"
#include "linux/widgets/RowDelegate.h"

namespace dayvane::widgets {

/// What the user did in a view, reported after the view itself has handled the event: a listener may change the rows.
struct ViewEvents {
  std::function<void(const QModelIndex&)> press;       ///< any mouse button, on a row
  std::function<void()> doubleClick;                   ///< left button, on a row
  std::function<void(int button, QPoint at)> mouseUp;  ///< at a point of the viewport
  std::function<void(int key, int modifiers)> keyUp;   ///< of a key that was pressed in this view
};

/// An item view that behaves as the classic controls do: the row that has the keyboard is the selected one, every
/// button selects what it presses, dragging does nothing, and the menu key counts as Alt+F10.
template <class View>
class ClassicView : public View {
 public:
  ClassicView() {
    View::setSelectionMode(QAbstractItemView::SingleSelection);
    View::setSelectionBehavior(QAbstractItemView::SelectRows);
    View::setEditTriggers(QAbstractItemView::NoEditTriggers);
    View::setDragDropMode(QAbstractItemView::NoDragDrop);
  }

  /// Words painted where the rows would be while there are none.
  void SetEmptyText(const QString& text) { m_emptyText = text; }

  void SetEvents(ViewEvents&& events) { m_events = std::move(events); }

  /// Whether a change of the selection now comes from the mouse, which `press` reports.
  bool IsPressing() const { return m_pressing; }

  /// Lays waiting rows out, so that there is something to scroll.
  void LayOut() { View::executeDelayedItemsLayout(); }

 protected:
  void initViewItemOption(QStyleOptionViewItem* option) const override {
    View::initViewItemOption(option);
    MuteWithoutFocus(*option);
  }

  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent*) const override {
    if (!index.isValid()) return QItemSelectionModel::NoUpdate;
    return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
  }

  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override {
    if (View::hasFocus()) return View::currentChanged(current, previous);
    // Trees tell screen readers that the keyboard is on their current row, wherever it is.
    QAbstractItemView::currentChanged(current, previous);  // NOLINT(bugprone-parent-virtual-call)
    View::viewport()->update();
  }

  void paintEvent(QPaintEvent* event) override {
    View::paintEvent(event);
    if (m_emptyText.isEmpty() || View::model() == nullptr || View::model()->rowCount() > 0) return;
    constexpr int kMargin = 24;
    QPainter painter(View::viewport());
    painter.setPen(View::palette().color(QPalette::PlaceholderText));
    const QRect room = View::viewport()->rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
  }

  void mousePressEvent(QMouseEvent* event) override {
    const QPoint at = event->position().toPoint();
    m_pressing = true;
    View::mousePressEvent(event);
    m_pressing = false;
    // What lies beside the row itself only opens or closes a node.
    const QModelIndex index = View::indexAt(at);
    if (index.isValid() && View::visualRect(index).contains(at) && m_events.press) m_events.press(index);
  }

  void mouseMoveEvent(QMouseEvent* event) override {
    if (event->buttons() == Qt::NoButton) View::mouseMoveEvent(event);
  }

  void mouseReleaseEvent(QMouseEvent* event) override {
    const int button = ClassicButton(event->button());
    const QPoint at = event->position().toPoint();
    View::mouseReleaseEvent(event);
    if (button != 0 && m_events.mouseUp) m_events.mouseUp(button, at);
  }

  void mouseDoubleClickEvent(QMouseEvent* event) override {
    const bool onRow = event->button() == Qt::LeftButton && View::indexAt(event->position().toPoint()).isValid();
    View::mouseDoubleClickEvent(event);
    if (onRow && m_events.doubleClick) m_events.doubleClick();
  }

  void keyPressEvent(QKeyEvent* event) override {
    // The release of a key that closed a message box arrives here too: only a key that was pressed here counts.
    if (!event->isAutoRepeat()) {
      m_key = event->key();
      m_modifiers = event->modifiers();
    }
    View::keyPressEvent(event);
  }

  void keyReleaseEvent(QKeyEvent* event) override {
    const bool pressedHere = !event->isAutoRepeat() && event->key() == m_key;
    View::keyReleaseEvent(event);
    if (!pressedHere) return;
    m_key = 0;
    RaiseKeyUp(ClassicKeyCode(event->key()), ClassicModifiers(m_modifiers));
  }

  void contextMenuEvent(QContextMenuEvent* event) override {
    event->accept();
    if (event->reason() == QContextMenuEvent::Keyboard) RaiseKeyUp(controls::kKeyF10, controls::kAltMask);
  }

  void focusOutEvent(QFocusEvent* event) override {
    m_key = 0;
    View::focusOutEvent(event);
  }

 private:
  void RaiseKeyUp(int key, int modifiers) {
    if (key != 0 && m_events.keyUp) m_events.keyUp(key, modifiers);
  }

  QString m_emptyText;
  ViewEvents m_events;
  bool m_pressing = false;
  int m_key = 0;
  Qt::KeyboardModifiers m_modifiers;
};

}  // namespace dayvane::widgets
