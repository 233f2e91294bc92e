// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PrintQueue.h"

#include <QFile>
#include <QLibrary>

#include <array>

namespace {

struct Option
{
    const char *name;
    const char *value;
};

using PrintFile = int (*)(const char *queue, const char *file, const char *title, int optionCount,
                          const Option *options);

// Looked up at the first print job: the library costs time that no start should pay.
PrintFile printFile()
{
    static const auto function =
        reinterpret_cast<PrintFile>(QLibrary::resolve(QStringLiteral("cups"), 2, "cupsPrintFile"));
    return function;
}

} // namespace

bool PrintQueue::takesFiles()
{
    return printFile() != nullptr;
}

bool PrintQueue::submit(const Job &job)
{
    const QByteArray copies = QByteArray::number(job.copies);
    const std::array options{Option{"copies", copies.constData()},
                             Option{"media", job.paper.constData()},
                             Option{"sides", job.sides.constData()}};
    return printFile()(job.queue.toUtf8().constData(), QFile::encodeName(job.file).constData(),
                       job.title.toUtf8().constData(), static_cast<int>(options.size()),
                       options.data()) != 0;
}
