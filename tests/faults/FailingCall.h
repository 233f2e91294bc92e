// SPDX-License-Identifier: GPL-3.0-or-later
// Makes a call of a system function fail: during the lifetime of the object, the calls that this
// thread makes for files below a folder are counted, and the one with a given number fails, or that
// one and all later ones.
//
// FailingCall.cpp replaces functions of the C library in every test that is linked with it, also
// for Qt's calls. A close that fails closes the file, as on Linux. A flush to the disk does
// nothing.
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
    // A write succeeds, but writes only half of the bytes.
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
    // Whether it was made for a folder.
    [[nodiscard]] bool wasOnFolder() const;
};

inline constexpr std::array FailingFunctions{
    FailingCall::Function::Open,   FailingCall::Function::Read,   FailingCall::Function::Write,
    FailingCall::Function::Fsync,  FailingCall::Function::Close,  FailingCall::Function::Rename,
    FailingCall::Function::Link,   FailingCall::Function::Unlink, FailingCall::Function::Ftruncate,
    FailingCall::Function::Fchmod, FailingCall::Function::Fchown, FailingCall::Function::Mkdir};

[[nodiscard]] const char *nameOf(FailingCall::Function function);
