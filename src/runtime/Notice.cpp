// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/Notice.h"

#include <utility>

namespace {

std::function<void(const QString &)> &noticeHook()
{
    static std::function<void(const QString &)> hook;
    return hook;
}

} // namespace

void notice(const QString &text)
{
    if (noticeHook())
        noticeHook()(text);
}

void setNoticeHook(std::function<void(const QString &)> hook)
{
    noticeHook() = std::move(hook);
}
