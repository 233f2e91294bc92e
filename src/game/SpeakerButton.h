// SPDX-License-Identifier: GPL-3.0-or-later
// A button with a speaker: a click or Ctrl+M mutes the music, another one is heard again. Its arrow
// opens the volume; where the button has the keyboard, the arrow keys up and down do. What is set
// holds for the run (sndPlaySoundA.h).
#pragma once

#include <QToolButton>

class QSlider;

class SpeakerButton final : public QToolButton
{
    Q_OBJECT

public:
    explicit SpeakerButton(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void mute(bool muted);
    void setVolume(int percent);
    void showTip();

    QSlider *m_volume;
};
