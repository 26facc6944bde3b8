// The least that a program with a window of this toolkit can do.

#include <QApplication>
#include <QWidget>

int main(int argc, char* argv[])
{
    QApplication application{argc, argv};
    QWidget window;
    window.setWindowFlags(Qt::FramelessWindowHint);
    window.setGeometry(1086, 24, 170, 170);
    window.show();
    return QApplication::exec();
}
