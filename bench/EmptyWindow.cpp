// The floor for the program's start: an empty Qt window.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.resize(1000, 640);
    window.show();
    return QApplication::exec();
}
