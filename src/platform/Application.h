// SPDX-License-Identifier: GPL-3.0-or-later
// The application object: what the program is called, which version it is, and whether it runs
// already.
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

    // True where another copy of the program runs for this person.
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
