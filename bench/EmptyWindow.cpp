// SPDX-License-Identifier: MIT

// The least that any program with a window costs at its start: Qt and nothing else.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QMainWindow window;
  window.setWindowTitle(QStringLiteral("Dayvane - nothing"));
  window.resize(800, 600);
  window.show();
  return QApplication::exec();
}
