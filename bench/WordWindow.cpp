// The least that a Qt program with a word in its window can be: it is the first that makes the
// toolkit read what fonts there are.
#include "bench/FirstFrame.hpp"

#include <QApplication>
#include <QLabel>

int main(int argc, char *argv[]) {
  const QApplication application(argc, argv);
  const Tessoro::FirstFrame firstFrame;
  QWidget window;
  window.resize(811, 572);
  const QLabel word(QStringLiteral("Cutoff"), &window);
  window.show();
  return QApplication::exec();
}
