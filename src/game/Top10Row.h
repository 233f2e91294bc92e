// SPDX-License-Identifier: GPL-3.0-or-later
// A row of the Top 10 dialog: the rank, for the first three as a medal, and the label with the
// row's text, which is painted in columns: date, points, name. A name that is too long ends in an
// ellipsis; the tool tip has it whole.
#pragma once

#include "game/Top10Table.h"

#include <QWidget>

#include <array>

class QLineEdit;
class Top10Label;

struct Top10Colours
{
    explicit Top10Colours(const QPalette &palette);

    QColor text;
    QColor quiet;    // dates and ranks
    QColor freeLine; // in a row without a score
    QColor background;
    QColor otherBackground; // of every other row
    QColor newBackground;   // of the row of the new score
    QColor newEdge;
    std::array<QColor, 3> medals;
    QColor onMedal;
};

// Pixels, the same for all rows.
struct Top10Columns
{
    int date = 0;
    int points = 0;
};

class Top10Row final : public QWidget
{
    Q_OBJECT

public:
    enum class Name { Shown, BeingTyped };

    // The label's object name is lblTop10_ and the rank.
    Top10Row(int rank, QWidget *parent);

    [[nodiscard]] QSize minimumSizeHint() const override;
    void setEntry(const Top10Entry &entry, Name name);
    // What the entry needs.
    [[nodiscard]] Top10Columns columns() const;
    void setColumns(const Top10Columns &columns);
    // Places the box where the name will be shown; null to take it away.
    void setNameBox(QLineEdit *box);
    // Marks the row as that of the new score. From 0 to 1, how far the mark has grown.
    void setNew(double shown);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_rank;
    double m_newShown = 0;
    Top10Label *m_label;
};
