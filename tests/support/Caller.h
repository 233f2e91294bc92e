// SPDX-License-Identifier: GPL-3.0-or-later
// The place in a test that calls a helper; what fails in the helper is reported there. A helper
// takes it as its last argument, with the default Caller::current().
#pragma once

#include <QTest>

#include <version>

#ifdef __cpp_lib_source_location
#include <source_location>
using Caller = std::source_location;
#else // clang-tidy 14 lacks it
#include <experimental/source_location>
using Caller = std::experimental::source_location;
#endif

// Fails the running test and returns: the test goes on.
inline void failTest(const QString &what, Caller caller = Caller::current())
{
    QTest::qFail(qUtf8Printable(what), caller.file_name(), static_cast<int>(caller.line()));
}
