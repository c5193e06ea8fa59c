// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/editor/editortest.h"

#include "tests/support/look/look.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

void EditorTest::startStage()
{
    qputenv("LC_ALL", "en_GB.UTF-8");
    QVERIFY(m_bus.isRunning());
    QVERIFY(m_daemon.start());
    Utility::instance()->subscribeToContextFramework();
    QTRY_VERIFY(Utility::instance()->isTriggerMapReceived());
    m_tone = m_folder.filePath("tone.aac");
    QFile tone(m_tone);
    QVERIFY(tone.open(QIODevice::WriteOnly));
    openWindow();
}

void EditorTest::openWindow()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    QVERIFY(Support::loadLook());
    m_window = std::make_unique<Touch::ApplicationWindow>();
    m_mainPage = std::make_unique<Touch::ApplicationPage>();
    m_mainPage->appear(m_window.get());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void EditorTest::openPage()
{
    QSettings("Korvo", "Clock").clear();
    m_page = std::make_unique<SettingAlarmPage>();
    m_picker = Support::itemIn<TimePicker>(m_page.get());
    m_title = Support::itemIn<Touch::TextEdit>(m_page.get());
    m_page->appear(m_window.get());
}

void EditorTest::writePreferences(const QByteArray &content)
{
    QFile file(QSettings("Korvo", "Clock").fileName());
    QVERIFY(QDir().mkpath(QFileInfo(file).path()));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

void EditorTest::closePage()
{
    m_page.reset();
    QVERIFY(Support::removeAllAlarms());
}

void EditorTest::load(quint32 cookie, const QTime &time, const QString &title, unsigned int snooze)
{
    m_page->loadAlarm(cookie, time, title, m_tone, true, snooze);
}

void EditorTest::pick(const QTime &time)
{
    m_picker->setHours(time.hour());
    m_picker->setMinutes(time.minute());
}

QString EditorTest::shownBanner() const
{
    const auto *banner = shown<Touch::Banner>();
    return banner ? banner->title() : QString();
}

QList<quint32> EditorTest::storedCookies()
{
    bool failed = false;
    return QmAlarm().query(failed);
}
