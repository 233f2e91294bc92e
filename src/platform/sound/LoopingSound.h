// SPDX-License-Identifier: GPL-3.0-or-later
// Samples to be read without end, the first following the last.
#pragma once

#include <QIODevice>

class LoopingSound final : public QIODevice
{
    Q_OBJECT

public:
    // At least one byte.
    explicit LoopingSound(QByteArray samples, QObject *parent = nullptr);

    [[nodiscard]] bool isSequential() const override { return true; }
    [[nodiscard]] bool atEnd() const override { return false; }
    [[nodiscard]] qint64 bytesAvailable() const override;

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *data, qint64 maxSize) override;

private:
    QByteArray m_samples;
    qsizetype m_next = 0;
};
