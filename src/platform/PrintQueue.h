// SPDX-License-Identifier: GPL-3.0-or-later
// The system's print queues, where they are those of CUPS.
#pragma once

#include <QString>

namespace PrintQueue {

struct Job
{
    QString queue;
    QString title;
    QString file;     // a PDF document
    QByteArray paper; // the queue's name for the size of the paper
    QByteArray sides; // its word for printing on one side of it or on both
    int copies = 1;
};

// Whether documents go into the queues as files. Elsewhere the toolkit draws on the printer.
[[nodiscard]] bool takesFiles();

// Hands the document over as a whole. False where the queue does not take it.
[[nodiscard]] bool submit(const Job &job);

} // namespace PrintQueue
