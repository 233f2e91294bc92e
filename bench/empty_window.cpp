// SPDX-License-Identifier: GPL-3.0-or-later
// A program with an empty main window, to compare the start of the program with.
#include <QApplication>
#include <QMainWindow>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Empty window"));
    window.showMaximized();
    return QApplication::exec();
}
