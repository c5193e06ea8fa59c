// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "alarmlist/alarmswidget.h"
#include "mainview/mashuppage.h"
#include "platform/toolkit/applicationwindow.h"
#include "tests/support/logcapture.h"
#include "tests/support/look/items.h"
#include "tests/support/look/look.h"

#include <QTest>

/** The page where there is no bus to hear the daemon on. */
class TestMashupPageWithoutBus : public QObject
{
    Q_OBJECT

private slots:
    void theFailedConnectionIsLoggedAndThePageWorksOn();
};

void TestMashupPageWithoutBus::theFailedConnectionIsLoggedAndThePageWorksOn()
{
    QVERIFY(Support::loadLook());
    Touch::ApplicationWindow window;
    window.show();
    MashupPage page;
    const Support::LogCapture log;
    page.appear(&window);
    const QString line("[MashupPage] Unable to connect Astel::Timed::setting_changed signal");
    QCOMPARE(log.lines(QtDebugMsg).count(line), 1);
    QVERIFY(page.isContentCreated());
    QVERIFY(Support::itemIn<AlarmsWidget>(&page));
    page.resetContent();
    QVERIFY(log.lines().contains("void AlarmsWidget::resetContent()"));
}

QTEST_MAIN(TestMashupPageWithoutBus)
#include "tst_mashuppagewithoutbus.moc"
