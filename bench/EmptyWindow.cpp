// The least that a Qt program with a window of the main form's size can be.
#include "bench/FirstFrame.hpp"

#include <QApplication>
#include <QWidget>

int main(int argc, char *argv[]) {
  const QApplication application(argc, argv);
  const Tessoro::FirstFrame firstFrame;
  QWidget window;
  window.resize(811, 572);
  window.show();
  return QApplication::exec();
}
