// SPDX-License-Identifier: GPL-3.0-or-later
// The expected state after each step: the open list, its title, the editor and the files.
#pragma once

#include <QByteArray>
#include <QString>

#include <map>
#include <optional>
#include <vector>

struct Entry
{
    QString word;
    QString definition;
    QString sentence;

    bool operator==(const Entry &) const = default;
};

class Model final
{
public:
    enum class Mode { Idle, NewList, NewWord, Editing, Search };

    std::vector<Entry> entries; // position p is element p - 1
    QString fileName;
    QString fileTitle;
    QString openedFile;
    QString caption = captionOf({});
    bool changed = false;
    bool canSave = false; // mnuSave

    Mode mode = Mode::Idle;
    bool newWord = false;
    bool wordSelected = false;
    int shown = 0; // position of the entry in the boxes; 0 = none

    // What one import leaves for the next.
    Entry imported;
    bool addThis = false;
    bool addAll = false;
    bool skipAll = false;

    // All files in the folder of lists: full path and content.
    std::map<QString, QByteArray> disk;

    // The path of the copy of the unsaved list, which is one of them; empty if there is none. A
    // change makes it due.
    QString copy;
    bool copyIsDue = false;

    [[nodiscard]] static QString captionOf(const QString &title);
    void showTitle() { caption = captionOf(fileTitle); }

    [[nodiscard]] int count() const { return int(entries.size()); }
    // Whether the numbers of a page that begins there exceed 16 bits.
    [[nodiscard]] bool overflowsOnPage(int first) const;
    [[nodiscard]] const Entry &entry(int position) const { return entries.at(index(position)); }
    void add(const Entry &entry);
    void edit(int position, const Entry &entry);
    void remove(int position);
    void replaceBy(std::vector<Entry> newEntries);
    void markAsSaved();
    // The first position of the word from `start` on; 0 if there is none.
    [[nodiscard]] int find(const QString &word, int start) const;
    // The hit of the editor's Search, which begins after its last hit and continues at the start.
    int search(const QString &word);

    // The number of the run-time error at reading or writing the file; 0 if there is none.
    [[nodiscard]] static int readError(const QString &path);
    [[nodiscard]] static int writeError(const QString &path);
    // Writes over the old content from its first byte, without truncating it.
    void write(const QString &path, const QByteArray &bytes);
    // Writes the copy of the unsaved list into `folder` if it is due.
    void writeCopy(const QString &folder);
    // Removes the copy unless its file was changed by something else.
    void forgetCopy();
    // The content of the file. A missing file is created, empty.
    const QByteArray &read(const QString &path) { return disk[path]; }

    // The content of the list file and of the text file.
    [[nodiscard]] QByteArray listBytes() const;
    [[nodiscard]] QByteArray textBytes() const;
    [[nodiscard]] static QByteArray listBytes(const std::vector<Entry> &records, int count);
    // The entries of a list file. Nothing if the count is negative.
    [[nodiscard]] static std::optional<std::vector<Entry>> listOf(const QByteArray &bytes);
    // Whether the file holds as many records as its count says. An empty file does.
    [[nodiscard]] static bool isWhole(const QByteArray &bytes);

private:
    [[nodiscard]] static std::size_t index(int position) { return std::size_t(position) - 1; }

    void markAsUnsaved() { copyIsDue = true; }
    void removeOwnCopy();
    [[nodiscard]] QString freePath(const QString &start) const;

    std::optional<Entry> m_behind; // the deleted entry that stays after the last one
    int m_searchPos = 0;
    QString m_copyTitle;          // title of the list when the copy got its name
    bool m_copyIsForeign = false; // something else was written to its path
};
