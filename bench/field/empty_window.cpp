// The least that a program with a window of this toolkit can do. Its words: the window's width and height.

#include <QApplication>
#include <QWidget>

#include <cstdlib>

int main(int argc, char* argv[])
{
    if (argc != 3)
        return 2;
    const QApplication application{argc, argv};
    const QSize size{std::atoi(argv[1]), std::atoi(argv[2])};
    QWidget window;
    window.setWindowFlags(Qt::FramelessWindowHint);
    window.setGeometry(QRect{QPoint{1280 - 24 - size.width(), 24}, size});
    window.show();
    return QApplication::exec();
}
