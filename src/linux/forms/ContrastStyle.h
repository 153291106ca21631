// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace dayvane::widgets {

/// The style of windows of high contrast: frames and arrows in the text's own colour. Fusion derives theirs from the
/// background, which on a black one leaves nothing to see.
class ContrastStyle : public QProxyStyle {
 public:
  ContrastStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace dayvane::widgets
