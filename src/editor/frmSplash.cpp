// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmSplash.h"

#include "editor/ui_frmSplash.h"
#include "platform/Application.h"

frmSplash::frmSplash() : m_ui(std::make_unique<Ui::frmSplash>())
{
    m_ui->setupUi(this);
    setWindowFlags(Qt::SplashScreen);
    m_timer1.setObjectName(QStringLiteral("Timer1"));
    m_timer1.setParent(this);
    connect(&m_timer1, &QTimer::timeout, this, guarded(this, &frmSplash::Timer1_Timer));
}

frmSplash::~frmSplash() = default;

void frmSplash::Form_Load()
{
    m_timer1.start(3000);
    m_ui->lblVersion->setText(QStringLiteral("Version %1.%2.%3a")
                                  .arg(Application::Major())
                                  .arg(Application::Minor())
                                  .arg(Application::Revision()));
    m_ui->lblProductName->setText(QStringLiteral("The ") + Application::Title());
    m_ui->lblLegalNotice_1->setText(Application::LegalCopyright());
}

void frmSplash::Timer1_Timer()
{
    m_timer1.stop();
    close();
    Q_EMIT unloaded();
}
