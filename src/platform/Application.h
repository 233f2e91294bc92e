// SPDX-License-Identifier: GPL-3.0-or-later
// The application object with the name and version of the program, and the test for another copy of
// it that runs already.
#pragma once

#include <QApplication>
#include <QLockFile>

#include <memory>

class Application final : public QApplication
{
    Q_OBJECT

public:
    // The arguments must outlive the object.
    Application(int &argc, char **argv);

    // True if the same user runs another copy of the program.
    [[nodiscard]] bool PrevInstance();

    [[nodiscard]] static QString Title();
    [[nodiscard]] static int Major();
    [[nodiscard]] static int Minor();
    [[nodiscard]] static int Revision();
    [[nodiscard]] static QString LegalCopyright();

protected:
    bool event(QEvent *event) override;

private:
    std::unique_ptr<QLockFile> m_instanceLock;
};
