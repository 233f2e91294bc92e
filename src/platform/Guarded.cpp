// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Guarded.h"

#include "platform/MsgBox.h"
#include "runtime/RunTimeError.h"

#include <QScopedValueRollback>
#include <QThread>

#include <new>

namespace {

// How many event loops were under way when the innermost handler began; -1 where none runs.
int loopsAroundHandler = -1;

int loopsUnderWay()
{
    return QThread::currentThread()->loopLevel();
}

} // namespace

bool isHandlerAtWork()
{
    return loopsAroundHandler >= loopsUnderWay();
}

bool runGuarded(const std::function<void()> &handler)
{
    const QScopedValueRollback atWork(loopsAroundHandler, loopsUnderWay());
    try {
        handler();
        return true;
    } catch (const RunTimeError &error) {
        MsgBox(error.report());
    } catch (const std::bad_alloc &) {
        MsgBox(RunTimeError(RunTimeError::OutOfMemory).report());
    } catch (const std::exception &error) {
        MsgBox(QString::fromUtf8(error.what()));
    } catch (...) {
        MsgBox(QStringLiteral("The command has ended by an unknown error."));
    }
    return false;
}
