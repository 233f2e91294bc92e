// SPDX-License-Identifier: GPL-3.0-or-later
// An event filter for the application. A key that is held down repeats typing, moving and
// scrolling, but does not click buttons, trigger shortcuts or answer dialogs again.
#pragma once

#include <QObject>

class QKeyEvent;

class HeldKeys final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool isRepeat(const QKeyEvent &press) const;

    bool m_repeated = false; // the key event that Qt compares with the shortcuts is a repeat
    int m_releasedKey = 0;
    quint64 m_releasedAt = 0;
};
