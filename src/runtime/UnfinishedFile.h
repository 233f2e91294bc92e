// SPDX-License-Identifier: GPL-3.0-or-later
// A second file in the folder of another one, whose place it takes in one step once it is complete.
// If it is never completed, it is removed.
//
// Throws std::system_error, and NoSecondFile if the second file cannot be created in the folder or
// cannot replace the other one.
#pragma once

#include "runtime/SystemFile.h"

#include <QString>

#include <system_error>

class NoSecondFile final : public std::system_error
{
public:
    using std::system_error::system_error;
};

class UnfinishedFile
{
public:
    // `old` is the file at `place`, if there is one: owner, group and permissions are taken over
    // from it where the system allows it.
    UnfinishedFile(const QString &place, const SystemFile *old);
    ~UnfinishedFile();
    Q_DISABLE_COPY_MOVE(UnfinishedFile)

    // Only before takePlace.
    [[nodiscard]] SystemFile &file() { return *m_file; }
    // It is on the disk when this returns.
    void takePlace();

private:
    [[nodiscard]] mode_t modeOfNewFile() const;
    [[nodiscard]] bool makeUnnamed();
    template <class Make> void makeNamed(Make make);
    void link();
    void takeOwner();
    void takePermissions();

    QByteArray m_folder;
    QByteArray m_place;
    std::optional<struct stat> m_old;
    std::optional<SystemFile> m_file;
    QByteArray m_name; // empty as long as it has none
    bool m_hasOwner = false;
};
