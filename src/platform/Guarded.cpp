// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Guarded.h"

#include "platform/MsgBox.h"
#include "runtime/RunTimeError.h"

#include <QScopedValueRollback>
#include <QThread>

#include <new>
#include <utility>

namespace {

// The level of nested event loops at which the innermost handler began; -1 if none runs.
int handlerLevel = -1;

std::function<void()> handlerEndHook;

int loopLevel()
{
    return QThread::currentThread()->loopLevel();
}

bool runAndTell(const std::function<void()> &handler)
{
    const QScopedValueRollback atWork(handlerLevel, loopLevel());
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

} // namespace

bool isHandlerAtWork()
{
    return handlerLevel >= loopLevel();
}

void setHandlerEndHook(std::function<void()> ended)
{
    handlerEndHook = std::move(ended);
}

bool runGuarded(const std::function<void()> &handler)
{
    const bool succeeded = runAndTell(handler);
    if (handlerEndHook && handlerLevel < 0)
        runAndTell(handlerEndHook);
    return succeeded;
}
