// SPDX-License-Identifier: GPL-3.0-or-later
// What the open list, its title and the files on the disk have to be after each step.
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

    // Left by one import for the next.
    Entry imported;
    bool addThis = false;
    bool addAll = false;
    bool skipAll = false;

    // Every file of the lists' folder: full path and content.
    std::map<QString, QByteArray> disk;

    // The copy of unsaved work among them; empty = there is none. It is due after a change.
    QString copy;
    bool copyIsDue = false;

    [[nodiscard]] static QString captionOf(const QString &title);
    void showTitle() { caption = captionOf(fileTitle); }

    [[nodiscard]] int count() const { return int(entries.size()); }
    // Whether a page from there leads to a number beyond 16 bits.
    [[nodiscard]] bool overflowsOnPage(int first) const;
    [[nodiscard]] const Entry &entry(int position) const { return entries.at(index(position)); }
    void add(const Entry &entry);
    void edit(int position, const Entry &entry);
    void remove(int position);
    void replaceBy(std::vector<Entry> newEntries);
    void markAsSaved();
    // The first position from `start` on; 0 for none.
    [[nodiscard]] int find(const QString &word, int start) const;
    // As the editor's Search, which goes on behind the last hit and then wraps round.
    int search(const QString &word);

    // The run-time error that reading or writing a file gives; 0 for none.
    [[nodiscard]] static int readError(const QString &path);
    [[nodiscard]] static int writeError(const QString &path);
    // Over the old content from its first byte, without truncating it.
    void write(const QString &path, const QByteArray &bytes);
    // Into `folder`, when its time has come.
    void writeCopy(const QString &folder);
    // It is removed where it is still what was written.
    void forgetCopy();
    // What is read from there; a missing file comes to be, empty.
    const QByteArray &read(const QString &path) { return disk[path]; }

    // The list as a file and as a text file.
    [[nodiscard]] QByteArray listBytes() const;
    [[nodiscard]] QByteArray textBytes() const;
    [[nodiscard]] static QByteArray listBytes(const std::vector<Entry> &records, int count);
    // Nothing where the count is negative.
    [[nodiscard]] static std::optional<std::vector<Entry>> listOf(const QByteArray &bytes);
    // Whether its records, as far as the count says, all lie within it. So does an empty file.
    [[nodiscard]] static bool isWhole(const QByteArray &bytes);

private:
    [[nodiscard]] static std::size_t index(int position) { return std::size_t(position) - 1; }

    void markAsUnsaved() { copyIsDue = true; }
    void removeOwnCopy();
    [[nodiscard]] QString freePath(const QString &start) const;

    std::optional<Entry> m_behind; // what a deletion left behind the last entry
    int m_searchPos = 0;
    QString m_copyTitle;          // of the list when the copy got its name
    bool m_copyIsForeign = false; // the person has written something else there
};
