// What a window costs at least: the yardstick of the start bench.
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QMainWindow window;
  window.menuBar()->addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("&Exit"));
  window.resize(800, 600);
  window.show();
  return QApplication::exec();
}
