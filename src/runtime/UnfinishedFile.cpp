// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/UnfinishedFile.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

// True if a second file is impossible because of rights or of the place itself, and not because the
// disk is full or fails.
bool isRefusalOfPlace(int reason)
{
    switch (reason) {
    case EACCES:
    case EPERM:
    case EROFS:
    case ENAMETOOLONG:
    case EBUSY: // a file that is mounted by itself
    case EXDEV:
        return true;
    default:
        return false;
    }
}

template <class Step> void asSecondFile(Step step)
{
    try {
        step();
    } catch (const std::system_error &error) {
        if (isRefusalOfPlace(error.code().value()))
            throw NoSecondFile(error.code());
        throw;
    }
}

QByteArray nameOfDescriptor(const SystemFile &file)
{
    return "/proc/self/fd/" + QByteArray::number(file.descriptor());
}

// Makes the file's new name as durable as its content, where the system can.
void flushFolder(const QByteArray &folder)
{
    try {
        SystemFile(folder, O_RDONLY | O_DIRECTORY).flush();
    } catch (const std::system_error &) {
        // The file is in its place all the same.
    }
}

} // namespace

UnfinishedFile::UnfinishedFile(const QString &place, const SystemFile *old)
    : m_folder(QFile::encodeName(QFileInfo(place).path())), m_place(QFile::encodeName(place))
{
    if (old != nullptr)
        m_old = old->status();
    asSecondFile([this] {
        if (!makeUnnamed())
            makeNamed([this](const QByteArray &name) {
                m_file.emplace(name, O_RDWR | O_CREAT | O_EXCL, modeOfNewFile());
            });
    });
    takeOwner();
}

UnfinishedFile::~UnfinishedFile()
{
    if (!m_name.isEmpty())
        unlink(m_name.constData());
}

void UnfinishedFile::takePlace()
{
    takePermissions();
    m_file->flush();
    asSecondFile([this] {
        if (m_name.isEmpty())
            link();
        m_file.reset(); // some network file systems rename no open file
        if (uninterrupted([this] { return rename(m_name.constData(), m_place.constData()); }) < 0)
            throwSystemError();
    });
    m_name.clear();
    flushFolder(m_folder);
}

// The new file must never be readable for more people than the old one.
mode_t UnfinishedFile::modeOfNewFile() const
{
    return m_old ? m_old->st_mode & 0777 : 0666;
}

// A file without a name is gone with the program, even if that is killed. Not every file system
// has such files.
bool UnfinishedFile::makeUnnamed()
{
    try {
        m_file.emplace(m_folder, O_RDWR | O_TMPFILE, modeOfNewFile());
    } catch (const std::system_error &) {
        return false;
    }
    if (access(nameOfDescriptor(*m_file).constData(), F_OK) == 0)
        return true;
    m_file.reset(); // a name could not be given to it later
    return false;
}

// The name is short, so that it fits wherever another name fits.
template <class Make> void UnfinishedFile::makeNamed(Make make)
{
    for (int attempts = 1;; ++attempts) {
        const QByteArray name = m_folder + "/.tanglewit-" +
                                QByteArray::number(QRandomGenerator::global()->generate64(), 36);
        try {
            make(name);
            m_name = name;
            return;
        } catch (const std::system_error &error) {
            if (error.code().value() != EEXIST || attempts == 100)
                throw;
        }
    }
}

void UnfinishedFile::link()
{
    const QByteArray unnamed = nameOfDescriptor(*m_file);
    makeNamed([&unnamed](const QByteArray &name) {
        if (uninterrupted([&] {
                return linkat(AT_FDCWD, unnamed.constData(), AT_FDCWD, name.constData(),
                              AT_SYMLINK_FOLLOW);
            }) < 0)
            throwSystemError();
    });
}

// A user who may not change the owner may still set a group that he belongs to.
void UnfinishedFile::takeOwner()
{
    if (!m_old)
        return;
    const auto give = [this](uid_t owner) {
        return uninterrupted([&] { return fchown(m_file->descriptor(), owner, m_old->st_gid); }) ==
               0;
    };
    m_hasOwner = give(m_old->st_uid);
    if (!m_hasOwner)
        static_cast<void>(give(static_cast<uid_t>(-1)));
}

// After all else, because a new owner and each write clear the set-id bits. These are kept only for
// the old owner.
void UnfinishedFile::takePermissions()
{
    if (!m_old)
        return;
    const mode_t mode = m_old->st_mode & (m_hasOwner ? 07777 : 0777);
    static_cast<void>(uninterrupted([&] { return fchmod(m_file->descriptor(), mode); }));
}
