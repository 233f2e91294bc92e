// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/dlgExport.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "platform/LostFocus.h"
#include "platform/MsgBox.h"
#include "platform/RetainedSize.h"
#include "platform/Screen.h"
#include "runtime/Blanks.h"
#include "runtime/FileError.h"
#include "runtime/TextToNumber.h"
#include "transfer/NumberedItems.h"
#include "transfer/WordAdder.h"
#include "transfer/ui_dlgExport.h"

#include <QFile>
#include <QFileInfo>
#include <QMouseEvent>
#include <QScopeGuard>

#include <algorithm>

using namespace Module1;

namespace {

// The number in a range box, limited to 1..NumWords. Corrects the box, too.
Integer rangeNumber(QLineEdit &box)
{
    const Integer number = toInteger(box.text());
    const Integer allowed = std::clamp(number, Integer(1), gVocabList().NumWords());
    if (allowed != number)
        box.setText(allowed.toText());
    return allowed;
}

// Calls `visit` with each number of the range in its order; returns how many there are.
template <class Visit> Integer forEachNumber(Integer first, Integer last, Visit visit)
{
    const int step = last >= first ? 1 : -1;
    for (int i = first.toInt(); i != last.toInt() + step; i += step)
        visit(Integer(i));
    return (last.toInt() - first.toInt()) * step + 1;
}

// Removes the file, or the one that a link leads to, if it is empty.
void removeEmptyFile(const QString &path)
{
    const QFileInfo file(path);
    if (file.isFile() && file.size() == 0)
        QFile::remove(file.canonicalFilePath());
}

// Reads the target of the export. Throws if it is no word list; false if there is no file name.
bool openTarget(cVocabList &target)
{
    const auto refuse = [] {
        throwFileError(RunTimeError::InvalidFileFormat, gFileName,
                       QStringLiteral("This is no word list"));
    };
    try {
        if (!target.OpenFile())
            return false;
    } catch (const RunTimeError &error) {
        if (error.number() == RunTimeError::SubscriptOutOfRange) // a negative count
            refuse();
        throw;
    }
    if (!target.fileIsWhole())
        refuse();
    return true;
}

} // namespace

dlgExport::dlgExport(const QString &startFolder, QWidget *parent)
    : DialogForm(parent), m_ui(std::make_unique<Ui::dlgExport>()), Cdlg(startFolder)
{
    m_ui->setupUi(this);
    retainSizeWhenHidden(*m_ui->lblEnding);
    m_ui->lblEnding->hide();
    openWithSize(*this, size().expandedTo(sizeHint()));
    openAsLastClosed();
    new LostFocus(m_ui->txtStart, [this] { txtStart_LostFocus(); });
    new LostFocus(m_ui->txtEnd, [this] { txtEnd_LostFocus(); });
    m_ui->lstExportWords->setItemDelegate(
        new NumberedItems(m_ui->lstExportWords, [this](int row) { return numberOf(row); }));
    m_ui->lstExportWords->viewport()->installEventFilter(this);
    connect(m_ui->txtFilename, &QLineEdit::textChanged, this,
            guarded(this, &dlgExport::txtFilename_Change));
    onClick(m_ui->cmdBrowse, &dlgExport::cmdBrowse_Click);
    onClick(m_ui->cmdOk, &dlgExport::cmdOK_Click);
    onClick(m_ui->cmdCancel, &dlgExport::cmdCancel_Click);
}

dlgExport::~dlgExport() = default;

void dlgExport::Form_Load()
{
    StartNo = 1;
    EndNo = gVocabList().NumWords();
    m_ui->txtStart->setText(StartNo.toText());
    m_ui->txtEnd->setText(EndNo.toText());
    fillPreview(EqualNumbers::ShowNothing);
}

void dlgExport::txtStart_LostFocus()
{
    StartNo = rangeNumber(*m_ui->txtStart);
    fillPreview(EqualNumbers::ShowNothing);
}

void dlgExport::txtEnd_LostFocus()
{
    EndNo = rangeNumber(*m_ui->txtEnd);
    fillPreview(EqualNumbers::ShowTheWord);
}

void dlgExport::fillPreview(EqualNumbers equalNumbers)
{
    m_ui->lstExportWords->clear();
    m_shownStart = StartNo;
    m_shownEnd = EndNo;
    if (StartNo == EndNo && equalNumbers == EqualNumbers::ShowNothing)
        return;
    cVocabList &list = gVocabList();
    QStringList words;
    ExportCount = forEachNumber(StartNo, EndNo, [&](Integer i) {
        list.CurrentWord(i);
        words += list.Word();
    });
    m_ui->lstExportWords->addItems(words);
}

int dlgExport::numberOf(int row) const
{
    return m_shownStart.toInt() + (m_shownEnd >= m_shownStart ? row : -row);
}

// The first press may leave a number box, which fills the list anew: the double click is on the
// word that was there before. Qt must not set the focus by itself, as it does so before the press.
bool dlgExport::eventFilter(QObject *watched, QEvent *event)
{
    const bool isDoubleClick = event->type() == QEvent::MouseButtonDblClick;
    if (watched == m_ui->lstExportWords->viewport() &&
        (isDoubleClick || event->type() == QEvent::MouseButtonPress)) {
        const auto &mouse = static_cast<QMouseEvent &>(*event);
        if (!isDoubleClick) {
            const QModelIndex word = m_ui->lstExportWords->indexAt(mouse.pos());
            m_pressedNumber = word.isValid() ? std::optional(numberOf(word.row())) : std::nullopt;
            m_ui->lstExportWords->setFocus(Qt::MouseFocusReason);
        } else if (m_pressedNumber && mouse.button() == Qt::LeftButton) {
            runGuarded([this] { lstExportWords_DblClick(*m_pressedNumber); });
            return true;
        }
    }
    return DialogForm::eventFilter(watched, event);
}

// A double click sets the start of the range, the next one its end.
void dlgExport::lstExportWords_DblClick(Integer number)
{
    (m_setsEnd ? EndNo : StartNo) = number;
    (m_setsEnd ? m_ui->txtEnd : m_ui->txtStart)->setText(number.toText());
    m_setsEnd = !m_setsEnd;
    fillPreview(EqualNumbers::ShowTheWord);
}

void dlgExport::txtFilename_Change()
{
    const QString name = withoutOuterBlanks(m_ui->txtFilename->text());
    const bool lacksEnding =
        !name.isEmpty() && !name.endsWith(QStringLiteral(".lwx"), Qt::CaseInsensitive);
    if (lacksEnding == m_ui->lblEnding->isVisibleTo(this))
        return; // else it would be told again with each letter
    m_ui->lblEnding->setVisible(lacksEnding);
    m_ui->lblEnding->setAccessibleName(lacksEnding ? m_ui->lblEnding->text() : QString());
}

void dlgExport::cmdBrowse_Click()
{
    Cdlg.Filter = QStringLiteral("Vocab Data (*.lwx)|*.lwx|Data Interchange Format (*.dif)|*.dif|"
                                 "All files (*.*)|*.*");
    Cdlg.DialogTitle = QStringLiteral("Export words");
    if (!Cdlg.ShowOpen(this))
        m_ui->txtFilename->clear();
    else if (Cdlg.FileName == gOpenedFile)
        MsgBox(gOpenedFile + QStringLiteral(" file is currently in use."));
    else
        m_ui->txtFilename->setText(Cdlg.FileName);
}

void dlgExport::cmdOK_Click()
{
    if (m_ui->txtFilename->text().isEmpty()) {
        m_ui->txtFilename->setFocus();
        return;
    }
    // Enter presses OK while the box still has the keyboard. A box that was left has been read; if
    // it had no number, the one before is kept.
    if (focusWidget() == m_ui->txtStart)
        StartNo = rangeNumber(*m_ui->txtStart);
    if (focusWidget() == m_ui->txtEnd)
        EndNo = rangeNumber(*m_ui->txtEnd);
    exportRange();
}

void dlgExport::exportRange()
{
    const QString path = withoutOuterBlanks(m_ui->txtFilename->text());
    const bool isNew = !QFileInfo::exists(path);
    auto undo = qScopeGuard([fileName = gFileName, changed = gChanged, path, isNew] {
        gFileName = fileName;
        gChanged = changed;
        if (isNew)
            removeEmptyFile(path);
    });
    gFileName = path;
    cVocabList &target = gExportList();
    const auto clear = qScopeGuard([&target] { target.ClearList(); }); // it may be large
    if (!openTarget(target)) {
        MsgBox(QStringLiteral("Invalid file name."));
        return;
    }
    cVocabList &list = gVocabList();
    WordAdder adder(target);
    ExportCount = forEachNumber(StartNo, EndNo, [&](Integer i) {
        list.CurrentWord(i);
        adder.add(list.Word(), list.Definition(), list.Sentence());
    });
    adder.tellOfTheRest();
    target.SaveFile();
    undo.dismiss();
    close();
    MsgBox(ExportCount.toText() + QStringLiteral(" words has been added to ") + gFileName);
}

void dlgExport::cmdCancel_Click()
{
    close();
}
