// SPDX-License-Identifier: GPL-3.0-or-later
// One of the system's file functions that fails: for as long as the object lives, the calls of it
// that this thread makes on files and folders below a folder are counted, and the one with a given
// number fails with a given reason, or it and all after it.
//
// FailingCall.cpp puts functions of its own in the place of those of the C library, for the
// program's code and for Qt's, in every test that is linked with it. A close that fails closes all
// the same, as on Linux; a flush to the disk does nothing.
#pragma once

#include <QString>

#include <array>

class FailingCall final
{
public:
    enum class Function {
        Open,
        Read,
        Write,
        Fsync,
        Close,
        Rename,
        Link,
        Unlink,
        Ftruncate,
        Fchmod,
        Fchown,
        Mkdir
    };
    enum class Lasting { Once, FromThenOn };
    // Of a write: no error, but only half of the bytes are taken.
    static constexpr int StopsShort = 0;

    struct Fault
    {
        Function function = Function::Open;
        int number = 1;          // of the call, the first is 1
        int reason = StopsShort; // an errno
        Lasting lasting = Lasting::Once;
    };

    FailingCall(const QString &folder, const Fault &fault);
    ~FailingCall();
    Q_DISABLE_COPY_MOVE(FailingCall)

    // Whether there was a call of that number.
    [[nodiscard]] bool hasFailed() const;
    // Whether it was about a folder.
    [[nodiscard]] bool wasOnFolder() const;
};

inline constexpr std::array FailingFunctions{
    FailingCall::Function::Open,   FailingCall::Function::Read,   FailingCall::Function::Write,
    FailingCall::Function::Fsync,  FailingCall::Function::Close,  FailingCall::Function::Rename,
    FailingCall::Function::Link,   FailingCall::Function::Unlink, FailingCall::Function::Ftruncate,
    FailingCall::Function::Fchmod, FailingCall::Function::Fchown, FailingCall::Function::Mkdir};

[[nodiscard]] const char *nameOf(FailingCall::Function function);
