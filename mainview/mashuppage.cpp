// SPDX-FileCopyrightText: 2026 The Clock authors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "mainview/mashuppage.h"

#include "alarmlist/alarmswidget.h"
#include "alarmlist/notices/informationbanner.h"
#include "mainview/dropshadow.h"
#include "platform/clockwidgets/worldclock.h"
#include "platform/locale/locale.h"
#include "platform/timedclient/interface.h"
#include "platform/toolkit/layout.h"
#include "platform/toolkit/linearlayoutpolicy.h"
#include "platform/toolkit/pannableviewport.h"
#include "platform/toolkit/separator.h"
#include "platform/toolkit/window.h"

#include <QDebug>
#include <QtMath>

using Touch::LinearLayoutPolicy;

namespace {

/** The largest part of the height that the clock face takes above the alarms. */
constexpr qreal ClockFaceShare = 0.45;

LinearLayoutPolicy *arrangement(Touch::Layout *layout, Qt::Orientation orientation)
{
    auto *policy = new LinearLayoutPolicy(layout, orientation);
    policy->setStyleName("ClockMainViewLayout");
    policy->setContentsMargins(0, 0, 0, 0);
    return policy;
}

} // namespace

MashupPage::MashupPage()
{
    setTitle(qtTrId("qtn_cloc_title"));
    setComponentsDisplayMode(AllComponents, Touch::ApplicationPage::Hide);
    setStyleName("MainPage");
}

MashupPage::~MashupPage()
{
    destroyInformationBanner();
    delete m_timed;
}

void MashupPage::createContent()
{
    Touch::ApplicationPage::createContent();
    installCatalogues();
    auto *layout = new Touch::Layout(centralWidget());
    m_clockFace = new WorldClock(centralWidget());
    // It keeps its size however long the list is.
    m_clockFace->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_dropShadow = new DropShadow;
    arrange(layout, createAlarmList());
    connect(this, &QGraphicsWidget::heightChanged, m_clockFace, [this] { fitClockFace(); });
    fitClockFace();
    followDaemonSettings();
}

void MashupPage::installCatalogues()
{
    Touch::Locale locale;
    locale.installTrCatalog("countries");
    locale.installTrCatalog("sounds");
    Touch::Locale::setDefault(locale);
}

Touch::PannableViewport *MashupPage::createAlarmList()
{
    auto *viewport = new Touch::PannableViewport;
    m_alarmList = new AlarmsWidget(centralWidget(), viewport);
    m_alarmList->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    viewport->setWidget(m_alarmList);
    return viewport;
}

Touch::Separator *MashupPage::createDivider()
{
    auto *divider = new Touch::Separator;
    divider->setStyleName("ClockItemDivider");
    divider->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // Fixed as it is, it would keep its width in a wider window and not let the content become narrower.
    const auto followWidth = [this, divider] {
        const QMarginsF margins = divider->style().margins;
        divider->setPreferredWidth(paddedRect().width() - margins.left() - margins.right());
    };
    connect(this, &QGraphicsWidget::widthChanged, divider, followWidth);
    followWidth();
    return divider;
}

void MashupPage::arrange(Touch::Layout *layout, Touch::PannableViewport *viewport)
{
    Touch::Separator *divider = createDivider();

    LinearLayoutPolicy *landscape = arrangement(layout, Qt::Horizontal);
    landscape->setSpacing(0);
    landscape->addItem(m_clockFace);
    landscape->addItem(viewport);
    layout->setLandscapePolicy(landscape);

    LinearLayoutPolicy *portrait = arrangement(layout, Qt::Vertical);
    portrait->addItem(m_clockFace);
    portrait->addItem(m_dropShadow);
    portrait->addItem(divider);
    portrait->addItem(viewport);
    layout->setPortraitPolicy(portrait);
}

// In a low window it becomes smaller, so that alarms are seen as well.
void MashupPage::fitClockFace()
{
    const bool isAboveAlarms = !hostWindow() || hostWindow()->orientation() == Qt::Vertical;
    const qreal room = paddedRect().height() * (isAboveAlarms ? ClockFaceShare : 1);
    m_clockFace->setPreferredHeight(qMin<qreal>(m_clockFace->style().preferredSize.height(), qFloor(room)));
}

void MashupPage::followDaemonSettings()
{
    m_timed = new Astel::Timed::Interface;
    const bool isConnected
        = m_timed->settings_changed_connect(this, SLOT(timeChanged(const Astel::Timed::WallClock::Info &, bool)));
    if (!isConnected)
        qDebug() << "[MashupPage] Unable to connect Astel::Timed::setting_changed signal";
}

void MashupPage::resetContent()
{
    qDebug() << "void MashupPage::resetContent()";
    m_alarmList->resetContent();
}

void MashupPage::timeChanged(const Astel::Timed::WallClock::Info &, bool)
{
    m_alarmList->updateContent();
}
