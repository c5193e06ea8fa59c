// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/alarmlist/alarmsection.h"

#include "alarms/utility.h"
#include "editor/settingalarmpage.h"
#include "platform/clockwidgets/alarmlistitem.h"
#include "platform/toolkit/banner.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/objectmenu.h"
#include "tests/support/alarms.h"
#include "tests/support/look/look.h"
#include "tests/support/look/shown.h"

#include <QTest>

#include <algorithm>

bool AlarmSection::start()
{
    qputenv("CLOCK_REDUCED_MOTION", "1");
    qputenv("LC_ALL", "en_GB.UTF-8");
    if (!Support::loadLook() || !m_bus.isRunning() || !m_daemon.start())
        return false;
    m_window = std::make_unique<Touch::ApplicationWindow>();
    m_window->show();
    return QTest::qWaitForWindowExposed(m_window.get());
}

bool AlarmSection::open()
{
    openAtOnce();
    return QTest::qWaitFor([] { return Clock::Utility::instance()->isTriggerMapReceived(); })
        && model()->rowCount() == 0;
}

void AlarmSection::openAtOnce()
{
    m_page = std::make_unique<Touch::ApplicationPage>();
    auto *layout = new Touch::Layout(m_page->centralWidget());
    auto *policy = new Touch::LinearLayoutPolicy(layout, Qt::Vertical);
    m_viewport = new Touch::PannableViewport;
    m_widget = new AlarmsWidget(m_page->centralWidget(), m_viewport);
    m_viewport->setWidget(m_widget);
    policy->addItem(m_viewport);
    m_page->appear(m_window.get());
}

bool AlarmSection::close()
{
    SettingAlarmPage::instance()->dismiss();
    const bool isEmpty = Support::removeAllAlarms();
    m_page.reset();
    return isEmpty;
}

QStringList AlarmSection::column(int number) const
{
    QStringList texts;
    for (int row = 0; row < model()->rowCount(); ++row)
        texts.append(model()->index(row, number).data().toString());
    return texts;
}

AlarmListItem *AlarmSection::cell(int row) const
{
    const long cookie = model()->index(row, 0).data().toInt();
    const auto items = m_window->scene()->items();
    for (QGraphicsItem *item : items) {
        auto *found = qobject_cast<AlarmListItem *>(item->toGraphicsObject());
        if (found && found->isVisible() && found->alarmCookie() == cookie)
            return found;
    }
    return nullptr;
}

QString AlarmSection::shownBanner() const
{
    const auto *banner = Support::shownIn<Touch::Banner>(m_window.get());
    return banner ? banner->title() : QString();
}

bool AlarmSection::isHintShown() const
{
    const auto items = m_widget->childItems();
    return std::any_of(items.begin(), items.end(), [](QGraphicsItem *item) {
        const auto *widget = qobject_cast<Touch::Widget *>(item->toGraphicsObject());
        return widget && widget->styleName() == "AlarmsEmptyHint" && widget->isVisible();
    });
}

void AlarmSection::flip(AlarmListItem *cell)
{
    cell->setEnabled(!cell->enabled());
    emit cell->alarmStateChanged();
}

void AlarmSection::chooseDelete(AlarmListItem *cell)
{
    Touch::ObjectMenu::actionsOf(cell).first()->trigger();
}
