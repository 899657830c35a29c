// The least that a program with a window needs: what Kestrel's start is measured against.

#include <QApplication>
#include <QWidget>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.resize(780, 452);
    window.show();
    return QApplication::exec();
}
