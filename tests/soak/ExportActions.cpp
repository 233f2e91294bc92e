// SPDX-License-Identifier: GPL-3.0-or-later
// File > Export.
#include "runtime/Blanks.h"
#include "soak/Refusals.h"
#include "soak/Soak.h"

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include <algorithm>
#include <cstdlib>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

bool isEditorShown(Soak &soak)
{
    return !soak.game();
}

// The actions in the open dialog.
class ExportDialog final
{
public:
    ExportDialog(Soak &soak, QDialog &form) : m_soak(soak), m_form(form) {}

    void use()
    {
        for (int times = m_soak.roll(4); times > 0; --times)
            changeSomething();
        keepRangeShort();
        if (m_soak.chance(25) || !exportWords())
            leave();
    }

private:
    [[nodiscard]] QLineEdit &box(const char *name)
    {
        return Controls::find<QLineEdit>(m_form, name);
    }
    void click(const char *button) { Controls::click(Controls::find<QPushButton>(m_form, button)); }

    void changeSomething()
    {
        Soak::waitFor(m_form);
        switch (m_soak.roll(4)) {
        case 0:
            return typeNumber("txtStart", m_start);
        case 1:
            return typeNumber("txtEnd", m_end);
        case 2:
            return typeMistake();
        default:
            browse();
        }
    }

    void typeNumber(const char *name, int &number)
    {
        const int typed = std::min(m_soak.roll(m_soak.model.count() + 3) - 1, int(Integer::Max));
        typeNumber(name, typed, number);
    }

    void typeNumber(const char *name, int typed, int &number)
    {
        number = std::clamp(typed, 1, m_soak.model.count());
        m_soak.note(u"%1: %2"_s.arg(QLatin1String(name)).arg(typed));
        Controls::type(box(name), QString::number(typed));
        Soak::press(box(name), Qt::Key_Tab);
        if (box(name).text() != QString::number(number))
            failTest(u"%1 shows %2"_s.arg(QLatin1String(name), box(name).text()));
    }

    // Otherwise all files would become long.
    void keepRangeShort()
    {
        constexpr int most = 500;
        if (std::abs(m_end - m_start) < most)
            return;
        Soak::waitFor(m_form);
        typeNumber("txtEnd", std::min(m_start + m_soak.roll(10), m_soak.model.count()), m_end);
    }

    // Types a wrong number, which is reported when the box is left, and then the old number.
    void typeMistake()
    {
        m_soak.note(u"txtStart: some"_s);
        Controls::type(box("txtStart"), u"some"_s);
        m_soak.expectRunTimeError(13);
        Soak::press(box("txtStart"), Qt::Key_Tab);
        Soak::waitFor(m_form);
        Controls::type(box("txtStart"), QString::number(m_start));
        Soak::press(box("txtStart"), Qt::Key_Tab);
    }

    void browse()
    {
        if (m_soak.chance(20)) {
            m_soak.answers().cancelFileDialog();
            click("cmdBrowse");
            return;
        }
        const QString chosen = m_soak.oneOf(m_soak.files(u".lwx"_s));
        m_soak.note(u"browse for "_s + chosen);
        m_soak.answers().chooseFile(chosen);
        const QString before = box("txtFilename").text();
        const bool inUse = chosen == m_soak.model.openedFile;
        if (inUse)
            m_soak.expectMsgBox(chosen + u" file is currently in use."_s);
        click("cmdBrowse");
        if (box("txtFilename").text() != (inUse ? before : chosen))
            failTest(u"txtFilename shows "_s + box("txtFilename").text());
    }

    [[nodiscard]] QString target()
    {
        switch (m_soak.roll(8)) {
        case 0:
            return u"  "_s;
        case 1:
            return m_soak.inLists(u"nowhere/list.lwx"_s);
        case 2:
            return m_soak.inLists(u"locked/new.lwx"_s);
        case 3:
            return u' ' + m_soak.inLists(u"mine %1.lwx"_s.arg(m_soak.roll(4)));
        default:
            return m_soak.oneOf(m_soak.files(u".lwx"_s));
        }
    }

    // False if the dialog stays open.
    bool exportWords()
    {
        Soak::waitFor(m_form);
        if (box("txtFilename").text().isEmpty() || m_soak.chance(50))
            m_soak.fill(box("txtFilename"), target());
        const QString path = withoutOuterBlanks(box("txtFilename").text());
        m_soak.note(u"%1 to %2 into %3"_s.arg(m_start).arg(m_end).arg(path));
        const bool done = expectExport(path);
        click("cmdOk");
        return done;
    }

    bool expectExport(const QString &path)
    {
        Model &model = m_soak.model;
        if (path.isEmpty()) {
            m_soak.expectMsgBox(u"Invalid file name."_s);
            return false;
        }
        int error = Model::readError(path);
        std::optional<std::vector<Entry>> list;
        if (error == 0) {
            list = Model::listOf(model.disk[path]);
            if (!list || !Model::isWhole(model.disk[path]))
                error = 321;
        }
        if (error == 0) {
            expectWords(*list);
            error = Model::writeError(path);
        }
        if (error != 0) {
            m_soak.expectRunTimeError(error);
            return false;
        }
        model.write(path, Model::listBytes(*list, int(list->size())));
        model.fileName = path;
        model.changed = false;
        m_soak.expectMsgBox(
            u"%1 words has been added to %2"_s.arg(std::abs(m_end - m_start) + 1).arg(path));
        return true;
    }

    // Adds the words of the range to the target list until it is full.
    void expectWords(std::vector<Entry> &list)
    {
        Refusals refusals;
        const int step = m_end >= m_start ? 1 : -1;
        for (int position = m_start; position != m_end + step; position += step) {
            if (int(list.size()) < cVocabList::MaxWords)
                list.push_back(m_soak.model.entry(position));
            else
                refusals.expectOne(m_soak);
        }
        refusals.expectRest(m_soak);
    }

    void leave()
    {
        Soak::waitFor(m_form);
        switch (m_soak.roll(3)) {
        case 0:
            return click("cmdCancel");
        case 1:
            return Soak::press(m_form, Qt::Key_Escape);
        default:
            m_form.close();
        }
    }

    Soak &m_soak;
    QDialog &m_form;
    int m_start = 1;
    int m_end = m_soak.model.count();
};

void exportList(Soak &soak)
{
    if (soak.model.count() == 0)
        soak.expectMsgBox(u"Cannot export: Your current wordlist is empty"_s);
    else
        soak.answers().useForm("dlgExport",
                               [&soak](QDialog &form) { ExportDialog(soak, form).use(); });
    soak.main().choose("mnuExport");
}

} // namespace

std::vector<Action> exportActions()
{
    return {
        {"File > Export", 8, isEditorShown, exportList},
    };
}
