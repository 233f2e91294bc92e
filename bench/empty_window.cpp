// SPDX-License-Identifier: GPL-3.0-or-later
// An empty main window: what the least program of this kind costs to start.
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
