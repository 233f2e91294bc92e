// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Application.h"

#include "platform/AccessibleWidgets.h"
#include "platform/Appearance.h"
#include "platform/HeldKeys.h"
#include "platform/MsgBox.h"
#include "platform/Paths.h"
#include "platform/ProgramStyle.h"
#include "runtime/Notice.h"

#include <QIcon>
#include <QVersionNumber>

#include <csignal>

namespace {

const QVersionNumber &version()
{
    static const QVersionNumber version =
        QVersionNumber::fromString(QLatin1String(TANGLEWIT_VERSION));
    return version;
}

} // namespace

Application::Application(int &argc, char **argv) : QApplication(argc, argv)
{
    // A write beyond the limit on file sizes then fails instead of ending the program.
    std::signal(SIGXFSZ, SIG_IGN);
    setApplicationName(Title());
    setApplicationVersion(QLatin1String(TANGLEWIT_VERSION));
    setOrganizationName(QStringLiteral("LexiBrook"));
    setDesktopFileName(QStringLiteral("org.lexibrook.Tanglewit"));
    setWindowIcon(QIcon(QStringLiteral(":/icons/tanglewit.svg")));
    setStyle(new ProgramStyle);
    applyAppearance(*this);
    refineAccessibility();
    installEventFilter(new HeldKeys(this));
    setNoticeHook([](const QString &text) { MsgBox(text); });
}

bool Application::PrevInstance()
{
    m_instanceLock = std::make_unique<QLockFile>(pathOf(Place::InstanceLock));
    // A lock is stale unless the process that made it runs; so is an empty lock file, which a power
    // failure can leave.
    m_instanceLock->setStaleLockTime(1);
    return !m_instanceLock->tryLock() && m_instanceLock->error() == QLockFile::LockFailedError;
}

QString Application::Title()
{
    return QStringLiteral("Tanglewit");
}

int Application::Major()
{
    return version().majorVersion();
}

int Application::Minor()
{
    return version().minorVersion();
}

int Application::Revision()
{
    return version().microVersion();
}

QString Application::LegalCopyright()
{
    return QStringLiteral("Copyright \u00A9 2026 LexiBrook. All words are yours.");
}

bool Application::event(QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange ||
        event->type() == QEvent::ApplicationFontChange)
        applyAppearance(*this);
    return QApplication::event(event);
}
