// SPDX-License-Identifier: GPL-3.0-or-later
// What a key that is held down may repeat: typing, moving, scrolling, but no press of a button and
// no answer to a dialog. Filters the events of the whole application.
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

    bool m_repeated = false; // the key that is being looked up among the shortcuts
    int m_releasedKey = 0;
    quint64 m_releasedAt = 0;
};
