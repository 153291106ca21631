// SPDX-License-Identifier: MIT
#include "linux/widgets/IconStyle.h"

#include <QFontMetrics>
#include <QListView>

#include "linux/widgets/RowDelegate.h"

namespace dayvane::widgets {

namespace {

using controls::ListArrange;
using controls::ListStyle;

constexpr QSize kLargeIcon{48, 48};
constexpr QSize kSmallIcon{16, 16};
constexpr int kLinesBelowIcon = 2;
constexpr int kPadding = 4;
constexpr int kCellGap = 4;  ///< between cells

// Cells grow with the user's font, never below these sizes, which suit the default one.
constexpr QSize kLeastLargeCell{120, 88};
constexpr QSize kLeastSmallCell{220, 20};
constexpr int kLettersInLargeCell = 16;
constexpr int kLettersInSmallCell = 32;

QSize LargeCell(const QFontMetrics& font) {
  const int width = kLettersInLargeCell * font.averageCharWidth();
  const int height = kLargeIcon.height() + kLinesBelowIcon * font.lineSpacing() + 2 * kPadding;
  return kLeastLargeCell.expandedTo({width, height});
}

QSize SmallCell(const QFontMetrics& font) {
  const int width = kSmallIcon.width() + kLettersInSmallCell * font.averageCharWidth();
  return kLeastSmallCell.expandedTo({width, font.lineSpacing() + kPadding});
}

QListView::Flow FlowOf(ListStyle style, ListArrange arrange) {
  const bool down = style == ListStyle::List || arrange == ListArrange::Left;
  return down ? QListView::TopToBottom : QListView::LeftToRight;
}

}  // namespace

void SetIconStyle(QListView& view, RowDelegate& delegate, ListStyle style, ListArrange arrange) {
  const bool large = style == ListStyle::LargeIcons;
  const QFontMetrics font(view.font());
  view.setViewMode(large ? QListView::IconMode : QListView::ListMode);
  view.setMovement(QListView::Static);  // the view mode sets another
  view.setFlow(FlowOf(style, arrange));
  view.setWrapping(true);
  view.setResizeMode(QListView::Adjust);
  view.setUniformItemSizes(true);
  view.setWordWrap(large);
  view.setIconSize(large ? kLargeIcon : kSmallIcon);
  const QSize cell = large ? LargeCell(font) : SmallCell(font);
  delegate.SetCell(cell - QSize(kCellGap, 0));
  view.setGridSize(cell);
}

}  // namespace dayvane::widgets
